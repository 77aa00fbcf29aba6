// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/support/fake_recordset.h"

#include "data/driver_support.h"

#include <algorithm>
#include <array>
#include <ostream>
#include <stdexcept>

namespace dn::tests {

using Kind = data::Value::Kind;

Cell whole(long long number) { return {Kind::whole, std::to_string(number)}; }

Cell number(std::string exact) { return {Kind::number, std::move(exact)}; }

Cell text(std::string utf8) { return {Kind::text, std::move(utf8)}; }

Cell date(std::string iso) { return {Kind::dateTime, std::move(iso)}; }

Cell boolean(bool value) { return {Kind::boolean, value ? "1" : "0"}; }

Cell failing(std::string error) { return {Kind::null, std::move(error), true}; }

void PrintTo(const Cell& cell, std::ostream* stream)
{
    static constexpr std::array kinds{"null", "boolean", "whole", "number", "text", "date"};
    *stream << kinds.at(static_cast<std::size_t>(cell.kind)) << "(" << cell.text.substr(0, 80) << ")";
    if (cell.text.size() > 80) *stream << " of " << cell.text.size() << " bytes";
}

FakeRecordset::FakeRecordset(Rows rows) : data::Recordset(rows.names), rows_(std::move(rows))
{
    for (const auto& row : rows_.rows)
        if (row.size() != names().size()) throw std::logic_error("a scripted row has not as many cells as names");
}

void FakeRecordset::MoveNext()
{
    if (Eof()) throw data::noRow();
    spoilRow();
    ++present_;
    if (rows_.moveFailsAt != present_) return;
    present_ = rows_.rows.size();
    throw data::Error(rows_.moveError);
}

void FakeRecordset::spoilRow()
{
    for (Cell& cell : rows_.rows[present_])
        std::fill(cell.text.begin(), cell.text.end(), '#');
}

data::Value FakeRecordset::value(std::size_t column) const
{
    if (Eof() || column >= names().size()) throw data::noRow();
    const Cell& cell = rows_.rows[present_][column];
    if (cell.failing) throw data::Error("HY000", 0, cell.text);
    if (cell.kind == Kind::null) return {};
    return {cell.kind, cell.text};
}

} // namespace dn::tests
