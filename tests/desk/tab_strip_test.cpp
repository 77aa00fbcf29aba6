// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The tab in view is read back from the labels; the strip narrows and widens to the twip.

#include "base/runtime_error.h"
#include "data/failure_modes.h"
#include "desk/tab_strip.h"

#include <gmock/gmock.h>

#include <vector>

namespace dn::desk {
namespace {

using testing::ElementsAre;

struct Strip : testing::Test {
    Elements elements;
    TabStrip strip{elements.top};

    // Left of lblItem(0) to (4), then left and width of picColors.
    std::vector<screen::Twips> places() const
    {
        std::vector<screen::Twips> result;
        for (int i = 0; i < TabStrip::count; ++i)
            result.push_back(elements.top.lblItem(i).Left());
        result.push_back(elements.top.picColors.Left());
        result.push_back(elements.top.picColors.Width());
        return result;
    }
};

const TabStrip::Run plainly = [](const std::function<void()>& statement) { statement(); };
const TabStrip::Run passingOver = [](const std::function<void()>& statement) { data::resumeNext(statement); };

TEST_F(Strip, has_no_active_tab_at_first)
{
    EXPECT_EQ(strip.GetActiveTab(), -1);
    std::int16_t result = 3;
    strip.GetActiveTab(result);
    EXPECT_EQ(result, -1);
    EXPECT_FALSE(strip.TabsContraidos());
}

TEST_F(Strip, reads_each_tab_from_its_colour)
{
    for (std::int16_t tab = 0; tab < TabStrip::count; ++tab) {
        elements.top.lblItem(tab).BackColor(0x8080FF);
        EXPECT_EQ(strip.GetActiveTab(), tab);
        elements.top.lblItem(tab).BackColor(0xC0FFFF);
    }
    EXPECT_EQ(strip.GetActiveTab(), -1);
}

TEST_F(Strip, gives_the_highest_of_several_active_tabs)
{
    elements.top.lblItem(3).BackColor(0x8080FF);
    elements.top.lblItem(1).BackColor(0x8080FF);

    EXPECT_EQ(strip.GetActiveTab(), 3);
}

TEST_F(Strip, counts_a_hidden_tab_too)
{
    elements.top.lblItem(proyectos).BackColor(0x8080FF);
    strip.showWorkTabs(false);

    EXPECT_EQ(strip.GetActiveTab(), proyectos);
}

TEST_F(Strip, hides_and_shows_the_two_tabs_of_work)
{
    const auto visible = [&] {
        std::vector<bool> result;
        for (int i = 0; i < TabStrip::count; ++i)
            result.push_back(elements.top.lblItem(i).Visible());
        return result;
    };

    strip.showWorkTabs(false);
    EXPECT_THAT(visible(), ElementsAre(true, false, false, true, true));

    strip.showWorkTabs(true);
    EXPECT_THAT(visible(), ElementsAre(true, true, true, true, true));
}

TEST_F(Strip, narrows_by_the_widths_of_both_tabs_and_the_colour_strip_grows_leftwards)
{
    strip.narrow(plainly);

    EXPECT_THAT(places(), ElementsAre(2805, 4305, 5790, 4290, 5790, 7260, 6645));
    EXPECT_TRUE(strip.TabsContraidos());
}

TEST_F(Strip, comes_back_to_the_exact_places)
{
    const auto before = places();

    strip.narrow(plainly);
    strip.restore(plainly);

    EXPECT_EQ(places(), before);
    EXPECT_FALSE(strip.TabsContraidos());
}

TEST_F(Strip, moves_by_the_widths_as_they_are_now)
{
    elements.top.lblItem(hoy).Width(1000);

    strip.narrow(plainly);

    EXPECT_EQ(elements.top.lblItem(organizaciones).Left(), 7290 - 2500);
}

TEST_F(Strip, passes_over_a_refused_width_where_failures_are_passed_over)
{
    elements.top.picColors.Width(100);
    strip.narrow(plainly);
    elements.top.picColors.Width(100);

    strip.restore(passingOver);

    EXPECT_THAT(places(), ElementsAre(2805, 4305, 5790, 7290, 8790, 10260, 100));
    EXPECT_FALSE(strip.TabsContraidos());
}

TEST_F(Strip, stops_at_a_refused_width_where_failures_go_to_the_caller)
{
    strip.narrow(plainly);
    elements.top.picColors.Width(100);
    const auto before = places();

    EXPECT_THROW(strip.restore(plainly), RuntimeError);

    EXPECT_EQ(places(), before);
    EXPECT_TRUE(strip.TabsContraidos());
}

} // namespace
} // namespace dn::desk
