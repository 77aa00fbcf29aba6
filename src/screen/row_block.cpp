// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "screen/row_block.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <new>
#include <utility>

namespace dn::screen {

struct RowBlock::Header {
    Colour foreColour;
    std::uint16_t cells;
    std::uint16_t styles;
    std::uint8_t smallIcon;
    bool bold;
    bool checked;
    bool wide; // offsets of 32 bits
};

void RowDraft::clear()
{
    key.clear();
    cells.clear();
    ends.clear();
    toolTip.clear();
    styles.clear();
    foreColour = 0;
    smallIcon = 0;
    bold = false;
    checked = false;
}

void RowDraft::add(std::string_view cellText)
{
    cells += cellText;
    ends.push_back(static_cast<std::uint32_t>(cells.size()));
}

void RowDraft::replace(std::size_t index, std::string_view cellText)
{
    const std::string text(cellText); // it may be one of these cells
    const std::size_t begin = index == 0 ? 0 : ends[index - 1];
    const std::size_t before = ends[index] - begin;
    cells.replace(begin, before, text);
    for (std::size_t i = index; i < ends.size(); ++i)
        ends[i] = static_cast<std::uint32_t>(ends[i] + text.size() - before);
}

std::string_view RowDraft::cell(std::size_t index) const
{
    const std::size_t begin = index == 0 ? 0 : ends[index - 1];
    return std::string_view(cells).substr(begin, ends[index] - begin);
}

CellStyle& RowDraft::style(std::size_t cell)
{
    for (CellStyle& style : styles)
        if (style.cell == cell) return style;
    styles.push_back({static_cast<std::uint16_t>(cell), 0, false, 0});
    return styles.back();
}

namespace {

std::size_t textSizeOf(const RowDraft& draft)
{
    return draft.key.size() + draft.cells.size() + draft.toolTip.size();
}

bool isWide(const RowDraft& draft) { return textSizeOf(draft) > std::numeric_limits<std::uint16_t>::max(); }

// Writes where each segment ends, and gives the place behind.
template <class Offset>
char* writeOffsets(char* place, const RowDraft& draft, std::size_t textSize)
{
    const auto put = [&place](std::size_t end) {
        const auto offset = static_cast<Offset>(end);
        std::memcpy(place, &offset, sizeof(offset));
        place += sizeof(offset);
    };
    put(draft.key.size());
    for (const std::uint32_t end : draft.ends)
        put(draft.key.size() + end);
    put(textSize);
    return place;
}

template <class Offset>
std::size_t endAt(const char* ends, std::size_t index)
{
    Offset end = 0;
    std::memcpy(&end, ends + index * sizeof(end), sizeof(end));
    return end;
}

// The text lies behind the ends of all segments.
template <class Offset>
std::string_view segmentOf(const char* ends, std::size_t segments, std::size_t index)
{
    const std::size_t begin = index == 0 ? 0 : endAt<Offset>(ends, index - 1);
    return {ends + segments * sizeof(Offset) + begin, endAt<Offset>(ends, index) - begin};
}

} // namespace

std::size_t RowBlock::sizeOf(const RowDraft& draft)
{
    const std::size_t offsetSize = isWide(draft) ? sizeof(std::uint32_t) : sizeof(std::uint16_t);
    return sizeof(Header) + draft.styles.size() * sizeof(CellStyle) + (draft.ends.size() + 2) * offsetSize +
           textSizeOf(draft);
}

RowBlock::RowBlock(const RowDraft& draft, RowArena& arena) { write(draft, arena.allocate(sizeOf(draft))); }

void RowBlock::rewrite(const RowDraft& draft, RowArena& arena)
{
    const std::size_t needed = sizeOf(draft);
    write(draft, needed <= size() ? block_ : arena.allocate(needed));
}

void RowBlock::write(const RowDraft& draft, void* memory)
{
    const std::size_t textSize = textSizeOf(draft);
    const bool wide = isWide(draft);
    const std::size_t stylesSize = draft.styles.size() * sizeof(CellStyle);
    block_ = new (memory) Header{draft.foreColour,
                                 static_cast<std::uint16_t>(draft.ends.size()),
                                 static_cast<std::uint16_t>(draft.styles.size()),
                                 draft.smallIcon,
                                 draft.bold,
                                 draft.checked,
                                 wide};

    char* place = reinterpret_cast<char*>(block_ + 1);
    if (stylesSize > 0) std::memcpy(place, draft.styles.data(), stylesSize);
    place += stylesSize;
    place = wide ? writeOffsets<std::uint32_t>(place, draft, textSize)
                 : writeOffsets<std::uint16_t>(place, draft, textSize);
    for (const std::string* text : {&draft.key, &draft.cells, &draft.toolTip})
        place = std::copy(text->begin(), text->end(), place);
}

void RowBlock::copyTo(RowDraft& draft) const
{
    draft.clear();
    draft.key = key();
    for (std::size_t i = 0; i < cellCount(); ++i)
        draft.add(cell(i));
    draft.toolTip = toolTip();
    draft.styles.assign(styles(), styles() + block_->styles);
    draft.foreColour = block_->foreColour;
    draft.smallIcon = block_->smallIcon;
    draft.bold = block_->bold;
    draft.checked = block_->checked;
}

std::string_view RowBlock::cell(std::size_t index) const
{
    return index < block_->cells ? segment(index + 1) : std::string_view();
}

std::size_t RowBlock::cellCount() const { return block_->cells; }

const CellStyle* RowBlock::style(std::size_t cell) const
{
    for (const CellStyle* style = styles(); style != styles() + block_->styles; ++style)
        if (style->cell == cell) return style;
    return nullptr;
}

Colour RowBlock::foreColour() const { return block_->foreColour; }

bool RowBlock::bold() const { return block_->bold; }

bool RowBlock::checked() const { return block_->checked; }

void RowBlock::checked(bool value) { block_->checked = value; }

std::uint8_t RowBlock::smallIcon() const { return block_->smallIcon; }

void RowBlock::smallIcon(std::uint8_t icon) { block_->smallIcon = icon; }

std::size_t RowBlock::overhead() const
{
    const std::size_t offsetSize = block_->wide ? sizeof(std::uint32_t) : sizeof(std::uint16_t);
    return sizeof(Header) + block_->styles * sizeof(CellStyle) + (cellCount() + 2) * offsetSize;
}

std::size_t RowBlock::size() const { return overhead() + segmentEnd(cellCount() + 1); }

// Every cell that is painted, searched, sorted or exported is read here.
std::string_view RowBlock::segment(std::size_t index) const
{
    const char* const ends = offsets();
    const std::size_t segments = cellCount() + 2;
    return block_->wide ? segmentOf<std::uint32_t>(ends, segments, index)
                        : segmentOf<std::uint16_t>(ends, segments, index);
}

std::size_t RowBlock::segmentEnd(std::size_t index) const
{
    return block_->wide ? endAt<std::uint32_t>(offsets(), index) : endAt<std::uint16_t>(offsets(), index);
}

const CellStyle* RowBlock::styles() const { return reinterpret_cast<const CellStyle*>(block_ + 1); }

const char* RowBlock::offsets() const
{
    return reinterpret_cast<const char*>(block_ + 1) + block_->styles * sizeof(CellStyle);
}

} // namespace dn::screen
