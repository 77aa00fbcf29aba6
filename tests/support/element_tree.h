// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// Finds elements of a screen by their names, the way a script or a screen reader does.
#pragma once

#include "screen/element.h"
#include "screen/item_list.h"

#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace dn::tests {

/// The names of what lies directly in a container, from front to back.
std::vector<std::string> namesIn(const screen::Container& container);

/// What lies directly in a container, in the order of the key Tab: a label by its caption, all else by its name.
std::vector<std::string> inTabOrder(const screen::Container& container);

/// The texts of a list box or combo box, in the order shown.
std::vector<std::string> entriesOf(const screen::ItemList& list);

/// The first element of that name in a container, at any depth. @throws std::out_of_range when there is none.
screen::Element& elementNamed(screen::Container& container, std::string_view name);

/// The same as the kind that it must be. @throws std::bad_cast for an element of another kind.
template <class Kind>
Kind& elementNamed(screen::Container& container, std::string_view name)
{
    return dynamic_cast<Kind&>(elementNamed(container, name));
}

} // namespace dn::tests
