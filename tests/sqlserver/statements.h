// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// Every statement that the control can send to SQL Server, in every variant of its pieces.
#pragma once

#include <string>
#include <vector>

namespace dn::tests {

/// Those that SQL Server takes.
std::vector<std::string> validStatements();

struct Refused {
    std::string text;
    int code; ///< SQL Server's number for the refusal
};

/// Those that it refuses, which the control knows how to live with.
std::vector<Refused> refusedStatements();

} // namespace dn::tests
