// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "host/mail/encoding.h"

#include <algorithm>
#include <cstddef>

namespace dn::host {
namespace {

constexpr std::string_view lineEnd = "\r\n";

bool isControl(char c) { return static_cast<unsigned char>(c) < 0x20 || c == 0x7F; }

bool isAscii(std::string_view text)
{
    return std::all_of(text.begin(), text.end(), [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

bool continues(char c) { return (static_cast<unsigned char>(c) & 0xC0U) == 0x80; }

std::string hexadecimal(char c, char sign)
{
    constexpr std::string_view digits = "0123456789ABCDEF";
    const auto byte = static_cast<unsigned char>(c);
    return {sign, digits[byte >> 4U], digits[byte & 0x0FU]};
}

std::string base64(std::string_view bytes)
{
    constexpr std::string_view digits = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
    std::string result;
    result.reserve((bytes.size() + 2) / 3 * 4);
    for (std::size_t i = 0; i < bytes.size(); i += 3) {
        const std::string_view three = bytes.substr(i, 3);
        unsigned int bits = 0;
        for (std::size_t k = 0; k < 3; ++k)
            bits = bits << 8U | (k < three.size() ? static_cast<unsigned char>(three[k]) : 0U);
        for (std::size_t k = 0; k < 4; ++k)
            result += k <= three.size() ? digits[bits >> (18 - 6 * k) & 0x3FU] : '=';
    }
    return result;
}

// Encoded words hold 75 characters at the most, and no piece of a character.
std::string encodedWords(std::string_view text)
{
    constexpr std::size_t most = 42; // so that the first one fits behind its header's name
    std::string result;
    while (!text.empty()) {
        std::size_t size = std::min(most, text.size());
        while (size < text.size() && size > most - 4 && continues(text[size]))
            --size;
        if (!result.empty()) result += "\r\n ";
        result += "=?UTF-8?B?" + base64(text.substr(0, size)) + "?=";
        text.remove_prefix(size);
    }
    return result;
}

bool isPlain(std::string_view text)
{
    constexpr std::size_t longest = 60; // with the header's name it stays below 78
    return isAscii(text) && text.size() <= longest && text.find("=?") == std::string_view::npos &&
           (text.empty() || (text.front() != ' ' && text.back() != ' '));
}

std::string withUnixLineEnds(std::string_view text)
{
    std::string result;
    result.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '\r') {
            result += '\n';
            if (i + 1 < text.size() && text[i + 1] == '\n') ++i;
        } else {
            result += text[i] == '\n' || text[i] == '\t' || !isControl(text[i]) ? text[i] : ' ';
        }
    }
    return result;
}

std::string quotedCharacter(std::string_view line, std::size_t at)
{
    const char c = line[at];
    const bool blank = c == ' ' || c == '\t';
    const bool plain = c > ' ' && c < 0x7F && c != '=';
    if (plain || (blank && at + 1 < line.size())) return {c};
    return hexadecimal(c, '=');
}

void appendQuotedLine(std::string& result, std::string_view line)
{
    constexpr std::size_t widest = 75; // and the sign of a line that goes on
    std::size_t width = 0;
    for (std::size_t i = 0; i < line.size(); ++i) {
        const std::string piece = quotedCharacter(line, i);
        if (width + piece.size() > widest) {
            result += "=\r\n";
            width = 0;
        }
        result += piece;
        width += piece.size();
    }
    result += lineEnd;
}

} // namespace

std::string oneLine(std::string_view text)
{
    std::string result(text);
    std::replace_if(result.begin(), result.end(), isControl, ' ');
    return result;
}

std::string base64Lines(std::string_view bytes)
{
    constexpr std::size_t bytesInLine = 57;
    std::string result;
    result.reserve(bytes.size() / bytesInLine * 78 + 80);
    for (std::size_t i = 0; i < bytes.size(); i += bytesInLine)
        result.append(base64(bytes.substr(i, bytesInLine))).append(lineEnd);
    return result;
}

std::string headerText(std::string_view text)
{
    const std::string line = oneLine(text);
    return isPlain(line) ? line : encodedWords(line);
}

std::string headerName(std::string_view name)
{
    const std::string line = oneLine(name);
    if (!isPlain(line)) return encodedWords(line);
    std::string result = "\"";
    for (const char c : line) {
        if (c == '"' || c == '\\') result += '\\';
        result += c;
    }
    return result + '"';
}

std::string fileNameParameter(std::string_view name)
{
    const auto isSafe = [](char c) {
        return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || c == '.' ||
               c == '-' || c == '_';
    };
    if (std::all_of(name.begin(), name.end(), [&](char c) { return isSafe(c) || c == ' '; }))
        return "filename=\"" + std::string(name) + "\"";
    std::string result = "filename*=UTF-8''";
    for (const char c : name)
        result += isSafe(c) ? std::string{c} : hexadecimal(c, '%');
    return result;
}

std::string quotedPrintable(std::string_view text)
{
    const std::string lines = withUnixLineEnds(text);
    std::string result;
    result.reserve(lines.size() + lines.size() / 8);
    std::size_t begin = 0;
    while (begin < lines.size()) {
        const std::size_t end = std::min(lines.find('\n', begin), lines.size());
        appendQuotedLine(result, std::string_view(lines).substr(begin, end - begin));
        begin = end + 1;
    }
    return result;
}

} // namespace dn::host
