// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// Every statement that the control can send, in every variant of its pieces. It is kept complete from both sides:
// the tests of the control fail on a statement that they send and this list lacks (ControlStatementsGuard), and
// the tests on the stand-in for SQL Server run each of them.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace dn::tests {

enum class Dialect { mySql, sqlServer };

/// Those that the server takes.
std::vector<std::string> validStatements(Dialect dialect);

struct Refused {
    std::string text;
    int code; ///< SQL Server's number for the refusal
};

/// Those that SQL Server refuses, which the control knows how to live with. MySQL takes its forms of the first of
/// them; those that a typed apostrophe breaks, neither does.
std::vector<Refused> refusedStatements();

/// A statement without its values: texts that differ by them alone are of one shape.
std::string shapeOf(std::string_view statement);

} // namespace dn::tests
