// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/stories/project_operator.h"

#include <algorithm>

namespace dn::tests {
namespace {

constexpr int descriptionColumn = 5; // the sub-item "Descripción"

} // namespace

ProjectOperator::ProjectOperator()
{
    for (const char* table : {"Meta", "mdtpactividad"})
        database(std::string("DELETE FROM ") + table);
    database("INSERT INTO Meta (Sys_PK, Descripcion) VALUES (1, 'Venta nueva')");
    database("INSERT INTO mdtpactividad (Sys_PK, Nombre) VALUES (1, 'Visita'), (2, 'Llamada')");
    database(
        "INSERT INTO Organizacion (Sys_PK, Nombre, Tel1, EMail) VALUES (1, 'Acme', '55 1111', 'ventas@acme.mx')");
    database("INSERT INTO Persona (Sys_PK, Nombre, Apellido1, EMail, Tel_Movil) VALUES "
             "(1, 'María', 'Ñúñez', 'm@acme.mx', '55 2222')");
}

std::int64_t ProjectOperator::project(const std::string& description, Columns columns)
{
    columns.emplace("Descripcion", "'" + description + "'");
    columns.emplace("IEjecutivo", std::to_string(ana));
    for (const char* column : {"IMeta", "IOrganizacion", "IContacto", "UF_Status1"})
        columns.emplace(column, "1");
    insert("Proyecto", columns);
    return lastKey();
}

void ProjectOperator::activity(std::int64_t project, const std::string& subject, Columns columns)
{
    columns.emplace("IProyecto", std::to_string(project));
    columns.emplace("Asunto", "'" + subject + "'");
    columns.emplace("ITpActividad", "1");
    insert("actividad", columns);
}

std::int64_t ProjectOperator::due(const std::string& description, int day, const Columns& columns)
{
    const std::int64_t key = project(description, columns);
    activity(key, "cita", {{"FInicio", "'2026-03-" + std::to_string(day) + " 09:00:00'"}});
    return key;
}

void ProjectOperator::insert(const std::string& table, const Columns& columns)
{
    std::string names;
    std::string values;
    for (const auto& [column, value] : columns) {
        names += (names.empty() ? "" : ", ") + column;
        values += (values.empty() ? "" : ", ") + value;
    }
    database("INSERT INTO " + table + " (" + names + ") VALUES (" + values + ")");
}

void ProjectOperator::clicksProject(const std::string& description)
{
    control.elements().projects.lvwProy.clickRow(static_cast<std::size_t>(projectRow(description).Index()) - 1);
}

std::vector<std::string> ProjectOperator::seesProjects()
{
    std::vector<std::string> descriptions;
    screen::ListItems rows = control.elements().projects.lvwProy.ListItems();
    for (int i = 1; i <= rows.Count(); ++i)
        descriptions.emplace_back(rows(i).ListSubItems()(descriptionColumn).Text());
    return descriptions;
}

std::string ProjectOperator::seesProjectCell(const std::string& description, const std::string& header)
{
    const screen::ListItem item = projectRow(description);
    for (const screen::ColumnHeader& column : control.elements().projects.lvwProy.ColumnHeaders()) {
        if (column.Text != header) continue;
        if (column.Index == 1) return std::string(item.Text());
        if (column.Index - 1 > item.ListSubItems().Count()) return "-";
        return std::string(item.ListSubItems()(column.Index - 1).Text());
    }
    ADD_FAILURE() << "no column " << header;
    return {};
}

screen::ListItem ProjectOperator::projectRow(const std::string& description)
{
    const auto descriptions = seesProjects();
    const auto found = std::find(descriptions.begin(), descriptions.end(), description);
    EXPECT_NE(found, descriptions.end()) << description << " is not in the list";
    return control.elements().projects.lvwProy.ListItems()(static_cast<int>(found - descriptions.begin()) + 1);
}

} // namespace dn::tests
