// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// How a mail's parts are written where only a few plain characters may stand: in a header, in the body, in the
// name of a file. What these give holds no line end but those that they put there themselves.
#pragma once

#include <string>
#include <string_view>

namespace dn::host {

/// The text with every control character as a blank, so that it stays in its line.
std::string oneLine(std::string_view text);

/// In lines of 76 characters, each ended by a carriage return and a line feed.
std::string base64Lines(std::string_view bytes);

/// A header's text: as it is where it is short and plain, in encoded words on lines of their own where not.
std::string headerText(std::string_view text);

/// A name ahead of an address: in quotes, or in encoded words.
std::string headerName(std::string_view name);

/// A parameter that gives a file's name: `filename="lista.pdf"`, or the form for other alphabets.
std::string fileNameParameter(std::string_view name);

/// A body of any length and alphabet in short plain lines. Every kind of line end becomes a carriage return and a
/// line feed; other control characters than the tab become blanks.
std::string quotedPrintable(std::string_view text);

} // namespace dn::host
