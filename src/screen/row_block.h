// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// One row of a list view as it lies in memory: a single block of its list's arena.
//
// A list holds 100,000 rows and more, with some seventeen cells each. A string object for each cell would
// cost three times the text itself; here a row costs one allocation, two bytes for each cell, and a small
// header:
//
//   header | styles of single cells | end offsets of the segments | text of all segments
//
// The segments are the key, the row's own text (cell 0), the sub-items (cells 1 and up) and the tool tip.
// Offsets are of 16 bits where the text is short enough, else of 32.
#pragma once

#include "base/export.h"
#include "screen/element.h"
#include "screen/row_arena.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace dn::screen {

/// The number of an icon as a row keeps it; 0, none, for a number that no image list has.
constexpr std::uint8_t iconNumber(int icon)
{
    return static_cast<std::uint8_t>(icon >= 0 && icon <= 255 ? icon : 0);
}

/// What sets one cell apart from its row.
struct DN_INTERNAL CellStyle {
    std::uint16_t cell = 0;
    std::uint8_t icon = 0; ///< report icon, 0 for none
    bool hasColour = false;
    Colour colour = 0;
};

/// A row while it is built or changed: the same facts as the block, in growing buffers that are used again.
struct DN_INTERNAL RowDraft {
    std::string key;
    std::string cells;               ///< the texts of all cells, one behind the other
    std::vector<std::uint32_t> ends; ///< where each cell's text ends in `cells`
    std::string toolTip;
    std::vector<CellStyle> styles; ///< at most one for each cell
    Colour foreColour = 0;
    std::uint8_t smallIcon = 0;
    bool bold = false;
    bool checked = false;

    void clear();
    void add(std::string_view cellText);
    /// @param index of a cell that is there.
    void replace(std::size_t index, std::string_view cellText);
    std::string_view cell(std::size_t index) const;
    /// The style of a cell, made when it has none yet.
    CellStyle& style(std::size_t cell);
};

/// A row in its arena: a pointer, to be copied freely.
class DN_INTERNAL RowBlock {
public:
    RowBlock() = default;
    /// Writes a row into the arena, which must outlive every use of it.
    RowBlock(const RowDraft& draft, RowArena& arena);

    /// Writes other facts in the place of the row's own where they fit, else anew; the old place then lies idle
    /// until the arena is cleared.
    void rewrite(const RowDraft& draft, RowArena& arena);

    /// Writes the block's facts into a draft.
    void copyTo(RowDraft& draft) const;

    std::string_view key() const { return segment(0); }

    /// Cell 0 is the row's own text. Empty for a cell that the row does not have.
    std::string_view cell(std::size_t index) const;

    std::size_t cellCount() const;

    std::string_view toolTip() const { return segment(cellCount() + 1); }

    const CellStyle* style(std::size_t cell) const;

    Colour foreColour() const;
    bool bold() const;
    bool checked() const;
    void checked(bool value);
    std::uint8_t smallIcon() const;
    void smallIcon(std::uint8_t icon);

    /// Bytes of the block beside its text.
    std::size_t overhead() const;

private:
    struct Header;

    static std::size_t sizeOf(const RowDraft& draft);
    void write(const RowDraft& draft, void* memory);
    std::size_t size() const;
    std::string_view segment(std::size_t index) const;
    std::size_t segmentEnd(std::size_t index) const;
    const CellStyle* styles() const;
    const char* offsets() const;

    Header* block_ = nullptr;
};

} // namespace dn::screen
