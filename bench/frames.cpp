// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "bench/frames.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEvent>

#include <stdexcept>

namespace dn::bench {

PaintCounter::PaintCounter(QAbstractScrollArea& view) : QObject(&view)
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
    if (event->type() == QEvent::Paint) ++paints_;
    return QObject::eventFilter(watched, event);
}

} // namespace dn::bench
