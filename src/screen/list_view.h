// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// A list with report columns, icons and check boxes: the main element of every tab.
#pragma once

#include "base/export.h"
#include "screen/element.h"
#include "screen/image_list.h"
#include "screen/list_rows.h"
#include "screen/visitor.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace dn::screen {

class ListSubItem;
class ListSubItems;
class ListView;

/// A report column. Column 0 shows the rows' own texts, column n their sub-item n.
struct DN_INTERNAL ColumnHeader {
    int Index = 0; ///< counted from 1
    std::string Text;
    Twips Width = 1440;
    std::string Key;
};

/// A row of a list view: a light handle, to be copied freely. Its texts are good until the list changes.
/// A handle outlives its row: every use of it then throws RuntimeError.
class DN_INTERNAL ListItem {
public:
    ListItem(ListView& list, ListRows::RowNumber row, std::uint32_t generation)
        : list_(&list), row_(row), generation_(generation)
    {
    }

    bool operator==(const ListItem& other) const = default;

    std::string_view Key() const;
    std::string_view Text() const;
    screen::ListSubItems ListSubItems() const;
    /// Writes the text of a cell that the row has, counted from 0; cell 0 is the row's own text.
    void cell(std::size_t index, std::string_view text) const;
    std::string_view ToolTipText() const;
    void ToolTipText(std::string_view text);
    int SmallIcon() const; ///< a number of the list's images, 0 for none
    void SmallIcon(int icon);
    Colour ForeColor() const;
    bool Bold() const;
    /// Gives the row's text and all its sub-items one colour and one weight.
    void Paint(Colour colour, bool bold);
    bool Checked() const;
    void Checked(bool checked);
    bool Selected() const;
    void Selected(bool selected);
    int Index() const; ///< the place in the order shown, counted from 1
    /// Scrolls until the row is in view.
    void EnsureVisible() const;

private:
    friend class screen::ListSubItems;
    friend class ListSubItem;

    ListRows::RowNumber row() const;
    ListRows& rows() const;
    [[noreturn]] static void gone();
    void textChanged() const;
    void looksChanged() const;

    ListView* list_;
    ListRows::RowNumber row_;
    std::uint32_t generation_;
};

/// A cell of a row, beside the row's own text.
class DN_INTERNAL ListSubItem {
public:
    ListSubItem(const ListItem& item, std::size_t cell) : item_(item), cell_(cell) {}

    std::string_view Text() const;
    Colour ForeColor() const;
    void ForeColor(Colour colour);
    bool Bold() const;
    int ReportIcon() const; ///< a number of the list's images, 0 for none
    void ReportIcon(int icon);

private:
    ListItem item_;
    std::size_t cell_;
};

/// The sub-items of a row, counted from 1.
class DN_INTERNAL ListSubItems {
public:
    explicit ListSubItems(const ListItem& item) : item_(item) {}

    void Add(std::string_view text);
    int Count() const;
    /// @throws RuntimeError for an index below 1 or beyond the last one.
    ListSubItem operator()(int index) const;

private:
    [[noreturn]] static void outOfRange();

    ListItem item_;
};

/// All rows of a list view, in the order shown.
class DN_INTERNAL ListItems {
public:
    explicit ListItems(ListView& list) : list_(&list) {}

    /// Adds a row behind the others, or where it belongs in a sorted list. The first row becomes the selected
    /// one when none is selected.
    /// @throws RuntimeError for a key that is there already; nothing is added then.
    ListItem Add(std::string_view key, std::string_view text, int smallIcon = 0);
    void Clear();
    void Remove(std::string_view key);
    int Count() const;
    /// Whether there is a row of that key; for whoever expects repeated keys and would not pay for a failing Add.
    bool Contains(std::string_view key) const;
    /// @param index counted from 1. @throws RuntimeError out of range.
    ListItem operator()(int index) const;
    /// @throws RuntimeError for a key that is not there.
    ListItem operator()(std::string_view key) const;

private:
    ListView* list_;
};

/// What a view has not shown yet.
struct DN_INTERNAL ListChanges {
    bool order = false;                ///< the rows stand in another order
    std::size_t firstChanged = 0;      ///< positions of rows that look different: from here ...
    std::size_t behindLastChanged = 0; ///< ... up to here; equal for none
};

