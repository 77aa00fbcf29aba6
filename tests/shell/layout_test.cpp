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

Frame frameOf(const screen::Element& element)
{
    return {element.Left(), element.Top(), element.Width(), element.Height()};
}

class Layout : public ControlTest {};

TEST_F(Layout, at_the_designed_size)
{
    control.root().resize(15720, 10155);
    desk::Elements& e = elements();
    EXPECT_EQ(frameOf(e.top.picTop), (Frame{0, 0, 15720, 1230}));
    EXPECT_EQ(frameOf(e.detail.picRight), (Frame{12090, 1230, 3630, 8925}));
    for (const screen::ListView* list : {&e.prospects.lvw, &e.projects.lvwProy, &e.today.lvwHoy})
        EXPECT_EQ(frameOf(*list), (Frame{0, 1230, 12090, 8925}));
    for (const screen::ListView* list : {&e.persons.lvwContactos, &e.organisations.lvwOrganizaciones})
        EXPECT_EQ(frameOf(*list), (Frame{0, 1230, 15720, 8925}));
    EXPECT_EQ(frameOf(e.call.picLlamada), (Frame{12090 / 2 - 7695 / 2, 4275, 7695, 3945}));
    EXPECT_EQ(e.detail.txtBit.Height(), 10155 - 1230 - 3450 - 60);
    EXPECT_EQ(frameOf(e.top.picColors), (Frame{10260, -15, 15720 - 10260, 315}));
    EXPECT_EQ(e.top.txtBuscar.Width(), 15720 - 645 - 1275 - 120);
    EXPECT_EQ(e.top.cmdOkBuscar.Left(), 645 + e.top.txtBuscar.Width() + 60);
    EXPECT_EQ(e.top.cmdOkBuscar.Left() + e.top.cmdOkBuscar.Width(), 15720 - 60);
    for (const screen::Element* panel :
         std::initializer_list<const screen::Element*>{&e.today.picHoy, &e.top.picItem(0), &e.top.picItem(1),
                                                       &e.persons.picContactos, &e.organisations.picOrganizacion})
        EXPECT_EQ(panel->Width(), 15720) << panel->name();
}

TEST_F(Layout, keeps_the_heights_of_the_lists_when_the_control_is_lower_than_its_top_strip)
{
    control.root().resize(15720, 10155);
    control.root().resize(9000, 900);
    EXPECT_EQ(lvw().Width(), 9000 - 3630) << "a refused height does not keep the width from changing";
    EXPECT_EQ(lvw().Height(), 8925);
    EXPECT_EQ(elements().projects.lvwProy.Width(), 9000 - 3630);
}

TEST_F(Layout, leaves_the_directories_their_full_width_where_the_prospects_have_none)
{
    control.root().resize(3630, 10155);
    EXPECT_EQ(lvw().Width(), 0);
    EXPECT_EQ(elements().persons.lvwContactos.Width(), 3630);
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
