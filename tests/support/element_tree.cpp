// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/support/element_tree.h"

namespace dn::tests {
namespace {

screen::Element* find(screen::Container& container, std::string_view name)
{
    for (screen::Element* child : container.children()) {
        if (child->name() == name) return child;
        auto* const inner = dynamic_cast<screen::Container*>(child);
        if (inner == nullptr) continue;
        if (screen::Element* const found = find(*inner, name); found != nullptr) return found;
    }
    return nullptr;
}

} // namespace

std::vector<std::string> namesIn(const screen::Container& container)
{
    std::vector<std::string> names;
    for (const screen::Element* child : container.children())
        names.push_back(child->name());
    return names;
}

screen::Element& elementNamed(screen::Container& container, std::string_view name)
{
    screen::Element* const found = find(container, name);
    if (found == nullptr) throw std::out_of_range("no element " + std::string(name));
    return *found;
}

} // namespace dn::tests
