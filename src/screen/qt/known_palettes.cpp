// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "screen/qt/known_palettes.h"

#include <algorithm>

namespace dn::screen::qt {

QPalette KnownPalettes::of(const QPalette& colours)
{
    const auto found = std::find(known_.begin(), known_.end(), colours);
    if (found != known_.end()) return *found;
    if (known_.size() >= most) known_.clear();
    return known_.emplace_back(colours);
}

} // namespace dn::screen::qt
