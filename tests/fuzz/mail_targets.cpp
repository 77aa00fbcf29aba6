// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// Mails: nothing of what an operator types may leave its place, and all of it must arrive.

#include "base/text.h"
#include "host/mail/addresses.h"
#include "host/mail/encoding.h"
#include "host/mail/message.h"
#include "tests/fuzz/input.h"
#include "tests/fuzz/targets.h"

#include <algorithm>
#include <map>
#include <vector>

namespace dn::fuzz {
namespace {

constexpr std::size_t longestLine = 76;

/// The lines of a text, each of which must end with a carriage return and a line feed and hold no other.
std::vector<std::string> linesOf(std::string_view text)
{
    std::vector<std::string> lines;
    while (!text.empty()) {
        const std::size_t end = text.find("\r\n");
        require(end != std::string_view::npos, "every line is ended");
        const std::string_view line = text.substr(0, end);
        require(line.find_first_of("\r\n") == std::string_view::npos, "no line ends with half a line end");
        lines.emplace_back(line);
        text.remove_prefix(end + 2);
    }
    return lines;
}

bool isPrintable(std::string_view text)
{
    return std::all_of(text.begin(), text.end(), [](char c) { return c >= ' ' && c <= '~'; });
}

std::string fromBase64(std::string_view text)
{
    constexpr std::string_view digits = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
    std::string bytes;
    unsigned bits = 0;
    unsigned held = 0;
    for (const char c : text.substr(0, text.find('='))) {
        const std::size_t digit = digits.find(c);
        require(digit != std::string_view::npos, "base64 has 64 digits");
        bits = (bits << 6U | static_cast<unsigned>(digit)) & 0xFFFFU;
        held += 6;
        if (held < 8) continue;
        held -= 8;
        bytes += static_cast<char>(static_cast<unsigned char>(bits >> held & 0xFFU));
    }
    return bytes;
}

int figure(char c)
{
    constexpr std::string_view digits = "0123456789ABCDEF";
    const std::size_t at = digits.find(c);
    require(at != std::string_view::npos, "figures are hexadecimal");
    return static_cast<int>(at);
}

/// Puts in the place of "=41" or "%41" the byte that it stands for.
std::string unescaped(std::string_view text, char sign)
{
    std::string bytes;
    for (; !text.empty(); text.remove_prefix(1)) {
        if (text.front() != sign) {
            bytes += text.front();
            continue;
        }
        require(text.size() >= 3, "two figures stand behind the sign");
        bytes += static_cast<char>(figure(text[1]) * 16 + figure(text[2]));
        text.remove_prefix(2);
    }
    return bytes;
}

std::string decodedWords(const std::vector<std::string>& lines)
{
    std::string text;
    for (std::string_view line : lines) {
        if (line.starts_with(' ')) line.remove_prefix(1);
        require(line.size() <= 75 && line.starts_with("=?UTF-8?B?") && line.ends_with("?="), "a word is encoded");
        const std::string bytes = fromBase64(line.substr(10, line.size() - 12));
        text += bytes;
    }
    return text;
}

/// The text behind a header's value of one or several lines.
std::string decodedHeader(const std::string& value)
{
    const std::vector<std::string> lines = linesOf(value + "\r\n");
    for (std::size_t i = 0; i < lines.size(); ++i) {
        require(isPrintable(lines[i]), "a header is plain");
        require(i == 0 || (lines[i].starts_with(' ') && lines[i].size() > 1),
                "a header's line goes on in the next one");
    }
    if (value.find("=?") != std::string::npos) return decodedWords(lines);
    require(lines.size() <= 1 && value.size() <= 2 * 60 + 2, "a plain header is one short line");
    return value;
}

std::string unquoted(std::string_view text)
{
    require(text.size() >= 2 && text.front() == '"' && text.back() == '"', "a name stands in quotes");
    std::string name;
    for (text = text.substr(1, text.size() - 2); !text.empty(); text.remove_prefix(1)) {
        require(text.front() != '"', "a quote in a name is no end of it");
        if (text.front() == '\\') text.remove_prefix(1);
        require(!text.empty(), "a backslash stands ahead of a sign");
        name += text.front();
    }
    return name;
}

/// The text with line feeds alone, blanks for what cannot stand in a mail, and an end for its last line.
std::string inLines(std::string_view text)
{
    std::string result;
    for (; !text.empty(); text.remove_prefix(1)) {
        const char c = text.front();
        if (text.starts_with("\r\n")) continue;
        const bool control = (static_cast<unsigned char>(c) < 0x20 && c != '\t') || c == 0x7F;
        result += c == '\r' || c == '\n' ? '\n' : control ? ' ' : c;
    }
    if (!result.empty() && !result.ends_with('\n')) result += '\n';
    return result;
}

std::string decodedBody(const std::string& body)
{
    std::string text;
    for (std::string line : linesOf(body)) {
        require(line.size() <= longestLine && !line.ends_with(' ') && !line.ends_with('\t'), "a line is short");
        std::string plain = line;
        std::replace(plain.begin(), plain.end(), '\t', ' ');
        require(isPrintable(plain), "a line is plain");
        const bool goesOn = line.ends_with('=');
        if (goesOn) line.pop_back();
        text += unescaped(line, '=');
        if (!goesOn) text += '\n';
    }
    return text;
}

/// A part of a mail, or the whole: its headers by name, and what stands behind the empty line.
struct Part {
    std::string names; ///< of the headers, in order
    std::map<std::string, std::string> headers;
    std::string body;
};

Part partOf(std::string_view text)
{
    Part part;
    std::string name;
    while (!text.starts_with("\r\n")) {
        const std::size_t end = text.find("\r\n");
        require(end != std::string_view::npos, "headers have an end");
        require(end <= 998, "a header's line is no longer than mail allows");
        const std::string_view line = text.substr(0, end);
        if (line.starts_with(' ')) {
            require(!name.empty(), "no header begins with its second line");
            part.headers[name].append("\r\n").append(line);
        } else {
            const std::size_t colon = line.find(": ");
            require(colon != std::string_view::npos, "a header has a name");
            name = line.substr(0, colon);
            require(!part.headers.contains(name), "a header stands once");
            part.names += name + " ";
            part.headers[name] = line.substr(colon + 2);
        }
        text.remove_prefix(end + 2);
    }
    part.body = text.substr(2);
    return part;
}

/// What stands between the lines that divide a mail's parts.
std::vector<Part> partsOf(std::string_view body, const std::string& boundary)
{
    std::vector<Part> parts;
    const std::string divides = "--" + boundary + "\r\n";
    require(body.starts_with(divides), "the first part begins at once");
    body.remove_prefix(divides.size());
    while (true) {
        const std::size_t end = body.find("\r\n--" + boundary);
        require(end != std::string_view::npos, "each part has an end");
        parts.push_back(partOf(std::string(body.substr(0, end)) + "\r\n"));
        parts.back().body.resize(parts.back().body.size() - 2);
        body.remove_prefix(end + boundary.size() + 4);
        if (body == "--\r\n") return parts;
        require(body.starts_with("\r\n"), "a line that divides holds nothing else");
        body.remove_prefix(2);
    }
}

/// A text as a header holds it: control characters are blanks there.
std::string onOneLine(std::string text)
{
    for (char& c : text)
        if (static_cast<unsigned char>(c) < 0x20 || c == 0x7F) c = ' ';
    return text;
}

std::string decodedName(const std::string& header)
{
    const std::string decoded = decodedHeader(header);
    return header.starts_with('"') ? unquoted(decoded) : decoded;
}

void requireText(const Part& part, const std::string& text)
{
    require(part.headers.at("Content-Type") == "text/plain; charset=UTF-8" &&
                part.headers.at("Content-Transfer-Encoding") == "quoted-printable",
            "a text says what it is");
    std::string body = part.body;
    if (!body.empty() && !body.ends_with("\r\n")) body += "\r\n"; // that line end is the part's own
    require(decodedBody(body) == inLines(text), "the text arrives");
}

void requireFile(const Part& part, const host::Attachment& file)
{
    require(part.headers.at("Content-Transfer-Encoding") == "base64", "a file says how it is written");
    const std::string& type = part.headers.at("Content-Type");
    require(type == file.type || type == "application/octet-stream", "a file has its type or none");
    require(!type.starts_with("multipart/") && !type.starts_with("message/"), "no file is taken apart as a mail");
    const std::string& disposition = part.headers.at("Content-Disposition");
    const std::string head = "attachment;\r\n filename";
    require(disposition.starts_with(head), "a file has a name");
    const std::string_view name = std::string_view(disposition).substr(head.size());
    if (name.starts_with("=\""))
        require(name == "=\"" + file.name + "\"", "the name of a file arrives");
    else
        require(name.starts_with("*=UTF-8''") && unescaped(name.substr(9), '%') == file.name,
                "the name of a file arrives");
    std::string digits;
    for (const std::string& line : linesOf(part.body.empty() ? "" : part.body + "\r\n"))
        digits += line;
    require(fromBase64(digits) == file.content, "a file arrives");
}

host::Message someMessage(Input& input)
{
    host::Message message;
    message.date = "14 Mar 2026 09:30:00 -0600";
    message.id = "0123456789abcdef0123456789abcdef@example.com";
    message.sender = "ana@example.com";
    message.senderName = input.text();
    message.subject = input.text();
    message.body = input.text();
    for (const std::string& address : host::splitAddresses(input.text()))
        if (host::complaintAbout(address).empty()) message.recipients.push_back(host::wireAddress(address));
    if (message.recipients.empty()) message.recipients.emplace_back("luz@example.com");
    while (!input.empty())
        message.attachments.push_back({input.text().substr(0, 255), input.text(), input.text()});
    return message;
}

} // namespace

void headers(Input& input)
{
    const std::string text = input.rest();
    const std::string line = host::oneLine(text);
    require(line.size() == text.size() && line.find_first_of("\r\n") == std::string::npos, "a line stays one");
    require(decodedHeader(host::headerText(text)) == line, "a subject arrives");
    const std::string name = host::headerName(text);
    const std::string decoded = decodedHeader(name);
    require((name.starts_with('"') ? unquoted(decoded) : decoded) == line, "a name arrives");
    const std::string parameter = host::fileNameParameter(text);
    require(isPrintable(parameter), "the name of a file is plain");
    if (parameter.starts_with("filename=\""))
        require(parameter == "filename=\"" + text + "\"", "the name of a file arrives");
    else
        require(unescaped(parameter.substr(17), '%') == text, "the name of a file arrives");
}

void bodies(Input& input)
{
    const std::string text = input.rest();
    require(decodedBody(host::quotedPrintable(text)) == inLines(text), "a text arrives");
    std::string digits;
    for (const std::string& line : linesOf(host::base64Lines(text))) {
        require(line.size() <= longestLine, "a line is short");
        digits += line;
    }
    require(fromBase64(digits) == text, "a file arrives");
}

void mails(Input& input)
{
    const host::Message message = someMessage(input);
    const std::string mail = host::messageText(message, host::Purpose::sending);
    for (const std::string& line : linesOf(mail))
        require(line.size() <= 998, "a line is no longer than mail allows");
    const Part whole = partOf(mail);
    const bool several = !message.attachments.empty();
    require(whole.names == std::string("Date From To Subject Message-ID MIME-Version Content-Type ") +
                               (several ? "" : "Content-Transfer-Encoding "),
            "a mail has its headers and no others");
    require(decodedHeader(whole.headers.at("Subject")) == onOneLine(message.subject), "a subject arrives");
    const std::string& from = whole.headers.at("From");
    const std::string address = "\r\n <" + message.sender + ">";
    if (message.senderName.empty())
        require(from == message.sender, "a sender without a name is his address");
    else
        require(from.ends_with(address) &&
                    decodedName(from.substr(0, from.size() - address.size())) == onOneLine(message.senderName),
                "a sender's name arrives");
    std::string recipients;
    for (const std::string& recipient : message.recipients)
        recipients += (recipients.empty() ? "" : ",\r\n ") + recipient;
    require(whole.headers.at("To") == recipients, "every recipient is named");
    if (!several) return requireText(whole, message.body);
    const std::string head = "multipart/mixed;\r\n boundary=\"";
    const std::string& type = whole.headers.at("Content-Type");
    require(type.starts_with(head) && type.ends_with('"'), "a mail of several parts says what divides them");
    const std::vector<Part> parts = partsOf(whole.body, type.substr(head.size(), type.size() - head.size() - 1));
    require(parts.size() == message.attachments.size() + 1, "a mail has a part for each file");
    requireText(parts.front(), message.body);
    for (std::size_t i = 0; i < message.attachments.size(); ++i)
        requireFile(parts[i + 1], message.attachments[i]);
}

void addresses(Input& input)
{
    const std::string text = input.rest();
    const std::vector<std::string> all = host::splitAddresses(text);
    std::string joined;
    for (std::size_t i = 0; i < all.size(); ++i) {
        const std::string complaint = host::complaintAbout(all[i]);
        require(complaint.find_first_of("\r\n") == std::string::npos, "a complaint is one line");
        joined += all[i] + ";";
        for (std::size_t k = 0; k < i; ++k)
            require(!equalsNoCase(all[i], all[k]), "no address stands twice");
        if (!complaint.empty()) continue;
        const std::string wire = host::wireAddress(all[i]);
        require(isPrintable(wire) && wire.find_first_of(" <>,;:\"\\()[]") == std::string::npos,
                "a good address can stand in a header and in a command");
        require(std::count(wire.begin(), wire.end(), '@') == 1 && wire.size() <= 254,
                "a good address has one sign");
    }
    std::vector<std::string> plain = all;
    std::erase_if(plain, [](const std::string& address) { return address.find('<') != std::string::npos; });
    if (plain.size() == all.size()) require(host::splitAddresses(joined) == all, "a list reads back");
}

} // namespace dn::fuzz
