// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/support/project_fixture.h"

namespace dn::tests {
namespace {

std::vector<Cell> rowOf(const std::vector<std::string>& names, std::map<std::string, Cell> columns)
{
    std::vector<Cell> row;
    for (const std::string& name : names) {
        const auto given = columns.find(name);
        row.push_back(given == columns.end() ? Cell(null) : given->second);
        if (given != columns.end()) columns.erase(given);
    }
    for (const auto& [name, cell] : columns)
        ADD_FAILURE() << "no such column: " << name;
    return row;
}

} // namespace

void ProjectTest::activities(std::vector<std::vector<Cell>> rows)
{
    cnn.onContaining(readsActivities).gives(activityColumns(), std::move(rows));
}

void ProjectTest::projects(std::vector<std::vector<Cell>> rows)
{
    cnn.onContaining(readsProjects).gives(projectColumns(), std::move(rows));
}

std::vector<Cell> ProjectTest::activity(std::int64_t project, Columns columns) const
{
    columns.emplace("Sys_PK", whole(project));
    columns.emplace("UF_Status1", whole(1));
    return rowOf(activityColumns(), std::move(columns));
}

std::vector<Cell> ProjectTest::project(std::int64_t key, Columns columns) const
{
    columns.emplace("Sys_PK", whole(key));
    columns.emplace("UF_Status1", whole(1));
    return rowOf(projectColumns(), std::move(columns));
}

void ProjectTest::contactData(Columns columns)
{
    std::vector<std::string> names = contactDataColumns();
    auto row = rowOf(names, std::move(columns));
    for (std::string& name : names)
        if (name == "Persona.EMail") name = "EMail";
    cnn.onContaining(readsContactData).gives(std::move(names), {std::move(row)});
}

void ProjectTest::openProjects()
{
    elements().top.lblItem(desk::proyectos).click();
    cnn.forgetStatements();
}

std::vector<std::string> ProjectTest::cells(const screen::ListItem& row)
{
    std::vector<std::string> result{std::string(row.Text())};
    for (int i = 1; i <= row.ListSubItems().Count(); ++i)
        result.emplace_back(row.ListSubItems()(i).Text());
    return result;
}

std::string ProjectTest::selectedKey()
{
    return lvwProy().SelectedItem() ? std::string(lvwProy().SelectedItem()->Key()) : "none";
}

const std::vector<std::string>& activityColumns()
{
    static const std::vector<std::string> columns{
        "FInicio",      "UF_Color",        "UF_Status1", "Actividad", "Asunto",   "Meta",
        "Organizacion", "Descripcion",     "IEjecutivo", "Sys_PK",    "UF_monto", "Tel1",
        "EMail2",       "EMail1",          "Email3",     "contacto",  "e_dias",   "e_ultimocontacto",
        "e_duc",        "e_ultimointento", "e_dui"};
    return columns;
}

const std::vector<std::string>& projectColumns()
{
    static const std::vector<std::string> columns{"Meta",        "UF_Status1", "UF_Color", "Organizacion",
                                                  "Descripcion", "IEjecutivo", "Sys_PK"};
    return columns;
}

const std::vector<std::string>& contactDataColumns()
{
    static const std::vector<std::string> columns{
        "Tel1",         "Tel2",         "Tel3",          "Fax",         "EMail",     "WebSite", "PN_Nombre",
        "PN_Apellido1", "PN_Apellido2", "Persona.EMail", "Tel_Trabajo", "Tel_Movil", "Tel_Casa"};
    return columns;
}

} // namespace dn::tests
