// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// Waiting for something that no descriptor announces: a server that comes up, a lock that comes free.
#pragma once

#include <chrono>
#include <stop_token>
#include <thread>

namespace dn::host {

/// Asks again and again, every few milliseconds, until the answer is yes, the time is over or nobody wants it any
/// more.
/// @return the last answer.
template <class Question>
bool waitUntil(std::chrono::milliseconds patience, Question&& answered, const std::stop_token& givenUp = {})
{
    const auto end = std::chrono::steady_clock::now() + patience;
    while (!answered()) {
        if (givenUp.stop_requested() || std::chrono::steady_clock::now() >= end) return false;
        std::this_thread::sleep_for(std::chrono::milliseconds(4));
    }
    return true;
}

} // namespace dn::host
