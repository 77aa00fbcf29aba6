// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "data/driver_support.h"

#include "base/text.h"

namespace dn::data {
namespace {

std::string_view withoutZeroFraction(std::string_view raw)
{
    const std::size_t point = raw.rfind('.');
    if (point == std::string_view::npos || raw.find_first_not_of('0', point + 1) != std::string_view::npos)
        return raw;
    return raw.substr(0, point);
}

// Days 1 to 28 of the years 1000 to 9999 at whole seconds, which is nearly every cell: the server wrote it, so
// only the parts that it may leave at zero are looked at. The general reading costs several times as much.
bool plainlyValid(std::string_view raw)
{
    if ((raw.size() != 10 && raw.size() != 19) || raw[4] != '-') return false;
    const bool month = raw[5] != '0' || raw[6] != '0';
    const bool day = raw[8] == '1' || (raw[8] == '0' && raw[9] != '0') || (raw[8] == '2' && raw[9] != '9');
    return raw[0] != '0' && month && day;
}

bool isZeroDate(std::string_view raw) { return raw == "0000-00-00" || raw == "0000-00-00 00:00:00"; }

} // namespace

void requireText(std::string_view statement)
{
    if (statement.find_first_not_of(" \t\r\n") == std::string_view::npos)
        throw Error("42000", 0, "La instrucción SQL está vacía");
}

Error connectionClosed() { return {"08003", 0, "La conexión con la base de datos está cerrada"}; }

Error noRow() { return {"24000", 0, "No hay ningún registro activo"}; }

Value deliveredDate(std::string_view raw)
{
    using Kind = Value::Kind;
    if (plainlyValid(raw)) return {Kind::dateTime, raw};
    const std::string_view moment = withoutZeroFraction(raw);
    if (isZeroDate(moment)) return {};
    if (parseIso(moment)) return {Kind::dateTime, moment};
    return {Kind::text, raw};
}

std::string digitsOfBits(std::string_view bytes)
{
    std::uint64_t number = 0;
    for (const char byte : bytes)
        number = (number << 8U) | static_cast<unsigned char>(byte);
    return std::to_string(number);
}

std::string_view withoutPrefixes(std::string_view message)
{
    while (message.starts_with('[')) {
        const std::size_t end = message.find(']');
        if (end == std::string_view::npos) break;
        message.remove_prefix(end + 1);
    }
    return trimmed(message);
}

} // namespace dn::data
