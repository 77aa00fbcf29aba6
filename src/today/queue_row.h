// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// One party of the day's work as one row of the queue.
#pragma once

#include "base/date_time.h"
#include "data/recordset.h"
#include "screen/list_view.h"

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace dn::today {

/// Builds the rows of one statement. The columns are looked up by their names once, ahead of the loop.
class QueueRowBuilder {
public:
    /// @param records read at its present row by each `build`.
    /// @param now tells an appointment of a past day from one of today or later.
    QueueRowBuilder(screen::ListView& lvwHoy, const data::Recordset& records, const DateTime& now);

    /// Adds the present record; one whose key is there already, or cannot be read, stays out. A null gives an
    /// empty cell. A cell that cannot be read is left out, and those behind it move one place to the left.
    void build();

private:
    using Column = std::optional<std::size_t>;

    data::Value read(const Column& column) const;
    std::optional<screen::ListItem> addRow();
    void addCell(screen::ListItem& row, const Column& column);
    void addHora(screen::ListItem& row);
    std::string_view hora(const data::Value& cita);

    screen::ListView& lvwHoy_;
    const data::Recordset& records_;
    DateTime today_;
    Column tipo_, sysPk_, cita_;
    std::array<Column, 4> plain_; // contact, company, telephone, e-mail
    std::string key_;             // used again for every row ...
    std::string text_;            // ... and this one for every cell
};

} // namespace dn::today
