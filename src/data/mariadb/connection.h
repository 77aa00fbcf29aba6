// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The connection to MySQL and MariaDB servers, over libmariadb and as thin as it can be: the text goes out as it
// is, the rows come in as the server wrote them. General database layers take three to ten times the processor
// time for the same rows, and some rewrite the text or round the decimals.
#pragma once

#include "base/export.h"
#include "data/connection.h"
#include "data/mariadb/options.h"

#include <memory>
#include <string_view>

namespace dn::data::mariadb {

class Session;

/// A connection of its own to one server, closed with the object.
class DN_EXPORT Connection final : public data::Connection {
public:
    /// Connects, with utf8mb4 as the character set. @throws Error what the server or the client library said.
    explicit Connection(const Options& options);
    /// An open recordset keeps the rows that it holds already.
    ~Connection() override;

    int State() const override;
    std::unique_ptr<Recordset> execute(std::string_view statement) override;

private:
    std::unique_ptr<Session> session_;
};

} // namespace dn::data::mariadb
