// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "screen/qt/small_views.h"

#include "screen/qt/text.h"

#include <QPainter>

namespace dn::screen::qt {

ProgressBarView::ProgressBarView(screen::ProgressBar& bar, QWidget* parent, Guard& guard)
    : QProgressBar(parent), bond_(bar, *this, guard, [this](const auto& state) {
          setRange(state.Min(), state.Max());
          setValue(state.Value());
      })
{
    setTextVisible(false);
    bond_.refresh();
}

LineView::LineView(screen::Line& line, QWidget* parent, Guard& guard)
    : QWidget(parent), bond_(line, *this, guard, [this](const auto&) {
          resize(qMax(1, width()), qMax(1, height())); // a line of no thickness is a pixel thick
      })
{
    bond_.refresh();
}

void LineView::paintEvent(QPaintEvent*) { QPainter(this).fillRect(rect(), palette().color(QPalette::Mid)); }

TimerView::TimerView(screen::Timer& timer, QObject* parent, Guard& guard)
    : QObject(parent), element_(&timer), guard_(guard)
{
    setObjectName(fromUtf8(timer.name()));
    wires_.push_back(timer.changed.connect([this] {
        watch();
        mirror();
    }));
    wires_.push_back(timer.ended.connect([this] {
        element_ = nullptr;
        timer_.stop();
    }));
    connect(&timer_, &QTimer::timeout, this, [this] { tick(); });
    watch();
    mirror();
}

void TimerView::watch()
{
    sight_.clear();
    for (Element* step = element_->Moves(); step != nullptr; step = step->parent())
        sight_.push_back(step->changed.connect([this] { mirror(); }));
}

void TimerView::mirror()
{
    if (element_ == nullptr) return;
    if (!element_->Enabled() || element_->Interval() <= 0) {
        timer_.stop();
        since_.invalidate();
        left_ = 0;
        return;
    }
    if (!since_.isValid()) since_.start();
    if (element_->Moves() != nullptr && !element_->Moves()->shown()) {
        timer_.stop();
        return;
    }
    if (timer_.isActive() && timer_.interval() == element_->Interval()) return;
    const bool rested = !timer_.isActive();
    timer_.start(element_->Interval());
    if (rested) makeUp();
}

// A timer of the toolkit is silent until its slot has returned, nested event loops included: starting it anew
// makes it another timer, which is not.
void TimerView::tick()
{
    timer_.start(timer_.interval());
    since_.start();
    guard_.run([this] { element_->tick(); });
}

// Whole rounds leave everything as it is.
void TimerView::makeUp()
{
    const qint64 owed = since_.elapsed() + left_;
    left_ = owed % element_->Interval();
    since_.start();
    const qint64 due = owed / element_->Interval() % element_->Round();
    guard_.run([&] {
        for (qint64 i = 0; i < due && element_ != nullptr; ++i)
            element_->tick();
    });
}

} // namespace dn::screen::qt
