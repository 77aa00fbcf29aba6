// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The connection over ODBC: the way to SQL Server, and to whatever a host brings a driver for.
#pragma once

#include "data/connection.h"
#include "data/streamed_recordset.h"

#include <chrono>
#include <memory>
#include <string>
#include <string_view>

namespace dn::data::odbc {

class Session;

struct TimeOuts {
    std::chrono::seconds connect{5};
    /// For each wait on the server, so that it also bounds the slowest statement.
    std::chrono::seconds read{60};
};

class Connection final : public data::Connection {
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
    Wire wire_;
};

} // namespace dn::data::odbc
