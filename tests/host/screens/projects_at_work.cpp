// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/host/screens/projects_at_work.h"

namespace dn::host::tests {

void ProjectsAtWork::SetUp()
{
    Screens::SetUp();
    server().execute("INSERT INTO Agente (Sys_PK, Nombre) VALUES (7, 'Sofía'), (8, 'Tomás')");
    server().execute("INSERT INTO mdtpactividad (Sys_PK, Nombre) VALUES (1, 'Llamada'), (2, 'Visita')");
    server().execute(
        "INSERT INTO Proyecto (Sys_PK, Sys_GUID, IMeta, IOrganizacion, IContacto, Descripcion, UF_monto, "
        "UF_Status1, IEjecutivo, FInicio, uf_contactado, Notas) VALUES (41, "
        "'0123456789abcdef0123456789abcdef', 3, 11, 21, 'Licencias', 1234.5, 2, 7, '2026-01-05 "
        "09:30:15', 1, 'reservada')");
    server().execute(
        "INSERT INTO actividad (Sys_PK, IProyecto, ITpActividad, Asunto, FInicio, Hecho, Notas) VALUES "
        "(51, 41, 2, 'Presentación', '2026-01-05 10:00', 1, NULL), "
        "(52, 41, 1, 'Pedir datos', '2026-01-06 10:00:07', 0, 'n')");
}

QTreeWidget& ProjectsAtWork::list(QWidget& window, const char* name)
{
    auto* const found = window.findChild<QTreeWidget*>(name);
    if (found == nullptr) throw std::runtime_error(std::string("no list ") + name);
    return *found;
}

std::vector<Row> ProjectsAtWork::listed(QWidget& window, const char* name)
{
    std::vector<Row> rows;
    QTreeWidget& tree = list(window, name);
    for (int i = 0; i < tree.topLevelItemCount(); ++i) {
        const QTreeWidgetItem& item = *tree.topLevelItem(i);
        Row row;
        for (int column = 0; column < tree.columnCount(); ++column) {
            const QVariant check = item.data(column, Qt::CheckStateRole);
            row.push_back(check.isValid() ? (check.toInt() == Qt::Checked ? "sí" : "no")
                                          : item.text(column).toStdString());
        }
        rows.push_back(std::move(row));
    }
    return rows;
}

void ProjectsAtWork::fillsActivity(QWidget& form, const char* moment, const char* kind, const char* subject)
{
    typesMoment(form, "Fecha", moment);
    picks(form, "Tipo", kind);
    types(form, "Asunto", subject);
}

std::string ProjectsAtWork::combo(QWidget& window, const char* name)
{
    return window.findChild<QComboBox*>(name)->currentText().toStdString();
}

} // namespace dn::host::tests
