// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/support/control_fixture.h"

namespace dn::tests {

ControlTest::ControlTest()
{
    cnn.on("SELECT NOW()").gives({"NOW()"}, {{date("2026-03-14 09:30:00")}});
    cnn.on(agentsStatement).gives({"Sys_PK", "Nombre"}, {{whole(7), text("Ana")}, {whole(9), text("Beto")}});
}

void ControlTest::connect(std::int32_t agent, bool admin)
{
    control.hostObjects(&host);
    control.SetObjects(&cnn, agent, admin, "ana");
    control.InitUICRM("C:\\pantallas", lands);
    host.log.calls.clear();
    cnn.forgetStatements();
}

void ControlTest::start(std::int32_t agent, bool admin)
{
    connect(agent, admin);
    control.RefreshData();
    cnn.forgetStatements();
}

void ControlTest::openProspects()
{
    elements().top.lblItem(desk::prospectos).click();
    cnn.forgetStatements();
}

void ControlTest::prospects(std::vector<std::vector<Cell>> rows)
{
    cnn.onContaining("FROM ut_icontact WHERE").gives(prospectColumns(), std::move(rows));
}

std::vector<Cell> ControlTest::prospect(std::int64_t key, std::map<std::string, Cell> columns) const
{
    columns.emplace("Sys_PK", whole(key));
    std::vector<Cell> row;
    for (const std::string& name : prospectColumns()) {
        const auto given = columns.find(name);
        row.push_back(given == columns.end() ? Cell(null) : given->second);
        if (given != columns.end()) columns.erase(given);
    }
    for (const auto& [name, cell] : columns)
        ADD_FAILURE() << "no such column: " << name;
    return row;
}

std::vector<std::string> ControlTest::keys(screen::ListView& list)
{
    std::vector<std::string> result;
    for (int i = 1; i <= list.ListItems().Count(); ++i)
        result.emplace_back(list.ListItems()(i).Key());
    return result;
}

void ControlTest::failAt(std::size_t n)
{
    cnn.forgetStatements();
    cnn.failAt(n, "se perdió la conexión", "HY000", 2013);
}

const std::vector<std::string>& prospectColumns()
{
    static const std::vector<std::string> columns{
        "Sys_PK",    "uf_Nombre",        "uf_EMail",      "uf_Telefono",     "uf_Empresa",
        "uf_Puesto", "uf_Pais",          "uf_Estado",     "uf_Ciudad",       "uf_Interes",
        "uf_Fecha",  "uf_Comentarios",   "uf_IEjecutivo", "uf_Status",       "uf_Tipo",
        "uf_color",  "uf_Redirect",      "uf_proxcontac", "uf_contactado",   "uf_correoverif",
        "e_dias",    "e_ultimocontacto", "e_duc",         "e_ultimointento", "e_dui"};
    return columns;
}

const std::vector<std::string>& correctionColumns()
{
    static const std::vector<std::string> columns{"Sys_PK",      "uf_Nombre",  "uf_EMail",
                                                  "uf_Telefono", "uf_Empresa", "uf_Puesto"};
    return columns;
}

} // namespace dn::tests
