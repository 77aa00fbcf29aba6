// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// One record of the projects as one row of their list: up to fifteen cells, icon and colour.
#pragma once

#include "data/recordset.h"
#include "screen/list_view.h"

#include <array>
#include <cstddef>
#include <optional>
#include <string>

namespace dn::projects {

/// The small image of a status: 1 to 4 as they are, 5 for 6, and 0 (none) for any other.
/// @throws RuntimeError for a null and for what is no number.
int IconoStatus(const data::Value& status);

/// Builds the rows of one recordset. The columns are looked up by their names once, ahead of the loop; the buffers
/// are used again for every row.
///
/// A record whose project is in the list already is left out, and so is one whose status or key cannot be read. A
/// cell that cannot be read is left out, and the next one takes its place.
class ProjectRowBuilder {
public:
    /// @param records read at its present row by each `add`.
    ProjectRowBuilder(screen::ListView& lvwProy, const data::Recordset& records);

    /// Adds the project of the present record by that record's activity.
    void addByActivity();
    /// Adds the project of the present record as one that has no activity.
    void addWithoutActivity();

private:
    using Column = std::optional<std::size_t>;

    data::Value read(const Column& column) const;
    bool takeKey();
    void addCell(screen::ListItem& item, const Column& column);
    void addMonto(screen::ListItem& item);
    void paint(screen::ListItem& item);

    screen::ListView& lvwProy_;
    const data::Recordset& records_;
    Column sysPk_, status_, color_, fInicio_, monto_;
    std::array<Column, 2> activity_;     // its type and subject
    std::array<Column, 3> project_;      // goal, organisation and description
    std::array<Column, 8> behindAmount_; // person to the days since the last attempt
    std::string key_;
    std::string text_;
};

} // namespace dn::projects
