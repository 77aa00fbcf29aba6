// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The control itself: what an operator types on its way into a statement, and what a database gives on its way
// into a list.

#include "base/runtime_error.h"
#include "base/text.h"
#include "dialogs/prospect_insert.h"
#include "shell/ctr_dn_contacts.h"
#include "tests/fuzz/input.h"
#include "tests/fuzz/targets.h"
#include "tests/support/control_fixture.h"

#include <algorithm>
#include <array>

namespace dn::fuzz {
namespace {

constexpr std::int32_t agent = 7;

/// A control with one agent's prospects on its first tab.
class Workbench {
public:
    explicit Workbench(std::vector<std::vector<tests::Cell>> prospects)
    {
        cnn.on("SELECT NOW()").gives({"NOW()"}, {{tests::date("2026-03-14 09:30:00")}});
        cnn.on(tests::agentsStatement).gives({"Sys_PK", "Nombre"}, {{tests::whole(agent), tests::text("Ana")}});
        cnn.onContaining("FROM ut_icontact WHERE").gives(tests::prospectColumns(), std::move(prospects));
        control.hostObjects(&host);
        control.SetObjects(&cnn, agent, false, "ana");
        control.InitUICRM("pantallas", lands);
        control.RefreshData();
        control.elements().top.lblItem(desk::prospectos).click();
        cnn.forgetStatements();
    }

    screen::ListView& lvw() { return control.elements().prospects.lvw; }
    std::vector<std::string> keys()
    {
        std::vector<std::string> result;
        for (int row = 1; row <= lvw().ListItems().Count(); ++row)
            result.emplace_back(lvw().ListItems()(row).Key());
        return result;
    }

    tests::FakeConnection cnn;
    tests::FakePorts ports;
    tests::FakeHost host;
    HostObject lands = std::make_shared<int>(1);
    ctrDnContacts control{ports.ports()};
};

tests::Cell someCell(Input& input)
{
    using Kind = data::Value::Kind;
    constexpr std::array kinds{Kind::null, Kind::boolean, Kind::whole, Kind::number, Kind::text, Kind::dateTime};
    const std::size_t kind = input.choice(kinds.size() + 1);
    if (kind == kinds.size()) return tests::failing("no se puede leer");
    return {kinds.at(kind), input.text(), false};
}

std::vector<std::vector<tests::Cell>> someRows(Input& input)
{
    constexpr std::size_t most = 8;
    std::vector<std::vector<tests::Cell>> all;
    while (!input.empty() && all.size() < most) {
        std::vector<tests::Cell>& row = all.emplace_back(tests::prospectColumns().size(), tests::null);
        for (std::size_t filled = input.choice(8) + 1; filled > 0; --filled)
            row[filled == 1 ? 0 : input.choice(row.size())] = someCell(input); // the key most often
    }
    return all;
}

/// The keys of the rows that a list can show: those that can be read, each once.
std::vector<std::string> keysOf(const std::vector<std::vector<tests::Cell>>& records)
{
    std::vector<std::string> keys;
    for (const auto& record : records) {
        if (record.front().failing) continue;
        try {
            const std::string key = "K" + data::Value(record.front().kind, record.front().text).toText();
            if (std::find(keys.begin(), keys.end(), key) == keys.end()) keys.push_back(key);
        } catch (const RuntimeError&) {
            continue; // a null, or no date
        }
    }
    return keys;
}

} // namespace

void parameters(Input& input)
{
    const bool mySql = input.flag();
    const std::string typed = input.text();
    std::string literal = "@uf_Nombre";
    dialogs::SetParam(literal, "uf_Nombre", typed);
    require(literal.size() >= 2 && literal.starts_with('\'') && literal.ends_with('\''), "a text comes in quotes");
    const std::string inside = literal.substr(1, literal.size() - 2);
    require(inside.find('\'') == std::string::npos, "no apostrophe is left in a text");
    if (typed.find('\'') == std::string::npos)
        require(inside.find(crlf) == std::string::npos, "no pair of line ends is left in a text");
    std::string statement = dialogs::prospectInsert(mySql);
    const auto apostrophes = [&] { return std::count(statement.begin(), statement.end(), '\''); };
    const auto before = apostrophes();
    constexpr std::array columns{"uf_Nombre", "uf_EMail", "uf_Telefono", "uf_Empresa", "uf_Puesto"};
    std::ptrdiff_t filled = 0;
    for (const char* column : columns) {
        const std::string text = input.text();
        if (text.find('@') != std::string::npos) continue; // it may name a marker that comes later
        dialogs::SetParam(statement, column, text);
        ++filled;
    }
    require(apostrophes() == before + 2 * filled, "a statement has the quotes of its texts and no others");
}

void notes(Input& input)
{
    const std::string typed = input.rest();
    const std::string stored = without(without(trimmed(typed), crlf), "'");
    Workbench bench({[] {
        std::vector<tests::Cell> row(tests::prospectColumns().size(), tests::null);
        row.front() = tests::whole(12);
        return row;
    }()});
    bench.lvw().clickRow(0);
    bench.cnn.forgetStatements();
    if (stored.empty()) bench.ports.dialogs.expectBox("Debe escribir un mensaje");
    bench.control.elements().detail.txtText.Text(typed);
    bench.control.elements().detail.cmdIntro.press();
    if (stored.empty()) {
        require(bench.cnn.statements().empty(), "nothing is written without a text");
        return;
    }
    require(bench.cnn.statements() ==
                std::vector<std::string>{"INSERT INTO xt_biticontact (uf_Tiempo, uf_Mensaje, uf_Usuario, "
                                         "uf_Iicontact) VALUES (CURRENT_TIMESTAMP, '" +
                                         stored + "','ana',12)"},
            "a note is written as it was cleaned");
    require(std::count(stored.begin(), stored.end(), '\'') == 0, "no apostrophe is left in a note");
    require(bench.control.elements().detail.txtText.Text().empty(), "the box is empty after the note");
}

void prospects(Input& input)
{
    const std::size_t column = input.choice(17);
    const auto records = someRows(input);
    const std::vector<std::string> wanted = keysOf(records);
    Workbench bench(records);
    require(bench.keys() == wanted, "a list shows each row whose key can be read, once");
    bench.lvw().clickHeader(static_cast<int>(column));
    std::vector<std::string> shown = bench.keys();
    require(std::is_permutation(shown.begin(), shown.end(), wanted.begin(), wanted.end()), "a sort loses no row");
    for (std::size_t row = 0; row < shown.size(); ++row) {
        bench.lvw().clickRow(row);
        const auto selected = bench.lvw().SelectedItem();
        require(selected && selected->Key() == shown[row], "the row that was clicked is selected");
        require(selected->ListSubItems().Count() == 16, "a row has all its cells");
        require(bench.control.elements().detail.txtInfo.Text().starts_with(shown[row] + " | "),
                "the detail is that of the selected row");
        require(bench.cnn.statements().back() == "SELECT * FROM xt_biticontact WHERE uf_Iicontact = " +
                                                     shown[row].substr(1) + " ORDER BY uf_Tiempo",
                "the log is that of the selected row");
    }
}

} // namespace dn::fuzz
