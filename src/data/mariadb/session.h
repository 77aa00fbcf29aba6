// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The client library's handle, and the knowledge whether its server is still there.
#pragma once

#include "data/error.h"
#include "data/mariadb/options.h"
#include "data/streamed_recordset.h"

#include <mysql.h>

#include <memory>
#include <string_view>

namespace dn::data::mariadb {

class Session {
public:
    /// @throws Error
    explicit Session(const Options& options);

    MYSQL* handle() const { return handle_.get(); }
    /// Whether a statement found the server gone.
    bool lost() const { return lost_; }
    /// Whether the server has closed its end, which shows without a statement. A server that hangs, or whose
    /// machine is gone without a word, does not show so.
    bool hungUp() const;
    Wire& wire() { return wire_; }

    /// Sends a statement and waits for the head of its first result. @throws Error
    void send(std::string_view statement);
    /// Reads off every result behind the first, which was read already. @throws Error
    void drainResults();
    /// @throws Error the last error of the handle, after a look whether it means that the server is gone.
    [[noreturn]] void fail();

private:
    void setOptions(const Options& options);

    std::unique_ptr<MYSQL, decltype(&mysql_close)> handle_;
    bool lost_ = false;
    Wire wire_;
};

struct FreeResult {
    void operator()(MYSQL_RES* result) const { mysql_free_result(result); }
};

using Result = std::unique_ptr<MYSQL_RES, FreeResult>;

} // namespace dn::data::mariadb
