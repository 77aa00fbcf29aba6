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
    wires_.push_back(timer.changed.connect([this] { mirror(); }));
    wires_.push_back(timer.ended.connect([this] {
        element_ = nullptr;
        timer_.stop();
    }));
    connect(&timer_, &QTimer::timeout, this, [this] { tick(); });
    mirror();
}

void TimerView::mirror()
{
    const bool wanted = element_->Enabled() && element_->Interval() > 0;
    if (!wanted)
        timer_.stop();
    else if (!timer_.isActive() || timer_.interval() != element_->Interval())
        timer_.start(element_->Interval());
}

// A timer of the toolkit is silent until its slot has returned, nested event loops included: starting it anew
// makes it another timer, which is not.
void TimerView::tick()
{
    timer_.start(element_->Interval());
    guard_.run([this] { element_->tick(); });
}

} // namespace dn::screen::qt
