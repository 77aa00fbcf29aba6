// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The columns as the operator arranged them, for a host that remembers them.

#include "screen/qt/column_layout.h"
#include "screen/qt/ctr_dn_contacts_widget.h"
#include "screen/qt/list_view_view.h"
#include "tests/screen/qt/list_view_fixture.h"

#include <QHeaderView>

namespace dn::tests {
namespace {

using namespace dn::screen::qt;
using testing::ElementsAre;

class ColumnLayoutTest : public ListViewTest {
protected:
    QHeaderView& header() { return *table().horizontalHeader(); }
};

TEST_F(ColumnLayoutTest, comes_back_as_it_was_taken)
{
    show();
    const ColumnLayout designed = columnLayoutOf(header());
    EXPECT_THAT(designed.order, ElementsAre(0, 1, 2));
    header().resizeSection(1, 77);
    header().moveSection(2, 0);
    const ColumnLayout arranged = columnLayoutOf(header());
    EXPECT_THAT(arranged.order, ElementsAre(2, 0, 1));
    EXPECT_EQ(arranged.widths[1], 77);
    EXPECT_TRUE(arrangeColumns(header(), designed));
    EXPECT_EQ(columnLayoutOf(header()), designed);
    EXPECT_TRUE(arrangeColumns(header(), arranged));
    EXPECT_EQ(columnLayoutOf(header()), arranged);
}

TEST_F(ColumnLayoutTest, that_is_of_other_columns_changes_nothing)
{
    show();
    const ColumnLayout before = columnLayoutOf(header());
    for (const ColumnLayout& wrong : {ColumnLayout{{1, 0}, {90, 90}}, ColumnLayout{{1, 0, 1}, {90, 90, 90}},
                                      ColumnLayout{{1, 0, 3}, {90, 90, 90}}, ColumnLayout{{1, 0, 2}, {90, 90}},
                                      ColumnLayout{{1, 0, 2}, {90, 0, 90}}, ColumnLayout{{1, 0, 2}, {90, -5, 90}},
                                      ColumnLayout{{1, 0, 2}, {90, 90, 2'000'000}}, ColumnLayout{}}) {
        EXPECT_FALSE(arrangeColumns(header(), wrong));
        EXPECT_EQ(columnLayoutOf(header()), before);
    }
}

TEST_F(ColumnLayoutTest, says_nothing_of_the_order_of_the_rows)
{
    addRows(0, 3);
    show();
    const ColumnLayout before = columnLayoutOf(header());
    list.SortKey(1);
    list.SortOrder(screen::ListView::descending);
    list.Sorted(true);
    settle();
    EXPECT_TRUE(arrangeColumns(header(), before));
    EXPECT_EQ(header().sortIndicatorSection(), 1);
    EXPECT_EQ(header().sortIndicatorOrder(), Qt::DescendingOrder);
}

TEST(ColumnLayouts, are_those_of_all_five_lists)
{
    CtrDnContactsWidget one;
    ColumnLayouts layouts = one.columnLayouts();
    std::vector<std::string> names;
    for (const auto& [name, layout] : layouts)
        names.push_back(name);
    EXPECT_THAT(names, ElementsAre("lvw", "lvwContactos", "lvwHoy", "lvwOrganizaciones", "lvwProy"));
    EXPECT_EQ(layouts["lvw"].order.size(), 17U);
    EXPECT_EQ(layouts["lvwProy"].widths[5], 200); // 3000 twips
    std::swap(layouts["lvwHoy"].order.front(), layouts["lvwHoy"].order.back());
    layouts["lvwContactos"].widths[0] = 123;
    layouts["lvw"].widths.pop_back(); // of another version
    layouts["lvwOtra"] = {};
    CtrDnContactsWidget next;
    next.columnLayouts(layouts);
    EXPECT_EQ(next.columnLayouts()["lvwHoy"], layouts["lvwHoy"]);
    EXPECT_EQ(next.columnLayouts()["lvwContactos"].widths[0], 123);
    EXPECT_EQ(next.columnLayouts()["lvw"], one.columnLayouts()["lvw"]);
}

} // namespace
} // namespace dn::tests
