// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "data/odbc/session.h"

#include "base/no_case_pattern.h"
#include "data/driver_support.h"
#include "data/odbc/connection_string.h"

#include <algorithm>
#include <array>
#include <new>
#include <string>

namespace dn::data::odbc {
namespace {

// @return SQL_NULL_HANDLE when the parent has an error to tell
SQLHANDLE newHandle(SQLSMALLINT type, SQLHANDLE parent)
{
    SQLHANDLE handle = SQL_NULL_HANDLE;
    return SQL_SUCCEEDED(SQLAllocHandle(type, parent, &handle)) ? handle : SQL_NULL_HANDLE;
}

SQLHANDLE newEnvironment()
{
    const SQLHANDLE handle = newHandle(SQL_HANDLE_ENV, SQL_NULL_HANDLE);
    if (handle == SQL_NULL_HANDLE) throw std::bad_alloc();
    SQLSetEnvAttr(handle, SQL_ATTR_ODBC_VERSION, reinterpret_cast<SQLPOINTER>(SQL_OV_ODBC3), 0);
    return handle;
}

SQLPOINTER asAttribute(SQLULEN number) { return reinterpret_cast<SQLPOINTER>(number); }

// The interface takes texts that it only reads by pointers that are not const.
SQLCHAR* textPointer(std::string_view text) { return reinterpret_cast<SQLCHAR*>(const_cast<char*>(text.data())); }

} // namespace

Error errorOf(SQLSMALLINT type, SQLHANDLE handle)
{
    std::array<SQLCHAR, 6> state{};
    SQLINTEGER code = 0;
    std::array<SQLCHAR, 4096> text{};
    SQLSMALLINT size = 0;
    const SQLRETURN result =
        SQLGetDiagRec(type, handle, 1, state.data(), &code, text.data(), SQLSMALLINT{text.size()}, &size);
    if (!SQL_SUCCEEDED(result)) return {"HY000", 0, "El controlador ODBC no dio ningún mensaje de error"};
    const std::string_view message(reinterpret_cast<const char*>(text.data()));
    return {reinterpret_cast<const char*>(state.data()), code, std::string(withoutPrefixes(message))};
}

Session::Session(std::string_view connectionString, TimeOuts timeOuts)
    : environment_(newEnvironment()), connection_(newHandle(SQL_HANDLE_DBC, environment_.get()))
{
    if (!connection_) throw errorOf(SQL_HANDLE_ENV, environment_.get());
    connect(connectionString, timeOuts);
    learnDriver(timeOuts);
}

Session::~Session()
{
    if (connected_) SQLDisconnect(handle());
}

void Session::connect(std::string_view connectionString, TimeOuts timeOuts)
{
    const auto seconds = static_cast<SQLULEN>(timeOuts.connect.count());
    SQLSetConnectAttr(handle(), SQL_ATTR_LOGIN_TIMEOUT, asAttribute(seconds), SQL_IS_UINTEGER);
    const std::string text = completed(connectionString, timeOuts);
    SQLSMALLINT size = 0;
    const SQLRETURN result =
        SQLDriverConnect(handle(), nullptr, textPointer(text), static_cast<SQLSMALLINT>(text.size()), nullptr, 0,
                         &size, SQL_DRIVER_NOPROMPT);
    if (!SQL_SUCCEEDED(result)) throw errorOf(SQL_HANDLE_DBC, handle());
    connected_ = true;
}

// The MariaDB driver bounds its waits by the time-out in the connection string; the time-out of a statement it
// ignores in one release and writes into the statement's text in another.
void Session::learnDriver(TimeOuts timeOuts)
{
    std::array<char, 256> name{};
    SQLSMALLINT size = 0;
    SQLGetInfo(handle(), SQL_DRIVER_NAME, name.data(), SQLSMALLINT{name.size()}, &size);
    mariaDriver_ = containsNoCase(name.data(), "maodbc");
    if (!mariaDriver_) statementTimeOut_ = static_cast<SQLULEN>(timeOuts.read.count());
    SQLGetInfo(handle(), SQL_GETDATA_EXTENSIONS, &getDataExtensions_, sizeof getDataExtensions_, nullptr);
}

void Session::lookWhetherLost(const Error& failure)
{
    SQLULEN dead = SQL_CD_FALSE;
    const SQLRETURN result =
        SQLGetConnectAttr(handle(), SQL_ATTR_CONNECTION_DEAD, &dead, SQL_IS_UINTEGER, nullptr);
    const bool notOpen = failure.sqlState() == "08003";
    lost_ = lost_ || notOpen || (SQL_SUCCEEDED(result) && dead == SQL_CD_TRUE);
}

Statement::Statement(Session& session) : session_(&session), handle_(newHandle(SQL_HANDLE_STMT, session.handle()))
{
    setAttributes();
    if (handle_) return;
    const Error error = errorOf(SQL_HANDLE_DBC, session.handle());
    session.lookWhetherLost(error);
    throw Error(error);
}

void Statement::setAttributes()
{
    if (!handle_) return;
    // Escapes in braces are text of the operator here, not ODBC's.
    SQLSetStmtAttr(handle(), SQL_ATTR_NOSCAN, asAttribute(SQL_NOSCAN_ON), SQL_IS_UINTEGER);
    const SQLULEN seconds = session_->statementTimeOut();
    if (seconds != 0) SQLSetStmtAttr(handle(), SQL_ATTR_QUERY_TIMEOUT, asAttribute(seconds), SQL_IS_UINTEGER);
}

void Statement::execute(std::string_view text)
{
    check(SQLExecDirect(handle(), textPointer(text), static_cast<SQLINTEGER>(text.size())));
}

std::size_t Statement::columnCount() const
{
    SQLSMALLINT count = 0;
    check(SQLNumResultCols(handle(), &count));
    return static_cast<std::size_t>(count);
}

void Statement::drainResults()
{
    SQLFreeStmt(handle(), SQL_UNBIND); // the buffers are those of the first result
    while (check(SQLMoreResults(handle()))) {
    }
}

bool Statement::check(SQLRETURN result) const
{
    if (result == SQL_NO_DATA) return false; // of an update: no row was changed
    if (SQL_SUCCEEDED(result)) return true;
    const Error error = errorOf(SQL_HANDLE_STMT, handle());
    session_->lookWhetherLost(error);
    throw Error(error);
}

} // namespace dn::data::odbc
