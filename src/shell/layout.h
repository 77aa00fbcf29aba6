// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// Fits the control to the room that the host gives it. Knows nothing of the tab in view: every element is set on
// every resize, visible or not.
#pragma once

#include "desk/elements.h"

namespace dn::shell {

class Layout {
public:
    explicit Layout(desk::Elements& elements) : elements_(elements) {}

    /// Sizes the lists, the panels, the search row and the colour strip. Where a size would be negative the
    /// element keeps its own.
    void UserControl_Resize();

private:
    void fitLists();
    void fitPanels();
    void fitTopStrip();

    desk::Elements& elements_;
};

} // namespace dn::shell
