// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "screen/qt/ports.h"

#include "screen/qt/date_time.h"
#include "screen/qt/form_view.h"

#include <QApplication>
#include <QDateTime>

namespace dn::screen::qt {

void QtPointer::MousePointer(int shape)
{
    const bool was = shape_ == hourglass;
    const bool is = shape == hourglass;
    shape_ = shape;
    if (is && !was) QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    if (was && !is) QGuiApplication::restoreOverrideCursor();
}

void QtEventLoop::DoEvents() { QCoreApplication::processEvents(); }

void QtEventLoop::ShowModal(Form& form)
{
    form.Visible(true);
    QWidget* const active = QApplication::activeWindow();
    // Not on the stack: its parent may end while it shows, and takes it along.
    const QPointer<FormView> view(new FormView(form, active != nullptr ? active : owner_.data(), guard_));
    view->run();
    delete view;
}

DateTime QtClock::Now() const
{
    const QDateTime now = QDateTime::currentDateTime();
    const DateTime date = toDateTime(now.date());
    DateTime moment = toDateTime(now.time());
    moment.year = date.year;
    moment.month = date.month;
    moment.day = date.day;
    return moment;
}

} // namespace dn::screen::qt
