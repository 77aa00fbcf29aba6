// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// Where mails go while no mail server is set up: a folder of the user's with a file for each, which every mail
// program opens.
#pragma once

#include <filesystem>
#include <string>

namespace dn::host {

/// Writes a mail into the folder, for the user's eyes alone. The file is there whole or not at all.
/// @param name of the file, without an ending. @return the file.
/// @throws HostError why it could not be written.
std::filesystem::path putIntoOutbox(const std::filesystem::path& folder, const std::string& name,
                                    const std::string& text);

} // namespace dn::host
