// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "directories/loader.h"

#include "data/error.h"
#include "data/failure_modes.h"
#include "directories/statement.h"

#include <optional>
#include <string>
#include <vector>

namespace dn::directories {
namespace {

// Builds the rows of one load. The columns are looked up once; the buffers are used again for every row. A column
// that is missing fails at its cell, as any other failure of a row does.
class RowBuilder {
public:
    RowBuilder(const Kind& kind, const data::Recordset& records) : records_(records), sysPk_(find("Sys_PK"))
    {
        for (const Field& field : kind.fields)
            cells_.push_back(find(field.name));
    }

    void addTo(screen::ListView& list)
    {
        key_.assign("PK").append(value(sysPk_).toText());
        const screen::ListItem row = list.ListItems().Add(key_, text(cells_.front()));
        screen::ListSubItems subItems = row.ListSubItems();
        for (std::size_t i = 1; i < cells_.size(); ++i)
            subItems.Add(text(cells_[i]));
    }

private:
    struct Column {
        const char* name;
        std::optional<std::size_t> position;
    };

    Column find(const char* name) const { return {name, records_.Fields().find(name)}; }

    data::Value value(const Column& column) const
    {
        if (column.position) return records_.value(*column.position);
        throw data::Error("42S22", 0, "No existe la columna " + std::string(column.name));
    }

    // Texts, which almost all cells are, go to the list without a copy on the way.
    std::string_view text(const Column& column)
    {
        const data::Value cell = value(column);
        if (cell.kind() == data::Value::Kind::text) return cell.raw();
        return other_ = cell.toText();
    }

    const data::Recordset& records_;
    Column sysPk_;
    std::vector<Column> cells_; // the row's own text, then the sub-items
    std::string key_;
    std::string other_;
};

void addRows(const Kind& kind, screen::ListView& list, data::Recordset& records)
{
    if (records.Eof()) return;
    RowBuilder builder(kind, records);
    for (; !records.Eof(); records.MoveNext())
        builder.addTo(list);
}

} // namespace

void Loader::load(const Kind& kind, screen::ListView& list,
                  std::initializer_list<desk::Button*> needRow) // trap
{
    const auto body = [&] {
        const std::int32_t agente = top_.cbAgente.ListIndex() < 0 ? 0 : top_.cbAgente.selectedData();
        const auto records = session_.cnn().execute(directoryStatement(kind, session_.isMySql(), agente));
        list.ListItems().Clear();
        if (records) addRows(kind, list, *records);
        const bool any = list.ListItems().Count() >= 1;
        for (desk::Button* button : needRow)
            button->Enabled(any);
        if (const auto selected = list.SelectedItem()) list.ListItems()(selected->Key()).Selected(true);
        counters_.UpdateCounters();
    };
    data::trap(body, [&](const std::string& failure) { dialogs_.say(failure); });
}

std::int32_t Loader::agentForNewEntry() const
{
    return top_.cbAgente.ListIndex() >= 1 ? top_.cbAgente.selectedData() : 0;
}

} // namespace dn::directories
