// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "screen/panels.h"

namespace dn::screen {

void UserControl::resize(Twips width, Twips height)
{
    Width(width);
    Height(height);
    dock();
    Resize.emit();
}

} // namespace dn::screen
