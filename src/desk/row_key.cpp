// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "desk/row_key.h"

#include "base/runtime_error.h"
#include "data/value.h"

namespace dn::desk {

screen::ListItem selectedRow(screen::ListView& list)
{
    if (auto selected = list.SelectedItem()) return *selected;
    throw RuntimeError("No hay ningún elemento seleccionado en la lista.");
}

std::string keyDigits(const screen::ListItem& row)
{
    const std::string_view key = row.Key();
    return std::string(key.empty() ? key : key.substr(1));
}

std::int32_t keyNumber(const screen::ListItem& row)
{
    const std::string digits = keyDigits(row);
    return data::Value(data::Value::Kind::text, digits).toInt32();
}

} // namespace dn::desk
