// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// Where a date and a time of day are picked, as widgets.
#pragma once

#include "screen/calendars.h"
#include "screen/qt/bond.h"

#include <QCalendarWidget>
#include <QTimeEdit>

namespace dn::screen::qt {

class MonthViewView : public QCalendarWidget {
public:
    MonthViewView(screen::MonthView& month, QWidget* parent, Guard& guard);

protected:
    void changeEvent(QEvent* event) override;

private:
    void mirror(const screen::MonthView& month);
    void quiet();
    void plainArrow(const char* button, Qt::ArrowType arrow);

    bool mirroring_ = false;
    Bond<screen::MonthView> bond_;
};

class DTPickerView : public QTimeEdit {
public:
    DTPickerView(screen::DTPicker& picker, QWidget* parent, Guard& guard);

private:
    void mirror(const screen::DTPicker& picker);

    bool mirroring_ = false;
    Bond<screen::DTPicker> bond_;
};

} // namespace dn::screen::qt
