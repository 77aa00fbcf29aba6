// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "data/recordset.h"

#include "base/text.h"
#include "data/error.h"

namespace dn::data {

const std::string& Field::Name() const { return owner_->names()[column_]; }

Value Field::Value() const { return owner_->value(column_); }

std::size_t Fields::Count() const { return owner_->names().size(); }

Field Fields::operator()(std::size_t column) const
{
    if (column >= Count()) throw Error("07009", 0, "No existe la columna " + std::to_string(column));
    return Field(*owner_, column);
}

Field Fields::operator()(std::string_view name) const
{
    if (const auto column = find(name)) return Field(*owner_, *column);
    throw Error("42S22", 0, "No existe la columna " + std::string(name));
}

std::optional<std::size_t> Fields::find(std::string_view name) const
{
    const auto& names = owner_->names();
    for (std::size_t i = 0; i < names.size(); ++i)
        if (equalsNoCase(names[i], name)) return i;
    return std::nullopt;
}

} // namespace dn::data
