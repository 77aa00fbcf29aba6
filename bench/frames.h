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
    /// @throws std::runtime_error when it does not in two minutes.
    void awaitPaint();

    /// The end of a paint.
    struct Frame {
        std::chrono::steady_clock::time_point time;
        double cpu = 0; ///< milliseconds that the process had used
        int rows = 0;   ///< of the view's model
    };
    /// From now on looks for the first paint of a view of items that has rows; rows that go meanwhile do not
    /// count.
    void awaitRows();
    /// That paint; nothing while there was none.
    const std::optional<Frame>& paintedRows() const { return withRows_; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    int paints_ = 0;
    bool painting_ = false;
    QAbstractItemView* items_;
    std::optional<Frame> withRows_;
    QMetaObject::Connection rowsGone_;
};

} // namespace dn::bench
