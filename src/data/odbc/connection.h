// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The connection over ODBC: the way to SQL Server, and to whatever a host brings a driver for.
#pragma once

#include "base/export.h"
#include "data/connection.h"

#include <chrono>
#include <memory>
#include <string>
#include <string_view>

namespace dn::data::odbc {

class Session;

/// How long the server may take.
struct TimeOuts {
    std::chrono::seconds connect{5}; ///< for the way to the server and the login
    /// For each wait on the server, so that it also bounds the slowest statement.
    std::chrono::seconds read{60};
};

/// A connection of its own to one server, closed with the object.
class DN_EXPORT Connection final : public data::Connection {
public:
    /// Connects.
    /// @param connectionString such as "DRIVER={FreeTDS};SERVER=...;PORT=...;UID=...;PWD=...;DATABASE=...". What
    /// it does not say about time-outs and the character set (UTF-8) is added.
    /// @throws Error what the server or the driver said.
    explicit Connection(std::string_view connectionString, TimeOuts timeOuts = {});
    /// An open recordset keeps the rows that it holds already.
    ~Connection() override;

    int State() const override;
    std::unique_ptr<Recordset> execute(std::string_view statement) override;

private:
    std::unique_ptr<Session> session_;
};

} // namespace dn::data::odbc
