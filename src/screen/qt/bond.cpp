// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "screen/qt/bond.h"

#include "screen/qt/geometry.h"
#include "screen/qt/text.h"

namespace dn::screen::qt {

CommonBond::CommonBond(Element& element, QWidget& widget)
    : focusGiven_(element.focusGiven.connect([&widget] { widget.setFocus(Qt::OtherFocusReason); }))
{
    widget.setObjectName(fromUtf8(element.name()));
}

void CommonBond::mirrorCommon(const Element& element, QWidget& widget)
{
    if (!widget.isWindow()) {
        widget.setGeometry(pixelRect(element));
        widget.setVisible(element.Visible());
    }
    widget.setEnabled(element.Enabled());
    widget.setToolTip(asToolTip(element.ToolTipText()));
}

} // namespace dn::screen::qt
