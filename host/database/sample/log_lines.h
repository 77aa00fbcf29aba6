// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The activity log in the sample data, its messages worded as the control words them.
#pragma once

#include "base/date_time.h"
#include "host/database/bulk_insert.h"
#include "host/database/sample/world.h"

#include <string>
#include <string_view>

namespace dn::host::sample {

class LogLines {
public:
    explicit LogLines(World& world);

    void aboutProspect(int key, const DateTime& time, std::string_view message, int agent);
    void aboutProject(int key, const DateTime& time, std::string_view message, int agent);
    void finish() { rows_.finish(); }

private:
    BulkInsert& begin(const DateTime& time, std::string_view message, int agent);

    BulkInsert rows_;
};

std::string reachedMessage(Dice& dice, std::string_view telephone);
/// @param result a code of uf_res_ultimointento below 50.
std::string notReachedMessage(std::string_view telephone, int result);
/// A code of uf_res_ultimointento below 50.
int failedResult(Dice& dice);

} // namespace dn::host::sample
