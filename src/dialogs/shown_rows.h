// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// A list view as the table that the writers of files take: nothing is copied on the way.
#pragma once

#include "tables/table.h"

#include "screen/list_view.h"

#include <cstddef>
#include <string_view>
#include <vector>

namespace dn::dialogs {

/// The rows of a list in the order shown. The list must stay as it is meanwhile.
class ShownRows : public tables::Table {
public:
    explicit ShownRows(const screen::ListView& grid) : rows_(grid.rows())
    {
        for (const screen::ColumnHeader& header : grid.ColumnHeaders())
            columns_.push_back({header.Text, header.Width / twipsPerPixel});
    }

    const std::vector<tables::Column>& columns() const override { return columns_; }
    std::size_t rows() const override { return rows_.count(); }
    std::string_view cell(std::size_t row, std::size_t column) const override
    {
        return rows_.cell(rows_.rowAt(row), column);
    }

    static constexpr int twipsPerPixel = 15;

private:
    const screen::ListRows& rows_;
    std::vector<tables::Column> columns_;
};

} // namespace dn::dialogs
