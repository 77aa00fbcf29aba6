// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/fuzz/targets.h"

#include <stdexcept>

namespace dn::fuzz {

const std::vector<Target>& targets()
{
    static const std::vector<Target> all{{"addresses", addresses},   {"bodies", bodies},
                                         {"copies", copies},         {"dates", dates},
                                         {"documents", documents},   {"formats", formats},
                                         {"headers", headers},       {"literals", literals},
                                         {"mails", mails},           {"mariadb", mariadbTexts},
                                         {"notes", notes},           {"odbc", odbcTexts},
                                         {"order", order},           {"parameters", parameters},
                                         {"prospects", prospects},   {"rows", rows},
                                         {"statements", statements}, {"texts", texts},
                                         {"values", values},         {"workbooks", workbooks}};
    return all;
}

void require(bool holds, const char* property)
{
    if (!holds) throw std::logic_error(property);
}

} // namespace dn::fuzz
