// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The first painted frame: shows a view and waits until its viewport has painted.
#pragma once

#include <QAbstractItemView>
#include <QAbstractScrollArea>
#include <QObject>

#include <chrono>
#include <optional>

namespace dn::bench {

/// Counts the paints of a view's viewport.
class PaintCounter : public QObject {
public:
    explicit PaintCounter(QAbstractScrollArea& view);

    int paints() const { return paints_; }
    /// Runs the event loop until the viewport has painted once more.
    /// @throws std::runtime_error when it does not within some seconds.
    void awaitPaint();

    using Time = std::chrono::steady_clock::time_point;
    /// From now on looks for the first paint of a view of items that has rows.
    void awaitRows() { withRows_.reset(); }
    /// When that paint was over; nothing while there was none.
    std::optional<Time> paintedRows() const { return withRows_; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    int paints_ = 0;
    const QAbstractItemView* items_;
    std::optional<Time> withRows_;
};

} // namespace dn::bench
