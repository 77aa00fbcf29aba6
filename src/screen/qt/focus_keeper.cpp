// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "screen/qt/focus_keeper.h"

#include "screen/label.h"
#include "screen/qt/label_view.h"
#include "screen/qt/text.h"

#include <QApplication>

#include <algorithm>
#include <limits>
#include <utility>

namespace dn::screen::qt {
namespace {

/// Where an element stands among its siblings: rows of about a line's height, from left to right in a row.
using Place = std::pair<int, Twips>;

/// The places of the containers around an element, from outside in, then its own.
std::vector<Place> path(const Element& element)
{
    constexpr Twips line = 300;
    std::vector<Place> places;
    for (const Element* step = &element; step != nullptr && step->parent() != nullptr; step = step->parent())
        places.emplace_back(step->Top() / line, step->Left());
    std::reverse(places.begin(), places.end());
    return places;
}

bool takesFocus(const QWidget& widget) { return (widget.focusPolicy() & Qt::TabFocus) != 0; }

/// A control without a name of its own is called by the label ahead of it.
void nameIt(const View& view, const QString& labelAhead)
{
    QWidget& widget = *view.widget;
    const std::string& given = view.element->AccessibleName();
    if (!given.empty())
        widget.setAccessibleName(fromUtf8(given));
    else if (qobject_cast<QAbstractButton*>(&widget) != nullptr && !widget.property("text").toString().isEmpty())
        return; // its caption
    else if (!view.element->ToolTipText().empty())
        widget.setAccessibleName(fromUtf8(view.element->ToolTipText()));
    else
        widget.setAccessibleName(labelAhead.isEmpty() ? widget.objectName() : labelAhead);
}

/// Whether it belongs to what follows it: one that shows data stands for itself.
bool labels(const Element& element)
{
    const auto* const label = dynamic_cast<const screen::Label*>(&element);
    return label != nullptr && label->UseMnemonic();
}

QString spoken(const LabelView& label)
{
    QString text = withoutMnemonic(toUtf8(label.text()));
    if (text.endsWith(u':')) text.chop(1);
    return text;
}

} // namespace

std::vector<View> inTabOrder(std::vector<View> views)
{
    struct Entry {
        View view;
        int index;
        std::vector<Place> path;
    };

    std::vector<Entry> entries;
    for (const View& view : views) {
        const int index = view.element->TabIndex();
        entries.push_back({view, index < 0 ? std::numeric_limits<int>::max() : index, path(*view.element)});
    }
    std::stable_sort(entries.begin(), entries.end(), [](const Entry& left, const Entry& right) {
        return left.index != right.index ? left.index < right.index : left.path < right.path;
    });
    std::transform(entries.begin(), entries.end(), views.begin(), [](const Entry& entry) { return entry.view; });
    return views;
}

FocusKeeper::FocusKeeper(QWidget& root, const std::vector<View>& views) : root_(root)
{
    LabelView* label = nullptr;
    for (const View& view : inTabOrder(views)) {
        QWidget& widget = *view.widget;
        elements_.insert(&widget, view.element);
        wires_.push_back(view.element->ended.connect([this, &widget] { forget(&widget); }));
        if (labels(*view.element)) label = dynamic_cast<LabelView*>(&widget);
        if (!takesFocus(widget)) {
            widget.setAccessibleName(fromUtf8(view.element->AccessibleName()));
            continue;
        }
        nameIt(view, label != nullptr ? spoken(*label) : QString());
        if (label != nullptr) label->stepTo(&widget);
        label = nullptr;
        if (!order_.empty()) QWidget::setTabOrder(order_.back(), &widget);
        order_.emplace_back(&widget);
    }
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) { focusMoved(now); });
}

void FocusKeeper::begin(const Element* element)
{
    for (const QPointer<QWidget>& widget : order_) {
        if (widget.isNull() || !widget->isEnabledTo(&root_) || !widget->isVisibleTo(&root_)) continue;
        if (element != nullptr && elements_.value(widget) != element) continue;
        widget->setFocus(Qt::OtherFocusReason);
        return;
    }
}

// The focus may lie in a part of a view, such as the field of a calendar.
void FocusKeeper::focusMoved(QWidget* now)
{
    for (QWidget* widget = now; widget != nullptr && widget != &root_; widget = widget->parentWidget()) {
        Element* const element = elements_.value(widget);
        if (element == nullptr || !root_.isAncestorOf(widget)) continue;
        element->takeFocus();
        return;
    }
}

void FocusKeeper::forget(QWidget* widget) { elements_.remove(widget); }

} // namespace dn::screen::qt
