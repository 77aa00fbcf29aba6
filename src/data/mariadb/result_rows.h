// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// A result of the server as it comes over the wire, row by row.
#pragma once

#include "data/mariadb/session.h"
#include "data/streamed_recordset.h"

#include <string>
#include <vector>

namespace dn::data::mariadb {

class ResultRows final : public RowSource {
public:
    /// Opens the result whose head the session has read. @throws Error
    explicit ResultRows(Session& session);

    std::vector<Column> columns() const;
    bool fetch(RowMemory& rows) override;

private:
    void appendWithBits(RowMemory& rows, MYSQL_ROW row, const unsigned long* lengths);

    Session& session_;
    Result result_;
    std::vector<std::size_t> bits_; // the columns of type BIT
    std::vector<std::string> bitTexts_;
};

} // namespace dn::data::mariadb
