// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The layout of the dialogs: order, places, and what a larger window gives to whom.

#include "dialogs/field_grid.h"
#include "screen/text_box.h"
#include "tests/support/element_tree.h"

#include <gmock/gmock.h>

#include <array>

namespace dn::tests {
namespace {

using dialogs::Metrics;
using screen::Twips;
using testing::ElementsAre;

std::array<Twips, 4> frameOf(const screen::Element& element)
{
    return {element.Left(), element.Top(), element.Width(), element.Height()};
}

struct FieldGrid : testing::Test {
    screen::Form form{"dlg"};
    screen::TextBox txtNombre{&form, "txtNombre"};
    screen::TextBox cNotas{&form, "cNotas"};
    screen::TextBox txtPie{&form, "txtPie"};
    screen::Button cmdHistorial{&form, "cmdHistorial"};
    screen::Button cmdOk{&form, "cmdOk"};
    screen::Button cmdCancel{&form, "cmdCancel"};
    dialogs::FieldGrid grid{form, 1500, 4500};

    FieldGrid() { form.Visible(true); }
};

TEST_F(FieldGrid, puts_each_field_beside_its_label_and_the_buttons_at_the_right_of_the_foot)
{
    grid.field("Nombre:", txtNombre);
    grid.field("Notas:", cNotas);
    grid.buttons(cmdOk, cmdCancel);
    const auto& label = elementNamed<screen::Label>(form, "lblNombre");
    EXPECT_EQ(label.Caption(), "Nombre:");
    EXPECT_THAT(frameOf(label), ElementsAre(180, 225, 1500, 255));
    EXPECT_THAT(frameOf(txtNombre), ElementsAre(1800, 180, 4500, 345));
    EXPECT_EQ(cNotas.Top(), 180 + 345 + 120);
    EXPECT_EQ(form.Width(), 1800 + 4500 + 180);
    EXPECT_EQ(cmdCancel.Left() + cmdCancel.Width(), form.Width() - Metrics::margin);
    EXPECT_EQ(cmdOk.Left() + cmdOk.Width() + Metrics::gap, cmdCancel.Left());
    EXPECT_EQ(cmdOk.Top() + cmdOk.Height() + Metrics::margin, form.Height());
    EXPECT_TRUE(cmdOk.Default());
    EXPECT_TRUE(cmdCancel.Cancel());
}

TEST_F(FieldGrid, gives_the_key_tab_the_order_of_the_rows)
{
    grid.field("Nombre:", txtNombre);
    grid.field(nullptr, cNotas);
    grid.buttons(cmdHistorial, 3000, cmdOk, cmdCancel);
    const std::vector<const screen::Element*> order{
        &elementNamed(form, "lblNombre"), &txtNombre, &cNotas, &cmdHistorial, &cmdOk, &cmdCancel};
    for (std::size_t i = 0; i < order.size(); ++i)
        EXPECT_EQ(order[i]->TabIndex(), static_cast<int>(i)) << order[i]->name();
    EXPECT_EQ(cmdHistorial.Left(), Metrics::margin);
    EXPECT_EQ(cmdHistorial.Top(), cmdOk.Top());
}

TEST_F(FieldGrid, has_headings_and_pairs)
{
    screen::Label Label1(&form, "Label1");
    grid.heading(Label1);
    grid.pair(txtNombre, txtPie, 1200);
    grid.buttons(cmdOk, cmdCancel, 1800);
    EXPECT_TRUE(Label1.FontBold());
    EXPECT_THAT(frameOf(Label1), ElementsAre(1800, 240, 4500, 255));
    EXPECT_THAT(frameOf(txtNombre), ElementsAre(1800, 555, 3180, 345));
    EXPECT_THAT(frameOf(txtPie), ElementsAre(5100, 555, 1200, 345));
    EXPECT_EQ(cmdOk.Width(), 1800);
    EXPECT_EQ(cmdCancel.Left() + cmdCancel.Width(), form.Width() - Metrics::margin);
}

TEST_F(FieldGrid, of_single_rows_keeps_its_size)
{
    grid.field("Nombre:", txtNombre);
    grid.buttons(cmdOk, cmdCancel);
    EXPECT_FALSE(form.resizable());
}

TEST_F(FieldGrid, with_a_tall_field_takes_a_larger_window)
{
    grid.field("Nombre:", txtNombre);
    grid.tall("Notas:", cNotas, 1200);
    grid.field("Pie:", txtPie);
    grid.buttons(cmdHistorial, 3000, cmdOk, cmdCancel);
    const auto ok = frameOf(cmdOk);
    const auto foot = frameOf(txtPie);
    form.resize(form.Width() + 300, form.Height() + 600);
    EXPECT_THAT(frameOf(txtNombre), ElementsAre(1800, 180, 4800, 345));
    EXPECT_THAT(frameOf(cNotas), ElementsAre(1800, 645, 4800, 1800));
    EXPECT_THAT(frameOf(txtPie), ElementsAre(foot[0], foot[1] + 600, foot[2] + 300, foot[3]));
    EXPECT_EQ(elementNamed(form, "lblNotas").Top(), 690);
    EXPECT_EQ(elementNamed(form, "lblPie").Top(), txtPie.Top() + 45);
    EXPECT_THAT(frameOf(cmdOk), ElementsAre(ok[0] + 300, ok[1] + 600, ok[2], ok[3]));
    EXPECT_EQ(cmdHistorial.Left(), Metrics::margin);
    form.resize(0, 0);
    EXPECT_THAT(frameOf(cmdOk), testing::ElementsAreArray(ok)) << "and goes back to its first size, no further";
    EXPECT_EQ(cNotas.Height(), 1200);
}

TEST_F(FieldGrid, moves_headings_and_pairs_that_stand_below_a_tall_field)
{
    screen::Label Label1(&form, "Label1");
    grid.tall("Notas:", cNotas, 1200);
    grid.heading(Label1);
    grid.pair(txtNombre, txtPie, 1200);
    grid.buttons(cmdOk, cmdCancel);
    const auto heading = frameOf(Label1);
    const auto left = frameOf(txtNombre);
    const auto right = frameOf(txtPie);
    form.resize(form.Width() + 300, form.Height() + 600);
    EXPECT_THAT(frameOf(Label1), ElementsAre(heading[0], heading[1] + 600, heading[2] + 300, heading[3]));
    EXPECT_THAT(frameOf(txtNombre), ElementsAre(left[0], left[1] + 600, left[2] + 300, left[3]));
    EXPECT_THAT(frameOf(txtPie), ElementsAre(right[0] + 300, right[1] + 600, right[2], right[3]));
}

} // namespace
} // namespace dn::tests
