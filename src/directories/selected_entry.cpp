// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "directories/selected_entry.h"

#include "base/text.h"
#include "data/failure_modes.h"
#include "data/value.h"
#include "desk/row_key.h"

namespace dn::directories {

using data::resumeNext;

void ItemKeyPK(screen::ListView& list, std::int32_t& result) // continue-on-error
{
    result = 0;
    std::string key;
    resumeNext([&] { key = desk::selectedRow(list).Key(); });
    key = without(without(key, "PK"), "pk");
    resumeNext([&] { result = data::Value(data::Value::Kind::text, key).toInt32(); });
}

void ItemSubText(screen::ListView& list, std::int16_t index, std::string& result) // continue-on-error
{
    result.clear();
    resumeNext([&] { result = desk::selectedRow(list).ListSubItems()(index).Text(); });
}

} // namespace dn::directories
