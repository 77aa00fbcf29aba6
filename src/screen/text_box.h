// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// A text that the operator reads, types or both. Line ends in it are a carriage return and a line feed.
#pragma once

#include "base/export.h"
#include "screen/element.h"
#include "screen/visitor.h"

#include <string_view>

namespace dn::screen {

class DN_INTERNAL TextBox : public Element {
public:
    /// The code of Enter in `KeyPress`.
    static constexpr int keyEnter = 13;

    using Element::Element;

    void accept(ElementVisitor& visitor) override { visitor.visit(*this); }

    const std::string& Text() const { return text_; }

    /// Raises `Change` when the text becomes another.
    void Text(std::string text);

    bool MultiLine() const { return multiLine_; }

    void MultiLine(bool multiLine) { set(multiLine_, multiLine); }

    /// Whether a multi-line box shows a bar to scroll by; without one it follows the cursor.
    bool ScrollBars() const { return scrollBars_; }

    void ScrollBars(bool scrollBars) { set(scrollBars_, scrollBars); }

    bool Locked() const { return locked_; } ///< read only

    void Locked(bool locked) { set(locked_, locked); }

    /// The operator's editing leaves this text in the box: typed, pasted, cut or deleted. Refused while
    /// locked.
    void edit(std::string text);

    /// The operator presses a key that makes a character. Listeners may change the code; 0 cancels the key.
    /// @return the code that is left, 0 also when the box takes no input.
    int pressKey(int keyAscii);

    /// Types a text at the end, key by key, the way an operator does; a line feed is the key Enter.
    void type(std::string_view text);

    Signal<> Change;
    Signal<int&> KeyPress;

private:
    std::string text_;
    bool multiLine_ = false;
    bool scrollBars_ = true;
    bool locked_ = false;
};

} // namespace dn::screen
