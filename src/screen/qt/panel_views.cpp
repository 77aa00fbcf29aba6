// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "screen/qt/panel_views.h"

#include "screen/qt/colours.h"
#include "screen/qt/focus_keeper.h"
#include "screen/qt/geometry.h"
#include "screen/qt/shortcuts.h"
#include "screen/qt/text.h"
#include "screen/qt/view_factory.h"

#include <QKeyEvent>

namespace dn::screen::qt {

PanelView::PanelView(screen::PicturePanel& panel, QWidget* parent, Guard& guard)
    : QFrame(parent), bond_(panel, *this, guard, [this](const auto& state) { mirror(state); })
{
    setAutoFillBackground(true); // a panel in front hides what lies behind it
    bond_.refresh();
}

void PanelView::mirror(const screen::PicturePanel& panel)
{
    setFrameStyle(panel.framed() ? QFrame::StyledPanel | QFrame::Raised : QFrame::NoFrame);
    dressInColour(*this, panel.BackColor()); // the texts on it follow
}

ControlView::ControlView(screen::UserControl& control, QWidget* parent, Guard& guard)
    : QWidget(parent), element_(&control), guard_(guard)
{
    setObjectName(fromUtf8(control.name()));
    wires_.push_back(control.ended.connect([this] { element_ = nullptr; }));
    wires_.push_back(control.changed.connect([this] { setEnabled(element_->Enabled()); }));
    resize(pixelRect(control).size());
    const std::vector<View> views = buildViews(control, *this, guard);
    focus_ = std::make_unique<FocusKeeper>(*this, views);
    shortcuts_ = std::make_unique<Shortcuts>(*this, views, guard);
    setEnabled(control.Enabled());
}

ControlView::~ControlView() = default;

void ControlView::resizeEvent(QResizeEvent*)
{
    if (element_ == nullptr) return;
    guard_.run([this] { element_->resize(width() * twipsPerPixel, height() * twipsPerPixel); });
}

// Enter in a field of the control is the control's own: it presses no button of a dialog that embeds it.
void ControlView::keyPressEvent(QKeyEvent* event)
{
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (!enter) QWidget::keyPressEvent(event);
}

} // namespace dn::screen::qt
