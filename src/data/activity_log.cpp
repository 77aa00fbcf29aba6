// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "data/activity_log.h"

#include <initializer_list>

namespace dn::data::bitacora {
namespace {

constexpr std::string_view intoProspect =
    "INSERT INTO xt_biticontact (uf_Tiempo, uf_Mensaje, uf_Usuario, uf_Iicontact) "
    "VALUES (CURRENT_TIMESTAMP, '";
constexpr std::string_view intoProject =
    "INSERT INTO xt_biticontact (uf_Tiempo, uf_Mensaje, uf_Usuario, uf_Iicontact, "
    "uf_IProy) VALUES (CURRENT_TIMESTAMP, '";

std::string joined(std::initializer_list<std::string_view> pieces)
{
    std::string text;
    for (const std::string_view piece : pieces)
        text += piece;
    return text;
}

} // namespace

std::string prospectRow(std::string_view message, std::string_view usuario, std::string_view key)
{
    return joined({intoProspect, message, "','", usuario, "',", key, ")"});
}

std::string projectRow(std::string_view message, std::string_view usuario, std::string_view key)
{
    return joined({intoProject, message, "','", usuario, "',0,", key, ")"});
}

std::string prospectRows(std::string_view key)
{
    return joined({"SELECT * FROM xt_biticontact WHERE uf_Iicontact = ", key, " ORDER BY uf_Tiempo"});
}

std::string projectRows(std::string_view key)
{
    return joined({"SELECT * FROM xt_biticontact WHERE uf_IProy = ", key, " ORDER BY uf_Tiempo"});
}

} // namespace dn::data::bitacora
