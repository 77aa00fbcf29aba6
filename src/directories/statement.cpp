// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "directories/statement.h"

namespace dn::directories {

// The blanks around the table's name and the closing semicolon belong to the text.
std::string directoryStatement(const Kind& kind, bool mySql, std::int32_t agente)
{
    std::string text = "SELECT Sys_PK";
    for (const Field& field : kind.fields) {
        text += mySql ? ", IFNULL(" : ", ISNULL(";
        text.append(field.column).append(", '') AS ").append(field.name);
    }
    text.append("  FROM ").append(kind.table).append(" ");
    if (agente > 0) text += " WHERE IEjecutivo = " + std::to_string(agente);
    return text.append(" ORDER BY ").append(kind.order).append(";");
}

} // namespace dn::directories
