// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/fuzz/workbench.h"

#include "base/runtime_error.h"

#include <array>

namespace dn::fuzz {

Workbench::Workbench(int tab, const std::function<void(tests::FakeConnection&)>& tables, bool administrator)
{
    cnn.on("SELECT NOW()").gives({"NOW()"}, {{tests::date("2026-03-14 09:30:00")}});
    cnn.on(tests::agentsStatement).gives({"Sys_PK", "Nombre"}, {{tests::whole(agent), tests::text("Ana")}});
    tables(cnn);
    control.hostObjects(&host);
    control.SetObjects(&cnn, agent, administrator, "ana");
    control.InitUICRM("pantallas", lands);
    control.RefreshData();
    control.elements().top.lblItem(tab).click();
    cnn.forgetStatements();
}

Workbench::Workbench(Records prospects, bool administrator)
    : Workbench(
          desk::prospectos,
          [&](tests::FakeConnection& database) {
              database.onContaining("FROM ut_icontact WHERE")
                  .gives(tests::prospectColumns(), std::move(prospects));
          },
          administrator)
{
}

std::vector<std::string> Workbench::changes() const
{
    std::vector<std::string> result;
    for (const std::string& statement : cnn.statements())
        if (statement.starts_with("INSERT") || statement.starts_with("UPDATE")) result.push_back(statement);
    return result;
}

std::vector<std::string> keysOf(screen::ListView& list)
{
    std::vector<std::string> result;
    for (int row = 1; row <= list.ListItems().Count(); ++row)
        result.emplace_back(list.ListItems()(row).Key());
    return result;
}

std::vector<std::string> cellsOf(const screen::ListItem& row)
{
    std::vector<std::string> result{std::string(row.Text())};
    for (int cell = 1; cell <= row.ListSubItems().Count(); ++cell)
        result.emplace_back(row.ListSubItems()(cell).Text());
    return result;
}

tests::Cell someCell(Input& input)
{
    using Kind = data::Value::Kind;
    constexpr std::array kinds{Kind::null, Kind::boolean, Kind::whole, Kind::number, Kind::text, Kind::dateTime};
    const std::size_t kind = input.choice(kinds.size() + 1);
    if (kind == kinds.size()) return tests::failing("no se puede leer");
    return {kinds.at(kind), input.text(), false};
}

Records someRows(Input& input, std::size_t columns, std::size_t keyColumn, std::size_t most)
{
    Records all;
    while (!input.empty() && all.size() < most) {
        Record& row = all.emplace_back(columns, tests::null);
        for (std::size_t filled = input.choice(8) + 1; filled > 0; --filled)
            row[filled == 1 ? keyColumn : input.choice(row.size())] = someCell(input);
    }
    return all;
}

std::optional<std::string> keyText(const tests::Cell& cell)
{
    if (cell.failing) return std::nullopt;
    try {
        return data::Value(cell.kind, cell.text).toText();
    } catch (const RuntimeError&) {
        return std::nullopt; // a null, or no date
    }
}

std::optional<std::string> shownText(const tests::Cell& cell)
{
    if (!cell.failing && cell.kind == data::Value::Kind::null) return std::string();
    return keyText(cell);
}

std::string storedNote(std::string_view text)
{
    while (text.starts_with(' '))
        text.remove_prefix(1);
    while (text.ends_with(' '))
        text.remove_suffix(1);
    std::string stored;
    for (; !text.empty(); text.remove_prefix(1)) {
        if (text.starts_with("\r\n"))
            text.remove_prefix(1);
        else if (text.front() != '\'')
            stored += text.front();
    }
    return stored;
}

std::string noteOfTwelve(const std::string& stored)
{
    return "INSERT INTO xt_biticontact (uf_Tiempo, uf_Mensaje, uf_Usuario, uf_Iicontact) VALUES "
           "(CURRENT_TIMESTAMP, '" +
           stored + "','ana',12)";
}

Records prospectTwelve()
{
    Record row(tests::prospectColumns().size(), tests::null);
    row.front() = tests::whole(12);
    return {row};
}

} // namespace dn::fuzz
