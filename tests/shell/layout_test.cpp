// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// How the control fills the room that it is given.

#include "tests/support/control_fixture.h"

#include <algorithm>

namespace dn::tests {
namespace {

struct Frame {
    int left;
    int top;
    int width;
    int height;

    bool operator==(const Frame&) const = default;
};

void PrintTo(const Frame& frame, std::ostream* out)
{
    *out << frame.left << "," << frame.top << " " << frame.width << "x" << frame.height;
}

Frame placeOf(const screen::Element& element)
{
    return {element.Left(), element.Top(), element.Width(), element.Height()};
}

class Layout : public ControlTest {
protected:
    /// What no rule names keeps its design at every size.
    void expectUntouched()
    {
        desk::Elements& e = elements();
        EXPECT_EQ(placeOf(e.top.cbAgente), (Frame{30, 0, 2790, 315}));
        EXPECT_EQ(placeOf(e.top.pictab), (Frame{0, 345, 14865, 450}));
        EXPECT_EQ(placeOf(e.top.lblBuscar), (Frame{30, 810, 1080, 285}));
        EXPECT_EQ(placeOf(e.detail.txtInfo), (Frame{30, 465, 3510, 2190}));
        EXPECT_EQ(placeOf(e.detail.pic1), (Frame{30, 2715, 3525, 705}));
        const std::vector<int> lefts{2805, 4305, 5790, 7290, 8790};
        for (int tab = 0; tab < 5; ++tab)
            EXPECT_EQ(placeOf(e.top.lblItem(tab)), (Frame{lefts[static_cast<std::size_t>(tab)], 0, 1500, 315}));
    }
};

TEST_F(Layout, at_the_designed_size)
{
    control.root().resize(15720, 10155);
    desk::Elements& e = elements();
    EXPECT_EQ(placeOf(e.top.picTop), (Frame{0, 0, 15720, 1230}));
    EXPECT_EQ(placeOf(e.detail.picRight), (Frame{12090, 1230, 3630, 8925}));
    for (const screen::ListView* list : {&e.prospects.lvw, &e.projects.lvwProy, &e.today.lvwHoy})
        EXPECT_EQ(placeOf(*list), (Frame{0, 1230, 12090, 8925}));
    for (const screen::ListView* list : {&e.persons.lvwContactos, &e.organisations.lvwOrganizaciones})
        EXPECT_EQ(placeOf(*list), (Frame{0, 1230, 15720, 8925}));
    EXPECT_EQ(placeOf(e.call.picLlamada), (Frame{2198, 4275, 7695, 3945}));
    EXPECT_EQ(placeOf(e.detail.txtBit), (Frame{30, 3450, 3510, 5415}));
    EXPECT_EQ(placeOf(e.top.picColors), (Frame{10260, -15, 5460, 315}));
    EXPECT_EQ(placeOf(e.top.txtBuscar), (Frame{645, 810, 13680, 285}));
    EXPECT_EQ(e.top.cmdOkBuscar.Left(), 14385);
    EXPECT_EQ(placeOf(e.today.picHoy), (Frame{30, 330, 15720, 810}));
    EXPECT_EQ(placeOf(e.organisations.picOrganizacion), (Frame{30, 330, 15720, 810}));
    EXPECT_EQ(placeOf(e.persons.picContactos), (Frame{30, 330, 15720, 840}));
    for (const int strip : {0, 1})
        EXPECT_EQ(placeOf(e.top.picItem(strip)), (Frame{-75, -30, 15720, 390}));
}

/// A size in pixels, and what comes of it in twips, after the designed size: a negative one is refused, and the
/// element keeps what it had.
struct Fit {
    int width;
    int height;
    int listWidth;
    int listHeight;
    int directoryWidth;
    int callLeft;
    int timelineHeight;
    int coloursWidth;
    int searchWidth;
    int searchButtonLeft;
};

void PrintTo(const Fit& fit, std::ostream* out) { *out << fit.width << "x" << fit.height; }

class LayoutAtSizes : public Layout, public testing::WithParamInterface<Fit> {};

TEST_P(LayoutAtSizes, fits_what_it_can)
{
    const Fit& fit = GetParam();
    control.root().resize(15720, 10155);
    control.root().resize(fit.width * 15, fit.height * 15);
    desk::Elements& e = elements();
    for (const screen::ListView* list : {&e.prospects.lvw, &e.projects.lvwProy, &e.today.lvwHoy})
        EXPECT_EQ(placeOf(*list), (Frame{0, 1230, fit.listWidth, fit.listHeight})) << list->name();
    for (const screen::ListView* list : {&e.persons.lvwContactos, &e.organisations.lvwOrganizaciones})
        EXPECT_EQ(placeOf(*list), (Frame{0, 1230, fit.directoryWidth, fit.listHeight})) << list->name();
    const int width = fit.width * 15;
    EXPECT_EQ(placeOf(e.top.picTop), (Frame{0, 0, width, 1230}));
    EXPECT_EQ(placeOf(e.detail.picRight), (Frame{width - 3630, 1230, 3630, std::max(0, fit.height * 15 - 1230)}));
    for (const int strip : {0, 1})
        EXPECT_EQ(placeOf(e.top.picItem(strip)), (Frame{-75, -30, width, 390}));
    EXPECT_EQ(placeOf(e.today.picHoy), (Frame{30, 330, width, 810}));
    EXPECT_EQ(placeOf(e.organisations.picOrganizacion), (Frame{30, 330, width, 810}));
    EXPECT_EQ(placeOf(e.persons.picContactos), (Frame{30, 330, width, 840}));
    EXPECT_EQ(placeOf(e.call.picLlamada), (Frame{fit.callLeft, 4275, 7695, 3945}));
    EXPECT_EQ(placeOf(e.detail.txtBit), (Frame{30, 3450, 3510, fit.timelineHeight}));
    EXPECT_EQ(placeOf(e.top.picColors), (Frame{10260, -15, fit.coloursWidth, 315}));
    EXPECT_EQ(placeOf(e.top.txtBuscar), (Frame{645, 810, fit.searchWidth, 285}));
    EXPECT_EQ(placeOf(e.top.cmdOkBuscar), (Frame{fit.searchButtonLeft, 810, 1275, 285}));
    expectUntouched();
}

INSTANTIATE_TEST_SUITE_P(FromNothingToFourThousandPixels, LayoutAtSizes,
                         testing::Values(Fit{0, 0, 12090, 8925, 0, 2198, 5415, 5460, 13680, 14385},
                                         Fit{1, 1, 12090, 8925, 15, 2198, 5415, 5460, 13680, 14385},
                                         Fit{136, 316, 12090, 3510, 2040, 2198, 0, 5460, 0, 705},
                                         Fit{137, 317, 12090, 3525, 2055, 2198, 15, 5460, 15, 720},
                                         Fit{241, 81, 12090, 8925, 3615, 2198, 5415, 5460, 1575, 2280},
                                         Fit{242, 82, 0, 0, 3630, -3847, 5415, 5460, 1590, 2295},
                                         Fit{300, 200, 870, 1770, 4500, -3412, 5415, 5460, 2460, 3165},
                                         Fit{683, 317, 6615, 3525, 10245, -540, 15, 5460, 8205, 8910},
                                         Fit{684, 600, 6630, 7770, 10260, -532, 4260, 0, 8220, 8925},
                                         Fit{800, 600, 8370, 7770, 12000, 338, 4260, 1740, 9960, 10665},
                                         Fit{1366, 768, 16860, 10290, 20490, 4583, 6780, 10230, 18450, 19155},
                                         Fit{1920, 1080, 25170, 14970, 28800, 8738, 11460, 18540, 26760, 27465},
                                         Fit{3840, 2160, 53970, 31170, 57600, 23138, 27660, 47340, 55560, 56265},
                                         Fit{4000, 4000, 56370, 58770, 60000, 24338, 55260, 49740, 57960, 58665}));

// What a size refuses stays as it was, not as it was designed.
TEST_F(Layout, keeps_the_former_size_of_what_would_be_negative)
{
    control.root().resize(12000, 9000);
    control.root().resize(3000, 1200);
    desk::Elements& e = elements();
    for (const screen::ListView* list : {&e.prospects.lvw, &e.projects.lvwProy, &e.today.lvwHoy})
        EXPECT_EQ(placeOf(*list), (Frame{0, 1230, 8370, 7770})) << list->name();
    for (const screen::ListView* list : {&e.persons.lvwContactos, &e.organisations.lvwOrganizaciones})
        EXPECT_EQ(placeOf(*list), (Frame{0, 1230, 3000, 7770})) << list->name();
    EXPECT_EQ(e.detail.txtBit.Height(), 4260);
    EXPECT_EQ(e.top.picColors.Width(), 1740);
    EXPECT_EQ(e.top.txtBuscar.Width(), 960);
    control.root().resize(6000, 1200);
    EXPECT_EQ(placeOf(e.prospects.lvw), (Frame{0, 1230, 2370, 7770})) << "the width is taken, the height refused";
    EXPECT_EQ(placeOf(e.projects.lvwProy), placeOf(e.prospects.lvw));
    control.root().resize(1200, 6000);
    EXPECT_EQ(placeOf(e.prospects.lvw), (Frame{0, 1230, 2370, 4770})) << "the other way round";
}

TEST_F(Layout, takes_a_call_to_the_middle_of_the_list_and_not_higher)
{
    start(7, true);
    control.IniciarLlamada("ut_icontact", 1, "961");
    ASSERT_TRUE(elements().call.picLlamada.Visible());
    control.root().resize(20490, 11520);
    EXPECT_EQ(placeOf(elements().call.picLlamada), (Frame{4583, 4275, 7695, 3945}));
    elements().call.picLlamada.Top(4000);
    control.root().resize(12000, 9000);
    EXPECT_EQ(placeOf(elements().call.picLlamada), (Frame{338, 4000, 7695, 3945}));
    EXPECT_TRUE(elements().call.picLlamada.Visible());
}

TEST_F(Layout, keeps_the_colour_strip_wide_when_the_tabs_are_narrowed)
{
    start(0, true); // "< Sin asignar >": the strip is narrowed
    for (const auto& [width, colours] : {std::pair(18000, 10740), std::pair(12000, 4740), std::pair(7260, 0),
                                         std::pair(7245, 0), std::pair(15720, 8460)}) {
        control.root().resize(width, 10155);
        EXPECT_EQ(placeOf(elements().top.picColors), (Frame{7260, -15, colours, 315})) << width;
    }
    control.SelAgente(7);
    EXPECT_EQ(placeOf(elements().top.picColors), (Frame{10260, -15, 5460, 315}));
}

// A window of 800 pixels is the smallest one in use.
TEST_F(Layout, shows_every_colour_at_800_pixels)
{
    control.root().resize(12000, 9000);
    desk::TopElements& top = elements().top;
    screen::Twips behind = 0;
    for (int mark = 0; mark < top.bColor.Count(); ++mark) {
        EXPECT_GT(top.bColor(mark).Left(), behind) << mark;
        behind = top.bColor(mark).Left() + top.bColor(mark).Width();
    }
    EXPECT_LE(behind, top.picColors.Width());
    EXPECT_LT(behind, top.lblCuenta.Left());
}

} // namespace
} // namespace dn::tests
