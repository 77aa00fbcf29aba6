// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The rows that a statement gives: a forward pass, one row at a time.
#pragma once

#include "base/export.h"
#include "data/value.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace dn::data {

class Recordset;

/// A column of a recordset, with its value in the present row.
class DN_EXPORT Field {
public:
    /// @param owner lives longer. @param column counted from 0.
    Field(const Recordset& owner, std::size_t column) : owner_(&owner), column_(column) {}

    const std::string& Name() const; ///< as the server wrote it
    /// Good until the recordset moves on. @throws Error when the recordset stands behind its last row.
    data::Value Value() const;

private:
    const Recordset* owner_;
    std::size_t column_;
};

/// The columns of a recordset, in the order of the statement.
class DN_EXPORT Fields {
public:
    /// @param owner lives longer.
    explicit Fields(const Recordset& owner) : owner_(&owner) {}

    std::size_t Count() const; ///< also of a result without rows
    /// @param column counted from 0. @throws Error when there is none.
    Field operator()(std::size_t column) const;
    /// The first column of that name, without regard to case. @throws Error when there is none.
    Field operator()(std::string_view name) const;
    /// The position of the first column of that name, without regard to case; nothing when there is none. A loader
    /// asks once ahead of its loop.
    std::optional<std::size_t> find(std::string_view name) const;

private:
    const Recordset* owner_;
};

/// Derived from by each driver, which says how the rows come.
class DN_EXPORT Recordset {
public:
    Recordset(const Recordset&) = delete;
    Recordset& operator=(const Recordset&) = delete;
    virtual ~Recordset() = default;

    /// No row is left: the recordset stands behind the last one. (`EOF` is a macro of the C library.)
    virtual bool Eof() const = 0;
    /// The recordset has no row at all, and so stands ahead of the first one. Together with `Eof` it tells an
    /// empty result from one that was read to its end.
    virtual bool Bof() const = 0;
    /// Goes to the next row. @throws Error behind the last row, and when the server fails in the middle; after a
    /// failure `Eof` is true, so that a loop that passes over failures ends.
    virtual void MoveNext() = 0;

    data::Fields Fields() const { return data::Fields(*this); } ///< good as long as the recordset

    /// The names of the columns, in the order of the statement.
    const std::vector<std::string>& names() const { return names_; }
    /// The value of a column in the present row. @throws Error behind the last row, or for no such column.
    virtual Value value(std::size_t column) const = 0;

protected:
    Recordset() = default;
    /// @param names of the columns.
    explicit Recordset(std::vector<std::string> names) : names_(std::move(names)) {}
    /// For a driver that learns the names later than at the start.
    void setNames(std::vector<std::string> names) { names_ = std::move(names); }

private:
    std::vector<std::string> names_;
};

} // namespace dn::data
