// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// A window as a screen reader meets it: the toolkit's own tree of accessible objects.
#pragma once

#include <QWidget>

#include <string>
#include <vector>

namespace dn::tests {

/// What an operator can work with in a window and a screen reader has no name for, as "role (object name)". A name
/// that is only the programmer's counts as none.
std::vector<std::string> unnamed(QWidget& window);

/// What an operator can work with in a window and no key leads to: neither Tab nor a mnemonic, an arrow or a menu.
std::vector<std::string> unreached(QWidget& window);

/// Labels and buttons of a window that are there, but not with their whole text: too narrow themselves, beyond an
/// edge, or cut off by one or by what lies in front of them; and fields that an edge cuts off. What a panel covers
/// as a whole is left out. By their object names.
std::vector<std::string> cutOff(QWidget& window);

} // namespace dn::tests
