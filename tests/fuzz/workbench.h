// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// A whole control over the fake connection, for the targets that look at what it sends and shows.
#pragma once

#include "data/value.h"
#include "shell/ctr_dn_contacts.h"
#include "tests/fuzz/input.h"
#include "tests/support/control_fixture.h"

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace dn::fuzz {

using Record = std::vector<tests::Cell>;
using Records = std::vector<Record>;

inline constexpr std::int32_t agent = 7;

/// A control with one agent at work.
class Workbench {
public:
    /// @param tab that is open. @param tables says what the tables hold, ahead of the start.
    Workbench(int tab, const std::function<void(tests::FakeConnection&)>& tables, bool administrator = false);
    /// With these prospects on its first tab.
    explicit Workbench(Records prospects, bool administrator = false);

    screen::ListView& lvw() { return control.elements().prospects.lvw; }
    /// The changes sent since the statements were forgotten.
    std::vector<std::string> changes() const;

    tests::FakeConnection cnn;
    tests::FakePorts ports;
    tests::FakeHost host;
    HostObject lands = std::make_shared<int>(1);
    ctrDnContacts control{ports.ports()};
};

/// The key of each row, in the order shown.
std::vector<std::string> keysOf(screen::ListView& list);
/// The texts of a row, its own first.
std::vector<std::string> cellsOf(const screen::ListItem& row);

/// A cell of any kind and text, or one that cannot be read.
tests::Cell someCell(Input& input);
/// So many rows at the most, mostly null but for some cells; the one of `keyColumn` is filled most often.
Records someRows(Input& input, std::size_t columns, std::size_t keyColumn = 0, std::size_t most = 8);

/// What a cell shows; nothing when it cannot be read as a text. A null is an empty one.
std::optional<std::string> shownText(const tests::Cell& cell);
/// The text of a key; nothing for a null as well.
std::optional<std::string> keyText(const tests::Cell& cell);

/// As the note of a call or an operator is stored, by its own rules: without blanks at its ends, pairs of line
/// ends and apostrophes, in that order.
std::string storedNote(std::string_view text);
/// The statement of a note of the prospect 12.
std::string noteOfTwelve(const std::string& stored);

/// One prospect, whose key is 12.
Records prospectTwelve();

} // namespace dn::fuzz
