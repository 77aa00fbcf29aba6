// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The servers of one database as an operator writes them down: one, or several for when the first is away.
#pragma once

#include <QString>

#include <vector>

namespace dn::host {

struct ServerAddress {
    static constexpr int standardPort = 3306;
    static constexpr int lastPort = 65'535;

    QString host;
    int port = standardPort;
    QString socket = {}; ///< its path; host and port say nothing then

    bool operator==(const ServerAddress& other) const = default;
};

/// Reads "db1, db2:3307 [::1]:3308 /run/mysqld/mysqld.sock": with blanks, commas, semicolons or line ends between
/// them, each one once. What cannot be read comes out as a host without a port, which `isValid` refuses.
/// @param port of those that name none.
std::vector<ServerAddress> readServers(const QString& typed, int port = ServerAddress::standardPort);

bool isValid(const ServerAddress& server);

/// As `readServers` reads it, always with the port.
QString written(const ServerAddress& server);

/// What `readServers` reads with that port, which is left out.
QString written(const std::vector<ServerAddress>& servers, int port);

} // namespace dn::host
