// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// A result of an ODBC statement, row by row.
//
// Short columns are bound as text, which is the fastest way that was measured; columns wider than 4 KB are asked
// for once a row, to their full length. A driver that cannot give a column ahead of a bound one gets no column
// bound behind the first long one.
#pragma once

#include "data/odbc/session.h"
#include "data/streamed_recordset.h"

#include <string>
#include <vector>

namespace dn::data::odbc {

class ResultRows final : public RowSource {
public:
    /// @throws Error
    explicit ResultRows(Statement statement);

    std::vector<Column> columns() const;
    bool fetch(RowMemory& rows) override;

private:
    struct Cell {
        Column column;
        SQLSMALLINT form = SQL_C_CHAR; // SQL_C_BINARY for bytes, which a driver would write as hexadecimal digits
        bool bound = false;
        std::string buffer;       // of a bound column
        SQLLEN indicator = 0;     // length of the value in it, or SQL_NULL_DATA
        std::string text;         // a value that was asked for
        std::size_t expected = 0; // bytes of it still with the driver, where it says so
        std::string_view view;
    };

    Cell describe(SQLUSMALLINT number) const;
    SQLLEN attribute(SQLUSMALLINT number, SQLUSMALLINT which) const;
    std::string typeName(SQLUSMALLINT number) const;
    void bind();
    void takeCell(Cell& cell, SQLUSMALLINT number);
    static void readMoment(Cell& cell);
    void readCell(Cell& cell, SQLUSMALLINT number);
    void readLong(Cell& cell, SQLUSMALLINT number);
    bool readPiece(Cell& cell, SQLUSMALLINT number);

    Statement statement_;
    std::vector<Cell> cells_; // never grows once bound
};

} // namespace dn::data::odbc
