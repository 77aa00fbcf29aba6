// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/stories/operator.h"

#include "base/text.h"
#include "tests/support/element_tree.h"

#include <algorithm>
#include <utility>

namespace dn::tests {
namespace {

constexpr int nameColumn = 3; // the sub-item "Nombre"

/// The table into which a statement puts rows with keys of their own; empty for any other statement.
std::string tableOfKeys(const std::string& statement)
{
    constexpr std::string_view head = "INSERT INTO ";
    const std::size_t keys = statement.find(" (Sys_PK");
    if (!statement.starts_with(head) || keys == std::string::npos) return {};
    const std::string table = statement.substr(head.size(), keys - head.size());
    return table.find(' ') == std::string::npos ? table : std::string();
}

} // namespace

std::unique_ptr<data::Connection> Operator::connect() { return storyServer().connect("prueba"); }

void Operator::SetUpTestSuite()
{
    static const bool made = [] {
        storyServer().createSchema();
        return true;
    }();
    ASSERT_TRUE(made);
}

Operator::Operator()
    : beside(connect()), cnn(std::make_unique<RecordingConnection>(storyServer().connect("control")))
{
    storyServer().setClock("", {});
    for (const char* table :
         {"ut_icontact", "xt_biticontact", "Agente", "Persona", "Organizacion", "Proyecto", "actividad", "Ciudad"})
        database(std::string("DELETE FROM ") + table);
    database("INSERT INTO Agente (Sys_PK, Nombre) VALUES (7, 'Ana'), (9, 'Beto')");
}

std::int64_t Operator::prospect(const std::string& name, std::map<std::string, std::string> columns)
{
    columns.emplace("uf_IEjecutivo", std::to_string(ana));
    std::string names = "uf_Nombre";
    std::string values = "'" + name + "'";
    for (const auto& [column, value] : columns) {
        names += ", " + column;
        values += ", " + value;
    }
    database("INSERT INTO ut_icontact (" + names + ") VALUES (" + values + ")");
    return lastKey();
}

void Operator::database(const std::string& statement)
{
    const std::string table = tableOfKeys(statement);
    const auto runUnlessEmpty = [this](const std::string& around) {
        if (!around.empty()) beside->execute(around);
    };
    if (!table.empty()) runUnlessEmpty(storyServer().keysOn(table));
    beside->execute(statement);
    if (!table.empty()) runUnlessEmpty(storyServer().keysOff(table));
}

void Operator::manyRows(const std::string& head, int count, const std::function<std::string(int)>& values)
{
    constexpr int together = 1000; // no server takes many more
    for (int first = 1; first <= count; first += together) {
        std::string rows;
        for (int row = first; row < first + together && row <= count; ++row)
            rows += (row == first ? " VALUES (" : ", (") + values(row) + ")";
        database(head + rows);
    }
}

std::int64_t Operator::lastKey() { return std::stoll(beside->execute("SELECT @@IDENTITY")->value(0).toText()); }

void Operator::enters(std::int32_t agent) { start(agent, false); }

void Operator::entersAsAdministrator(std::int32_t agent) { start(agent, true); }

void Operator::start(std::int32_t agent, bool admin)
{
    control.hostObjects(&host);
    control.SetObjects(cnn.get(), agent, admin, "ana");
    control.InitUICRM("pantallas", lands);
    control.RefreshData();
    opensTab(desk::prospectos);
    cnn->statements.clear();
}

void Operator::opensTab(int tab) { control.elements().top.lblItem(tab).click(); }

void Operator::picks(const std::string& combo, const std::string& entry)
{
    elementNamed<screen::ComboBox>(control.root(), combo).pick(std::string_view(entry));
}

void Operator::clicksRow(const std::string& name) { control.elements().prospects.lvw.clickRow(positionOf(name)); }

void Operator::checksRow(const std::string& name)
{
    control.elements().prospects.lvw.toggleCheck(positionOf(name));
}

void Operator::clicksHeader(int column) { control.elements().prospects.lvw.clickHeader(column); }

void Operator::presses(const std::string& button) { elementNamed<screen::Button>(control.root(), button).press(); }

void Operator::clicksBox(const std::string& checkBox)
{
    elementNamed<screen::CheckBox>(control.root(), checkBox).toggle();
}

void Operator::types(const std::string& textBox, const std::string& text)
{
    elementNamed<screen::TextBox>(control.root(), textBox).type(text);
}

std::string Operator::sees(const std::string& element)
{
    screen::Element& found = elementNamed(control.root(), element);
    if (const auto* box = dynamic_cast<screen::TextBox*>(&found)) return box->Text();
    if (const auto* label = dynamic_cast<screen::Label*>(&found)) return label->Caption();
    if (const auto* combo = dynamic_cast<screen::ComboBox*>(&found)) return combo->Text();
    ADD_FAILURE() << element << " has no text";
    return {};
}

std::vector<std::string> Operator::seesProspects()
{
    std::vector<std::string> names;
    screen::ListItems rows = control.elements().prospects.lvw.ListItems();
    for (int i = 1; i <= rows.Count(); ++i)
        names.emplace_back(rows(i).ListSubItems()(nameColumn).Text());
    return names;
}

std::string Operator::seesCell(const std::string& name, const std::string& header)
{
    const auto& headers = control.elements().prospects.lvw.ColumnHeaders();
    const screen::ListItem item = row(name);
    for (const screen::ColumnHeader& column : headers)
        if (column.Text == header)
            return std::string(column.Index == 1 ? item.Text() : item.ListSubItems()(column.Index - 1).Text());
    ADD_FAILURE() << "no column " << header;
    return {};
}

bool Operator::canUse(const std::string& element) { return elementNamed(control.root(), element).usable(); }

std::vector<std::string> Operator::inTheDatabase(const std::string& statement)
{
    std::vector<std::string> values;
    const auto rows = beside->execute(statement);
    for (; rows && !rows->Eof(); rows->MoveNext()) {
        std::string& row = values.emplace_back();
        for (std::size_t i = 0; i < rows->names().size(); ++i)
            row.append(i == 0 ? "" : "|").append(rows->value(i).isNull() ? "NULL" : rows->value(i).raw());
    }
    return values;
}

std::vector<std::string> Operator::changesSent()
{
    std::vector<std::string> changes;
    for (const std::string& statement : cnn->statements)
        if (toLower(statement).rfind("select", 0) != 0) changes.push_back(statement);
    cnn->statements.clear();
    return changes;
}

screen::ListItem Operator::row(const std::string& name)
{
    return control.elements().prospects.lvw.ListItems()(static_cast<int>(positionOf(name)) + 1);
}

std::size_t Operator::positionOf(const std::string& name)
{
    const auto names = seesProspects();
    const auto found = std::find(names.begin(), names.end(), name);
    EXPECT_NE(found, names.end()) << name << " is not in the list";
    return static_cast<std::size_t>(found - names.begin());
}

} // namespace dn::tests
