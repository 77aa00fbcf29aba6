// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "host/desktop/server_addresses.h"

#include <QRegularExpression>
#include <QStringList>

#include <algorithm>

namespace dn::host {
namespace {

constexpr int noPort = 0;

int portOf(const QString& digits)
{
    bool isNumber = false;
    const int port = digits.toInt(&isNumber);
    return isNumber && port > noPort && port <= ServerAddress::lastPort ? port : noPort;
}

// A name with other signs between its colons would take what stands around it into the text for the driver.
bool isAddress(const QString& host)
{
    static const QRegularExpression signs(QRegularExpression::anchoredPattern(QStringLiteral("[0-9a-fA-F:.%]+")));
    return host.count(u':') > 1 && signs.match(host).hasMatch();
}

/// An IPv6 address in brackets.
ServerAddress readBracketed(const QString& piece, int port)
{
    const qsizetype end = piece.indexOf(u']');
    const QString rest = piece.mid(end + 1);
    const QString host = end > 0 ? piece.mid(1, end - 1) : QString();
    const int own = rest.isEmpty() ? port : rest.startsWith(u':') ? portOf(rest.mid(1)) : noPort;
    return !isAddress(host) || own == noPort ? ServerAddress{piece, noPort} : ServerAddress{host, own};
}

ServerAddress readServer(const QString& piece, int port)
{
    if (piece.startsWith(u'/')) return {.host = {}, .socket = piece};
    if (piece.startsWith(u'[')) return readBracketed(piece, port);
    if (!piece.contains(u':') || isAddress(piece)) return {piece, port};
    const QString host = piece.section(u':', 0, 0);
    const int own = portOf(piece.section(u':', 1));
    return host.isEmpty() || own == noPort ? ServerAddress{piece, noPort} : ServerAddress{host, own};
}

QString hostOf(const ServerAddress& server)
{
    return server.host.contains(u':') ? "[" + server.host + "]" : server.host;
}

} // namespace

std::vector<ServerAddress> readServers(const QString& typed, int port)
{
    // What is pasted with line ends into a line has the two last ones in their place.
    static const QRegularExpression between(QStringLiteral(R"([\s,;\x{2028}\x{2029}]+)"));
    std::vector<ServerAddress> servers;
    for (const QString& piece : typed.split(between, Qt::SkipEmptyParts)) {
        ServerAddress server = readServer(piece, port);
        if (std::find(servers.begin(), servers.end(), server) == servers.end())
            servers.push_back(std::move(server));
    }
    return servers;
}

bool isValid(const ServerAddress& server)
{
    if (!server.socket.isEmpty()) return true;
    return !server.host.isEmpty() && server.port > noPort && server.port <= ServerAddress::lastPort;
}

QString written(const ServerAddress& server)
{
    if (!server.socket.isEmpty()) return server.socket;
    return server.port == noPort ? server.host : hostOf(server) + ":" + QString::number(server.port);
}

QString written(const std::vector<ServerAddress>& servers, int port)
{
    QStringList all;
    for (const ServerAddress& server : servers)
        all += server.socket.isEmpty() && server.port == port ? hostOf(server) : written(server);
    return all.join(QStringLiteral(", "));
}

} // namespace dn::host
