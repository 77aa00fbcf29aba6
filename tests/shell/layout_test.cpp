// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// How the control fills the room that it is given.

#include "tests/support/control_fixture.h"

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

class Layout : public ControlTest {};

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
    for (const screen::Element* panel :
         std::initializer_list<const screen::Element*>{&e.today.picHoy, &e.top.picItem(0), &e.top.picItem(1),
                                                       &e.persons.picContactos, &e.organisations.picOrganizacion})
        EXPECT_EQ(panel->Width(), fit.width * 15) << panel->name();
    EXPECT_EQ(placeOf(e.call.picLlamada), (Frame{fit.callLeft, 4275, 7695, 3945}));
    EXPECT_EQ(e.detail.txtBit.Height(), fit.timelineHeight);
    EXPECT_EQ(e.top.picColors.Width(), fit.coloursWidth);
    EXPECT_EQ(e.top.txtBuscar.Width(), fit.searchWidth);
    EXPECT_EQ(e.top.cmdOkBuscar.Left(), fit.searchButtonLeft);
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

TEST_F(Layout, leaves_alone_what_no_rule_names)
{
    control.root().resize(28800, 16200);
    desk::Elements& e = elements();
    EXPECT_EQ(placeOf(e.top.cbAgente), (Frame{30, 0, 2790, 315}));
    EXPECT_EQ(placeOf(e.top.pictab), (Frame{0, 345, 14865, 450}));
    EXPECT_EQ(placeOf(e.top.lblBuscar), (Frame{30, 810, 1080, 285}));
    EXPECT_EQ(placeOf(e.detail.txtInfo), (Frame{30, 465, 3510, 2190}));
    EXPECT_EQ(placeOf(e.detail.pic1), (Frame{30, 2715, 3525, 705}));
    for (int tab = 0; tab < 5; ++tab)
        EXPECT_EQ(e.top.lblItem(tab).Top(), 0);
    EXPECT_EQ(e.top.lblItem(4).Left(), 8790);
}

TEST_F(Layout, takes_a_call_to_the_middle_of_the_list_and_not_higher)
{
    elements().call.picLlamada.Visible(true);
    elements().call.picLlamada.Top(4000);
    control.root().resize(20490, 11520);
    EXPECT_EQ(elements().call.picLlamada.Left(), 4583);
    EXPECT_EQ(elements().call.picLlamada.Top(), 4000);
}

TEST_F(Layout, keeps_the_colour_strip_wide_when_the_tabs_are_narrowed)
{
    start(0, true); // "< Sin asignar >": the strip is narrowed
    control.root().resize(18000, 10155);
    EXPECT_EQ(elements().top.picColors.Left(), 7260);
    EXPECT_EQ(elements().top.picColors.Width(), 18000 - 7260);
}

} // namespace
} // namespace dn::tests
