// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "host/desktop/start_choice.h"

#include "host/database/odbc_text.h"

#include <QRegularExpression>
#include <QSettings>
#include <QUrl>

namespace dn::host {
namespace {

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
        QRegularExpression::CaseInsensitiveOption | QRegularExpression::UseUnicodePropertiesOption);
    return key.match(odbc).hasMatch();
}

QString problemOfOdbc(const QString& text)
{
    static const QRegularExpression target(QStringLiteral(R"((^|;)\s*(driver|dsn)=)"),
                                           QRegularExpression::CaseInsensitiveOption);
    if (!target.match(text).hasMatch()) return QStringLiteral("La cadena de conexión debe llevar DRIVER= o DSN=.");
    if (namesAnOperator(text))
        return QStringLiteral("Escriba el usuario y la clave en sus propios campos, no en la cadena de conexión.");
    // The password, which comes behind it, would be a part of that value and be shown with it.
    if (!odbcValuesEnd(text.toStdString()))
        return QStringLiteral("En la cadena de conexión falta la llave «}» que cierra un valor.");
    return {};
}

QString problemOfServers(const std::vector<ServerAddress>& servers)
{
    if (servers.empty()) return QStringLiteral("Escriba el nombre o la dirección del servidor.");
    for (const ServerAddress& server : servers)
        if (!isValid(server))
            return QStringLiteral(
                       "No se entiende «%1». Escriba cada servidor como nombre, nombre:puerto o la ruta "
                       "de un socket.")
                .arg(server.host);
    return {};
}

std::string connectText(const ServerAddress& server, const OwnDatabase& database, const std::string& password)
{
    const bool bySocket = !server.socket.isEmpty();
    const bool isAddress = server.host.contains(u':'); // of IPv6; its brackets take no percent signs
    const std::string place = bySocket    ? "localhost"
                              : isAddress ? written(server).toStdString()
                                          : encoded(server.host) + ":" + std::to_string(server.port);
    return "mariadb://" + encoded(database.user) + ":" + encoded(QString::fromStdString(password)) + "@" + place +
           "/" + encoded(database.name.trimmed()) + (bySocket ? "?socket=" + encoded(server.socket) : "");
}

std::string odbcConnectText(const OwnDatabase& database, const std::string& password)
{
    std::string text = database.text.trimmed().toStdString();
    if (!text.empty() && text.back() != ';') text += ';';
    if (!database.user.isEmpty()) text += "UID=" + braced(database.user.toStdString()) + ";";
    if (!password.empty()) text += "PWD=" + braced(password) + ";";
    return text;
}

// One server with a port of its own, as earlier releases wrote it.
std::vector<ServerAddress> serversIn(const QSettings& settings)
{
    if (settings.contains("base/servidores"))
        return readServers(settings.value("base/servidores").toStringList().join(u' '));
    return readServers(settings.value("base/servidor").toString(), settings.value("base/puerto").toInt());
}

} // namespace

QString problemOf(const OwnDatabase& database)
{
    if (database.odbc) return problemOfOdbc(database.text.trimmed()); // as it is written down
    if (QString problem = problemOfServers(database.servers); !problem.isEmpty()) return problem;
    if (database.name.trimmed().isEmpty()) return QStringLiteral("Escriba el nombre de la base de datos.");
    if (database.user.trimmed().isEmpty()) return QStringLiteral("Escriba el usuario con el que se entra.");
    return {};
}

std::vector<std::string> connectTexts(const OwnDatabase& database, const std::string& password)
{
    if (database.odbc) return {odbcConnectText(database, password)};
    std::vector<std::string> texts;
    for (const ServerAddress& server : database.servers)
        texts.push_back(connectText(server, database, password));
    return texts;
}

std::string accountOf(const OwnDatabase& database)
{
    const std::string user = database.user.toStdString();
    if (database.odbc) return user + "@" + database.text.trimmed().toStdString();
    const QString server = database.servers.empty() ? QString() : written(database.servers.front());
    return user + "@" + server.toStdString() + "/" + database.name.trimmed().toStdString();
}

std::optional<StartChoice> readStartChoice(const QString& file)
{
    const QSettings settings(file, QSettings::IniFormat);
    const QString kind = settings.value("base/tipo").toString();
    StartChoice choice;
    if (kind == "ejemplo") return choice;
    choice.own = true;
    choice.database.odbc = kind == "odbc";
    if (!choice.database.odbc) choice.database.servers = serversIn(settings);
    choice.database.name = settings.value("base/nombre").toString();
    choice.database.text = settings.value("base/cadena").toString();
    choice.database.user = settings.value("base/usuario").toString();
    choice.createSchema = settings.value("base/crear").toBool();
    choice.withoutPassword = settings.value("base/sin_clave").toBool();
    const bool known = kind == "odbc" || kind == "mariadb";
    if (!known || !problemOf(choice.database).isEmpty()) return std::nullopt;
    return choice;
}

bool writeStartChoice(const QString& file, const StartChoice& choice)
{
    QSettings settings(file, QSettings::IniFormat);
    settings.remove("base");
    settings.setValue("base/tipo", !choice.own ? "ejemplo" : choice.database.odbc ? "odbc" : "mariadb");
    if (choice.own) {
        settings.setValue("base/usuario", choice.database.user);
        if (choice.createSchema) settings.setValue("base/crear", true);
        if (choice.withoutPassword) settings.setValue("base/sin_clave", true);
    }
    if (choice.own && choice.database.odbc) settings.setValue("base/cadena", choice.database.text.trimmed());
    if (choice.own && !choice.database.odbc) {
        QStringList servers;
        for (const ServerAddress& server : choice.database.servers)
            servers += written(server);
        settings.setValue("base/servidores", servers);
        settings.setValue("base/nombre", choice.database.name.trimmed());
    }
    settings.sync();
    return settings.status() != QSettings::AccessError; // one of form is that of the file which was there
}

} // namespace dn::host
