// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "screen/qt/known_palettes.h"

#include <algorithm>

namespace dn::screen::qt {

QPalette KnownPalettes::of(const QPalette& colours)
{
    auto found = std::find(known_.begin(), known_.end(), colours);
    if (found == known_.end()) {
        if (known_.size() >= most) known_.clear();
        found = known_.insert(known_.end(), colours);
    }
    QPalette result = *found;
    result.setCurrentColorGroup(colours.currentColorGroup());
    return result;
}

} // namespace dn::screen::qt
