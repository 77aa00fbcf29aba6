// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// A row of one of the host's tables, as its forms read it and write it back. Two operators may have the same row
// open: a column that only one of them changed takes that change; where both did, nothing is written until the
// second one has seen what the first one wrote.
#pragma once

#include "host/database/host_error.h"
#include "host/database/own_connection.h"

#include <cstdint>
#include <string>
#include <vector>

namespace dn::host {

enum class ColumnType : std::uint8_t { text, number, amount, moment };

/// The values of a row, column by column: an empty text for a null, numbers and amounts in digits, moments as
/// "yyyy-mm-dd hh:nn:ss".
using Values = std::vector<std::string>;

/// How a table's rows are reached. Each statement names the columns in the same order.
struct RecordKind {
    std::vector<ColumnType> columns;
    SqlText select; ///< of the row with a key
    SqlText hold;   ///< changes nothing, but keeps others from the row until the transaction ends
    SqlText insert; ///< parameters: the columns, then a new identifier where `identified`
    SqlText update; ///< parameters: the columns, then the key
    bool identified = true;
};

/// The row is not there any more.
class RowGone : public HostError {
public:
    RowGone() : HostError("Este registro ya no existe. Otra persona pudo haberlo borrado.") {}
};

/// A column that another operator changed as well, and what it holds now.
struct Clash {
    std::size_t column = 0;
    std::string theirs;
};

// All of these throw data::Error with what the server said. Those that write stand in a transaction of the caller.

/// @throws RowGone
Values readRecord(OwnConnection& database, const RecordKind& kind, std::int32_t key);

/// The columns of the present row of a recordset, from one on.
Values valuesOf(const data::Recordset& row, const RecordKind& kind, std::size_t first = 0);

/// @return its key.
std::int32_t insertRecord(OwnConnection& database, const RecordKind& kind, const Values& values);

/// Writes the columns in which `mine` differs from `base`, which is what the operator was shown.
/// @return the columns in which the row now differs from both; nothing is written while there is one.
/// @throws RowGone
std::vector<Clash> updateRecord(OwnConnection& database, const RecordKind& kind, std::int32_t key,
                                const Values& base, const Values& mine);

/// A new global identifier, 32 hexadecimal digits.
std::string newGuid();

} // namespace dn::host
