// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// What an operator does in a working day, piece by piece, and what he is told when a statement of it fails.
#pragma once

#include "tests/faults/at_work.h"

#include <functional>
#include <string>
#include <vector>

namespace dn::tests {

/// The failure of statements that begin so is told. The text is shown as it stands, the server's words in the
/// place of "%".
struct Told {
    std::string beginning;
    std::string text = "%";
};

struct Action {
    std::string name;
    std::function<void(AtWork&)> prepare;
    std::function<void(AtWork&)> act;
    std::vector<Told> told = {};
    std::vector<std::string> leaves = {}; ///< the failure of statements that begin so reaches the host
    std::string emptyTells = {};          ///< shown when a statement finds no row any more
    bool emptyLeaves = false;             ///< or an exception that reaches the host
    bool hourglassMayStay = false;        ///< after a failure, as the window of the groups leaves it
    bool isAlike = false;                 ///< another action differs from it by a number alone
};

const std::vector<Action>& allActions();

} // namespace dn::tests
