// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "prospects/colour_marks.h"

#include "data/failure_modes.h"
#include "desk/row_key.h"
#include "desk/shared.h"

#include <string>

namespace dn::prospects {

struct ColourMarks::Target {
    screen::ListView& list;
    std::string table;
    std::string column;
};

ColourMarks::Target ColourMarks::target()
{
    if (tabs_.GetActiveTab() == desk::prospectos) return {prospects_.lvw, "ut_icontact", "uf_color"};
    return {projects_.lvwProy, "Proyecto", "UF_Color"};
}

void ColourMarks::bColor_Click(std::int16_t index) // trap
{
    const Target marked = target();
    auto row = marked.list.SelectedItem();
    if (!row) {
        dialogs_.say("Seleccione un elemento de la lista");
        return;
    }
    const auto mark = [&] {
        session_.cnn().execute("UPDATE " + marked.table + " SET " + marked.column + " = " + std::to_string(index) +
                               " WHERE Sys_PK = " + desk::keyDigits(*row));
        const screen::Colour colour = desk::ColorProyecto(index);
        desk::PaintProyItem(*row, colour);
        top_.picColors.BackColor(colour == 0 ? screen::white : colour);
    };
    data::trap(mark, [&](const std::string& failure) { dialogs_.say(failure); });
}

} // namespace dn::prospects
