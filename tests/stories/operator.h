// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The operator before the workbench: what he does, what he is asked, what he sees, and what then stands in the
// database. The control is the real one, below the widgets, on a real MariaDB and on the stand-in for SQL Server;
// the questions are scripted.
//
//     enters(ana);
//     clicksRow("María Ñúñez");
//     types("txtText", "pide precios\n");
//     EXPECT_THAT(sees("txtBit"), StartsWith("ana ["));
//     EXPECT_THAT(inTheDatabase("SELECT uf_Mensaje FROM xt_biticontact"), ElementsAre("pide precios"));
#pragma once

#include "desk/elements.h"
#include "desk/tab_strip.h"
#include "shell/ctr_dn_contacts.h"
#include "tests/stories/story_server.h"
#include "tests/support/fake_host.h"
#include "tests/support/fake_ports.h"
#include "tests/support/recording_connection.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace dn::tests {

class Operator : public testing::Test {
protected:
    static constexpr std::int32_t ana = 7;
    static constexpr std::int32_t beto = 9;

    static void SetUpTestSuite();
    Operator();
    /// A further connection to the database.
    static std::unique_ptr<data::Connection> connect();

    // ---- What the web site and others left in the database

    /// A prospect; its key. Columns not named keep the table's defaults; values are SQL literals.
    std::int64_t prospect(const std::string& name, std::map<std::string, std::string> columns = {});
    /// Runs a statement beside the control. Rows that bring their keys name "Sys_PK" as their first column.
    void database(const std::string& statement);
    /// Runs "INSERT INTO t (columns)" for so many rows, with the values of each from 1 on.
    void manyRows(const std::string& head, int count, const std::function<std::string(int)>& values);
    /// The key that the last row of `database` got.
    std::int64_t lastKey();
    static bool onSqlServer() { return storyServer().isSqlServer(); }

    // ---- What the operator does

    /// Starts the workbench and opens the prospects.
    void enters(std::int32_t agent);
    void entersAsAdministrator(std::int32_t agent = 0);
    void opensTab(int tab);
    void picks(const std::string& combo, const std::string& entry);
    void clicksRow(const std::string& name);
    void checksRow(const std::string& name);
    void clicksHeader(int column);
    void presses(const std::string& button);
    void clicksBox(const std::string& checkBox);
    void types(const std::string& textBox, const std::string& text);

    // ---- What he is asked, to be said ahead of the question

    void answers(const std::string& prompt, const std::string& text) { ports.dialogs.expectInput(prompt, text); }
    void agreesTo(const std::string& prompt) { ports.dialogs.expectBox(prompt, screen::Answer::yes); }
    void refuses(const std::string& prompt) { ports.dialogs.expectBox(prompt, screen::Answer::no); }
    void isTold(const std::string& text) { ports.dialogs.expectBox(text); }

    // ---- What he sees, and what stands in the database

    /// The text of a text box, label or combo.
    std::string sees(const std::string& element);
    /// The names in the list of the prospects, in the order shown.
    std::vector<std::string> seesProspects();
    /// A cell of the prospect of that name, by its header.
    std::string seesCell(const std::string& name, const std::string& header);
    bool canUse(const std::string& element);
    /// The rows that a statement gives, their columns joined by bars; a null is "NULL".
    std::vector<std::string> inTheDatabase(const std::string& statement);

    /// The statements sent since the last call that change something.
    std::vector<std::string> changesSent();

    std::unique_ptr<data::Connection> beside; ///< a connection of the test's own
    std::unique_ptr<RecordingConnection> cnn;
    FakePorts ports;
    FakeHost host;
    HostObject lands;
    ctrDnContacts control{ports.ports()};

private:
    void start(std::int32_t agent, bool admin);
    screen::ListItem row(const std::string& name);
    std::size_t positionOf(const std::string& name);
};

} // namespace dn::tests
