// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The rows of a list, against a list of plain texts that does the same in the simplest way.

#include "base/collation.h"
#include "base/runtime_error.h"
#include "screen/copied_text.h"
#include "screen/list_rows.h"
#include "screen/list_view.h"
#include "screen/panels.h"
#include "tests/fuzz/input.h"
#include "tests/fuzz/targets.h"

#include <algorithm>
#include <vector>

namespace dn::fuzz {
namespace {

struct PlainRow {
    std::string key;
    std::vector<std::string> cells;
    bool checked = false;
};

class PlainRows {
public:
    std::size_t count() const { return rows_.size(); }
    const PlainRow& operator[](std::size_t row) const { return rows_[row]; }
    PlainRow& operator[](std::size_t row) { return rows_[row]; }

    /// The first row of a key; count() for none. An empty key is no key.
    std::size_t find(const std::string& key) const
    {
        const auto found = std::find_if(rows_.begin(), rows_.end(),
                                        [&](const PlainRow& row) { return !key.empty() && row.key == key; });
        return static_cast<std::size_t>(found - rows_.begin());
    }
    void add(PlainRow row)
    {
        order_.push_back(rows_.size());
        rows_.push_back(std::move(row));
    }
    void remove(std::size_t row)
    {
        rows_.erase(rows_.begin() + static_cast<std::ptrdiff_t>(row));
        std::erase(order_, row);
        for (std::size_t& number : order_)
            number -= number > row ? 1 : 0;
    }
    void clear()
    {
        rows_.clear();
        order_.clear();
    }
    void sort(std::size_t cell, bool descending)
    {
        const auto text = [&](std::size_t row) {
            return cell < rows_[row].cells.size() ? rows_[row].cells[cell] : std::string();
        };
        std::stable_sort(order_.begin(), order_.end(), [&](std::size_t left, std::size_t right) {
            const int before = compareSpanish(text(left), text(right));
            return descending ? before > 0 : before < 0;
        });
    }
    std::size_t at(std::size_t position) const { return order_[position]; }

private:
    std::vector<PlainRow> rows_;
    std::vector<std::size_t> order_;
};

/// What is done to both, step by step.
class Pair {
public:
    void step(Input& input)
    {
        switch (input.choice(8)) {
        case 0:
        case 1:
            add(input.text(), input.text());
            break;
        case 2:
            addCell(input.byte(), input.text());
            break;
        case 3:
            replace(input.byte(), input.byte(), input.text());
            break;
        case 4:
            sort(input.choice(4), input.flag());
            break;
        case 5:
            check(input.byte(), input.flag());
            break;
        case 6:
            remove(input.byte());
            break;
        default:
            if (input.choice(16) == 0) clear();
        }
    }

    void requireSame() const
    {
        require(list_.count() == plain_.count(), "no row is lost and none is made");
        for (std::size_t position = 0; position < plain_.count(); ++position) {
            const auto row = list_.rowAt(position);
            require(row == plain_.at(position), "rows stand in their order");
            require(list_.positionOf(row) == position, "a row knows its place");
            requireSame(row);
        }
    }

private:
    void requireSame(screen::ListRows::RowNumber row) const
    {
        const PlainRow& wanted = plain_[row];
        require(list_.key(row) == wanted.key && list_.checked(row) == wanted.checked,
                "a row keeps its key and check");
        require(list_.cellCount(row) == wanted.cells.size(), "a row keeps the count of its cells");
        for (std::size_t cell = 0; cell < wanted.cells.size(); ++cell)
            require(list_.cell(row, cell) == wanted.cells[cell], "a row keeps its cells");
        require(list_.cell(row, wanted.cells.size()).empty(), "a cell that is not there is empty");
        if (!wanted.key.empty()) require(list_.find(wanted.key) == row, "a row is found by its key");
    }

    screen::ListRows::RowNumber some(std::size_t which) const
    {
        return static_cast<screen::ListRows::RowNumber>(which % plain_.count());
    }

    void add(const std::string& key, const std::string& text)
    {
        bool refused = false;
        try {
            list_.add(key, text, 0);
        } catch (const RuntimeError&) {
            refused = true;
        }
        require(refused == (plain_.find(key) < plain_.count()), "a repeated key is refused, and no other");
        if (!refused) plain_.add({key, {text}});
    }
    void addCell(std::size_t which, const std::string& text)
    {
        if (plain_.count() == 0) return;
        list_.edit(some(which), [&](screen::RowDraft& draft) { draft.add(text); });
        plain_[some(which)].cells.push_back(text);
    }
    void replace(std::size_t which, std::size_t cell, const std::string& text)
    {
        if (plain_.count() == 0) return;
        std::vector<std::string>& cells = plain_[some(which)].cells;
        cell %= cells.size();
        list_.edit(some(which), [&](screen::RowDraft& draft) { draft.replace(cell, text); });
        cells[cell] = text;
    }
    void sort(std::size_t cell, bool descending)
    {
        list_.sort(cell, descending);
        plain_.sort(cell, descending);
    }
    void check(std::size_t which, bool checked)
    {
        if (plain_.count() == 0) return;
        list_.checked(some(which), checked);
        plain_[some(which)].checked = checked;
    }
    void remove(std::size_t which)
    {
        if (plain_.count() == 0) return;
        const auto row = some(which);
        list_.remove(row);
        plain_.remove(row);
    }
    void clear()
    {
        list_.clear();
        plain_.clear();
    }

    screen::ListRows list_;
    PlainRows plain_;
};

/// The first cell of a text of lines and tabs as spreadsheets read it.
std::string firstCell(std::string_view text)
{
    if (!text.starts_with('"')) return std::string(text.substr(0, text.find_first_of("\t\n")));
    std::string cell;
    for (std::size_t at = 1; at < text.size(); ++at) {
        if (text[at] != '"') {
            cell += text[at];
            continue;
        }
        if (!text.substr(at + 1).starts_with('"')) break;
        cell += text[at++];
    }
    return cell;
}

} // namespace

void rows(Input& input)
{
    Pair pair;
    while (!input.empty())
        pair.step(input);
    pair.requireSame();
}

void copies(Input& input)
{
    const std::string first = input.text();
    const std::string second = input.rest();
    screen::UserControl root("root");
    screen::ListView list(&root, "lvw");
    list.AddColumn("Nombre", 1440, "Nombre");
    list.AddColumn("Empresa", 1440, "Empresa");
    list.ListItems().Add("K1", first).ListSubItems().Add(second);
    const std::string both = copiedText(list, {{0, 9, 0, 9}});
    require(firstCell(both) == first, "the first cell reads back");
    require(firstCell(copiedText(list, {{0, 0, 1, 1}})) == second, "the second cell reads back");
    require(both == copiedText(list, {{0, 0, 0, 0}}) + "\t" + copiedText(list, {{0, 0, 1, 1}}),
            "a tab stands between the cells");
}

} // namespace dn::fuzz
