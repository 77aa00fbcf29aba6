// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "today/search.h"

#include "base/no_case_pattern.h"
#include "base/text.h"
#include "data/failure_modes.h"

#include <optional>
#include <string>

namespace dn::today {
namespace {

using data::resumeNext;

bool holds(const screen::ListRows& rows, screen::ListRows::RowNumber row, const NoCasePattern& pattern)
{
    if (!pattern.isIn(rows.cellsFrom(row, 1))) return false; // one look at nearly every row, and not seventeen
    for (std::size_t cell = 1; cell < rows.cellCount(row); ++cell) // the row's own text is cell 0
        if (pattern.isIn(rows.cell(row, cell))) return true;
    return false;
}

// The first row, in the order shown, that holds the text.
std::optional<screen::ListItem> firstMatch(screen::ListView& list, const std::string& text)
{
    const NoCasePattern pattern(text);
    const screen::ListRows& rows = list.rows();
    for (std::size_t position = 0; position < rows.count(); ++position)
        if (holds(rows, rows.rowAt(position), pattern)) return list.ListItems()(static_cast<int>(position) + 1);
    return std::nullopt;
}

} // namespace

void Search::cmdOkBuscar_Click() // continue-on-error
{
    screen::TextBox& txtBuscar = elements_.top.txtBuscar;
    const std::string text = txtBuscar.Text();
    if (trimmed(text).empty()) {
        resumeNext([&] { dialogs_.say("Escriba un texto a buscar"); });
        resumeNext([&] { txtBuscar.SetFocus(); });
        return;
    }
    const bool prospects = elements_.prospects.lvw.Visible();
    screen::ListView& list = prospects ? elements_.prospects.lvw : elements_.projects.lvwProy;
    std::optional<screen::ListItem> match;
    resumeNext([&] { match = firstMatch(list, text); });
    if (!match) {
        resumeNext([&] { dialogs_.say("No se encontró ninguna coincidencia"); });
        resumeNext([&] { txtBuscar.SetFocus(); });
        return;
    }
    resumeNext([&] { match->Selected(true); });
    resumeNext([&] { txtBuscar.SetFocus(); });
    resumeNext([&] { match->EnsureVisible(); });
    resumeNext([&] {
        if (prospects)
            prospectDetail_.lvw_ItemClick(match);
        else
            projectDetail_.lvwProy_ItemClick(match);
    });
}

void Search::txtBuscar_KeyPress(int& KeyAscii) // continue-on-error
{
    if (KeyAscii == screen::TextBox::keyEnter) resumeNext([&] { cmdOkBuscar_Click(); });
}

} // namespace dn::today
