// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "screen/data_grid.h"

#include "base/runtime_error.h"

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

// The same header again turns the order round.
void DataGrid::sortBy(int column)
{
    const bool again = Sorted() && SortKey() == column;
    SortOrder(again && SortOrder() == ascending ? descending : ascending);
    SortKey(column);
    Sorted(true);
}

} // namespace dn::screen
