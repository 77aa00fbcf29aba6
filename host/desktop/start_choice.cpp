// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "host/desktop/start_choice.h"

#include <QRegularExpression>
#include <QSettings>
#include <QUrl>

namespace dn::host {
namespace {

constexpr int highestPort = 65'535;

std::string encoded(const QString& text) { return QUrl::toPercentEncoding(text).toStdString(); }

/// A value of an ODBC string: in braces, with each closing one doubled.
std::string braced(const std::string& value)
{
    std::string out = "{";
    for (const char byte : value) {
        if (byte == '}') out += '}';
        out += byte;
    }
    return out + "}";
}

// Every driver has names of its own for them; a password that is not seen as one would lie in a file.
bool namesAnOperator(const QString& odbc)
{
    static const QRegularExpression key(
        QStringLiteral(R"((^|;)\s*(\w*pwd|\w*passw\w*|passphrase|uid|user[ _]?(id|name)?|login)\s*=)"),
        QRegularExpression::CaseInsensitiveOption);
    return key.match(odbc).hasMatch();
}

QString problemOfOdbc(const QString& text)
{
    static const QRegularExpression target(QStringLiteral(R"((^|;)\s*(driver|dsn)=)"),
                                           QRegularExpression::CaseInsensitiveOption);
    if (!target.match(text).hasMatch()) return QStringLiteral("La cadena de conexión debe llevar DRIVER= o DSN=.");
    if (namesAnOperator(text))
        return QStringLiteral("Escriba el usuario y la clave en sus propios campos, no en la cadena de conexión.");
    return {};
}

std::string serverPart(const OwnDatabase& database)
{
    const std::string server = database.server.trimmed().toStdString();
    const bool address = server.find(':') != std::string::npos;
    return (address ? "[" + server + "]" : server) + ":" + std::to_string(database.port);
}

} // namespace

QString problemOf(const OwnDatabase& database)
{
    if (database.odbc) return problemOfOdbc(database.text);
    if (database.server.trimmed().isEmpty())
        return QStringLiteral("Escriba el nombre o la dirección del servidor.");
    if (database.name.trimmed().isEmpty()) return QStringLiteral("Escriba el nombre de la base de datos.");
    if (database.user.trimmed().isEmpty()) return QStringLiteral("Escriba el usuario con el que se entra.");
    return {};
}

std::string connectText(const OwnDatabase& database, const std::string& password)
{
    if (!database.odbc)
        return "mariadb://" + encoded(database.user) + ":" + encoded(QString::fromStdString(password)) + "@" +
               serverPart(database) + "/" + encoded(database.name.trimmed());
    std::string text = database.text.trimmed().toStdString();
    if (!text.empty() && text.back() != ';') text += ';';
    if (!database.user.isEmpty()) text += "UID=" + braced(database.user.toStdString()) + ";";
    if (!password.empty()) text += "PWD=" + braced(password) + ";";
    return text;
}

std::string accountOf(const OwnDatabase& database)
{
    const std::string user = database.user.toStdString();
    if (database.odbc) return user + "@" + database.text.trimmed().toStdString();
    return user + "@" + serverPart(database) + "/" + database.name.trimmed().toStdString();
}

std::optional<StartChoice> readStartChoice(const QString& file)
{
    const QSettings settings(file, QSettings::IniFormat);
    const QString kind = settings.value("base/tipo").toString();
    StartChoice choice;
    if (kind == "ejemplo") return choice;
    choice.own = true;
    choice.database.odbc = kind == "odbc";
    choice.database.server = settings.value("base/servidor").toString();
    choice.database.port = settings.value("base/puerto").toInt();
    choice.database.name = settings.value("base/nombre").toString();
    choice.database.text = settings.value("base/cadena").toString();
    choice.database.user = settings.value("base/usuario").toString();
    const bool known = kind == "odbc" || (kind == "mariadb" && choice.database.port > 0);
    if (!known || choice.database.port > highestPort || !problemOf(choice.database).isEmpty()) return std::nullopt;
    return choice;
}

bool writeStartChoice(const QString& file, const StartChoice& choice)
{
    QSettings settings(file, QSettings::IniFormat);
    settings.remove("base");
    settings.setValue("base/tipo", !choice.own ? "ejemplo" : choice.database.odbc ? "odbc" : "mariadb");
    if (choice.own) {
        settings.setValue("base/usuario", choice.database.user);
        settings.setValue("base/puerto", choice.database.port);
        if (choice.database.odbc)
            settings.setValue("base/cadena", choice.database.text.trimmed());
        else
            settings.setValue("base/servidor", choice.database.server.trimmed());
        if (!choice.database.odbc) settings.setValue("base/nombre", choice.database.name.trimmed());
    }
    settings.sync();
    return settings.status() == QSettings::NoError;
}

} // namespace dn::host