class DN_INTERNAL ListView : public Element {
public:
    static constexpr int ascending = 0;
    static constexpr int descending = 1;

    ListView(Container* parent, std::string name) : Element(parent, std::move(name)) {}

    void accept(ElementVisitor& visitor) override { visitor.visit(*this); }

    screen::ListItems ListItems() { return screen::ListItems(*this); }

    /// The selected row, or nothing.
    std::optional<ListItem> SelectedItem();

    const std::vector<ColumnHeader>& ColumnHeaders() const { return columns_; }

    void AddColumn(std::string text, Twips width, std::string key = {});
    void ClearColumns();

    const ImageList* SmallIcons() const { return images_; }

    void SmallIcons(const ImageList* images) { set(images_, images); }

    bool CheckBoxes() const { return checkBoxes_; }

    void CheckBoxes(bool boxes) { set(checkBoxes_, boxes); }

    int SortKey() const { return sortKey_; } ///< column counted from 0

    void SortKey(int column);

    int SortOrder() const { return sortOrder_; } ///< ascending or descending

    void SortOrder(int order);

    bool Sorted() const { return sorted_; }

    /// Sorts the rows by the text of the key's column and keeps them so.
    void Sorted(bool sorted);

    // What the operator can do. Positions count from 0 in the order shown; one that is not there does
    // nothing.
    void clickRow(std::size_t position);
    void doubleClickRow(std::size_t position);
    void doubleClickEmpty(); ///< a double click beside the rows
    void toggleCheck(std::size_t position);
    void clickHeader(int column); ///< counted from 0

    Signal<ListItem> ItemClick;
    Signal<> DblClick;
    Signal<ListItem> ItemCheck;
    Signal<const ColumnHeader&> ColumnClick;

    // For the view that shows the rows where they lie.
    const ListRows& rows() const;
    std::optional<std::size_t> selectedPosition() const;
    /// What changed since the last call; the next change raises `dirty` anew.
    ListChanges takeChanges();
    static constexpr std::size_t screenful = 64; ///< rows, more than a usual window shows
    static constexpr std::size_t manyRows = 1024;
    Signal<> growing; ///< in the middle of a load: behind the first screenful, then once in many rows
    /// Rows are gone, if there were any: nothing that was shown is there any more.
    Signal<> cleared;
    Signal<> dirty; ///< raised once, at the first change after `takeChanges`
    Signal<> columnsChanged;
    Signal<std::size_t> revealed; ///< a position to scroll to

private:
    friend class ListItem;
    friend class screen::ListItems;
    friend class screen::ListSubItems;

    ListItem handle(ListRows::RowNumber row) { return {*this, row, generation_}; }

    void select(ListRows::RowNumber row);
    void keepSorted() const;
    void sortingChanged();
    void textChanged(ListRows::RowNumber row);
    void markChanged(ListRows::RowNumber row);
    void forgetChanges();
    void markDirty();

    mutable ListRows rows_;         // sorted late, when somebody asks for the order
    mutable bool unsorted_ = false; // the sorted flag is set and the order is not up to date
    ListChanges changes_;
    ListRows::RowNumber marked_ = ListRows::none; // the row marked last since the changes were taken
    bool dirty_ = false;
    ListRows::RowNumber selected_ = ListRows::none;
    std::uint32_t generation_ = 0; // one more each time that row numbers lose their meaning

    std::vector<ColumnHeader> columns_;
    const ImageList* images_ = nullptr;
    int sortKey_ = 0;
    int sortOrder_ = ascending;
    bool sorted_ = false;
    bool checkBoxes_ = false;
};

// What every cell of a load goes through. The handles stay in registers when these are compiled in place; a copy
// in memory waits for all that was written before it.

inline ListRows::RowNumber ListItem::row() const
{
    if (generation_ != list_->generation_) gone();
    return row_;
}

inline ListRows& ListItem::rows() const { return list_->rows_; }

inline screen::ListSubItems ListItem::ListSubItems() const { return screen::ListSubItems(*this); }

inline int ListSubItems::Count() const { return static_cast<int>(item_.rows().cellCount(item_.row())) - 1; }

inline ListSubItem ListSubItems::operator()(int index) const
{
    if (index < 1 || index > Count()) outOfRange();
    return {item_, static_cast<std::size_t>(index)};
}

} // namespace dn::screen
