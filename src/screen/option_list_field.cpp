// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "screen/option_list_field.h"

#include <algorithm>
#include <utility>

namespace dn::screen {

eOptionLstField::eOptionLstField(Container* parent, const std::string& name)
    : PicturePanel(parent, name), title_(this, name + ".caption"), list_(this, name + ".InnerList")
{
    resized_ = changed.connect([this] { arrange(); });
}

void eOptionLstField::titleWidth(Twips width)
{
    set(titleWidth_, width);
    arrange();
}

void eOptionLstField::AddOption(std::int32_t key, std::string text)
{
    list_.AddItem(std::move(text));
    list_.ItemData(list_.NewIndex(), key);
}

// Both parts take the place of the whole in the order of the key Tab; the caption stands ahead, at the left.
void eOptionLstField::arrange()
{
    constexpr Twips lineHeight = 255;
    const Twips title = std::min(titleWidth_, Width());
    title_.Move(0, std::max(0, (Height() - lineHeight) / 2), title, std::min(lineHeight, Height()));
    list_.Move(title, 0, Width() - title, Height());
    title_.TabIndex(TabIndex());
    list_.TabIndex(TabIndex());
}

} // namespace dn::screen
