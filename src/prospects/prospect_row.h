// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// One record of the prospects as one row of their list: seventeen cells, icons, colours and tool tip.
#pragma once

#include "base/date_time.h"
#include "data/recordset.h"
#include "screen/list_view.h"

#include <array>
#include <cstddef>
#include <optional>
#include <string>

namespace dn::prospects {

/// Builds the rows of one load. The columns are looked up by their names once, ahead of the loop; the buffers are
/// used again for every row.
class ProspectRowBuilder {
public:
    /// @param records read at its present row by each `build`.
    /// @param now tells a next contact that is overdue from one that is ahead.
    ProspectRowBuilder(screen::ListView& lvw, const data::Recordset& records, const DateTime& now);

    /// Adds the present record. Whatever cannot be read is passed over: a cell stays empty, a row whose key is
    /// there already or cannot be read stays out.
    void build();

private:
    using Column = std::optional<std::size_t>;

    data::Value read(const Column& column) const;
    std::string key() const;
    void addCell(screen::ListItem& item, const Column& column);
    void addDateCell(screen::ListItem& item, const Column& column);
    void addInteres(screen::ListItem& item);
    void addProxContacto(screen::ListItem& item);
    void addDias(screen::ListItem& item);
    void addToolTip(screen::ListItem& item);
    void setSmallIcon(screen::ListItem& item);
    void paint(screen::ListItem& item);
    bool flag(const Column& column) const;

    screen::ListView& lvw_;
    const data::Recordset& records_;
    DateTime now_;
    Column sysPk_, tipo_, redirect_, interes_, proxContac_, fecha_, eDias_, eUltimoContacto_, eDuc_,
        eUltimoIntento_, eDui_, comentarios_, correoVerif_, contactado_, color_;
    std::array<Column, 8> plain_; // name to country, sub-items 3 to 10
    std::string text_;
    std::string toolTip_;
    std::string label_;
};

} // namespace dn::prospects
