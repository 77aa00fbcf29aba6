// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/support/element_tree.h"

#include "screen/label.h"

#include <algorithm>

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

std::vector<std::string> inTabOrder(const screen::Container& container)
{
    std::vector<screen::Element*> order(container.children());
    std::stable_sort(order.begin(), order.end(), [](const screen::Element* left, const screen::Element* right) {
        return left->TabIndex() < right->TabIndex();
    });
    std::vector<std::string> seen;
    for (const screen::Element* element : order) {
        const auto* const label = dynamic_cast<const screen::Label*>(element);
        seen.push_back(label != nullptr ? label->Caption() : element->name());
    }
    return seen;
}

std::vector<std::string> entriesOf(const screen::ItemList& list)
{
    std::vector<std::string> texts;
    for (int i = 0; i < list.ListCount(); ++i)
        texts.push_back(list.List(i));
    return texts;
}

screen::Element& elementNamed(screen::Container& container, std::string_view name)
{
    screen::Element* const found = find(container, name);
    if (found == nullptr) throw std::out_of_range("no element " + std::string(name));
    return *found;
}

} // namespace dn::tests
