// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The focus of a screen, kept alike on both sides, and the order of the key Tab.
#pragma once

#include "screen/element.h"

#include <QHash>
#include <QObject>
#include <QPointer>

#include <vector>

namespace dn::screen::qt {

/// An element and the widget that shows it.
struct View {
    Element* element;
    QWidget* widget;
};

class FocusKeeper : public QObject {
public:
    /// @param root the widget of the whole screen.
    /// @param views all its views.
    FocusKeeper(QWidget& root, const std::vector<View>& views);

    /// Gives the focus to the view of an element, or to the first one that takes it.
    void begin(const Element* element);

private:
    void focusMoved(QWidget* now);
    void forget(QWidget* widget);

    QWidget& root_;
    QHash<QWidget*, Element*> elements_;
    std::vector<QPointer<QWidget>> order_;
    Subscriptions wires_;
};

/// The views in the order of the key Tab: by tab index, those without one behind them by their place on the
/// screen, row by row, the contents of a panel together.
std::vector<View> inTabOrder(std::vector<View> views);

} // namespace dn::screen::qt
