// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "screen/panels.h"

#include <algorithm>

namespace dn::screen {

void UserControl::resize(Twips width, Twips height)
{
    Width(width);
    Height(height);
    dock();
    Resize.emit();
}

void Form::makeResizable()
{
    minWidth_ = Width();
    minHeight_ = Height();
    set(resizable_, true);
}

void Form::resize(Twips width, Twips height)
{
    if (!resizable_ || !usable()) return;
    width = std::max(width, minWidth_);
    height = std::max(height, minHeight_);
    if (width == Width() && height == Height()) return;
    Width(width);
    Height(height);
    Resize.emit();
}

} // namespace dn::screen
