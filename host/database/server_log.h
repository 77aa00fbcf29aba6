// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// Reading in the server's log why it did not start.
#pragma once

#include <filesystem>
#include <string>

namespace dn::host {

/// The last lines of a text file, or an empty text.
std::string lastLines(const std::filesystem::path& file, std::size_t count);

/// The first lines of a text file in which a server or its installer complains: their closing lines are advice on
/// where to ask for help. Empty when there are none.
std::string complaints(const std::filesystem::path& file, std::size_t count);

/// Keeps the log of the former start under another name and makes way for a new one.
void putLogAside(const std::filesystem::path& log);

/// What to tell the operator when the server ended instead of answering.
/// @param folder the data folder. @param log the file; its last lines decide what is wrong, and end the text.
std::string explainFailedStart(const std::filesystem::path& folder, const std::filesystem::path& log);

} // namespace dn::host
