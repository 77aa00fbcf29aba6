// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// Typing, editing and setting the text of a box.

#include "screen/panels.h"
#include "screen/text_box.h"
#include "tests/support/listener.h"
#include "tests/support/out_of_reach.h"

#include <gmock/gmock.h>

#include <string>
#include <vector>

namespace dn::screen {
namespace {

using testing::ElementsAre;
using tests::Listener;
using tests::outOfReach;

struct Box : testing::Test {
    UserControl control{"control"};
    PicturePanel panel{&control, "panel"};
    TextBox box{&panel, "box"};
    Listener changes{box.Change};
};

TEST_F(Box, raises_Change_only_when_the_text_becomes_another)
{
    box.Text("");
    EXPECT_EQ(changes.count(), 0);

    box.Text("Ana");
    box.Text("Ana");
    EXPECT_EQ(changes.count(), 1);

    box.edit("Ana");
    EXPECT_EQ(changes.count(), 1);

    box.edit("Ana María");
    EXPECT_EQ(changes.count(), 2);
    EXPECT_EQ(box.Text(), "Ana María");
}

TEST_F(Box, shows_the_new_text_by_the_time_of_Change)
{
    std::string seen;
    const auto watch = box.Change.connect([&] { seen = box.Text(); });

    box.Text("nuevo");

    EXPECT_EQ(seen, "nuevo");
}

TEST_F(Box, code_may_write_whatever_stands_in_the_way_of_the_operator)
{
    box.Locked(true);
    box.Enabled(false);
    panel.Visible(false);

    box.Text("resumen");

    EXPECT_EQ(box.Text(), "resumen");
    EXPECT_EQ(changes.count(), 1);
}

TEST_F(Box, editing_is_refused_out_of_reach_and_while_locked)
{
    outOfReach({&box, &panel, &control}, [&] { box.edit("x"); });
    box.Locked(true);
    box.edit("x");

    EXPECT_EQ(box.Text(), "");
    EXPECT_EQ(changes.count(), 0);
}

TEST_F(Box, a_lone_line_feed_that_comes_by_code_stays_one)
{
    box.MultiLine(true);

    box.Text("a\nb\r\nc");

    EXPECT_EQ(box.Text(), "a\nb\r\nc");
}

TEST_F(Box, typing_appends_key_by_key)
{
    box.Text("Sr. ");
    std::vector<int> keys;
    const auto watch = box.KeyPress.connect([&](int& key) { keys.push_back(key); });

    box.type("Ñu");

    EXPECT_EQ(box.Text(), "Sr. Ñu");
    EXPECT_THAT(keys, ElementsAre(0xD1, 'u'));
    EXPECT_EQ(changes.count(), 3);
}

TEST_F(Box, a_listener_changes_the_key)
{
    const auto upper = box.KeyPress.connect([](int& key) {
        if (key >= 'a' && key <= 'z') key -= 32;
    });

    box.type("xaxx01");

    EXPECT_EQ(box.Text(), "XAXX01");
}

TEST_F(Box, a_listener_cancels_the_key)
{
    const auto digitsOnly = box.KeyPress.connect([](int& key) {
        if (key < '0' || key > '9') key = 0;
    });

    box.type("5a6b");

    EXPECT_EQ(box.Text(), "56");
    EXPECT_EQ(changes.count(), 2);
    EXPECT_EQ(box.pressKey('a'), 0);
    EXPECT_EQ(box.pressKey('7'), '7');
}

TEST_F(Box, pressing_a_key_only_asks_the_listeners)
{
    EXPECT_EQ(box.pressKey('x'), 'x');
    EXPECT_EQ(box.Text(), "");
}

TEST_F(Box, Enter_is_a_line_end_in_a_box_of_several_lines)
{
    box.MultiLine(true);

    box.type("uno\ndos");

    EXPECT_EQ(box.Text(), "uno\r\ndos");
}

TEST_F(Box, Enter_leaves_no_trace_in_a_box_of_one_line)
{
    int enters = 0;
    const auto watch = box.KeyPress.connect([&](int& key) { enters += key == TextBox::keyEnter ? 1 : 0; });

    box.type("uno\n");

    EXPECT_EQ(box.Text(), "uno");
    EXPECT_EQ(enters, 1);
    EXPECT_EQ(changes.count(), 3);
}

TEST_F(Box, a_cancelled_Enter_types_no_line_end)
{
    box.MultiLine(true);
    const auto send = box.KeyPress.connect([](int& key) {
        if (key == TextBox::keyEnter) key = 0;
    });

    box.type("nota\n");

    EXPECT_EQ(box.Text(), "nota");
}

TEST_F(Box, typing_goes_on_behind_what_a_key_listener_wrote)
{
    const auto clear = box.KeyPress.connect([&](int& key) {
        if (key == '*') box.Text("");
    });

    box.type("ab*c");

    EXPECT_EQ(box.Text(), "*c");
}

TEST_F(Box, a_locked_box_hears_keys_and_takes_none)
{
    box.Locked(true);
    const Listener keys(box.KeyPress);

    box.type("abc");

    EXPECT_EQ(keys.count(), 3);
    EXPECT_EQ(box.Text(), "");
}

TEST_F(Box, keys_are_refused_out_of_reach)
{
    const Listener keys(box.KeyPress);

    outOfReach({&box, &panel, &control}, [&] {
        box.type("abc");
        EXPECT_EQ(box.pressKey('a'), 0);
    });

    EXPECT_EQ(keys.count(), 0);
    EXPECT_EQ(box.Text(), "");
}

TEST_F(Box, typing_stops_where_a_key_takes_the_box_away)
{
    const auto lock = box.KeyPress.connect([&](int& key) {
        if (key != TextBox::keyEnter) return;
        key = 0;
        box.Enabled(false);
    });

    box.type("ab\ncd");

    EXPECT_EQ(box.Text(), "ab");
}

TEST_F(Box, tells_of_changed_properties)
{
    const Listener changed(box.changed);

    for (int round = 0; round < 2; ++round) {
        box.MultiLine(true);
        box.Locked(true);
        box.Text("t");
    }

    EXPECT_EQ(changed.count(), 3);
    EXPECT_TRUE(box.MultiLine());
    EXPECT_TRUE(box.Locked());
}

} // namespace
} // namespace dn::screen
