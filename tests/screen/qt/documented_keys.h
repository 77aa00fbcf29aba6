// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The keys of a window against the manual's page on the keyboard (docs/manual/teclado.md), so that neither tells
// of more than the other.
#pragma once

#include <QWidget>

#include <string>
#include <vector>

namespace dn::tests {

/// A key and the caption of what it presses or leads to.
struct NamedKey {
    std::string key; ///< as the page writes it: "Alt+P", "Ctrl+Q"
    std::string caption;

    friend bool operator==(const NamedKey&, const NamedKey&) = default;
};

/// What the page and the underlined letters of a window or a menu do not have in common, in words; empty where
/// they agree. What does not show in the window at present counts too. What the page has with an "o" ahead stands
/// in for the one before. A letter twice among what shows is told as well.
std::vector<std::string> lettersAgainstPage(const QWidget& window);

/// What the keys of the program's main window and the tables of the page that tell of them do not have in common.
std::vector<std::string> keysAgainstPage(const std::vector<NamedKey>& keys);

/// The windows that the page tells of and that none of these tests knows.
std::vector<std::string> unknownWindowsOfPage();

} // namespace dn::tests
