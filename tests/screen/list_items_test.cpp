// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// Rows of a list view by key and by place, their cells, and what becomes of a handle when its row goes.

#include "base/runtime_error.h"
#include "screen/list_view.h"
#include "tests/support/listener.h"
#include "tests/support/prospect_list.h"

#include <gmock/gmock.h>

#include <functional>
#include <limits>
#include <string>
#include <vector>

namespace dn::screen {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::ThrowsMessage;
using tests::addRow;
using tests::column;
using tests::Listener;

struct Rows : testing::Test, tests::ListOnScreen {};

TEST_F(Rows, keep_what_they_were_added_with)
{
    const ListItem item = list.ListItems().Add("K123", "Contacto", 4);
    item.ListSubItems().Add("Ana");
    item.ListSubItems().Add("");

    EXPECT_EQ(item.Key(), "K123");
    EXPECT_EQ(item.Text(), "Contacto");
    EXPECT_EQ(item.SmallIcon(), 4);
    EXPECT_EQ(item.ListSubItems().Count(), 2);
    EXPECT_EQ(item.ListSubItems()(1).Text(), "Ana");
    EXPECT_EQ(item.ListSubItems()(2).Text(), "");
    EXPECT_EQ(item.ForeColor(), 0U);
    EXPECT_FALSE(item.Bold());
    EXPECT_FALSE(item.Checked());
    EXPECT_EQ(item.ToolTipText(), "");
    EXPECT_EQ(item.Index(), 1);
}

TEST_F(Rows, are_found_by_place_and_by_key)
{
    for (int i = 1; i <= 10'000; ++i)
        list.ListItems().Add("K" + std::to_string(i), std::to_string(i));

    ASSERT_EQ(list.ListItems().Count(), 10'000);
    for (int i = 1; i <= 10'000; ++i) {
        const std::string key = "K" + std::to_string(i);
        ASSERT_EQ(list.ListItems()(i).Key(), key);
        ASSERT_EQ(list.ListItems()(key).Text(), std::to_string(i));
    }
}

TEST_F(Rows, with_a_repeated_key_are_refused_and_nothing_is_added)
{
    addRow(list, "K1", {"one", "sub"});
    addRow(list, "K2", {"two"});
    list.takeChanges();
    const Listener dirty(list.dirty);

    EXPECT_THAT([&] { list.ListItems().Add("K1", "again"); },
                ThrowsMessage<RuntimeError>("La clave no es única en la colección"));
    EXPECT_THROW(list.ListItems().Add("K2", "again"), RuntimeError);

    EXPECT_THAT(column(list), ElementsAre("one", "two"));
    EXPECT_EQ(list.ListItems()("K1").ListSubItems().Count(), 1);
    EXPECT_EQ(dirty.count(), 0);
}

TEST_F(Rows, that_are_missing_are_an_error)
{
    addRow(list, "K1", {"one"});

    EXPECT_THAT([&] { list.ListItems()("K2"); }, ThrowsMessage<RuntimeError>("No se encontró el elemento"));
    EXPECT_THROW(list.ListItems()("k1"), RuntimeError);
    EXPECT_THROW(list.ListItems().Remove("K2"), RuntimeError);
    for (const int place : {0, 2, -1, std::numeric_limits<int>::max(), std::numeric_limits<int>::min()})
        EXPECT_THROW(list.ListItems()(place), RuntimeError) << place;
}

TEST_F(Rows, without_a_key_may_repeat_and_are_never_found_by_it)
{
    list.ListItems().Add("", "one");
    list.ListItems().Add("", "two");

    EXPECT_THAT(column(list), ElementsAre("one", "two"));
    EXPECT_THROW(list.ListItems()(std::string_view()), RuntimeError);
    EXPECT_THROW(list.ListItems().Remove(""), RuntimeError);
}

TEST_F(Rows, give_sub_items_from_1_to_their_count)
{
    const ListItem item = addRow(list, "K1", {"text", "a", "b"});

    EXPECT_EQ(item.ListSubItems()(2).Text(), "b");
    for (const int index : {0, 3, -1, std::numeric_limits<int>::max()})
        EXPECT_THAT([&] { item.ListSubItems()(index); },
                    ThrowsMessage<RuntimeError>("El índice está fuera de los límites"))
            << index;
}

TEST_F(Rows, take_further_sub_items_after_others_were_added)
{
    const ListItem first = addRow(list, "K1", {"one", "a"});
    addRow(list, "K2", {"two"});

    first.ListSubItems().Add("late");

    EXPECT_EQ(first.ListSubItems().Count(), 2);
    EXPECT_EQ(first.ListSubItems()(1).Text(), "a");
    EXPECT_EQ(first.ListSubItems()(2).Text(), "late");
    EXPECT_EQ(list.ListItems()("K1"), first);
}

TEST_F(Rows, keep_colours_icons_and_tip_through_each_other_and_through_further_rows)
{
    ListItem item = addRow(list, "K1", {"text", "a", "b"});
    for (const bool closed : {false, true}) {
        SCOPED_TRACE(closed);
        if (closed) addRow(list, "K2", {"two"});
        item.SmallIcon(closed ? 2 : 1);
        item.ToolTipText(closed ? "cerrada" : "abierta");
        item.ListSubItems()(1).ReportIcon(closed ? 6 : 5);
        item.ListSubItems()(2).ForeColor(closed ? 0xFF : 0xFF00);
        item.Checked(!closed);

        EXPECT_EQ(item.SmallIcon(), closed ? 2 : 1);
        EXPECT_EQ(item.ToolTipText(), closed ? "cerrada" : "abierta");
        EXPECT_EQ(item.ListSubItems()(1).ReportIcon(), closed ? 6 : 5);
        EXPECT_EQ(item.ListSubItems()(2).ReportIcon(), 0);
        EXPECT_EQ(item.ListSubItems()(2).ForeColor(), closed ? 0xFFU : 0xFF00U);
        EXPECT_EQ(item.ListSubItems()(1).ForeColor(), 0U);
        EXPECT_EQ(item.ForeColor(), 0U);
        EXPECT_EQ(item.Checked(), !closed);
        EXPECT_EQ(item.ListSubItems()(2).Text(), "b");
    }
}

TEST_F(Rows, painted_take_one_colour_and_weight_in_all_cells)
{
    ListItem item = addRow(list, "K1", {"text", "a", "b"});
    item.ListSubItems()(1).ForeColor(0x004000);
    item.ListSubItems()(2).ReportIcon(6);

    item.Paint(0x0000FF, true);

    EXPECT_EQ(item.ForeColor(), 0x0000FFU);
    EXPECT_TRUE(item.Bold());
    for (const int cell : {1, 2}) {
        EXPECT_EQ(item.ListSubItems()(cell).ForeColor(), 0x0000FFU);
        EXPECT_TRUE(item.ListSubItems()(cell).Bold());
    }
    EXPECT_EQ(item.ListSubItems()(2).ReportIcon(), 6);

    item.Paint(0, false);
    EXPECT_EQ(item.ListSubItems()(1).ForeColor(), 0U);
    EXPECT_FALSE(item.Bold());
}

TEST_F(Rows, show_no_icon_for_a_number_that_no_image_list_has)
{
    ListItem item = addRow(list, "K1", {"text", "a"});

    item.SmallIcon(261);
    item.ListSubItems()(1).ReportIcon(261);
    EXPECT_EQ(item.SmallIcon(), 0);
    EXPECT_EQ(item.ListSubItems()(1).ReportIcon(), 0);

    item.ListSubItems()(1).ReportIcon(-1);
    EXPECT_EQ(item.ListSubItems()(1).ReportIcon(), 0);
}

TEST_F(Rows, go_with_Remove_and_the_rest_keeps_its_order)
{
    for (const char* key : {"K1", "K2", "K3"})
        addRow(list, key, {key, "sub"});

    list.ListItems().Remove("K2");

    EXPECT_THAT(column(list), ElementsAre("K1", "K3"));
    EXPECT_EQ(list.ListItems()("K3").Index(), 2);
    EXPECT_EQ(list.ListItems()("K3").ListSubItems()(1).Text(), "sub");
    EXPECT_THROW(list.ListItems()("K2"), RuntimeError);
    addRow(list, "K2", {"again"});
    EXPECT_THAT(column(list), ElementsAre("K1", "K3", "again"));
}

TEST_F(Rows, all_go_with_Clear)
{
    addRow(list, "K1", {"one"});

    list.ListItems().Clear();

    EXPECT_EQ(list.ListItems().Count(), 0);
    EXPECT_THAT(column(list), IsEmpty());
    EXPECT_THROW(list.ListItems()("K1"), RuntimeError);
    addRow(list, "K1", {"again"});
    EXPECT_THAT(column(list), ElementsAre("again"));
}

// Everything that a handle can be asked for or told.
void expectEveryUseThrows(ListItem item)
{
    const std::vector<std::function<void()>> uses{
        [&] { item.Key(); },
        [&] { item.Text(); },
        [&] { item.ListSubItems().Count(); },
        [&] { item.ListSubItems()(1); },
        [&] { item.ListSubItems().Add("x"); },
        [&] { item.ToolTipText(); },
        [&] { item.ToolTipText("x"); },
        [&] { item.SmallIcon(); },
        [&] { item.SmallIcon(1); },
        [&] { item.ForeColor(); },
        [&] { item.Bold(); },
        [&] { item.Paint(1, true); },
        [&] { item.Checked(); },
        [&] { item.Checked(true); },
        [&] { item.Selected(); },
        [&] { item.Selected(true); },
        [&] { item.Selected(false); },
        [&] { item.Index(); },
        [&] { item.EnsureVisible(); },
    };
    for (std::size_t i = 0; i < uses.size(); ++i)
        EXPECT_THAT(uses[i], ThrowsMessage<RuntimeError>("El elemento ya no está en la lista")) << "use " << i;
}

TEST_F(Rows, leave_handles_that_throw_when_the_list_is_cleared)
{
    const ListItem item = addRow(list, "K1", {"one", "sub"});
    ListSubItem cell = item.ListSubItems()(1);

    list.ListItems().Clear();
    addRow(list, "K1", {"again", "sub"});

    expectEveryUseThrows(item);
    EXPECT_THROW(cell.Text(), RuntimeError);
    EXPECT_THROW(cell.ForeColor(1), RuntimeError);
    EXPECT_THROW(cell.ReportIcon(1), RuntimeError);
    EXPECT_EQ(list.ListItems()("K1").ForeColor(), 0U);
}

TEST_F(Rows, leave_handles_that_throw_when_one_is_removed)
{
    addRow(list, "K1", {"one", "sub"});
    const ListItem item = addRow(list, "K2", {"two", "sub"});

    list.ListItems().Remove("K2");

    expectEveryUseThrows(item);
}

TEST_F(Rows, keep_their_handles_when_an_empty_list_is_cleared_and_rows_are_added)
{
    list.ListItems().Clear();
    const ListItem item = addRow(list, "K1", {"one"});
    addRow(list, "K2", {"two"});

    EXPECT_EQ(item.Text(), "one");
}

TEST_F(Rows, scroll_into_view_by_their_position)
{
    addRow(list, "K1", {"b"});
    const ListItem item = addRow(list, "K2", {"a"});
    std::vector<std::size_t> revealed;
    const auto watch = list.revealed.connect([&](std::size_t position) { revealed.push_back(position); });

    item.EnsureVisible();
    list.Sorted(true);
    item.EnsureVisible();

    EXPECT_THAT(revealed, ElementsAre(1, 0));
}

TEST_F(Rows, of_which_one_goes_keep_the_selection_of_another)
{
    for (const char* key : {"K1", "K2", "K3", "K4"})
        addRow(list, key, {key});
    list.ListItems()("K2").Selected(true);

    list.ListItems().Remove("K3");
    EXPECT_EQ(list.SelectedItem()->Key(), "K2") << "one behind it";
    list.ListItems().Remove("K1");
    EXPECT_EQ(list.SelectedItem()->Key(), "K2") << "one ahead of it";
    list.ListItems().Remove("K2");
    EXPECT_EQ(list.SelectedItem(), std::nullopt);
    list.ListItems().Remove("K4");
    EXPECT_EQ(list.SelectedItem(), std::nullopt);
}

TEST_F(Rows, without_a_key_stay_when_another_goes)
{
    list.ListItems().Add("", "one");
    addRow(list, "K1", {"two"});
    list.ListItems().Add("", "three");
    addRow(list, "K2", {"four"});

    list.ListItems().Remove("K1");

    EXPECT_THAT(column(list), ElementsAre("one", "three", "four"));
    EXPECT_EQ(list.ListItems()("K2").Index(), 3);
    EXPECT_THROW(list.ListItems()(std::string_view()), RuntimeError);
}

} // namespace
} // namespace dn::screen
