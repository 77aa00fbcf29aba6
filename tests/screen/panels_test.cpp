// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// Containers: what docks to their edges, what a resize does, how a dialog's window comes and goes.

#include "base/runtime_error.h"
#include "screen/button.h"
#include "screen/label.h"
#include "screen/panels.h"
#include "tests/support/listener.h"

#include <gmock/gmock.h>

#include <array>

namespace dn::screen {
namespace {

using testing::ElementsAre;
using tests::Listener;

std::array<Twips, 4> frameOf(const Element& element)
{
    return {element.Left(), element.Top(), element.Width(), element.Height()};
}

struct Docking : testing::Test {
    UserControl control{"control"};
    PicturePanel top{&control, "top"};
    PicturePanel right{&control, "right"};
    PicturePanel loose{&control, "loose"};

    Docking()
    {
        top.Align(Align::top);
        top.Move(5, 5, 10, 1230);
        right.Align(Align::right);
        right.Move(5, 5, 3630, 10);
        loose.Move(30, 330, 100, 200);
    }
};

TEST_F(Docking, keeps_the_top_strip_wide_and_the_right_one_below_it)
{
    control.resize(15720, 10155);

    EXPECT_THAT(frameOf(top), ElementsAre(0, 0, 15720, 1230));
    EXPECT_THAT(frameOf(right), ElementsAre(12090, 1230, 3630, 8925));
    EXPECT_THAT(frameOf(loose), ElementsAre(30, 330, 100, 200));
}

TEST_F(Docking, follows_each_new_size)
{
    control.resize(15720, 10155);
    control.resize(9000, 5000);

    EXPECT_THAT(frameOf(top), ElementsAre(0, 0, 9000, 1230));
    EXPECT_THAT(frameOf(right), ElementsAre(5370, 1230, 3630, 3770));
}

TEST_F(Docking, survives_a_control_smaller_than_its_strips)
{
    control.resize(1000, 500);

    EXPECT_THAT(frameOf(top), ElementsAre(0, 0, 1000, 1230));
    EXPECT_THAT(frameOf(right), ElementsAre(-2630, 1230, 3630, 0));
}

TEST_F(Docking, stacks_strips_of_the_same_edge)
{
    PicturePanel second(&control, "second");
    second.Align(Align::top);
    second.Height(300);
    PicturePanel inner(&control, "inner");
    inner.Align(Align::right);
    inner.Width(1000);

    control.resize(15720, 10155);

    EXPECT_THAT(frameOf(second), ElementsAre(0, 1230, 15720, 300));
    EXPECT_THAT(frameOf(right), ElementsAre(12090, 1530, 3630, 8625));
    EXPECT_THAT(frameOf(inner), ElementsAre(11090, 1530, 1000, 8625));
}

TEST_F(Docking, is_done_by_the_time_of_the_resize_event)
{
    Twips seenWidth = 0;
    Twips seenLeft = 0;
    const auto watch = control.Resize.connect([&] {
        seenWidth = top.Width();
        seenLeft = right.Left();
    });

    control.resize(15720, 10155);

    EXPECT_EQ(control.Width(), 15720);
    EXPECT_EQ(control.Height(), 10155);
    EXPECT_EQ(seenWidth, 15720);
    EXPECT_EQ(seenLeft, 12090);
}

TEST_F(Docking, refuses_a_negative_size_without_the_event)
{
    control.resize(15720, 10155);
    const Listener resized(control.Resize);

    EXPECT_THROW(control.resize(-1, 100), RuntimeError);

    EXPECT_EQ(resized.count(), 0);
    EXPECT_THAT(frameOf(control), ElementsAre(0, 0, 15720, 10155));
}

TEST(PicturePanel, has_no_colour_and_no_frame_of_its_own_at_first)
{
    PicturePanel panel(nullptr, "panel");
    EXPECT_EQ(panel.BackColor(), std::nullopt);
    EXPECT_FALSE(panel.framed());
    const Listener changed(panel.changed);

    for (int round = 0; round < 2; ++round) {
        panel.BackColor(0xFFFFFF);
        panel.framed(true);
    }

    EXPECT_EQ(panel.BackColor(), Colour(0xFFFFFF));
    EXPECT_TRUE(panel.framed());
    EXPECT_EQ(changed.count(), 2);
}

struct Dialog : testing::Test {
    Form form{"dlgQueH"};
    Button button{&form, "Command1"};
    Listener clicks{button.Click};
};

TEST_F(Dialog, is_hidden_until_it_is_shown_and_takes_no_gestures_till_then)
{
    EXPECT_FALSE(form.Visible());
    button.press();
    EXPECT_EQ(clicks.count(), 0);

    form.Visible(true);
    button.press();
    EXPECT_EQ(clicks.count(), 1);
}

TEST_F(Dialog, hides_and_keeps_the_state_of_its_elements)
{
    form.Caption("¿Qué hacer?");
    form.Visible(true);
    button.Caption("Aceptar");

    form.Hide();

    EXPECT_FALSE(form.Visible());
    EXPECT_EQ(form.Caption(), "¿Qué hacer?");
    EXPECT_EQ(button.Caption(), "Aceptar");
    EXPECT_TRUE(button.Visible());
}

TEST_F(Dialog, closing_its_window_hides_it_and_presses_nothing)
{
    form.Visible(true);
    const Listener changed(form.changed);

    form.closeWindow();
    form.closeWindow();

    EXPECT_FALSE(form.Visible());
    EXPECT_EQ(changed.count(), 1);
    EXPECT_EQ(clicks.count(), 0);
}

TEST_F(Dialog, keeps_its_size_unless_it_is_made_resizable)
{
    const Listener resized(form.Resize);
    form.Move(0, 0, 3000, 1500);
    form.Visible(true);

    form.resize(6000, 6000);

    EXPECT_THAT(frameOf(form), ElementsAre(0, 0, 3000, 1500));
    EXPECT_EQ(resized.count(), 0);
}

TEST_F(Dialog, made_resizable_grows_and_goes_back_to_its_first_size_at_the_least)
{
    const Listener resized(form.Resize);
    form.Move(0, 0, 3000, 1500);
    form.makeResizable();
    form.Visible(true);

    form.resize(4500, 1500);
    EXPECT_THAT(frameOf(form), ElementsAre(0, 0, 4500, 1500));
    form.resize(4500, 1500);
    EXPECT_EQ(resized.count(), 1) << "the same size again is none";
    form.resize(15, 15);
    EXPECT_THAT(frameOf(form), ElementsAre(0, 0, 3000, 1500));
    EXPECT_EQ(resized.count(), 2);
    EXPECT_EQ(form.MinWidth(), 3000);
    EXPECT_EQ(form.MinHeight(), 1500);
}

TEST_F(Dialog, takes_no_size_while_it_is_hidden)
{
    form.Move(0, 0, 3000, 1500);
    form.makeResizable();

    form.resize(6000, 6000);

    EXPECT_THAT(frameOf(form), ElementsAre(0, 0, 3000, 1500));
}

TEST_F(Dialog, made_resizable_may_change_its_height_alone)
{
    const Listener resized(form.Resize);
    form.Move(0, 0, 3000, 1500);
    form.makeResizable();
    form.Visible(true);

    form.resize(3000, 2100);

    EXPECT_THAT(frameOf(form), ElementsAre(0, 0, 3000, 2100));
    EXPECT_EQ(resized.count(), 1);
}

} // namespace
} // namespace dn::screen
