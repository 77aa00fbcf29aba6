// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// A box that drops down a list, as a widget.
#pragma once

#include "screen/combo_box.h"
#include "screen/qt/bond.h"

#include <QComboBox>

namespace dn::screen::qt {

class ComboBoxView : public QComboBox {
public:
    ComboBoxView(screen::ComboBox& combo, QWidget* parent, Guard& guard);

protected:
    void wheelEvent(QWheelEvent* event) override;

private:
    void mirror(const screen::ComboBox& combo);
    void pick(int index);
    void makeEditable(bool editable);

    Bond<screen::ComboBox> bond_;
    Subscription entriesChanged_;
};

} // namespace dn::screen::qt
