// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The entry that a command of a directory works on, read back from the selected row.
#pragma once

#include "screen/list_view.h"

#include <cstdint>
#include <string>

namespace dn::directories {

/// Writes the database key of the selected row; 0 when no row is selected, or its key is none.
void ItemKeyPK(screen::ListView& list, std::int32_t& result);

/// Writes a sub-item of the selected row, counted from 1; the empty text when there is none.
void ItemSubText(screen::ListView& list, std::int16_t index, std::string& result);

} // namespace dn::directories
