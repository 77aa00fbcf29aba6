// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// What ties a widget to its element: the widget mirrors the element's state, and the operator's input becomes
// a gesture on the element. Either may end first.
#pragma once

#include "screen/element.h"
#include "screen/qt/guard.h"

#include <QPointer>
#include <QWidget>

#include <functional>
#include <utility>

namespace dn::screen::qt {

/// The part that all kinds have in common: name, place, visibility, tool tip, and the focus given by code.
class CommonBond {
public:
    CommonBond(Element& element, QWidget& widget);

    /// Mirrors what all elements have.
    static void mirrorCommon(const Element& element, QWidget& widget);

private:
    Subscription focusGiven_;
};

template <class Kind>
class Bond {
public:
    using Mirror = std::function<void(const Kind&)>;

    /// @param mirror shows what this kind has beside the common properties; called at each change.
    Bond(Kind& element, QWidget& widget, Guard& guard, Mirror mirror)
        : element_(&element),
          widget_(&widget),
          guard_(&guard),
          mirror_(std::move(mirror)),
          common_(element, widget),
          changed_(element.changed.connect([this] { refresh(); })),
          ended_(element.ended.connect([this] { element_ = nullptr; }))
    {
    }

    /// The element, nothing once it has ended.
    Kind* element() const { return element_; }

    /// Shows the element's present state. Constructors call it last.
    void refresh()
    {
        if (element_ == nullptr) return;
        CommonBond::mirrorCommon(*element_, *widget_);
        mirror_(*element_);
    }

    /// Runs what the operator did; the widget then shows what became of it, a refusal too.
    /// @return whether the widget is still there.
    template <class Gesture>
    bool gesture(Gesture&& gesture)
    {
        const QPointer<QWidget> alive(widget_);
        if (element_ != nullptr) guard_->run([&] { std::forward<Gesture>(gesture)(*element_); });
        if (alive.isNull()) return false;
        refresh();
        return true;
    }

    Guard& guard() const { return *guard_; }

private:
    Kind* element_;
    QWidget* widget_;
    Guard* guard_;
    Mirror mirror_;
    CommonBond common_;
    Subscription changed_;
    Subscription ended_;
};

} // namespace dn::screen::qt
