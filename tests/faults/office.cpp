// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/faults/office.h"

#include "base/text.h"
#include "data/mariadb/connection.h"
#include "host/database/schema.h"

#include <algorithm>
#include <set>
#include <string_view>

namespace dn::tests {
namespace {

constexpr const char* account = "vendedor";
constexpr const char* accountPassword = "clave-de-vendedor";

std::unique_ptr<data::Connection> connectAs(const MariaServer& server, std::string_view user,
                                            std::string_view password, const std::string& database)
{
    data::mariadb::Options options;
    options.socket = server.socket();
    options.user = user;
    options.password = password;
    options.database = database;
    // Longer than any wait for a lock: a statement that is given up ahead of the server may run all the same.
    options.readTimeOut = options.writeTimeOut = std::chrono::seconds(2);
    return std::make_unique<data::mariadb::Connection>(options);
}

std::vector<std::string> column(data::Connection& connection, const std::string& statement)
{
    std::vector<std::string> values;
    const auto rows = connection.execute(statement);
    for (; rows && !rows->Eof(); rows->MoveNext())
        values.push_back(rows->value(0).toText());
    return values;
}

bool isLetter(char sign) { return sign == '_' || (std::isalnum(static_cast<unsigned char>(sign)) != 0); }

bool names(const std::string& statement, const std::string& word)
{
    for (std::size_t at = statement.find(word); at != std::string::npos; at = statement.find(word, at + 1)) {
        const bool begins = at == 0 || !isLetter(statement[at - 1]);
        const bool ends = at + word.size() == statement.size() || !isLetter(statement[at + word.size()]);
        if (begins && ends) return true;
    }
    return false;
}

// New keys depend on what failed ahead of them.
const std::set<std::string> differsFromRunToRun{"ut_icontact.sys_pk",       "ut_icontact.sys_guid",
                                                "xt_biticontact.sys_pk",    "ut_interescontacto.sys_pk",
                                                "ut_origencontacto.sys_pk", "ut_referenciacontacto.sys_pk",
                                                "ut_icontact.sys_timestamp"};

// What the control writes into. A session's variable makes a change there fail as on a full disk, or take two
// locks in an order in which somebody else waits for the first.
const std::vector<std::pair<std::string, std::string>> writtenTo{
    {"ut_icontact", "UPDATE"},          {"ut_icontact", "INSERT"},        {"proyecto", "UPDATE"},
    {"xt_biticontact", "INSERT"},       {"ut_interescontacto", "INSERT"}, {"ut_origencontacto", "INSERT"},
    {"ut_referenciacontacto", "INSERT"}};

} // namespace

bool changes(const std::string& statement) { return !toLower(statement).starts_with("select"); }

Office& office()
{
    static Office one;
    return one;
}

Office::Office()
{
    connectBeside();
    for (const char* database : {"muestra", "trabajo", "copia"})
        create(database);
    tables_ =
        column(*beside_, "SELECT table_name FROM information_schema.tables WHERE table_schema = 'muestra' AND "
                         "table_type = 'BASE TABLE' ORDER BY 1");
    for (const std::string& table : tables_)
        columns_[table] = column(*beside_, "SELECT LOWER(column_name) FROM information_schema.columns WHERE "
                                           "table_schema = 'muestra' AND table_name = '" +
                                               table + "' ORDER BY ordinal_position");
    fillSample();
    beside_->execute("USE trabajo");
    addTraps();
    beside_->execute(std::string("CREATE USER ") + account + "@'%' IDENTIFIED BY '" + accountPassword + "'");
    beside_->execute(std::string("GRANT ALL ON trabajo.* TO ") + account + "@'%'");
}

std::unique_ptr<data::Connection> Office::salesperson()
{
    auto connection = connectAs(server_, account, accountPassword, "trabajo");
    connection->execute(std::string("SET timestamp = UNIX_TIMESTAMP('") + moment + "')");
    return connection;
}

std::unique_ptr<data::Connection> Office::administrator(const std::string& database)
{
    return connectAs(server_, MariaServer::user, MariaServer::password, database);
}

void Office::connectBeside() { beside_ = administrator(std::string(MariaServer::database)); }

void Office::restart()
{
    server_.restart();
    connectBeside();
    beside_->execute("USE trabajo");
}

void Office::create(const std::string& database)
{
    beside_->execute("CREATE DATABASE " + database + " CHARACTER SET utf8mb4");
    host::createSchema(*administrator(database), host::Engine::mariadb);
}

void Office::fillSample()
{
    const auto sample = administrator("muestra");
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

void Office::addTraps()
{
    beside_->execute("CREATE TABLE aparte (id INT PRIMARY KEY)");
    beside_->execute("CREATE TABLE cerrojo (id INT PRIMARY KEY)");
    beside_->execute("INSERT INTO cerrojo VALUES (1), (2)");
    beside_->execute("CREATE TABLE peso (id INT PRIMARY KEY, n INT)");
    beside_->execute("INSERT INTO peso SELECT seq, 0 FROM seq_1_to_50");
    for (const auto& [table, event] : writtenTo)
        beside_->execute("CREATE TRIGGER trampa_" + table + "_" + event + " BEFORE " + event + " ON " + table +
                         " FOR EACH ROW BEGIN DECLARE uno INT; "
                         "IF @lleno = 1 THEN SIGNAL SQLSTATE 'HY000' SET MYSQL_ERRNO = 1114, MESSAGE_TEXT = 'The "
                         "table is full'; END IF; "
                         "IF @enredo = 1 THEN SELECT id INTO uno FROM cerrojo WHERE id = 1 FOR UPDATE; "
                         "SELECT id INTO uno FROM cerrojo WHERE id = 2 FOR UPDATE; END IF; END");
}

void Office::copySample(const std::string& database)
{
    for (const std::string& table : tables_) {
        beside_->execute("DELETE FROM " + database + "." + table);
        beside_->execute("INSERT INTO " + database + "." + table + " SELECT * FROM muestra." + table);
    }
}

std::string Office::contents(const std::string& database)
{
    std::string all;
    for (const std::string& table : tables_) {
        std::string row;
        for (const std::string& name : columns_.at(table))
            if (!differsFromRunToRun.contains(table + "." + name))
                row.append(row.empty() ? "" : ", ").append("IFNULL(").append(name).append(", '-')");
        all += table + "\n";
        for (const std::string& line :
             column(*beside_, "SELECT CONCAT_WS('|', " + row + ") FROM " + database + "." + table + " ORDER BY 1"))
            all += "  " + line + "\n";
    }
    return all;
}

const std::string& Office::contentsAfter(const std::vector<std::string>& statements)
{
    std::string key;
    for (const std::string& statement : statements)
        key += statement + "\n";
    const auto [known, isNew] = known_.try_emplace(key);
    if (!isNew) return known->second;
    copySample("copia");
    const auto copy = administrator("copia");
    copy->execute(std::string("SET timestamp = UNIX_TIMESTAMP('") + moment + "')");
    for (const std::string& statement : statements)
        copy->execute(statement);
    return known->second = contents("copia");
}

std::string Office::tableOf(const std::string& statement) const
{
    const std::string lower = toLower(statement);
    if (names(lower, "qhoy") || names(lower, "qatascados")) return "ut_icontact";
    for (const char* learnt : {"interes", "origen", "referencia"})
        if (lower.starts_with(std::string("call add") + learnt)) return std::string("ut_") + learnt + "contacto";
    std::string first;
    std::size_t at = std::string::npos;
    for (const std::string& table : tables_) {
        const std::size_t found = lower.find(table);
        if (found >= at || !names(lower, table)) continue;
        at = found;
        first = table;
    }
    return first;
}

std::string Office::columnOf(const std::string& table, const std::string& statement) const
{
    const std::string lower = toLower(statement);
    if (names(lower, "qhoy") || names(lower, "qatascados")) return "uf_proxcontac";
    if (lower.starts_with("call")) return columns_.at(table).back();
    // Several tables have columns of one name: what is said of this table counts, where tables are said at all.
    const std::string ahead = lower.find(table + ".") == std::string::npos ? "" : table + ".";
    for (const std::string& name : columns_.at(table))
        if (name != "sys_pk" && names(lower, ahead + name)) return name;
    return names(lower, ahead + "sys_pk") ? "sys_pk" : "";
}

} // namespace dn::tests
