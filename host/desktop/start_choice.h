// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// Which database the operator chose at the first start, and the file that remembers it. The file never holds a
// password.
#pragma once

#include <QString>

#include <optional>
#include <string>

namespace dn::host {

/// A database of the operator's own, without its password.
struct OwnDatabase {
    bool odbc = false;
    QString server; ///< of MariaDB or MySQL
    int port = 3306;
    QString name;
    QString text; ///< for ODBC: the connection string without user and password
    QString user;

    bool operator==(const OwnDatabase& other) const = default;
};

struct StartChoice {
    bool own = false; ///< else the private database with sample data
    OwnDatabase database;

    bool operator==(const StartChoice& other) const = default;
};

/// What is wrong with the fields, in the operator's words; an empty text when nothing is.
QString problemOf(const OwnDatabase& database);

/// The database as `parseDatabaseChoice` reads it.
std::string connectText(const OwnDatabase& database, const std::string& password);

/// The name under which a keyring keeps the password, which an operator can read.
std::string accountOf(const OwnDatabase& database);

/// What was chosen; nothing ahead of the first start, or when the file does not say it.
std::optional<StartChoice> readStartChoice(const QString& file);
/// @return false when the file cannot be written.
bool writeStartChoice(const QString& file, const StartChoice& choice);

} // namespace dn::host
