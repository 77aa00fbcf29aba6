// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The statements that write a line of the activity log, as the user "ana" sends them.
#pragma once

#include <string>

namespace dn::tests {

inline std::string prospectNote(const std::string& message, const std::string& key)
{
    return "INSERT INTO xt_biticontact (uf_Tiempo, uf_Mensaje, uf_Usuario, uf_Iicontact) VALUES "
           "(CURRENT_TIMESTAMP, '" +
           message + "','ana'," + key + ")";
}

inline std::string projectNote(const std::string& message, const std::string& key)
{
    return "INSERT INTO xt_biticontact (uf_Tiempo, uf_Mensaje, uf_Usuario, uf_Iicontact, uf_IProy) VALUES "
           "(CURRENT_TIMESTAMP, '" +
           message + "','ana',0," + key + ")";
}

} // namespace dn::tests
