// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/faults/office.h"

#include "base/text.h"
#include "data/mariadb/connection.h"

#include <string_view>
#include <utility>

namespace dn::tests {
namespace {

constexpr const char* account = "vendedor";
constexpr const char* accountPassword = "clave-de-vendedor";

std::unique_ptr<data::Connection> connectAs(const MariaServer& server, std::string_view user,
                                            std::string_view password, const std::string& database,
                                            std::chrono::seconds patience)
{
    data::mariadb::Options options;
    options.socket = server.socket();
    options.user = user;
    options.password = password;
    options.database = database;
    options.readTimeOut = options.writeTimeOut = patience;
    return std::make_unique<data::mariadb::Connection>(options);
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

// What the control writes into. A session's variable makes a change there fail as on a full disk, or take two
// locks in an order in which somebody else waits for the first.
const std::vector<std::pair<std::string, std::string>> writtenTo{
    {"ut_icontact", "UPDATE"},          {"ut_icontact", "INSERT"},        {"proyecto", "UPDATE"},
    {"xt_biticontact", "INSERT"},       {"ut_interescontacto", "INSERT"}, {"ut_origencontacto", "INSERT"},
    {"ut_referenciacontacto", "INSERT"}};

} // namespace

Office& office()
{
    static Office one;
    return one;
}

Office::Office()
{
    addTraps();
    beside().execute(std::string("CREATE USER ") + account + "@'%' IDENTIFIED BY '" + accountPassword + "'");
    beside().execute(std::string("GRANT ALL ON trabajo.* TO ") + account + "@'%'");
}

std::unique_ptr<data::Connection> Office::salesperson(std::chrono::seconds patience)
{
    auto connection = connectAs(server_, account, accountPassword, "trabajo", patience);
    connection->execute(std::string("SET timestamp = UNIX_TIMESTAMP('") + Books::moment + "')");
    return connection;
}

std::unique_ptr<data::Connection> Office::administrator(const std::string& database)
{
    return connectAs(server_, MariaServer::user, MariaServer::password, database, std::chrono::seconds(30));
}

void Office::restart()
{
    server_.restart();
    books_.reconnect();
}

void Office::addTraps()
{
    beside().execute("CREATE TABLE aparte (id INT PRIMARY KEY)");
    beside().execute("CREATE TABLE cerrojo (id INT PRIMARY KEY)");
    beside().execute("INSERT INTO cerrojo VALUES (1), (2)");
    beside().execute("CREATE TABLE peso (id INT PRIMARY KEY, n INT)");
    beside().execute("INSERT INTO peso SELECT seq, 0 FROM seq_1_to_50");
    for (const auto& [table, event] : writtenTo)
        beside().execute("CREATE TRIGGER trampa_" + table + "_" + event + " BEFORE " + event + " ON " + table +
                         " FOR EACH ROW BEGIN DECLARE uno INT; "
                         "IF @lleno = 1 THEN SIGNAL SQLSTATE 'HY000' SET MYSQL_ERRNO = 1114, MESSAGE_TEXT = 'The "
                         "table is full'; END IF; "
                         "IF @enredo = 1 THEN SELECT id INTO uno FROM cerrojo WHERE id = 1 FOR UPDATE; "
                         "SELECT id INTO uno FROM cerrojo WHERE id = 2 FOR UPDATE; END IF; END");
}

std::string Office::tableOf(const std::string& statement) const
{
    const std::string lower = toLower(statement);
    if (names(lower, "qhoy") || names(lower, "qatascados")) return "ut_icontact";
    for (const char* learnt : {"interes", "origen", "referencia"})
        if (lower.starts_with(std::string("call add") + learnt)) return std::string("ut_") + learnt + "contacto";
    std::string first;
    std::size_t at = std::string::npos;
    for (const std::string& table : books_.tables()) {
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
    if (lower.starts_with("call")) return books_.columnsOf(table).back();
    // Several tables have columns of one name: what is said of this table counts, where tables are said at all.
    const std::string ahead = lower.find(table + ".") == std::string::npos ? "" : table + ".";
    for (const std::string& name : books_.columnsOf(table))
        if (name != "sys_pk" && names(lower, ahead + name)) return name;
    return names(lower, ahead + "sys_pk") ? "sys_pk" : "";
}

} // namespace dn::tests
