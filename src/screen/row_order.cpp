// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "screen/row_order.h"

#include "base/collation.h"

#include <algorithm>
#include <array>
#include <utility>

namespace dn::screen {
namespace {

constexpr std::size_t partBytes = 8;

} // namespace

RowOrder::RowOrder(std::size_t rows)
{
    constexpr std::size_t likelyKey = 24;
    rows_.reserve(rows);
    ends_.reserve(rows);
    keys_.reserve(rows * likelyKey);
}

void RowOrder::add(RowNumber row, std::string_view text)
{
    appendCollationKey(keys_, text);
    keys_.resize((keys_.size() + partBytes - 1) / partBytes * partBytes);
    rows_.push_back(row);
    ends_.push_back(static_cast<std::uint32_t>(keys_.size() / partBytes));
}

std::vector<RowOrder::RowNumber> RowOrder::sorted(bool descending)
{
    entries_.resize(rows_.size());
    for (std::uint32_t place = 0; place < entries_.size(); ++place)
        entries_[place] = {0, place == 0 ? 0 : ends_[place - 1], place};
    spare_.resize(entries_.size());
    std::vector<Run> open{{0, entries_.size()}};
    while (!open.empty()) {
        const Run run = open.back();
        open.pop_back();
        for (std::size_t i = run.begin; i < run.end; ++i)
            takePart(entries_[i], descending);
        sort(run);
        openRuns(run, open);
    }
    std::vector<RowNumber> order;
    order.reserve(rows_.size());
    for (const Entry& entry : entries_)
        order.push_back(rows_[entry.place]);
    return order;
}

// A key that has ended goes on with zeros, which stand ahead of whatever another key goes on with.
void RowOrder::takePart(Entry& entry, bool descending) const
{
    entry.part = 0;
    if (entry.next < ends_[entry.place]) {
        const char* const bytes = keys_.data() + entry.next * partBytes;
        for (std::size_t i = 0; i < partBytes; ++i)
            entry.part = entry.part << 8U | static_cast<unsigned char>(bytes[i]);
        ++entry.next;
    }
    if (descending) entry.part = ~entry.part;
}

// Stable. Long runs go byte by byte, the last one first: a hundred thousand rows are too many to be compared.
void RowOrder::sort(Run run)
{
    constexpr std::size_t few = 256;
    const auto at = [](auto& entries, std::size_t place) {
        return entries.begin() + static_cast<std::ptrdiff_t>(place);
    };
    if (run.end - run.begin < few) {
        std::stable_sort(at(entries_, run.begin), at(entries_, run.end),
                         [](const Entry& left, const Entry& right) { return left.part < right.part; });
        return;
    }
    for (unsigned shift = 0; shift < 64; shift += 8) {
        const auto byteOf = [shift](const Entry& entry) { return entry.part >> shift & 0xFFU; };
        std::array<std::size_t, 256> places{};
        for (std::size_t i = run.begin; i < run.end; ++i)
            ++places[byteOf(entries_[i])];
        if (places[byteOf(entries_[run.begin])] == run.end - run.begin) continue; // all alike
        std::size_t place = run.begin;
        for (std::size_t& count : places)
            place += std::exchange(count, place);
        for (std::size_t i = run.begin; i < run.end; ++i)
            spare_[places[byteOf(entries_[i])]++] = entries_[i];
        std::copy(at(spare_, run.begin), at(spare_, run.end), at(entries_, run.begin));
    }
}

// Rows whose parts were alike are sorted by the next one, while some key among them has one.
void RowOrder::openRuns(Run sorted, std::vector<Run>& open) const
{
    for (std::size_t begin = sorted.begin; begin < sorted.end;) {
        bool goesOn = false;
        std::size_t end = begin;
        for (; end < sorted.end && entries_[end].part == entries_[begin].part; ++end)
            goesOn = goesOn || entries_[end].next < ends_[entries_[end].place];
        if (goesOn && end - begin > 1) open.push_back({begin, end});
        begin = end;
    }
}

} // namespace dn::screen
