// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The entries of combo and list boxes: a text each, with a number beside it.
#pragma once

#include "base/export.h"
#include "screen/element.h"

#include <cstdint>

namespace dn::screen {

class DN_INTERNAL ItemList : public Element {
public:
    using Element::Element;

    /// Adds an entry at the end, with item data 0.
    void AddItem(std::string text);
    /// Takes all entries away. The index is -1 afterwards; nothing is raised.
    void Clear();

    int ListCount() const { return static_cast<int>(entries_.size()); }

    /// @throws RuntimeError for an index out of range, as all that take an index.
    const std::string& List(int index) const { return entry(index).text; }

    std::int32_t ItemData(int index) const { return entry(index).data; }

    void ItemData(int index, std::int32_t data) { entry(index).data = data; }

    /// The index of the entry added last, -1 when there is none.
    int NewIndex() const { return newIndex_; }

    int ListIndex() const { return index_; }

    /// Selects an entry, -1 for none. Raises the click when the index changes.
    void ListIndex(int index);

    /// The item data of the selected entry. @throws RuntimeError when none is selected.
    std::int32_t selectedData() const { return ItemData(index_); }

    /// The operator picks an entry; raises the click even when it was selected already.
    void pick(int index);
    /// The operator picks the first entry of that text; nothing happens when there is none.
    void pick(std::string_view text);

    Signal<> Click;
    /// The entries themselves changed; `changed` tells of the selection.
    Signal<> entriesChanged;

protected:
    struct Entry {
        std::string text;
        std::int32_t data = 0;
        bool selected = false; // the mark of a list with check boxes
    };

    Entry& entry(int index);
    const Entry& entry(int index) const;

    /// Called after the selection moved and before the click.
    virtual void selectionMoved() {}

private:
    void select(int index);

    std::vector<Entry> entries_;
    int index_ = -1;
    int newIndex_ = -1;
};

} // namespace dn::screen
