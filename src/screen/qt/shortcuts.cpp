// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "screen/qt/shortcuts.h"

#include "screen/qt/text.h"

#include <algorithm>

namespace dn::screen::qt {
namespace {

/// The widget within which a button's key counts.
QWidget& reachOf(const screen::Button& button, QWidget& root, const std::vector<View>& views)
{
    const auto found = std::find_if(views.begin(), views.end(), [&](const View& view) {
        return button.shortcutReach() != nullptr && view.element == button.shortcutReach();
    });
    return found != views.end() ? *found->widget : root;
}

} // namespace

Shortcuts::Shortcuts(QWidget& root, const std::vector<View>& views, Guard& guard) : guard_(guard)
{
    for (const View& view : views)
        if (auto* const button = dynamic_cast<screen::Button*>(view.element);
            button != nullptr && !button->Shortcut().empty())
            bind(*button, reachOf(*button, root, views));
    refresh();
}

void Shortcuts::bind(screen::Button& button, QWidget& reach)
{
    const QKeySequence sequence(fromUtf8(button.Shortcut()), QKeySequence::PortableText);
    Key& key = keys_.try_emplace({&reach, sequence}, Key{nullptr, {}}).first->second;
    if (key.shortcut == nullptr) {
        key.shortcut = new QShortcut(sequence, &reach);
        key.shortcut->setContext(Qt::WidgetWithChildrenShortcut);
        key.shortcut->setAutoRepeat(false); // a key that is held down does not run through a whole call
        QObject::connect(key.shortcut, &QShortcut::activated, &reach, [this, &key] { press(key); });
    }
    key.buttons.push_back(&button);
    wires_.push_back(button.ended.connect([&key, &button] { std::erase(key.buttons, &button); }));
    for (Element* step = &button; step != nullptr; step = step->parent())
        wires_.push_back(step->changed.connect([this] { refresh(); }));
}

void Shortcuts::press(const Key& key)
{
    const auto found =
        std::find_if(key.buttons.begin(), key.buttons.end(), [](const auto* button) { return button->usable(); });
    if (found != key.buttons.end()) guard_.run([button = *found] { button->press(); });
}

void Shortcuts::refresh()
{
    for (auto& [place, key] : keys_)
        key.shortcut->setEnabled(std::any_of(key.buttons.begin(), key.buttons.end(),
                                             [](const auto* button) { return button->usable(); }));
}

} // namespace dn::screen::qt
