// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// Palettes by their colours. The toolkit gives the palette of each widget a key of its own, and its plain style
// keeps what it draws of headers and combo boxes under a name with that key in it. Pictures go when there are too
// many of them; of their names some versions of the toolkit (6.4) never forget one, so that each window that comes
// and goes would leave its own behind.
#pragma once

#include <QPalette>

#include <cstddef>
#include <vector>

namespace dn::screen::qt {

class KnownPalettes {
public:
    /// How many are kept: far more than a theme has with all its coloured surfaces.
    static constexpr std::size_t most = 64;

    /// @return the first palette of these colours that was asked for, whose key is always the same.
    QPalette of(const QPalette& colours);

private:
    std::vector<QPalette> known_;
};

} // namespace dn::screen::qt
