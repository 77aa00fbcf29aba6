// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The one error of the database connections, whichever driver carries them.
#pragma once

#include "base/export.h"

#include <stdexcept>
#include <string>

namespace dn::data {

/// A statement that the server refused, or a server that did not answer. `what()` is the server's own text,
/// UTF-8, without the drivers' bracketed prefixes: a trap shows it to the operator as it stands.
class DN_EXPORT Error : public std::runtime_error {
public:
    /// @param sqlState five characters. @param nativeCode the server's number. @param text the server's own.
    Error(std::string sqlState, int nativeCode, const std::string& text)
        : std::runtime_error(text), sqlState_(std::move(sqlState)), nativeCode_(nativeCode)
    {
    }

    /// Five characters, "HY000" where the driver gave none.
    const std::string& sqlState() const { return sqlState_; }
    /// The server's number (1146 for MySQL's missing table, 208 for SQL Server's), or the client library's.
    int nativeCode() const { return nativeCode_; }

private:
    std::string sqlState_;
    int nativeCode_;
};

} // namespace dn::data
