// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// A mail, and its text as it goes over the wire or into a file.
#pragma once

#include <string>
#include <vector>

namespace dn::host {

struct Attachment {
    std::string name; ///< of the file, without its folder
    std::string type; ///< "application/pdf"
    std::string content;
};

struct Message {
    std::string senderName; ///< may be empty
    std::string sender;     ///< an address
    std::vector<std::string> recipients;
    std::string subject;
    std::string body; ///< plain text
    std::vector<Attachment> attachments;
    std::string date; ///< "14 Mar 2026 09:30:00 -0600"
    std::string id;   ///< "3f2a...@example.com", never the same twice

    /// The recipients as an operator reads and writes them.
    std::string recipientList() const;
};

enum class Purpose : bool {
    sending,
    draft ///< a file that a mail program opens for sending
};

/// The whole mail: headers, body, attachments, every line ended by a carriage return and a line feed. Nothing that
/// a message holds gets out of its place, whatever it is; the addresses are taken as they are, see
/// `complaintAbout`.
std::string messageText(const Message& message, Purpose purpose);

} // namespace dn::host
