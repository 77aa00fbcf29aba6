// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "screen/qt/form_view.h"

#include "screen/button.h"
#include "screen/qt/focus_keeper.h"
#include "screen/qt/geometry.h"
#include "screen/qt/held_keys.h"
#include "screen/qt/shortcuts.h"
#include "screen/qt/text.h"
#include "screen/qt/theme.h"
#include "screen/qt/view_factory.h"

#include <QCloseEvent>
#include <QPointer>

namespace dn::screen::qt {
namespace {

/// The button that Escape presses, nothing when the operator cannot reach it.
screen::Button* cancelButton(const Container& container)
{
    for (Element* child : container.children()) {
        if (auto* button = dynamic_cast<screen::Button*>(child);
            button != nullptr && button->Cancel() && button->usable())
            return button;
        if (auto* inner = dynamic_cast<Container*>(child); inner != nullptr)
            if (auto* button = cancelButton(*inner); button != nullptr) return button;
    }
    return nullptr;
}

} // namespace

FormView::FormView(screen::Form& form, QWidget* parent, Guard& guard)
    : QDialog(parent, Qt::Dialog | Qt::WindowTitleHint | Qt::WindowCloseButtonHint | Qt::CustomizeWindowHint),
      element_(&form),
      guard_(guard)
{
    setObjectName(fromUtf8(form.name()));
    const std::vector<View> views = buildViews(form, *this, guard);
    focus_ = std::make_unique<FocusKeeper>(*this, views);
    shortcuts_ = std::make_unique<Shortcuts>(*this, views, guard);
    dress(*this);
    ignoreHeldKeys(*this);
    wires_.push_back(form.changed.connect([this] { mirror(); }));
    wires_.push_back(form.ended.connect([this] {
        element_ = nullptr;
        finish();
    }));
    mirror();
}

FormView::~FormView()
{
    wires_.clear();
    if (element_ != nullptr) element_->Hide(); // the window went with the one that it stood over
}

void FormView::run()
{
    if (element_ == nullptr || !element_->Visible()) return;
    focus_->begin(element_->focused());
    const QPointer<FormView> alive(this); // the window that it stands over may take it along
    exec();
    if (alive && element_ != nullptr) element_->Hide(); // the window was ended from outside
}

void FormView::mirror()
{
    if (element_ == nullptr) return;
    setWindowTitle(fromUtf8(element_->Caption()));
    mirrorSize();
    setEnabled(element_->Enabled());
    if (!element_->Visible()) finish();
}

void FormView::mirrorSize()
{
    if (following_) return;
    const QSize size = pixelRect(*element_).size();
    if (!element_->resizable()) {
        setFixedSize(size);
        return;
    }
    setMinimumSize(pixelEdge(element_->MinWidth()), pixelEdge(element_->MinHeight()));
    setSizeGripEnabled(true);
    resize(size);
}

void FormView::resizeEvent(QResizeEvent* event)
{
    QDialog::resizeEvent(event);
    if (element_ == nullptr || size() == pixelRect(*element_).size()) return;
    following_ = true;
    guard_.run([this] { element_->resize(width() * twipsPerPixel, height() * twipsPerPixel); });
    following_ = false;
}

// A form that is shown again gets a view of its own; this one is over.
void FormView::finish()
{
    element_ = nullptr;
    QDialog::done(QDialog::Rejected);
}

void FormView::reject() { close(true); }

void FormView::closeEvent(QCloseEvent* event)
{
    close(false);
    event->setAccepted(element_ == nullptr); // a window that stays open holds up the end of the session, no other
}

// Escape presses the button that cancels, where there is one; the frame's button closes the window.
void FormView::close(bool byKey)
{
    if (element_ == nullptr) return;
    screen::Form* const form = element_;
    screen::Button* const button = byKey ? cancelButton(*form) : nullptr;
    guard_.run([&] {
        if (button != nullptr)
            button->press();
        else
            form->closeWindow();
    });
}

} // namespace dn::screen::qt
