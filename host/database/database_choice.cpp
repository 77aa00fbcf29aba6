// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "host/database/database_choice.h"

#include "base/no_case_pattern.h"
#include "base/text.h"
#include "data/error.h"
#include "host/database/drivers.h"
#include "host/database/host_error.h"
#include "host/database/mariadb_text.h"
#include "host/database/odbc_text.h"
#include "host/database/schema.h"

namespace dn::host {
namespace {

template <class... Cases>
struct Overloaded : Cases... {
    using Cases::operator()...;
};
template <class... Cases>
Overloaded(Cases...) -> Overloaded<Cases...>;

std::string place(const MariadbTarget& target)
{
    if (!target.socket.empty()) return target.socket;
    return target.host + ":" + std::to_string(target.port);
}

std::string passwordOf(const DatabaseChoice& choice)
{
    return std::visit(Overloaded{[](const MariadbTarget& target) { return target.password; },
                                 [](const OdbcTarget& target) { return odbcPassword(target.text); }},
                      choice);
}

std::string without(std::string text, const std::string& secret)
{
    for (std::size_t at = 0; !secret.empty() && (at = text.find(secret, at)) != std::string::npos; at += 3)
        text.replace(at, secret.size(), "***");
    return text;
}

/// The login's language decides how SQL Server reads "2026-03-14": in Spanish as year, day, month. The control
/// writes the day last.
void setDateOrder(data::Connection& connection)
{
    if (engineOf(connection) == Engine::sqlServer) connection.execute("SET DATEFORMAT ymd");
}

std::unique_ptr<data::Connection> open(const DatabaseChoice& choice)
{
    return std::visit(Overloaded{[](const MariadbTarget& target) { return openMariadb(target); },
                                 [](const OdbcTarget& target) {
                                     auto connection = openOdbc(target);
                                     setDateOrder(*connection);
                                     return connection;
                                 }},
                      choice);
}

} // namespace

DatabaseChoice parseDatabaseChoice(std::string_view text)
{
    if (isMariadbText(text)) return parseMariadbText(text);
    if (containsNoCase(text, "DRIVER=") || containsNoCase(text, "DSN=")) return OdbcTarget{std::string(text)};
    throw HostError("El texto de conexión debe empezar por mariadb:// o ser una cadena ODBC con DRIVER= o DSN=.");
}

std::string describe(const DatabaseChoice& choice)
{
    return std::visit(
        Overloaded{[](const MariadbTarget& target) {
                       return "«" + target.database + "» en " + place(target) + ", usuario " + target.user;
                   },
                   [](const OdbcTarget& target) { return "ODBC " + odbcWithoutPassword(target.text); }},
        choice);
}

std::unique_ptr<data::Connection> connect(const DatabaseChoice& choice)
{
    try {
        return open(choice);
    } catch (const data::Error& error) {
        const std::string text = "No se pudo abrir la base de datos " + describe(choice) +
                                 ". El servidor dice: " + error.what() +
                                 "\nRevise el texto de conexión y que el servidor esté en marcha.";
        throw HostError(without(text, passwordOf(choice)));
    }
}

} // namespace dn::host
