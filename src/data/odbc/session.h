// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The driver manager's handles, and the knowledge whether the server is still there.
#pragma once

#include "data/error.h"
#include "data/odbc/connection.h"
#include "data/streamed_recordset.h"

#include <sql.h>
#include <sqlext.h>

#include <memory>
#include <string_view>

namespace dn::data::odbc {

/// A handle of the driver manager, freed with its owner.
template <SQLSMALLINT type>
struct FreeHandle {
    using pointer = SQLHANDLE;
    void operator()(SQLHANDLE handle) const { SQLFreeHandle(type, handle); }
};

template <SQLSMALLINT type>
using Handle = std::unique_ptr<void, FreeHandle<type>>;

/// The first record that a handle has about its last call, without the drivers' prefixes.
Error errorOf(SQLSMALLINT type, SQLHANDLE handle);

class Session {
public:
    /// @throws Error
    Session(std::string_view connectionString, TimeOuts timeOuts);
    ~Session();
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;

    SQLHDBC handle() const { return connection_.get(); }
    bool lost() const { return lost_; }
    Wire& wire() { return wire_; }
    /// Seconds for each statement, 0 for a driver that bounds its waits by itself.
    SQLULEN statementTimeOut() const { return statementTimeOut_; }
    /// A result without columns is the last one of its statement, and the driver must not be asked for more:
    /// MariaDB's crashes then behind the definition of a procedure with a semicolon in it.
    bool endsWithoutColumns() const { return mariaDriver_; }
    /// A second statement in a text would run. MariaDB's driver refuses one, other servers are taken for SQL
    /// Server.
    bool runsStacked() const { return !mariaDriver_; }
    /// What SQLGetData may be asked for (SQL_GD_ANY_COLUMN, SQL_GD_BOUND).
    SQLUINTEGER getDataExtensions() const { return getDataExtensions_; }

    /// Finds out after a failure whether it means that the server is gone. The SQLSTATE of a failure does not tell
    /// it but for one, so the driver is asked, whose answers can be relied on after a failure alone.
    void lookWhetherLost(const Error& failure);

private:
    void connect(std::string_view connectionString, TimeOuts timeOuts);
    void learnDriver(TimeOuts timeOuts);

    Handle<SQL_HANDLE_ENV> environment_;
    Handle<SQL_HANDLE_DBC> connection_;
    SQLULEN statementTimeOut_ = 0;
    SQLUINTEGER getDataExtensions_ = 0;
    bool mariaDriver_ = false;
    bool connected_ = false;
    bool lost_ = false;
    Wire wire_;
};

/// A statement under way; its results are dropped with it.
class Statement {
public:
    /// @throws Error when the connection is known to be lost by now.
    explicit Statement(Session& session);

    SQLHSTMT handle() const { return handle_.get(); }
    Session& session() const { return *session_; }

    void execute(std::string_view text);
    std::size_t columnCount() const; ///< of the present result, 0 for one without rows
    /// Reads off every result behind the present one. @throws Error
    void drainResults();
    /// @throws Error for a result that is a failure. @return whether it is not SQL_NO_DATA
    bool check(SQLRETURN result) const;

private:
    void setAttributes();

    Session* session_;
    Handle<SQL_HANDLE_STMT> handle_;
};

} // namespace dn::data::odbc
