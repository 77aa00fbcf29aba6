// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// What becomes of a failure, as words of the code. Each procedure of the control runs in one of three modes:
//
//   continue-on-error   each statement stands in a resumeNext: a failure in it is passed over, and the next
//                       statement runs. A failure inside a called procedure leaves the rest of that procedure out.
//   trap                the procedure's body stands in a trap: the failure's text goes to the operator, and the
//                       procedure ends.
//   none                neither: the failure reaches the caller, and at last the host.
#pragma once

#include "base/export.h"

#include <exception>
#include <functional>
#include <string>
#include <utility>

namespace dn::data {

/// Called with each failure that a resumeNext passes over; for tests and for a host that wants to count them.
/// Nothing is kept by the control itself. An empty function takes the observer away.
DN_EXPORT void observePassedOver(std::function<void(const std::exception&)> observer);

namespace detail {
DN_EXPORT void passedOver(const std::exception& failure);
}

/// Runs one statement; a failure is passed over.
/// @return whether the statement ran to its end.
template <class Statement>
bool resumeNext(Statement&& statement)
{
    try {
        std::forward<Statement>(statement)();
        return true;
    } catch (const std::exception& failure) {
        detail::passedOver(failure);
        return false;
    }
}

/// Runs the rest of a procedure; a failure ends it and its text is handed to `report`.
/// @param report takes a `std::string`; the procedures of the control show it in a message box.
template <class Body, class Report>
void trap(Body&& body, Report&& report)
{
    try {
        std::forward<Body>(body)();
    } catch (const std::exception& failure) {
        std::forward<Report>(report)(std::string(failure.what()));
    }
}

} // namespace dn::data
