// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "screen/list_box.h"

namespace dn::screen {

bool ListBox::Selected(int index) const
{
    const Entry& line = entry(index);
    return checkBoxes_ ? line.selected : index == ListIndex();
}

void ListBox::Selected(int index, bool selected)
{
    Entry& line = entry(index);
    if (checkBoxes_) {
        line.selected = selected;
        entriesChanged.emit();
    } else if (selected != (index == ListIndex())) {
        ListIndex(selected ? index : -1);
    }
}

void ListBox::toggle(int index)
{
    if (usable() && checkBoxes_) Selected(index, !Selected(index));
}

void ListBox::doubleClick(int index)
{
    if (!usable()) return;
    pick(index);
    DblClick.emit();
}

void ListBox::doubleClickEmpty()
{
    if (usable()) DblClick.emit();
}

} // namespace dn::screen
