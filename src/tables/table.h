// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// A table that is to become a file: its columns, and its rows where they lie.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace dn::tables {

struct Column {
    std::string caption;
    int width = 0; ///< on the screen, in logical pixels
};

class Table {
public:
    virtual ~Table() = default;

    virtual const std::vector<Column>& columns() const = 0;
    virtual std::size_t rows() const = 0;
    /// The text of a cell in UTF-8; empty for an empty cell. Good until the next call.
    virtual std::string_view cell(std::size_t row, std::size_t column) const = 0;
};

} // namespace dn::tables
