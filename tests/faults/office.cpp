// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/faults/office.h"

#include "base/text.h"
#include "data/mariadb/connection.h"
#include "tests/support/control_statements.h"

#include <algorithm>
#include <regex>
#include <string_view>
#include <utility>

namespace dn::tests {
namespace {

constexpr const char* account = "vendedor";
constexpr const char* accountPassword = "clave-de-vendedor";

std::unique_ptr<data::Connection> connectAs(const std::string& socket, std::string_view user,
                                            std::string_view password, const std::string& database,
                                            std::chrono::seconds patience)
{
    data::mariadb::Options options;
    options.socket = socket;
    options.user = user;
    options.password = password;
    options.database = database;
    options.readTimeOut = options.writeTimeOut = patience;
    return std::make_unique<data::mariadb::Connection>(options);
}

std::unique_ptr<data::Connection> atTheMoment(std::unique_ptr<data::Connection> connection)
{
    connection->execute(std::string("SET timestamp = UNIX_TIMESTAMP('") + Books::moment + "')");
    return connection;
}

bool isLetter(char sign) { return sign == '_' || (std::isalnum(static_cast<unsigned char>(sign)) != 0); }

/// Its names in small letters, without what stands in its texts.
std::string namesIn(const std::string& statement) { return toLower(shapeOf(statement)); }

bool names(const std::string& statement, const std::string& word)
{
    for (std::size_t at = statement.find(word); at != std::string::npos; at = statement.find(word, at + 1)) {
        const bool begins = at == 0 || !isLetter(statement[at - 1]);
        const bool ends = at + word.size() == statement.size() || !isLetter(statement[at + word.size()]);
        if (begins && ends) return true;
    }
    return false;
}

// What the control writes into. A session's variable makes a change there fail as on a full disk, take its time,
// or take two locks in an order in which somebody else waits for the first. Another one counts the rows.
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
    for (const char* view : {"qhoy", "qatascados"})
        views_[view] = readView(view);
}

std::unique_ptr<data::Connection> Office::salesperson(std::chrono::seconds patience)
{
    return atTheMoment(connectAs(server_.socket(), account, accountPassword, "trabajo", patience));
}

std::unique_ptr<data::Connection> Office::salespersonOver(const Relay& relay)
{
    return atTheMoment(connectAs(relay.socket(), account, accountPassword, "trabajo", std::chrono::seconds(30)));
}

std::unique_ptr<data::Connection> Office::administrator(const std::string& database)
{
    return connectAs(server_.socket(), MariaServer::user, MariaServer::password, database,
                     std::chrono::seconds(30));
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
                         "SET @tocados = IFNULL(@tocados, 0) + 1; "
                         "IF @pausa = 1 THEN SET uno = SLEEP(30); END IF; "
                         "IF @lleno = 1 THEN SIGNAL SQLSTATE 'HY000' SET MYSQL_ERRNO = 1114, MESSAGE_TEXT = 'The "
                         "table is full'; END IF; "
                         "IF @enredo = 1 THEN SELECT id INTO uno FROM cerrojo WHERE id = 1 FOR UPDATE; "
                         "SELECT id INTO uno FROM cerrojo WHERE id = 2 FOR UPDATE; END IF; END");
}

// As the server keeps the text of a view, every name in it is quoted, and every column stands behind the alias of
// its table.
Office::View Office::readView(const std::string& name)
{
    const auto rows = beside().execute("SELECT view_definition FROM information_schema.views WHERE table_schema = "
                                       "'trabajo' AND table_name = '" +
                                       name + "'");
    const std::string text = toLower(rows->value(0).toText());
    const auto all = [&text](const std::string& pattern) {
        const std::regex form(pattern);
        return std::vector<std::smatch>(std::sregex_iterator(text.begin(), text.end(), form), {});
    };
    View view;
    for (const std::smatch& table : all("`trabajo`\\.`(\\w+)` `(\\w+)`")) {
        std::vector<std::string> columns;
        for (const std::smatch& column : all("`" + table[2].str() + "`\\.`(\\w+)`"))
            if (std::find(columns.begin(), columns.end(), column[1]) == columns.end())
                columns.push_back(column[1]);
        const auto isTable = [&](const auto& known) { return known.first == table[1]; };
        if (std::none_of(view.begin(), view.end(), isTable)) view.emplace_back(table[1], columns);
    }
    return view;
}

const Office::View* Office::viewOf(const std::string& statement) const
{
    for (const auto& [name, view] : views_)
        if (names(namesIn(statement), name)) return &view;
    return nullptr;
}

std::vector<std::string> Office::tablesOf(const std::string& statement) const
{
    const std::string lower = namesIn(statement);
    for (const char* learnt : {"interes", "origen", "referencia"})
        if (lower.starts_with(std::string("call add") + learnt)) return {std::string("ut_") + learnt + "contacto"};
    std::vector<std::string> tables;
    if (const View* view = viewOf(statement); view != nullptr) {
        for (const auto& [table, columns] : *view)
            tables.push_back(table);
        return tables;
    }
    for (const std::string& table : books_.tables())
        if (names(lower, table)) tables.push_back(table);
    std::sort(tables.begin(), tables.end(), [&lower](const std::string& left, const std::string& right) {
        return lower.find(left) < lower.find(right);
    });
    return tables;
}

std::vector<std::string> Office::columnsOf(const std::string& table, const std::string& statement) const
{
    if (const View* view = viewOf(statement); view != nullptr)
        for (const auto& [name, columns] : *view)
            if (name == table) return columns;
    const std::string lower = namesIn(statement);
    if (lower.starts_with("call")) return {books_.columnsOf(table).back()};
    // Several tables have columns of one name: what is said of this table counts, where tables are said at all.
    const std::string ahead = lower.find(table + ".") == std::string::npos ? "" : table + ".";
    std::vector<std::string> columns;
    for (const std::string& name : books_.columnsOf(table))
        if (name != "sys_pk" && names(lower, ahead + name)) columns.push_back(name);
    if (names(lower, ahead + "sys_pk")) columns.emplace_back("sys_pk");
    return columns;
}

} // namespace dn::tests
