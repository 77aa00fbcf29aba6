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
    // Listening to it changes nothing of it.
    for (auto* step = const_cast<Element*>(element_->Moves()); step != nullptr; step = step->parent())
        sight_.push_back(step->changed.connect([this] { mirror(); }));
}

/// Milliseconds between two awakenings, 0 for none at all.
int TimerView::pace() const
{
    constexpr int resting = 500;
    if (!element_->Enabled() || element_->Interval() <= 0) return 0;
    const bool seen = element_->Moves() == nullptr || element_->Moves()->shown();
    return seen ? element_->Interval() : qMax(resting, element_->Interval());
}

void TimerView::mirror()
{
    if (element_ == nullptr) return;
    const int wanted = pace();
    if (wanted == 0) {
        timer_.stop();
        return;
    }
    if (timer_.isActive() && timer_.interval() == wanted) return;
    const bool resumes = timer_.isActive();
    timer_.start(wanted);
    if (resumes) // faster or slower: what was not made of the time until now
        makeUp();
    else
        since_.start();
}

// A timer of the toolkit is silent until its slot has returned, nested event loops included: starting it anew
// makes it another timer, which is not.
void TimerView::tick()
{
    const bool rests = timer_.interval() != element_->Interval();
    timer_.start(timer_.interval());
    if (rests) {
        makeUp();
        return;
    }
    since_.start();
    guard_.run([this] { element_->tick(); });
}

// A machine that slept does not make up for its sleep.
void TimerView::makeUp()
{
    constexpr qint64 longest = 10'000;
    const qint64 due = qMin(since_.elapsed(), longest) / element_->Interval();
    if (due == 0) return;
    since_.start();
    guard_.run([&] {
        for (qint64 i = 0; i < due && element_ != nullptr; ++i)
            element_->tick();
    });
}

} // namespace dn::screen::qt
