// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// Rows that a test gives to the control as if a database had.
#pragma once

#include "data/error.h"
#include "data/recordset.h"

#include <cstddef>
#include <iosfwd>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace dn::tests {

struct Cell {
    data::Value::Kind kind = data::Value::Kind::null;
    std::string text;
    bool failing = false; ///< reading it throws data::Error with `text`

    bool operator==(const Cell&) const = default;
};

inline const Cell null{};
Cell whole(long long number);
Cell number(std::string exact); ///< "1.50"
Cell text(std::string utf8);
Cell date(std::string iso); ///< "2026-01-02", "2026-01-02 03:04:05" or "03:04:05"
Cell boolean(bool value);
Cell failing(std::string error); ///< a cell that cannot be read

struct Rows {
    std::vector<std::string> names;
    std::vector<std::vector<Cell>> rows;
    /// The MoveNext that would go to this row (counted from 0; no MoveNext goes to the first) throws `moveError`.
    std::optional<std::size_t> moveFailsAt{};
    data::Error moveError{"HY000", 2013, "Lost connection to server during query"};
};

/// Shows a cell in the message of a failed test.
void PrintTo(const Cell& cell, std::ostream* stream);

/// A recordset over rows of its own, which keeps to the contract of the drivers. A row that was passed is spoilt,
/// so that a test sees a value that is held too long.
class FakeRecordset final : public data::Recordset {
public:
    explicit FakeRecordset(Rows rows);

    bool Eof() const override { return present_ >= rows_.rows.size(); }
    bool Bof() const override { return rows_.rows.empty(); }
    void MoveNext() override;
    data::Value value(std::size_t column) const override;

private:
    void spoilRow();

    Rows rows_;
    std::size_t present_ = 0;
};

} // namespace dn::tests
