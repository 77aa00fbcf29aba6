// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "data/failure_modes.h"

namespace dn::data {
namespace {

// One for each thread, so that controls on the threads of a load generator do not see each other's failures.
std::function<void(const std::exception&)>& observer()
{
    thread_local std::function<void(const std::exception&)> instance;
    return instance;
}

} // namespace

void observePassedOver(std::function<void(const std::exception&)> newObserver)
{
    observer() = std::move(newObserver);
}

void detail::passedOver(const std::exception& failure)
{
    if (observer()) observer()(failure);
}

} // namespace dn::data
