// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The host's own way to the database, beside the control's: statements with parameters, and transactions that the
// control's statements never stand in.
#pragma once

#include "data/connection.h"
#include "host/database/statement.h"

#include <cstdint>
#include <functional>
#include <memory>

namespace dn::host {

/// Opened when it is first needed, and again after it was lost: the statement that finds it lost fails, the next
/// one reaches the server.
class OwnConnection {
public:
    using Opener = std::function<std::unique_ptr<data::Connection>()>;

    /// @param open gives a new connection, or throws.
    explicit OwnConnection(Opener open) : open_(std::move(open)) {}

    /// @throws data::Error what the server said; whatever the opener throws.
    std::unique_ptr<data::Recordset> run(const Statement& statement);
    /// Runs an INSERT. @return the key that the server gave the row.
    std::int32_t insert(const Statement& statement);

private:
    friend class Transaction;

    data::Connection& connection();

    Opener open_;
    std::unique_ptr<data::Connection> connection_;
    Engine engine_ = Engine::mariadb;
    bool inTransaction_ = false; // then a lost connection stays lost: what ran before it is gone with it
};

/// A cell of the current row as text; empty for a null.
inline std::string textOf(const data::Recordset& row, std::size_t column)
{
    return std::string(row.value(column).raw());
}

/// What runs between its making and `commit` is stored whole or not at all.
class Transaction {
public:
    explicit Transaction(OwnConnection& connection);
    Transaction(const Transaction&) = delete;
    Transaction& operator=(const Transaction&) = delete;
    /// Takes everything back unless it was committed.
    ~Transaction();

    /// @throws data::Error; nothing is stored then.
    void commit();

private:
    OwnConnection& connection_;
    bool committed_ = false;
};

} // namespace dn::host
