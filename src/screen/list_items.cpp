// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The handles through which code reads and writes the rows of a list view.

#include "base/runtime_error.h"
#include "screen/list_view.h"

namespace dn::screen {

// ---- ListSubItem
// ----------------------------------------------------------------------------------------------

std::string_view ListSubItem::Text() const { return item_.rows().cell(item_.row(), cell_); }

Colour ListSubItem::ForeColor() const { return item_.rows().colour(item_.row(), cell_); }

void ListSubItem::ForeColor(Colour colour)
{
    item_.rows().edit(item_.row(), [&](RowDraft& row) {
        CellStyle& style = row.style(cell_);
        style.hasColour = true;
        style.colour = colour;
    });
    item_.looksChanged();
}

bool ListSubItem::Bold() const { return item_.Bold(); }

int ListSubItem::ReportIcon() const { return item_.rows().reportIcon(item_.row(), cell_); }

void ListSubItem::ReportIcon(int icon)
{
    item_.rows().edit(item_.row(), [&](RowDraft& row) { row.style(cell_).icon = iconNumber(icon); });
    item_.looksChanged();
}

// ---- ListSubItems
// ---------------------------------------------------------------------------------------------

void ListSubItems::Add(std::string_view text)
{
    const ListRows::RowNumber row = item_.row();
    item_.list_->rows_.addCell(row, text);
    item_.list_->textChanged(row);
}

void ListSubItems::outOfRange() { throw RuntimeError("El índice está fuera de los límites"); }

// ---- ListItem
// -------------------------------------------------------------------------------------------------

void ListItem::gone() { throw RuntimeError("El elemento ya no está en la lista"); }

void ListItem::textChanged() const { list_->textChanged(row()); }

void ListItem::looksChanged() const { list_->markChanged(row()); }

std::string_view ListItem::Key() const { return list_->rows_.key(row()); }

std::string_view ListItem::Text() const { return list_->rows_.cell(row(), 0); }

void ListItem::cell(std::size_t index, std::string_view text) const
{
    list_->rows_.edit(row(), [&](RowDraft& draft) { draft.replace(index, text); });
    textChanged();
}

std::string_view ListItem::ToolTipText() const { return list_->rows_.toolTip(row()); }

void ListItem::ToolTipText(std::string_view text)
{
    list_->rows_.edit(row(), [&](RowDraft& draft) { draft.toolTip = text; });
    looksChanged();
}

int ListItem::SmallIcon() const { return list_->rows_.smallIcon(row()); }

void ListItem::SmallIcon(int icon)
{
    list_->rows_.smallIcon(row(), icon);
    looksChanged();
}

Colour ListItem::ForeColor() const { return list_->rows_.colour(row(), 0); }

bool ListItem::Bold() const { return list_->rows_.bold(row()); }

void ListItem::Paint(Colour colour, bool bold)
{
    list_->rows_.edit(row(), [&](RowDraft& draft) {
        draft.foreColour = colour;
        draft.bold = bold;
        for (CellStyle& style : draft.styles)
            style.hasColour = false;
    });
    looksChanged();
}

bool ListItem::Checked() const { return list_->rows_.checked(row()); }

void ListItem::Checked(bool checked)
{
    if (checked == Checked()) return;
    list_->rows_.checked(row_, checked);
    looksChanged();
}

bool ListItem::Selected() const { return list_->selected_ == row(); }

void ListItem::Selected(bool selected)
{
    if (selected)
        list_->select(row());
    else if (Selected())
        list_->select(ListRows::none);
}

int ListItem::Index() const { return static_cast<int>(list_->rows().positionOf(row())) + 1; }

void ListItem::EnsureVisible() const { list_->revealed.emit(list_->rows().positionOf(row())); }

// ---- ListItems
// ------------------------------------------------------------------------------------------------

ListItem ListItems::Add(std::string_view key, std::string_view text, int smallIcon)
{
    if (list_->rows_.count() % ListView::manyRows == ListView::screenful) list_->growing.emit();
    const ListRows::RowNumber row = list_->rows_.add(key, text, smallIcon);
    if (list_->selected_ == ListRows::none) list_->select(list_->rows().rowAt(0));
    list_->textChanged(row);
    return list_->handle(row);
}

void ListItems::Clear()
{
    if (list_->rows_.count() == 0) {
        list_->cleared.emit(); // a load begins, and be it the first
        return;
    }
    list_->rows_.clear();
    list_->unsorted_ = false;
    list_->forgetChanges();
    ++list_->generation_;
    list_->selected_ = ListRows::none;
    list_->cleared.emit();
    list_->changed.emit();
}

void ListItems::Remove(std::string_view key)
{
    const ListRows::RowNumber row = list_->rows_.find(key);
    if (row == ListRows::none) throw RuntimeError("No se encontró el elemento");
    ListRows::RowNumber& selected = list_->selected_;
    list_->rows_.remove(row);
    if (selected == row)
        selected = ListRows::none;
    else if (selected != ListRows::none && selected > row)
        --selected;
    ++list_->generation_;
    list_->forgetChanges(); // every row that is left is shown anew
    list_->cleared.emit();
    list_->changed.emit();
    list_->markDirty();
}

int ListItems::Count() const { return static_cast<int>(list_->rows_.count()); }

bool ListItems::Contains(std::string_view key) const { return list_->rows_.find(key) != ListRows::none; }

ListItem ListItems::operator()(int index) const
{
    if (index < 1 || index > Count()) throw RuntimeError("El índice está fuera de los límites");
    return list_->handle(list_->rows().rowAt(static_cast<std::size_t>(index - 1)));
}

ListItem ListItems::operator()(std::string_view key) const
{
    const ListRows::RowNumber row = list_->rows_.find(key);
    if (row == ListRows::none) throw RuntimeError("No se encontró el elemento");
    return list_->handle(row);
}

} // namespace dn::screen
