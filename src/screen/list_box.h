// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// A list of lines, with a check box on each line where it is asked for.
#pragma once

#include "base/export.h"
#include "screen/item_list.h"
#include "screen/visitor.h"

namespace dn::screen {

class DN_INTERNAL ListBox : public ItemList {
public:
    using ItemList::ItemList;

    void accept(ElementVisitor& visitor) override { visitor.visit(*this); }

    bool checkBoxes() const { return checkBoxes_; }

    void checkBoxes(bool boxes) { set(checkBoxes_, boxes); }

    /// Whether a line is marked; in a list without check boxes, whether it is the selected one.
    /// @throws RuntimeError for an index out of range.
    bool Selected(int index) const;
    /// Marks a line or takes its mark away; without check boxes the selection comes or goes.
    /// @throws RuntimeError for an index out of range.
    void Selected(int index, bool selected);

    /// The operator clicks the check box of a line.
    void toggle(int index);
    /// The operator double-clicks a line: it becomes the selected one, then the event comes.
    void doubleClick(int index);
    /// The operator double-clicks below the last line.
    void doubleClickEmpty();

    Signal<> DblClick;

private:
    bool checkBoxes_ = false;
};

} // namespace dn::screen
