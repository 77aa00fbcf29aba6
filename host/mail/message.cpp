// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "host/mail/message.h"

#include "host/mail/encoding.h"

#include <algorithm>

namespace dn::host {
namespace {

std::string joined(const std::vector<std::string>& parts, std::string_view between)
{
    std::string result;
    for (const std::string& part : parts) {
        if (!result.empty()) result += between;
        result += part;
    }
    return result;
}

std::string header(std::string_view name, const std::string& value)
{
    return std::string(name) + ": " + value + "\r\n";
}

// Where a type is none, or one whose content may not be encoded (a mail within the mail).
std::string safeType(const std::string& type)
{
    const auto allowed = [](char c) {
        return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '/' ||
               c == '.' || c == '+' || c == '-' || c == '_';
    };
    const bool good = std::count(type.begin(), type.end(), '/') == 1 &&
                      std::all_of(type.begin(), type.end(), allowed) && type.rfind("message/", 0) != 0 &&
                      type.rfind("multipart/", 0) != 0;
    return good ? type : "application/octet-stream";
}

std::string bodyPart(const Message& message)
{
    return header("Content-Type", "text/plain; charset=UTF-8") +
           header("Content-Transfer-Encoding", "quoted-printable") + "\r\n" + quotedPrintable(message.body);
}

std::string attachmentPart(const Attachment& attachment)
{
    return header("Content-Type", safeType(attachment.type)) + header("Content-Transfer-Encoding", "base64") +
           header("Content-Disposition", "attachment;\r\n " + fileNameParameter(attachment.name)) + "\r\n" +
           base64Lines(attachment.content);
}

std::string headers(const Message& message, Purpose purpose)
{
    const std::string sender = message.senderName.empty()
                                   ? oneLine(message.sender)
                                   : headerName(message.senderName) + "\r\n <" + oneLine(message.sender) + ">";
    std::string text = header("Date", oneLine(message.date)) + header("From", sender);
    text += header("To", joined(message.recipients, ",\r\n "));
    text += header("Subject", headerText(message.subject));
    text += header("Message-ID", "<" + oneLine(message.id) + ">");
    if (purpose == Purpose::draft) text += header("X-Unsent", "1"); // mail programs open it ready to be sent
    return text + header("MIME-Version", "1.0");
}

} // namespace

std::string Message::recipientList() const { return joined(recipients, "; "); }

std::string messageText(const Message& message, Purpose purpose)
{
    std::string text = headers(message, purpose);
    if (message.attachments.empty()) return text + bodyPart(message);
    // "=_" stands in no line of the two encodings, so no content can end its part.
    const std::string boundary = "=_" + oneLine(message.id).substr(0, 32);
    text += header("Content-Type", "multipart/mixed;\r\n boundary=\"" + boundary + "\"") + "\r\n";
    text += "--" + boundary + "\r\n" + bodyPart(message);
    for (const Attachment& attachment : message.attachments)
        text += "\r\n--" + boundary + "\r\n" + attachmentPart(attachment);
    return text + "\r\n--" + boundary + "--\r\n";
}

} // namespace dn::host
