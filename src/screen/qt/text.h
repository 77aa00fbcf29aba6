// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// Texts on their way between the elements (UTF-8, line ends of two characters) and the toolkit.
#pragma once

#include <QString>

#include <string>
#include <string_view>

namespace dn::screen::qt {

QString fromUtf8(std::string_view text);
std::string toUtf8(const QString& text);

/// The text as a cell or an entry shows it, which is one line: its first thousand bytes or so, for measuring and
/// drawing a text of megabytes would hold the operator up.
QString beginningOf(std::string_view text);

/// The text as a box shows it that is only read: lines are cut off after 20,000 bytes and the whole after four
/// million, each with "…" for the rest. Whole characters stay whole.
std::string readablePart(std::string_view text);

/// The text for a document: each CR LF becomes the end of a block, each lone LF a line break within one
/// (U+2028), so that `fromDocument` can tell them apart.
QString toDocument(std::string_view text);
/// @param raw a document's raw text: U+2029 ends a block, U+2028 breaks a line.
std::string fromDocument(const QString& raw);

/// A tool tip that wraps, and that shows a text which looks like HTML as it stands.
QString asToolTip(std::string_view text);

/// A caption for a widget that knows no accelerators: "&Buscar:" becomes "Buscar:", "&&" one ampersand.
QString withoutMnemonic(std::string_view caption);

} // namespace dn::screen::qt
