// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "screen/button.h"

#include "base/runtime_error.h"

namespace dn::screen {

void OptionButton::Value(bool value)
{
    if (value == value_) return;
    if (value && parent() != nullptr) {
        for (Element* sibling : parent()->children())
            if (auto* option = dynamic_cast<OptionButton*>(sibling); option != nullptr && option != this)
                option->set(option->value_, false);
    }
    set(value_, value);
    if (value) Click.emit();
}

void CheckBox::Value(int value)
{
    if (value != 0 && value != 1) throw RuntimeError("Valor de propiedad no válido");
    if (value == value_) return;
    set(value_, value);
    Click.emit();
}

} // namespace dn::screen
