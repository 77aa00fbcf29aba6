// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "bench/frames.h"

#include "bench/measure.h"

#include <QAbstractItemModel>
#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEvent>

#include <stdexcept>

namespace dn::bench {

PaintCounter::PaintCounter(QAbstractScrollArea& view)
    : QObject(&view), items_(qobject_cast<QAbstractItemView*>(&view))
{
    view.viewport()->installEventFilter(this);
}

void PaintCounter::awaitPaint()
{
    const int before = paints_;
    QElapsedTimer since;
    since.start();
    while (paints_ == before) {
        if (since.elapsed() > 120'000) throw std::runtime_error("nothing was painted");
        QCoreApplication::processEvents();
    }
}

void PaintCounter::awaitRows()
{
    withRows_.reset();
    disconnect(rowsGone_);
    rowsGone_ = connect(items_->model(), &QAbstractItemModel::rowsRemoved, this, [this] { withRows_.reset(); });
}

// The view paints from here, so that its frame is over when it is written down.
bool PaintCounter::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::Paint || painting_) return QObject::eventFilter(watched, event);
    painting_ = true;
    QCoreApplication::sendEvent(watched, event);
    painting_ = false;
    ++paints_;
    const int rows = items_ == nullptr || items_->model() == nullptr ? 0 : items_->model()->rowCount();
    if (rows > 0 && !withRows_) withRows_ = {std::chrono::steady_clock::now(), processCpuNow(), rows};
    return true;
}

} // namespace dn::bench
