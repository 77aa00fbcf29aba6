// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// Which database the operator chose at the first start, and the file that remembers it. The file never holds a
// password.
#pragma once

#include "host/desktop/server_addresses.h"

#include <QString>

#include <optional>
#include <string>
#include <vector>

namespace dn::host {

/// A database of the operator's own, without its password.
struct OwnDatabase {
    bool odbc = false;
    std::vector<ServerAddress> servers; ///< of MariaDB or MySQL, the preferred one first
    QString name;
    QString text; ///< for ODBC: the connection string without user and password
    QString user;

    bool operator==(const OwnDatabase& other) const = default;
};

struct StartChoice {
    bool own = false; ///< else the private database with sample data
    OwnDatabase database;
    bool createSchema = false;    ///< when it is opened next
    bool withoutPassword = false; ///< it opened without one: none is asked for

    bool operator==(const StartChoice& other) const = default;
};

/// What is wrong with the fields, in the operator's words; an empty text when nothing is.
QString problemOf(const OwnDatabase& database);

/// The database as `parseDatabaseChoice` reads it, at each of its servers.
std::vector<std::string> connectTexts(const OwnDatabase& database, const std::string& password);

/// The name under which a keyring keeps the password, which an operator can read: that of the preferred server.
std::string accountOf(const OwnDatabase& database);

/// What was chosen; nothing ahead of the first start, or when the file does not say it.
std::optional<StartChoice> readStartChoice(const QString& file);
/// @return false when the file cannot be written.
bool writeStartChoice(const QString& file, const StartChoice& choice);

} // namespace dn::host
