// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "base/runtime_error.h"
#include "screen/list_box.h"
#include "screen/panels.h"
#include "tests/support/listener.h"
#include "tests/support/out_of_reach.h"

#include <gmock/gmock.h>

#include <string>
#include <vector>

namespace dn::screen {
namespace {

using testing::ElementsAre;
using tests::Listener;

struct Lines : testing::Test {
    Form form{"form"};
    ListBox list{&form, "list"};
    Listener clicks{list.Click};
    Listener doubleClicks{list.DblClick};

    Lines()
    {
        form.Visible(true);
        for (const char* text : {"a@x.mx", "b@x.mx", "c@x.mx"})
            list.AddItem(text);
    }

    std::vector<bool> selected() const
    {
        std::vector<bool> result;
        for (int i = 0; i < list.ListCount(); ++i)
            result.push_back(list.Selected(i));
        return result;
    }
};

TEST_F(Lines, without_check_boxes_the_selected_line_is_the_one_of_the_index)
{
    list.Selected(1, true);

    EXPECT_EQ(list.ListIndex(), 1);
    EXPECT_THAT(selected(), ElementsAre(false, true, false));
    EXPECT_EQ(clicks.count(), 1);
}

TEST_F(Lines, without_check_boxes_only_the_selected_line_can_lose_the_selection)
{
    list.Selected(1, true);

    list.Selected(2, false);
    EXPECT_EQ(list.ListIndex(), 1);

    list.Selected(1, false);
    EXPECT_EQ(list.ListIndex(), -1);
}

TEST_F(Lines, with_check_boxes_several_lines_are_marked_and_the_index_stays)
{
    list.checkBoxes(true);

    list.Selected(0, true);
    list.Selected(2, true);
    list.Selected(0, true);

    EXPECT_TRUE(list.checkBoxes());
    EXPECT_THAT(selected(), ElementsAre(true, false, true));
    EXPECT_EQ(list.ListIndex(), -1);
    EXPECT_EQ(clicks.count(), 0);

    list.Selected(0, false);
    EXPECT_THAT(selected(), ElementsAre(false, false, true));
}

TEST_F(Lines, marking_tells_the_view)
{
    list.checkBoxes(true);
    const Listener entries(list.entriesChanged);

    list.Selected(1, true);

    EXPECT_EQ(entries.count(), 1);
}

TEST_F(Lines, a_line_out_of_range_is_an_error_with_and_without_check_boxes)
{
    for (const bool boxes : {false, true}) {
        SCOPED_TRACE(boxes);
        list.checkBoxes(boxes);
        for (const int index : {-1, 3}) {
            EXPECT_THROW(list.Selected(index), RuntimeError);
            EXPECT_THROW(list.Selected(index, true), RuntimeError);
            EXPECT_THROW(list.Selected(index, false), RuntimeError);
        }
    }
}

TEST_F(Lines, toggling_turns_the_mark_of_a_line)
{
    list.checkBoxes(true);

    list.toggle(1);
    EXPECT_THAT(selected(), ElementsAre(false, true, false));

    list.toggle(1);
    EXPECT_THAT(selected(), ElementsAre(false, false, false));
}

TEST_F(Lines, toggling_does_nothing_without_check_boxes)
{
    list.toggle(1);

    EXPECT_EQ(list.ListIndex(), -1);
}

TEST_F(Lines, a_double_click_selects_the_line_and_then_raises_the_event)
{
    std::vector<std::string> heard;
    const auto click = list.Click.connect([&] { heard.push_back("click " + std::to_string(list.ListIndex())); });
    const auto twice =
        list.DblClick.connect([&] { heard.push_back("double " + std::to_string(list.ListIndex())); });

    list.doubleClick(2);

    EXPECT_THAT(heard, ElementsAre("click 2", "double 2"));
}

TEST_F(Lines, gestures_are_refused_out_of_reach)
{
    list.checkBoxes(true);
    tests::outOfReach({&list, &form}, [&] {
        list.toggle(0);
        list.doubleClick(0);
    });

    EXPECT_THAT(selected(), ElementsAre(false, false, false));
    EXPECT_EQ(list.ListIndex(), -1);
    EXPECT_EQ(clicks.count(), 0);
    EXPECT_EQ(doubleClicks.count(), 0);
}

TEST_F(Lines, new_lines_after_Clear_carry_no_marks)
{
    list.checkBoxes(true);
    list.Selected(0, true);

    list.Clear();
    list.AddItem("d@x.mx");

    EXPECT_THAT(selected(), ElementsAre(false));
}

TEST_F(Lines, a_double_click_below_them_raises_the_event_alone)
{
    list.ListIndex(1);
    list.doubleClickEmpty();
    EXPECT_EQ(list.ListIndex(), 1);
    EXPECT_EQ(clicks.count(), 1);
    EXPECT_EQ(doubleClicks.count(), 1);
    tests::outOfReach({&list, &form}, [&] { list.doubleClickEmpty(); });
    EXPECT_EQ(doubleClicks.count(), 1);
}

} // namespace
} // namespace dn::screen
