// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// A control on a fake connection with two agents and whatever prospects a test gives it; the start of most tests.
#pragma once

#include "desk/elements.h"
#include "desk/tab_strip.h"
#include "shell/ctr_dn_contacts.h"
#include "tests/support/fake_connection.h"
#include "tests/support/fake_host.h"
#include "tests/support/fake_ports.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace dn::tests {

inline constexpr const char* agentsStatement = "Select Sys_PK, Nombre From Agente Order By Nombre";

class ControlTest : public testing::Test {
protected:
    ControlTest();

    /// SetObjects on the fake connection as MariaDB, and InitUICRM; forgets the statements of the probe.
    void connect(std::int32_t agent, bool admin);
    /// connect and RefreshData; forgets the statements.
    void start(std::int32_t agent, bool admin);
    /// Shows the tab "Prospectos" and forgets the statements.
    void openProspects();

    /// The rows that every statement of the prospects gives from now on.
    void prospects(std::vector<std::vector<Cell>> rows);
    /// A prospect row: the key and what else a test cares for, by column.
    std::vector<Cell> prospect(std::int64_t key, std::map<std::string, Cell> columns = {}) const;

    desk::Elements& elements() { return control.elements(); }
    screen::ListView& lvw() { return control.elements().prospects.lvw; }
    /// The keys of the rows of a list in the order shown.
    static std::vector<std::string> keys(screen::ListView& list);
    /// Makes the n-th statement from now fail, and forgets those sent before.
    void failAt(std::size_t n);

    FakeConnection cnn;
    FakePorts ports;
    FakeHost host;
    HostObject lands = std::make_shared<int>(1);
    ctrDnContacts control{ports.ports()};
};

/// The columns that the statements of the prospects give.
const std::vector<std::string>& prospectColumns();
/// The columns that the statement ahead of a correction gives: the key, and what the dialog shows.
const std::vector<std::string>& correctionColumns();

} // namespace dn::tests
