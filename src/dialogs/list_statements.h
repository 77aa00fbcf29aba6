// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The statements of the mail lists.
#pragma once

#include <cstdint>
#include <string>

namespace dn::dialogs {

/// What the operator chose for both lists. A key of 0 or less stands for no filter.
struct ListFilter {
    static constexpr std::int32_t anyColour = 99; ///< 0 is a colour

    /// A filter by key; with `except` it shuts that key out.
    struct Choice {
        std::int32_t key = 0;
        bool except = false;
    };

    std::int32_t ejecutivo = 0; ///< of both lists
    Choice status{};            ///< of the prospects; all others of the projects
    Choice meta{};
    Choice color{anyColour};
    Choice estado{};
    bool exceptCerrados = false;
    bool exceptPerdidos = false;
};

/// The prospects with their addresses.
std::string prospectListStatement(const ListFilter& filter);

/// The projects with the addresses of organisation and contact. SQL Server refuses its form of the contact's name,
/// which closes one parenthesis more than it opens.
std::string projectListStatement(const ListFilter& filter, bool isMySql);

} // namespace dn::dialogs
