// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/faults/books.h"

#include "base/text.h"
#include "host/database/schema.h"

#include <set>
#include <utility>

namespace dn::tests {
namespace {

std::vector<std::string> column(data::Connection& connection, const std::string& statement)
{
    std::vector<std::string> values;
    const auto rows = connection.execute(statement);
    for (; rows && !rows->Eof(); rows->MoveNext())
        values.push_back(rows->value(0).toText());
    return values;
}

const std::set<std::string> givesKeys{"ut_icontact", "xt_biticontact", "ut_interescontacto", "ut_origencontacto",
                                      "ut_referenciacontacto"};

/// What of a column is the same from run to run. A new key counts by its place among the new ones, for which
/// number it is depends on what failed ahead of it; of a new identifier, which is drawn, its form counts.
std::string comparable(const std::string& table, const std::string& column)
{
    if (column == "sys_pk" && givesKeys.contains(table))
        return "IF(sys_pk <= (SELECT IFNULL(MAX(sys_pk), 0) FROM muestra." + table +
               "), sys_pk, CONCAT('nueva ', ROW_NUMBER() OVER (ORDER BY sys_pk)))";
    if (column == "sys_guid" && table == "ut_icontact")
        return "IF(sys_guid REGEXP '^[0-9a-f]{32}$', 'nuevo', sys_guid)";
    return column;
}

} // namespace

bool changes(const std::string& statement) { return !toLower(statement).starts_with("select"); }

Books::Books(Connect connect) : connect_(std::move(connect)), beside_(connect_(""))
{
    for (const char* database : {"muestra", "trabajo", "copia"}) {
        beside_->execute(std::string("CREATE DATABASE ") + database + " CHARACTER SET utf8mb4");
        host::createSchema(*connect_(database), host::Engine::mariadb);
    }
    tables_ =
        column(*beside_, "SELECT table_name FROM information_schema.tables WHERE table_schema = 'muestra' AND "
                         "table_type = 'BASE TABLE' ORDER BY 1");
    for (const std::string& table : tables_)
        columns_[table] = column(*beside_, "SELECT LOWER(column_name) FROM information_schema.columns WHERE "
                                           "table_schema = 'muestra' AND table_name = '" +
                                               table + "' ORDER BY ordinal_position");
    fillSample();
    beside_->execute("USE trabajo");
}

void Books::reconnect() { beside_ = connect_("trabajo"); }

void Books::fillSample()
{
    const auto sample = connect_("muestra");
    for (const char* statement :
         {"INSERT INTO Agente (Sys_PK, Nombre) VALUES (7, 'Ana'), (9, 'Beto')",
          "INSERT INTO Ejecutivo (Sys_PK, Nombre) VALUES (7, 'Ana'), (9, 'Beto')",
          "INSERT INTO Ciudad (Sys_PK, Nombre) VALUES (3, 'Tuxtla Gutiérrez')",
          "INSERT INTO Meta (Sys_PK, Descripcion) VALUES (1, 'Venta')",
          "INSERT INTO mdtpactividad (Sys_PK, Nombre) VALUES (1, 'Visita')",
          "INSERT INTO Organizacion (Sys_PK, Nombre, Tel1, EMail, IEjecutivo) VALUES (1, 'Acme', '961 1', "
          "'ventas@acme.mx', 7)",
          "INSERT INTO Persona (Sys_PK, Nombre, Apellido1, EMail, Tel_Movil, IEjecutivo) VALUES (1, 'Eva', "
          "'Luna', "
          "'eva@acme.mx', '961 2', 7)",
          "INSERT INTO ut_icontact (Sys_PK, Sys_GUID, uf_Nombre, uf_EMail, uf_Telefono, uf_Empresa, uf_Puesto, "
          "uf_Ciudad, "
          "uf_IEjecutivo, uf_Status, uf_Tipo, uf_proxcontac, uf_Fecha) VALUES "
          "(1, 'a1', 'Luz', 'luz@x.mx', '961', 'Acme', 'Compras', 'Tuxtla', 7, 0, 1, '2026-03-14 12:00:00', "
          "'2026-03-01'), "
          "(2, 'a2', 'Gil', 'gil@x.mx', '962', 'Acme', 'Compras', 'Tuxtla', 7, 0, 1, '2026-03-14 13:00:00', "
          "'2026-03-02'), "
          "(3, 'a3', 'Rita', 'rita@x.mx', '963', 'Acme', 'Compras', 'Tuxtla', 7, 0, 1, NULL, '2026-03-03'), "
          "(4, 'a4', 'Noé', 'noe@x.mx', '964', 'Acme', 'Compras', 'Tuxtla', 9, 0, 1, NULL, '2026-03-03')",
          "INSERT INTO xt_biticontact (uf_Tiempo, uf_Mensaje, uf_Usuario, uf_Iicontact) VALUES ('2026-03-02 "
          "10:00:00', "
          "'pide precios', 'ana', 1)",
          "INSERT INTO Proyecto (Sys_PK, Sys_GUID, Descripcion, IEjecutivo, IMeta, IOrganizacion, IContacto, "
          "UF_Status1, "
          "UF_Color, FInicio) VALUES (1, 'p1', 'Silo', 7, 1, 1, 1, 1, 0, '2026-02-01'), (2, 'p2', 'Molino', 7, 1, "
          "1, 1, "
          "2, 1, '2026-02-02')",
          "INSERT INTO actividad (Sys_PK, FInicio, Asunto, ITpActividad, IProyecto, Hecho) VALUES (1, '2026-03-14 "
          "08:00:00', 'cita', 1, 1, 0)",
          "INSERT INTO ut_OrigenContacto (uf_Origen) VALUES ('Feria')"})
        sample->execute(statement);
}

void Books::copySample(const std::string& database)
{
    for (const std::string& table : tables_) {
        beside_->execute("DELETE FROM " + database + "." + table);
        beside_->execute("INSERT INTO " + database + "." + table + " SELECT * FROM muestra." + table);
    }
}

std::string Books::contents(const std::string& database, data::Connection& connection) const
{
    std::string all;
    for (const std::string& table : tables_) {
        std::string row;
        for (const std::string& name : columns_.at(table))
            row.append(row.empty() ? "" : ", ").append("IFNULL(").append(comparable(table, name)).append(", '-')");
        all += table + "\n";
        for (const std::string& line : column(connection, "SELECT CONCAT_WS('|', " + row + ") FROM " + database +
                                                              "." + table + " ORDER BY 1"))
            all += "  " + line + "\n";
    }
    return all;
}

const std::string& Books::contentsAfter(const std::vector<std::string>& statements)
{
    std::string key;
    for (const std::string& statement : statements)
        key += statement + "\n";
    const auto [known, isNew] = known_.try_emplace(key);
    if (!isNew) return known->second;
    copySample("copia");
    const auto copy = connect_("copia");
    copy->execute(std::string("SET timestamp = UNIX_TIMESTAMP('") + moment + "')");
    for (const std::string& statement : statements)
        copy->execute(statement);
    return known->second = contents("copia", *beside_);
}

} // namespace dn::tests
