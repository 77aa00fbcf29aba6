// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "screen/combo_box.h"

#include "base/runtime_error.h"

namespace dn::screen {

void ComboBox::Text(std::string text)
{
    if (!editable_) throw RuntimeError("La propiedad 'Text' es de sólo lectura");
    if (text == text_) return;
    set(text_, std::move(text));
    Change.emit();
}

void ComboBox::edit(std::string text)
{
    if (usable() && editable_) Text(std::move(text));
}

} // namespace dn::screen
