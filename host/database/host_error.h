// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// What keeps the host application from its data, in words that its operator can act upon.
#pragma once

#include <functional>
#include <stdexcept>
#include <string>

namespace dn::host {

/// Its text is Spanish and says what is wrong and what to do about it. It never holds a password.
class HostError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// Takes a short Spanish text for each step of something that takes its time. May be empty.
using Progress = std::function<void(const std::string&)>;

/// Why the operating system refused, in Spanish where the operator can do something about it.
/// @param number an `errno`.
std::string systemReason(int number);

} // namespace dn::host
