// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// Reading the files that go with a mail.
#pragma once

#include "host/mail/message.h"
#include "host/mail/sending.h"

#include <filesystem>
#include <vector>

namespace dn::host {

/// Reads files; it may take its time, so it is done where the mail is sent. @param limit megabytes that all of
/// them may have together. @throws HostError when a file cannot be read, or they have grown beyond the limit;
/// SendCancelled.
std::vector<Attachment> readAttachments(const std::vector<std::filesystem::path>& files, int limit,
                                        const SendProgress& progress);

} // namespace dn::host
