// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "host/mail/addresses.h"

#include "base/text.h"
#include "host/mail/encoding.h"

#include <QString>
#include <QUrl>

#include <algorithm>

namespace dn::host {
namespace {

std::string stripped(std::string_view part)
{
    constexpr std::string_view blanks = " \t\r\n";
    const std::size_t first = part.find_first_not_of(blanks);
    if (first == std::string_view::npos) return {};
    return std::string(part.substr(first, part.find_last_not_of(blanks) - first + 1));
}

// A name that holds another address or a line end is none: whoever pasted it must look at it.
std::string withoutName(const std::string& part)
{
    const std::size_t open = part.find('<');
    if (part.empty() || part.back() != '>' || open == std::string::npos) return part;
    const std::string name = part.substr(0, open);
    if (name.find('@') != std::string::npos || oneLine(name) != name) return part;
    return stripped(part.substr(open + 1, part.size() - open - 2));
}

bool isAlphanumeric(char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9'); }

// Words divided by single points.
bool isDotted(std::string_view text, std::string_view further, std::size_t longestWord)
{
    std::size_t length = 0;
    for (const char c : text) {
        if (c == '.') {
            if (length == 0) return false;
            length = 0;
            continue;
        }
        const bool allowed = isAlphanumeric(c) || further.find(c) != std::string_view::npos;
        if (!allowed || ++length > longestWord) return false;
    }
    return length > 0;
}

bool isDomain(std::string_view domain)
{
    return domain.size() <= 253 && isDotted(domain, "-", 63) && domain.front() != '-' && domain.back() != '-' &&
           domain.find("-.") == std::string_view::npos && domain.find(".-") == std::string_view::npos;
}

} // namespace

std::vector<std::string> splitAddresses(std::string_view text)
{
    std::vector<std::string> result;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find_first_of(";,"), text.size());
        std::string address = withoutName(stripped(text.substr(0, end)));
        text.remove_prefix(std::min(end + 1, text.size()));
        const bool known = std::any_of(result.begin(), result.end(),
                                       [&](const std::string& other) { return equalsNoCase(other, address); });
        if (!address.empty() && !known) result.push_back(std::move(address));
    }
    return result;
}

std::string wireAddress(const std::string& address)
{
    const std::size_t at = address.rfind('@');
    if (at == std::string::npos) return address;
    const std::string domain = address.substr(at + 1);
    const bool ascii = std::all_of(domain.begin(), domain.end(), [](char c) { return c > 0; });
    if (ascii) return address;
    return address.substr(0, at + 1) + QUrl::toAce(QString::fromStdString(domain)).toStdString();
}

std::string complaintAbout(const std::string& address)
{
    constexpr std::string_view ofLocalPart = "!#$%&'*+-/=?^_`{|}~";
    const std::string wire = wireAddress(address);
    const std::size_t at = wire.rfind('@');
    const bool good = at <= 64 && wire.size() <= 254 &&
                      isDotted(std::string_view(wire).substr(0, at), ofLocalPart, 64) &&
                      isDomain(std::string_view(wire).substr(at + 1));
    if (good) return {};
    return "«" + oneLine(address) + "» no es una dirección de correo. Escríbala en la forma nombre@dominio.";
}

} // namespace dn::host
