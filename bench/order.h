// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// Whether a list stands in the order that a sort promised: every measured and every loaded sort is looked through.
#pragma once

#include "base/collation.h"
#include "screen/list_view.h"

#include <cstddef>

namespace dn::bench {

inline bool isInOrder(const screen::ListRows& rows, std::size_t cell, bool descending)
{
    for (std::size_t position = 1; position < rows.count(); ++position) {
        const int order =
            compareSpanish(rows.cell(rows.rowAt(position - 1), cell), rows.cell(rows.rowAt(position), cell));
        if (descending ? order < 0 : order > 0) return false;
    }
    return true;
}

} // namespace dn::bench
