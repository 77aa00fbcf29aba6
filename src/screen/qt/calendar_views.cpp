// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "screen/qt/calendar_views.h"

#include "screen/qt/date_time.h"

#include <QEvent>
#include <QTextCharFormat>
#include <QToolButton>

namespace dn::screen::qt {

MonthViewView::MonthViewView(screen::MonthView& month, QWidget* parent, Guard& guard)
    : QCalendarWidget(parent), bond_(month, *this, guard, [this](const auto& state) { mirror(state); })
{
    setLocale(QLocale(QLocale::Spanish, QLocale::Mexico));
    setFirstDayOfWeek(Qt::Monday);
    setVerticalHeaderFormat(NoVerticalHeader);
    setHorizontalHeaderFormat(ShortDayNames);
    quiet();
    plainArrow("qt_calendar_prevmonth", Qt::LeftArrow);
    plainArrow("qt_calendar_nextmonth", Qt::RightArrow);
    connect(this, &QCalendarWidget::selectionChanged, this, [this] {
        if (mirroring_) return;
        bond_.gesture([&](auto& it) { it.pick(toDateTime(selectedDate())); });
    });
    bond_.refresh();
}

void MonthViewView::changeEvent(QEvent* event)
{
    QCalendarWidget::changeEvent(event);
    if (event->type() == QEvent::EnabledChange) quiet();
}

// Weekends in red read as an alarm, and not at all on a dark base. A colour of their own does not follow the
// palette when the calendar is disabled.
void MonthViewView::quiet()
{
    QTextCharFormat format;
    format.setForeground(palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled, QPalette::Text));
    setWeekdayTextFormat(Qt::Saturday, format);
    setWeekdayTextFormat(Qt::Sunday, format);
}

// The style's own arrows instead of the coloured ones of the toolkit.
void MonthViewView::plainArrow(const char* button, Qt::ArrowType arrow)
{
    auto* const found = findChild<QToolButton*>(QLatin1String(button));
    if (found == nullptr) return;
    found->setIcon({});
    found->setArrowType(arrow);
}

void MonthViewView::mirror(const screen::MonthView& month)
{
    const QDate date = toQDate(month.Value());
    if (!date.isValid() || date == selectedDate()) return;
    mirroring_ = true;
    setSelectedDate(date);
    mirroring_ = false;
}

DTPickerView::DTPickerView(screen::DTPicker& picker, QWidget* parent, Guard& guard)
    : QTimeEdit(parent), bond_(picker, *this, guard, [this](const auto& state) { mirror(state); })
{
    setDisplayFormat(QStringLiteral("HH:mm:ss"));
    setWrapping(true);
    connect(this, &QTimeEdit::timeChanged, this, [this](QTime time) {
        if (mirroring_) return;
        bond_.gesture([&](auto& it) { it.pick(toDateTime(time)); });
    });
    bond_.refresh();
}

void DTPickerView::mirror(const screen::DTPicker& picker)
{
    const QTime time = toQTime(picker.Value());
    if (time == this->time()) return;
    mirroring_ = true;
    setTime(time);
    mirroring_ = false;
}

} // namespace dn::screen::qt
