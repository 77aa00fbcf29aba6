// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "host/database/drivers.h"

#include "data/mariadb/connection.h"
#include "data/odbc/connection.h"
#include "host/database/database_choice.h"

namespace dn::host {

std::unique_ptr<data::Connection> openMariadb(const MariadbTarget& target)
{
    data::mariadb::Options options;
    options.host = target.host;
    options.port = target.socket.empty() ? target.port : 0;
    options.socket = target.socket;
    options.user = target.user;
    options.password = target.password;
    options.database = target.database;
    options.connectTimeOut = std::chrono::seconds(target.connectTimeout);
    options.readTimeOut = options.writeTimeOut = std::chrono::seconds(target.readTimeout);
    return std::make_unique<data::mariadb::Connection>(options);
}

std::unique_ptr<data::Connection> openOdbc(const OdbcTarget& target)
{
    data::odbc::TimeOuts timeOuts;
    timeOuts.connect = std::chrono::seconds(target.connectTimeout);
    timeOuts.read = std::chrono::seconds(target.readTimeout);
    return std::make_unique<data::odbc::Connection>(target.text, timeOuts);
}

} // namespace dn::host
