// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// Many rows into one table, a thousand to a statement. Rows that bring their keys name "Sys_PK" as their first
// column.
#pragma once

#include "data/connection.h"
#include "host/database/sql_text.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace dn::host {

/// Rows are begun with `row`, their values added in the order of the columns, and `finish` sends what is left.
class BulkInsert {
public:
    /// @param columns as they stand in the statement, without parentheses.
    BulkInsert(data::Connection& connection, Engine engine, std::string_view table, std::string_view columns);

    /// Sends the former rows when they are many enough. @throws data::Error
    BulkInsert& row();
    BulkInsert& text(std::string_view value);
    BulkInsert& number(std::int64_t value);
    BulkInsert& moment(const DateTime& value);
    BulkInsert& date(const DateTime& value); ///< without its time
    BulkInsert& null();

    BulkInsert& text(const char* value) { return text(std::string_view(value)); }
    BulkInsert& text(const std::string& value) { return text(std::string_view(value)); }
    BulkInsert& text(const std::optional<std::string>& value)
    {
        return value ? text(std::string_view(*value)) : null();
    }
    BulkInsert& number(const std::optional<int>& value) { return value ? number(std::int64_t{*value}) : null(); }
    BulkInsert& moment(const std::optional<DateTime>& value) { return value ? moment(*value) : null(); }

    /// @throws data::Error
    void finish();

private:
    std::string& next();

    static constexpr int rowsPerStatement = 1000; // SQL Server takes no more

    data::Connection& connection_;
    Engine engine_;
    std::string head_;
    std::string
        withKeys_; ///< what SQL Server must be told ahead of rows that bring their own keys, and behind them
    std::string statement_;
    int rows_ = 0;
    bool firstValue_ = true;
};

} // namespace dn::host
