// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "screen/item_list.h"

#include "base/runtime_error.h"

namespace dn::screen {

void ItemList::AddItem(std::string text)
{
    entries_.push_back({std::move(text), 0, false});
    newIndex_ = ListCount() - 1;
    entriesChanged.emit();
}

void ItemList::Clear()
{
    entries_.clear();
    newIndex_ = -1;
    index_ = -1;
    selectionMoved();
    entriesChanged.emit();
}

void ItemList::ListIndex(int index)
{
    if (index != -1) entry(index);
    if (index == index_) return;
    select(index);
    Click.emit();
}

void ItemList::pick(int index)
{
    if (!usable()) return;
    entry(index);
    select(index);
    Click.emit();
}

void ItemList::pick(std::string_view text)
{
    for (int i = 0; i < ListCount(); ++i) {
        if (List(i) != text) continue;
        pick(i);
        return;
    }
}

ItemList::Entry& ItemList::entry(int index)
{
    return const_cast<Entry&>(static_cast<const ItemList*>(this)->entry(index));
}

const ItemList::Entry& ItemList::entry(int index) const
{
    if (index < 0 || index >= ListCount()) throw RuntimeError("No hay ningún elemento seleccionado en la lista.");
    return entries_[static_cast<std::size_t>(index)];
}

void ItemList::select(int index)
{
    set(index_, index);
    selectionMoved();
}

} // namespace dn::screen
