// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "screen/label.h"
#include "screen/panels.h"
#include "tests/support/listener.h"
#include "tests/support/out_of_reach.h"

#include <gtest/gtest.h>

namespace dn::screen {
namespace {

using tests::Listener;

struct LabelInPanel : testing::Test {
    UserControl control{"control"};
    PicturePanel panel{&control, "panel"};
    Label label{&panel, "label"};
};

TEST_F(LabelInPanel, is_plain_and_transparent_at_first)
{
    EXPECT_EQ(label.Caption(), "");
    EXPECT_EQ(label.BackColor(), std::nullopt);
    EXPECT_EQ(label.BorderStyle(), 0);
    EXPECT_FALSE(label.FontBold());
    EXPECT_EQ(label.Alignment(), TextAlignment::left);
    EXPECT_FALSE(label.AutoSize());
    EXPECT_FALSE(label.handPointer());
}

TEST_F(LabelInPanel, keeps_each_property_and_tells_of_each_change_once)
{
    const Listener changed(label.changed);
    for (int round = 0; round < 2; ++round) {
        label.Caption("&Buscar:");
        label.BackColor(0x8080FF);
        label.BorderStyle(1);
        label.FontBold(true);
        label.Alignment(TextAlignment::centre);
        label.AutoSize(true);
        label.handPointer(true);
    }

    EXPECT_EQ(changed.count(), 7);
    EXPECT_EQ(label.Caption(), "&Buscar:");
    EXPECT_EQ(label.BackColor(), Colour(0x8080FF));
    EXPECT_EQ(label.BorderStyle(), 1);
    EXPECT_TRUE(label.FontBold());
    EXPECT_EQ(label.Alignment(), TextAlignment::centre);
    EXPECT_TRUE(label.AutoSize());
    EXPECT_TRUE(label.handPointer());
}

TEST_F(LabelInPanel, black_is_a_colour_and_not_the_lack_of_one)
{
    label.BackColor(0);

    EXPECT_EQ(label.BackColor(), Colour(0));
}

TEST_F(LabelInPanel, hears_a_click_only_where_the_operator_can_reach_it)
{
    const Listener clicks(label.Click);
    label.click();
    EXPECT_EQ(clicks.count(), 1);

    tests::outOfReach({&label, &panel}, [&] { label.click(); });
    EXPECT_EQ(clicks.count(), 1);
}

} // namespace
} // namespace dn::screen
