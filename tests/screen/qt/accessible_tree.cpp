// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/screen/qt/accessible_tree.h"

#include <QAbstractButton>
#include <QAbstractScrollArea>
#include <QAccessible>
#include <QComboBox>
#include <QLabel>
#include <QMetaEnum>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>

#include <algorithm>
#include <array>

namespace dn::tests {
namespace {

constexpr std::array workedWith{
    QAccessible::PushButton, QAccessible::CheckBox,   QAccessible::RadioButton, QAccessible::EditableText,
    QAccessible::ComboBox,   QAccessible::List,       QAccessible::Table,       QAccessible::Tree,
    QAccessible::PageTab,    QAccessible::SpinBox,    QAccessible::Slider,      QAccessible::ProgressBar,
    QAccessible::MenuItem,   QAccessible::ButtonMenu, QAccessible::Dialog,      QAccessible::Window,
};

bool isWorkedWith(const QAccessibleInterface& part)
{
    return std::find(workedWith.begin(), workedWith.end(), part.role()) != workedWith.end();
}

/// What belongs to a field of the toolkit's own and is reached as that field: its line, its list, its arrows.
bool isPartOfField(const QObject* object)
{
    const auto* const widget = qobject_cast<const QWidget*>(object);
    for (const QWidget* around = widget == nullptr ? nullptr : widget->parentWidget(); around != nullptr;
         around = around->parentWidget())
        if (qobject_cast<const QComboBox*>(around) != nullptr ||
            qobject_cast<const QAbstractSpinBox*>(around) != nullptr || around->inherits("QCalendarWidget"))
            return true;
    return object != nullptr && object->objectName().startsWith(QLatin1String("qt_"));
}

/// A name of the code, "txtNombre", and no word that an operator reads, "Nombre".
bool isCode(const QString& name) { return !name.isEmpty() && name.front().isLower(); }

std::string describe(const QAccessibleInterface& part)
{
    const QObject* const object = part.object();
    const QString role = QString::fromLatin1(QMetaEnum::fromType<QAccessible::Role>().valueToKey(part.role()));
    return (role + " (" + (object == nullptr ? QString() : object->objectName()) + ")").toStdString();
}

/// The width of a caption with its picture; the margins of a push button may be narrower than the style likes
/// them.
int neededBy(const QAbstractButton& button)
{
    if (button.text().isEmpty()) return 0;
    constexpr int gap = 4;
    const int picture = button.icon().isNull() ? 0 : button.iconSize().width() + gap;
    const int content = button.fontMetrics().size(Qt::TextShowMnemonic, button.text()).width() + picture;
    const bool pushed = qobject_cast<const QPushButton*>(&button) != nullptr;
    return pushed ? content : std::max(content, button.minimumSizeHint().width());
}

int neededBy(const QWidget& widget)
{
    if (const auto* const button = qobject_cast<const QAbstractButton*>(&widget); button != nullptr)
        return neededBy(*button);
    const auto* const label = qobject_cast<const QLabel*>(&widget);
    if (label == nullptr || label->wordWrap()) return 0;
    return label->fontMetrics().size(Qt::TextShowMnemonic, label->text()).width();
}

/// How much of a widget's width lies within the edges of all that it lies in, whatever stands in front of it. What
/// a list or a text scrolls to comes into view.
int widthWithinEdges(const QWidget& widget)
{
    QRect part = widget.rect();
    for (const QWidget* inner = &widget; !inner->isWindow(); inner = inner->parentWidget()) {
        const QWidget* const around = inner->parentWidget();
        const auto* const scrolls = qobject_cast<const QAbstractScrollArea*>(around->parentWidget());
        if (scrolls != nullptr && scrolls->viewport() == around) break;
        part = part.translated(inner->pos()) & around->rect();
    }
    return part.isEmpty() ? 0 : part.width();
}

/// Fields show their contents, of any length; they are to show whole themselves.
bool isCutOffField(const QWidget& widget)
{
    const bool field = (widget.focusPolicy() & Qt::TabFocus) != 0 && !isPartOfField(&widget) &&
                       qobject_cast<const QAbstractButton*>(&widget) == nullptr;
    return field && widthWithinEdges(widget) < widget.width();
}

/// Of options that exclude each other Tab leads to one, and the arrows from there to the others.
bool isReachedOption(const QRadioButton& option)
{
    if (option.focusPolicy() == Qt::NoFocus) return false;
    const QList<QRadioButton*> all =
        option.parentWidget()->findChildren<QRadioButton*>(QString(), Qt::FindDirectChildrenOnly);
    return std::any_of(all.begin(), all.end(), [](const QRadioButton* other) {
        return other->isEnabled() && other->isVisible() && (other->focusPolicy() & Qt::TabFocus) != 0;
    });
}

template <class Visit>
void walk(QAccessibleInterface& part, const Visit& visit)
{
    if (part.state().invisible) return;
    visit(part);
    if (part.role() == QAccessible::Table || part.role() == QAccessible::Tree) return; // its cells are data
    for (int i = 0; i < part.childCount(); ++i)
        if (QAccessibleInterface* const child = part.child(i); child != nullptr) walk(*child, visit);
}

} // namespace

std::vector<std::string> unnamed(QWidget& window)
{
    std::vector<std::string> found;
    walk(*QAccessible::queryAccessibleInterface(&window), [&](const QAccessibleInterface& part) {
        const QString name = part.text(QAccessible::Name).trimmed();
        const bool programmers = part.object() != nullptr && name == part.object()->objectName() && isCode(name);
        const bool named = !name.isEmpty() && !programmers;
        if (isWorkedWith(part) && !named && !isPartOfField(part.object())) found.push_back(describe(part));
    });
    return found;
}

std::vector<std::string> cutOff(QWidget& window)
{
    std::vector<std::string> found;
    for (const QWidget* child : window.findChildren<QWidget*>()) {
        if (child->objectName().startsWith(QLatin1String("qt_")) || !child->isVisible()) continue;
        const int shown = child->visibleRegion().boundingRect().width();
        const bool covered = shown == 0 && widthWithinEdges(*child) > 0; // by a panel that stands in front of it
        if (!covered && (neededBy(*child) > shown || isCutOffField(*child)))
            found.push_back(child->objectName().toStdString());
    }
    return found;
}

std::vector<std::string> unreached(QWidget& window)
{
    std::vector<std::string> found;
    walk(*QAccessible::queryAccessibleInterface(&window), [&](const QAccessibleInterface& part) {
        const auto* const widget = qobject_cast<const QWidget*>(part.object());
        const bool passive = part.role() == QAccessible::ProgressBar || part.role() == QAccessible::MenuItem ||
                             part.role() == QAccessible::Dialog || part.role() == QAccessible::Window;
        if (!isWorkedWith(part) || passive || widget == nullptr || isPartOfField(widget)) return;
        const auto* const option = qobject_cast<const QRadioButton*>(widget);
        const bool reached = option != nullptr && option->autoExclusive()
                                 ? isReachedOption(*option)
                                 : (widget->focusPolicy() & Qt::TabFocus) != 0;
        if (!reached) found.push_back(describe(part));
    });
    return found;
}

} // namespace dn::tests
