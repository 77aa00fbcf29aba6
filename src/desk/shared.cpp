// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "desk/shared.h"

#include <array>

namespace dn::desk {

void NullATexto(const data::Value& value, std::string& result)
{
    if (value.isNull())
        result.clear();
    else if (value.kind() == data::Value::Kind::text)
        result = value.raw(); // spares a copy: most cells are texts
    else
        result = value.toText();
}

std::string_view textOrEmpty(const data::Value& value, std::string& room)
{
    using Kind = data::Value::Kind;
    const Kind kind = value.kind();
    if (kind == Kind::text || kind == Kind::whole || kind == Kind::number) return value.raw();
    NullATexto(value, room);
    return room;
}

screen::Colour ColorProyecto(const data::Value& code) { return code.isNull() ? 0 : ColorProyecto(code.toWhole()); }

screen::Colour ColorProyecto(std::int64_t code)
{
    static constexpr std::array<screen::Colour, 5> colours{0x000000, 0x0000FF, 0x004000, 0xFF0000, 0x800080};
    return code >= 1 && code <= 4 ? colours[static_cast<std::size_t>(code)] : 0;
}

void PaintProyItem(screen::ListItem& item, screen::Colour color) { item.Paint(color, color != 0); }

} // namespace dn::desk
