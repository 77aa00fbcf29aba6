// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The database that an operator chose at the first start: the file that remembers it, whatever somebody made of
// that file, and the way from there to the drivers.

#include "host/database/host_error.h"
#include "host/database/mariadb_text.h"
#include "host/database/odbc_text.h"
#include "host/desktop/start_choice.h"
#include "tests/fuzz/input.h"
#include "tests/fuzz/targets.h"
#include "tests/support/table_files.h"

#include <fstream>

namespace dn::fuzz {
namespace {

/// Begins each password, and stands in nothing else that is looked at.
constexpr std::string_view passwordMark = "zqp";

bool holdsMark(std::string_view text) { return text.find(passwordMark) != std::string_view::npos; }

QString someText(Input& input) { return QString::fromStdString(input.text()); }

host::StartChoice someChoice(Input& input)
{
    host::StartChoice choice;
    choice.own = !input.flag();
    choice.createSchema = input.flag();
    choice.database.odbc = input.flag();
    choice.database.servers = host::readServers(someText(input));
    choice.database.name = someText(input);
    choice.database.text = someText(input);
    choice.database.user = someText(input);
    return choice;
}

/// Without what the other kind of database has.
host::StartChoice remembered(const host::StartChoice& choice)
{
    if (!choice.own) return {};
    host::StartChoice result{.own = true, .database = {}, .createSchema = choice.createSchema};
    result.database.odbc = choice.database.odbc;
    result.database.user = choice.database.user;
    if (choice.database.odbc) {
        result.database.text = choice.database.text.trimmed();
    } else {
        result.database.servers = choice.database.servers;
        result.database.name = choice.database.name.trimmed();
    }
    return result;
}

void requireSafe(const host::OwnDatabase& database)
{
    require(host::problemOf(database).isEmpty(), "what is remembered can be opened");
    require(!database.odbc || host::odbcPassword(database.text.toStdString()).empty(),
            "no password is taken for a part of the rest");
}

void requireReached(const host::OwnDatabase& database, const host::ServerAddress& server, const std::string& text,
                    const std::string& password)
{
    try {
        const host::MariadbTarget target = host::parseMariadbText(text);
        require(target.user == database.user.toStdString() && target.password == password,
                "an operator and his password reach the driver");
        require(target.database == database.name.trimmed().toStdString(), "a database reaches the driver");
        require(target.socket == server.socket.toStdString(), "a socket reaches the driver");
        require(!server.socket.isEmpty() || (target.host == server.host.toStdString() &&
                                             target.port == static_cast<unsigned>(server.port)),
                "a server reaches the driver");
    } catch (const host::HostError& refusal) {
        require(!holdsMark(refusal.what()), "no password is told");
    }
}

/// What reaches the drivers is what was typed, and a password is seen as one.
void requireReached(const host::OwnDatabase& database, const std::string& password)
{
    const std::vector<std::string> texts = host::connectTexts(database, password);
    if (database.odbc) {
        require(host::odbcPassword(texts.at(0)) == password, "a password reaches the driver");
        require(!holdsMark(host::odbcWithoutPassword(texts.at(0))), "no password is shown");
        return;
    }
    require(texts.size() == database.servers.size(), "each server is tried");
    for (std::size_t i = 0; i < texts.size(); ++i)
        requireReached(database, database.servers[i], texts[i], password);
}

} // namespace

void starts(Input& input)
{
    const host::StartChoice choice = someChoice(input);
    const std::string password = std::string(passwordMark) + someText(input).toStdString();
    const std::string junk = input.rest();
    const tests::OutputFolder folder;
    const auto put = [&](const char* name, const std::string& content) {
        std::ofstream(folder.file(name), std::ios::binary) << content;
        return QString::fromStdString(folder.file(name));
    };

    const auto read = host::readStartChoice(put("a.ini", junk));
    if (read && read->own) requireSafe(read->database);
    const QString copy = QString::fromStdString(folder.file("b.ini"));
    if (read)
        require(host::writeStartChoice(copy, *read) && host::readStartChoice(copy) == remembered(*read),
                "what a file said comes back from another");

    if (choice.own && !host::problemOf(choice.database).isEmpty()) return;
    if (choice.own) requireSafe(choice.database);
    const QString file = put("c.ini", "[base]\nclave=" + std::string(passwordMark) + "\n" + junk);
    require(host::writeStartChoice(file, choice), "a choice is written over whatever is there");
    require(host::readStartChoice(file) == remembered(choice), "a choice comes back from its file");
    const auto own = (choice.database.servers.empty() ? QString() : written(choice.database.servers, 0)) +
                     choice.database.name + choice.database.text + choice.database.user;
    if (holdsMark(own.toStdString()) || holdsMark(junk)) return;
    require(!holdsMark(tests::contentsOf(folder.file("c.ini"))), "no password stays");
    if (choice.own) requireReached(choice.database, password);
}

} // namespace dn::fuzz
