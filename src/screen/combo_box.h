// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// A box that drops down a list: of fixed entries, or of proposals for a text that the operator types.
#pragma once

#include "base/export.h"
#include "screen/item_list.h"
#include "screen/visitor.h"

namespace dn::screen {

class DN_INTERNAL ComboBox : public ItemList {
public:
    using ItemList::ItemList;

    void accept(ElementVisitor& visitor) override { visitor.visit(*this); }

    /// Whether the operator may type a text of his own.
    bool editable() const { return editable_; }

    void editable(bool editable) { set(editable_, editable); }

    /// Whether a pick reads lists anew, which may take a while: the pointer shows it. Not for one that asks
    /// something.
    bool readsAnew() const { return readsAnew_; }

    void readsAnew(bool reads) { set(readsAnew_, reads); }

    /// The text of the selected entry, or what was typed. Empty when nothing is selected.
    const std::string& Text() const { return text_; }

    /// For an editable combo: the text, without moving the selection.
    /// @throws RuntimeError for a list that cannot be typed into.
    void Text(std::string text);

    /// The operator's editing leaves this text in the box.
    void edit(std::string text);

    Signal<> Change;

protected:
    void selectionMoved() override { set(text_, ListIndex() >= 0 ? List(ListIndex()) : std::string()); }

private:
    std::string text_;
    bool editable_ = false;
    bool readsAnew_ = false;
};

} // namespace dn::screen
