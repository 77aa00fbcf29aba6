// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// A table as a binary workbook (BIFF8), which spreadsheet programs open without a warning.
#pragma once

#include "tables/table.h"

#include <cstddef>
#include <string>

namespace dn::tables {

/// Rows of a sheet below its captions; a longer table goes on in a further sheet.
inline constexpr std::size_t rowsOfSheet = 65'535;

/// Writes a workbook with the table's captions, bold, at the head of each sheet. Every cell is a text, whatever it
/// looks like; one of more than 32,767 UTF-16 units is cut off there. The table is read twice, and nothing of it
/// is kept.
/// @param path of the file, whatever its extension. What was there is replaced.
/// @param sheet name of the first sheet; the others bear a number behind it. ASCII, at most 25 characters.
/// @throws RuntimeError when it cannot be written; what was there before is still there then, and nothing else.
void writeWorkbook(const std::string& path, const std::string& sheet, const Table& table);

} // namespace dn::tables
