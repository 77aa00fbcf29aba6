// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The call panel before a call: hidden, with its bar and its timer ready.

#include "desk/elements.h"

#include <gtest/gtest.h>

namespace dn::desk {
namespace {

struct CallPanel : testing::Test {
    Elements elements;
    CallElements& call = elements.call;
};

TEST_F(CallPanel, hides_with_all_three_states)
{
    for (const PicturePanel* panel : {&call.picLlamada, &call.picLlamando, &call.picContacto, &call.picResumen})
        EXPECT_FALSE(panel->Visible()) << panel->name();
}

TEST_F(CallPanel, takes_no_gestures_until_the_panel_and_the_state_show)
{
    EXPECT_FALSE(call.cmdContesta.usable());

    call.picLlamada.Visible(true);
    EXPECT_FALSE(call.cmdContesta.usable());

    call.picLlamando.Visible(true);
    EXPECT_TRUE(call.cmdContesta.usable());
    EXPECT_FALSE(call.cmdCallCon(0).usable());
    EXPECT_FALSE(call.cmdOkCall.usable());
}

TEST_F(CallPanel, has_the_captions_of_its_labels)
{
    EXPECT_EQ(call.LabelLlamando.Caption(), "Llamando...");
    EXPECT_EQ(call.lblresmen.Caption(), "Resumen de la llamada:");
    EXPECT_EQ(call.lbltel.Caption(), "");
    EXPECT_EQ(call.txtResCall.Text(), "");
}

TEST_F(CallPanel, has_a_bar_from_0_to_100_and_a_timer_of_25_milliseconds_that_runs)
{
    EXPECT_EQ(call.PG.Min(), 0);
    EXPECT_EQ(call.PG.Max(), 100);
    EXPECT_EQ(call.PG.Value(), 0);
    EXPECT_EQ(call.Timer1.Interval(), 25);
    EXPECT_TRUE(call.Timer1.Enabled());
}

TEST_F(CallPanel, has_room_for_everything_in_it)
{
    for (const PicturePanel* state : {&call.picLlamando, &call.picContacto, &call.picResumen}) {
        EXPECT_LE(state->Left() + state->Width(), call.picLlamada.Width()) << state->name();
        EXPECT_LE(state->Top() + state->Height(), call.picLlamada.Height()) << state->name();
        for (const screen::Element* child : state->children()) {
            EXPECT_LE(child->Left() + child->Width(), state->Width()) << child->name();
            EXPECT_LE(child->Top() + child->Height(), state->Height()) << child->name();
        }
    }
}

} // namespace
} // namespace dn::desk
