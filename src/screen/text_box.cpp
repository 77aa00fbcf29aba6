// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "screen/text_box.h"

#include "base/text.h"

namespace dn::screen {

void TextBox::Text(std::string text)
{
    if (text == text_) return;
    set(text_, std::move(text));
    Change.emit();
}

void TextBox::edit(std::string text)
{
    if (usable() && !locked_) Text(std::move(text));
}

int TextBox::pressKey(int keyAscii)
{
    if (!usable()) return 0;
    KeyPress.emit(keyAscii);
    return keyAscii;
}

void TextBox::type(std::string_view text)
{
    while (!text.empty()) {
        const char32_t character = takeCharacter(text);
        const int code = pressKey(character == U'\n' ? keyEnter : static_cast<int>(character));
        if (code == 0 || locked_) continue;
        std::string longer = text_;
        if (code != keyEnter)
            appendCharacter(longer, static_cast<char32_t>(code));
        else if (multiLine_)
            longer += crlf;
        Text(std::move(longer));
    }
}

} // namespace dn::screen
