// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "screen/qt/combo_box_view.h"

#include "screen/qt/hourglass.h"
#include "screen/qt/item_list_model.h"
#include "screen/qt/text.h"

#include <QAbstractItemView>
#include <QLineEdit>
#include <QWheelEvent>

#include <optional>

namespace dn::screen::qt {

ComboBoxView::ComboBoxView(screen::ComboBox& combo, QWidget* parent, Guard& guard)
    : QComboBox(parent), bond_(combo, *this, guard, [this](const auto& state) { mirror(state); })
{
    setModel(new ItemListModel(combo, this)); // owned by this as its parent
    setMaxVisibleItems(20);
    // After the model: adding the first entry makes the widget select it, the element does not.
    entriesChanged_ = combo.entriesChanged.connect([this] { bond_.refresh(); });
    // Raised by the operator alone, also for the entry that is selected already.
    connect(this, &QComboBox::activated, this, &ComboBoxView::pick);
    bond_.refresh();
}

void ComboBoxView::mirror(const screen::ComboBox& combo)
{
    makeEditable(combo.editable());
    if (currentIndex() != combo.ListIndex()) setCurrentIndex(combo.ListIndex());
    if (lineEdit() == nullptr) return;
    const QString text = fromUtf8(combo.Text());
    if (lineEdit()->text() != text) lineEdit()->setText(text);
}

void ComboBoxView::pick(int index)
{
    bond_.gesture([&](screen::ComboBox& it) {
        std::optional<Hourglass> hourglass; // gone by the time that a failure is told
        if (it.readsAnew()) hourglass.emplace();
        it.pick(index);
    });
}

void ComboBoxView::makeEditable(bool editable)
{
    if (isEditable() == editable) return;
    setEditable(editable);
    if (!editable) return;
    setInsertPolicy(QComboBox::NoInsert);
    setCompleter(nullptr); // it would put words into the operator's mouth
    // The widget would pick an entry of the same text when the operator leaves it.
    disconnect(lineEdit(), &QLineEdit::editingFinished, this, nullptr);
    connect(lineEdit(), &QLineEdit::textEdited, this,
            [this](const QString& text) { bond_.gesture([&](auto& it) { it.edit(toUtf8(text)); }); });
}

// The wheel scrolls what lies around a closed box and never changes an entry in passing.
void ComboBoxView::wheelEvent(QWheelEvent* event) { event->ignore(); }

} // namespace dn::screen::qt
