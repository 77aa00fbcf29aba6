// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The four labels that tell how many rows the lists hold.
#pragma once

#include "desk/elements.h"

namespace dn::desk {

class Counters {
public:
    explicit Counters(Elements& elements) : elements_(elements) {}

    /// Writes the captions from the row counts of the lists as they are now. Called at the end of every load.
    void UpdateCounters();

private:
    Elements& elements_;
};

} // namespace dn::desk
