// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// A data grid: a list whose rows are the records of a table in memory. The operator sorts it by its headers,
// changes the text of its cells and copies them. Nothing of that reaches a database.
#pragma once

#include "base/export.h"
#include "screen/list_view.h"

#include <string>
#include <string_view>
#include <vector>

namespace dn::screen {

/// A table in memory, of text fields. A row is opened, filled and committed; then the grid shows it.
class DN_INTERNAL MemoryDataset {
public:
    explicit MemoryDataset(ListView& grid) : grid_(grid) {}

    /// Rows can be opened while it is active, fields be added while it is not.
    bool Active() const { return active_; }

    void Active(bool active) { active_ = active; }

    /// @param size characters that the field is meant for; a longer text is kept whole, for half an address is
    /// worse than none. @throws RuntimeError while active.
    void AddField(std::string name, int size);
    int FieldSize(std::string_view name) const;

    /// Opens a new row, all of whose fields are empty; one that was open and not committed is lost.
    /// @throws RuntimeError while not active.
    void Append();

    // The field of the row that is open. @throws RuntimeError for no such field, and without an open row.

    const std::string& FieldValue(std::string_view name) const;
    void FieldValue(std::string_view name, std::string text);

    /// Commits the open row. @throws RuntimeError without one.
    void Post();
    /// Goes to the first row shown; in an empty table nowhere.
    void First();
    int RecordCount() const { return grid_.ListItems().Count(); }

private:
    struct Field {
        std::string name;
        int size;
        std::string value; // in the open row
    };

    std::size_t find(std::string_view name) const;
    void requireOpenRow() const;

    ListView& grid_;
    std::vector<Field> fields_;
    bool active_ = false;
    bool rowIsOpen_ = false;
};

class DN_INTERNAL DataGrid : public ListView {
public:
    DataGrid(Container* parent, std::string name);

    void accept(ElementVisitor& visitor) override { visitor.visit(*this); }

    MemoryDataset& Dataset() { return dataset_; }

    /// Whether the operator may not change the cells.
    bool ReadOnly() const { return readOnly_; }

    void ReadOnly(bool readOnly) { set(readOnly_, readOnly); }

    // What the operator can do. Rows count from 0 in the order shown, columns from 0.

    /// Writes another text into a cell. A row that was sorted stays where it stands, and the grid counts as sorted
    /// no longer. Does nothing for a cell that is not there.
    void edit(std::size_t position, int column, std::string_view text);

    /// The most characters that he may type into a cell: as many as the field is meant for, or as there are in it.
    std::size_t room(std::size_t position, int column) const;

private:
    bool has(std::size_t position, int column) const;
    void sortBy(int column);

    MemoryDataset dataset_{*this};
    Subscription headerClicked_;
    bool readOnly_ = false;
};

} // namespace dn::screen
