// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "screen/data_grid.h"

#include "base/runtime_error.h"
#include "base/text.h"

#include <algorithm>
#include <utility>

namespace dn::screen {

void MemoryDataset::AddField(std::string name, int size)
{
    if (active_) throw RuntimeError("No se puede cambiar una tabla abierta");
    fields_.push_back({std::move(name), size, {}});
}

int MemoryDataset::FieldSize(std::string_view name) const { return fields_[find(name)].size; }

void MemoryDataset::Append()
{
    if (!active_) throw RuntimeError("La tabla está cerrada");
    for (Field& field : fields_)
        field.value.clear();
    rowIsOpen_ = true;
}

const std::string& MemoryDataset::FieldValue(std::string_view name) const
{
    requireOpenRow();
    return fields_[find(name)].value;
}

void MemoryDataset::FieldValue(std::string_view name, std::string text)
{
    requireOpenRow();
    fields_[find(name)].value = std::move(text);
}

void MemoryDataset::Post()
{
    requireOpenRow();
    rowIsOpen_ = false;
    if (fields_.empty()) return;
    const ListItem row = grid_.ListItems().Add({}, fields_.front().value);
    for (std::size_t i = 1; i < fields_.size(); ++i)
        row.ListSubItems().Add(fields_[i].value);
}

void MemoryDataset::First()
{
    if (RecordCount() == 0) return;
    ListItem first = grid_.ListItems()(1);
    first.Selected(true);
    first.EnsureVisible();
}

std::size_t MemoryDataset::find(std::string_view name) const
{
    for (std::size_t i = 0; i < fields_.size(); ++i)
        if (fields_[i].name == name) return i;
    throw RuntimeError("No existe el campo «" + std::string(name) + "»");
}

void MemoryDataset::requireOpenRow() const
{
    if (!rowIsOpen_) throw RuntimeError("No hay ningún registro abierto");
}

DataGrid::DataGrid(Container* parent, std::string name) : ListView(parent, std::move(name))
{
    headerClicked_ = ColumnClick.connect([this](const ColumnHeader& header) { sortBy(header.Index - 1); });
}

void DataGrid::edit(std::size_t position, int column, std::string_view text)
{
    if (!usable() || readOnly_ || !has(position, column)) return;
    const auto cell = static_cast<std::size_t>(column);
    const ListItem row = ListItems()(static_cast<int>(position) + 1);
    if (rows().cell(rows().rowAt(position), cell) == text) return;
    Sorted(false);
    row.cell(cell, text);
}

std::size_t DataGrid::room(std::size_t position, int column) const
{
    if (!has(position, column)) return 0;
    const auto cell = static_cast<std::size_t>(column);
    const auto field = static_cast<std::size_t>(dataset_.FieldSize(ColumnHeaders()[cell].Key));
    return std::max(field, length(rows().cell(rows().rowAt(position), cell)));
}

bool DataGrid::has(std::size_t position, int column) const
{
    if (position >= rows().count() || column < 0 || column >= static_cast<int>(ColumnHeaders().size()))
        return false;
    return static_cast<std::size_t>(column) < rows().cellCount(rows().rowAt(position));
}

// The same header again turns the order round.
void DataGrid::sortBy(int column)
{
    const bool again = Sorted() && SortKey() == column;
    SortOrder(again && SortOrder() == ascending ? descending : ascending);
    SortKey(column);
    Sorted(true);
}

} // namespace dn::screen
