// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The first painted frame: shows a view and waits until its viewport has painted.
#pragma once

#include <QAbstractScrollArea>
#include <QObject>

namespace dn::bench {

/// Counts the paints of a view's viewport.
class PaintCounter : public QObject {
public:
    explicit PaintCounter(QAbstractScrollArea& view);

    int paints() const { return paints_; }
    /// Runs the event loop until the viewport has painted once more.
    /// @throws std::runtime_error when it does not within some seconds.
    void awaitPaint();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    int paints_ = 0;
};

} // namespace dn::bench
