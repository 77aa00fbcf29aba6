// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/fuzz/targets.h"

#include <stdexcept>

namespace dn::fuzz {

const std::vector<Target>& targets()
{
    static const std::vector<Target> all{{"addresses", addresses},
                                         {"amounts", amounts},
                                         {"binds", binds},
                                         {"bodies", bodies},
                                         {"calls", calls},
                                         {"copies", copies},
                                         {"corrections", corrections},
                                         {"dates", dates},
                                         {"directories", directories},
                                         {"documents", documents},
                                         {"formats", formats},
                                         {"headers", headers},
                                         {"literals", literals},
                                         {"mails", mails},
                                         {"mariadb", mariadbTexts},
                                         {"notes", notes},
                                         {"odbc", odbcTexts},
                                         {"options", options},
                                         {"order", order},
                                         {"parameters", parameters},
                                         {"patterns", patterns},
                                         {"projects", projects},
                                         {"prospects", prospects},
                                         {"queue", queue},
                                         {"reasons", reasons},
                                         {"replies", replies},
                                         {"rows", rows},
                                         {"searches", searches},
                                         {"settings", settings},
                                         {"starts", starts},
                                         {"statements", statements},
                                         {"telephones", telephones},
                                         {"templates", templates},
                                         {"texts", texts},
                                         {"timelines", timelines},
                                         {"values", values},
                                         {"workbooks", workbooks}};
    return all;
}

void require(bool holds, const char* property)
{
    if (!holds) throw std::logic_error(property);
}

} // namespace dn::fuzz
