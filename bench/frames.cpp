// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "bench/frames.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEvent>

#include <stdexcept>

namespace dn::bench {

PaintCounter::PaintCounter(QAbstractScrollArea& view)
    : QObject(&view), items_(qobject_cast<const QAbstractItemView*>(&view))
{
    view.viewport()->installEventFilter(this);
}

void PaintCounter::awaitPaint()
{
    const int before = paints_;
    QElapsedTimer since;
    since.start();
    while (paints_ == before) {
        if (since.elapsed() > 20'000) throw std::runtime_error("nothing was painted");
        QCoreApplication::processEvents();
    }
}

bool PaintCounter::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Paint) {
        ++paints_;
        const bool rows = items_ != nullptr && items_->model() != nullptr && items_->model()->rowCount() > 0;
        if (rows && !withRows_) withRows_ = std::chrono::steady_clock::now();
    }
    return QObject::eventFilter(watched, event);
}

} // namespace dn::bench
