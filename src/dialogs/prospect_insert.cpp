// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "dialogs/prospect_insert.h"

#include "base/text.h"

namespace dn::dialogs {
namespace {

// The "@" in quotes is a text of its own and no marker.
constexpr std::string_view head =
    "INSERT INTO ut_icontact (Sys_TimeStamp, Sys_GUID, Sys_DTCreated, Sys_User, Sys_LastUser, Sys_Exported , "
    "Sys_DTExported , Sys_Info,uf_Nombre,uf_EMail,uf_Telefono,uf_Empresa,uf_Puesto, "
    "uf_Pais,uf_Estado,uf_Ciudad,uf_Interes,uf_Comentarios,uf_fecha,uf_iejecutivo,uf_status,uf_tipo,uf_color,"
    "uf_redirect) VALUES ";

constexpr std::string_view mySqlValues =
    "(NOW(), REPLACE(UUID(),'-',''), NOW(), '@', '@', 0, NOW(), '@', @uf_Nombre, @uf_EMail, @uf_Telefono, "
    "@uf_Empresa, @uf_Puesto, @uf_Pais, @uf_Estado, @uf_Ciudad, @uf_Interes, @uf_Comentarios, DATE(NOW())";

constexpr std::string_view sqlServerValues =
    "(GETDATE(), REPLACE(NEWID(),'-',''), GETDATE(), '@', '@', 0, GETDATE(), '@', @uf_Nombre, @uf_EMail, "
    "@uf_Telefono, @uf_Empresa, @uf_Puesto, @uf_Pais, @uf_Estado, @uf_Ciudad, @uf_Interes, @uf_Comentarios, "
    "CAST(GETDATE() AS DATE)";

constexpr std::string_view tail = ", @uf_iejecutivo, @uf_status, @uf_tipo, @uf_color, @uf_redirect)";

// What was put in is not searched again within one call.
void replaceAll(std::string& text, std::string_view part, std::string_view by)
{
    std::string result;
    std::size_t begin = 0;
    for (std::size_t found = text.find(part); found != std::string::npos; found = text.find(part, begin)) {
        result.append(text, begin, found - begin).append(by);
        begin = found + part.size();
    }
    text = result.append(text, begin);
}

std::string quoted(std::string text)
{
    replaceAll(text, crlf, "\\r\\n");
    replaceAll(text, "'", "");
    return "'" + text + "'";
}

} // namespace

std::string prospectInsert(bool mySql)
{
    std::string statement(head);
    return statement.append(mySql ? mySqlValues : sqlServerValues).append(tail);
}

void SetParam(std::string& statement, std::string_view column, const ParamValue& value, bool null)
{
    std::string replacement = "NULL";
    if (const auto* text = std::get_if<std::string>(&value))
        replacement = quoted(*text);
    else if (!null)
        replacement = std::to_string(std::get<std::int32_t>(value));
    replaceAll(statement, "@" + std::string(column), replacement);
}

std::string learningCall(bool mySql, std::string_view procedure, std::string_view text)
{
    std::string statement(mySql ? "CALL " : "EXEC ");
    statement.append(procedure).append(mySql ? " ('" : " '").append(text);
    return statement.append(mySql ? "');" : "';");
}

} // namespace dn::dialogs
