// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The document of the figures: one part of it is measured and written anew by each run, all else is written by
// hand and stays.
#pragma once

#include <string>
#include <string_view>

namespace dn::bench {

constexpr std::string_view figuresBegin = "<!-- measured: written by ./benchmark, not by hand -->";
constexpr std::string_view figuresEnd = "<!-- end of what was measured -->";

/// The document with other figures between its two marks, each of which stands in it once.
/// @throws std::runtime_error when a mark is missing, comes twice, or they stand the wrong way round.
std::string withFigures(const std::string& document, std::string_view figures);

/// Puts the figures into a file, which is replaced at once or left as it was.
/// @throws std::runtime_error as above, or when the file cannot be read or written.
void writeFigures(const std::string& path, std::string_view figures);

} // namespace dn::bench
