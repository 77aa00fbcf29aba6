// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The views that show one thing and take no input: progress bar, line, and the timer, which shows nothing.
#pragma once

#include "screen/panels.h"
#include "screen/progress_bar.h"
#include "screen/qt/bond.h"
#include "screen/timer.h"

#include <QElapsedTimer>
#include <QProgressBar>
#include <QTimer>
#include <QWidget>

namespace dn::screen::qt {

class ProgressBarView : public QProgressBar {
public:
    ProgressBarView(screen::ProgressBar& bar, QWidget* parent, Guard& guard);

private:
    Bond<screen::ProgressBar> bond_;
};

class LineView : public QWidget {
public:
    LineView(screen::Line& line, QWidget* parent, Guard& guard);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    Bond<screen::Line> bond_;
};

/// Makes a timer element tick, also while a handler of one of its ticks sits in a nested event loop. Stands still
/// while the element that the ticks move does not show, and makes up for it when it does.
class TimerView : public QObject {
public:
    TimerView(screen::Timer& timer, QObject* parent, Guard& guard);

private:
    void mirror();
    void watch();
    void tick();
    void makeUp();

    screen::Timer* element_;
    Guard& guard_;
    QTimer timer_;
    QElapsedTimer since_; ///< the last tick that was made; invalid while the element is stopped
    qint64 left_ = 0;     ///< milliseconds that were no whole tick when the last rest was made up for
    Subscriptions sight_; ///< whether the moved element shows: it and what lies around it
    Subscriptions wires_;
};

} // namespace dn::screen::qt
