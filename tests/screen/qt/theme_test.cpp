// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// Every theme can be read: all pairs of colours that texts are drawn with, and those that tell a state.

#include "screen/label.h"
#include "screen/qt/colours.h"
#include "screen/qt/list_cell_painter.h"
#include "screen/qt/theme.h"
#include "tests/screen/qt/list_view_fixture.h"

#include <QApplication>

#include <array>
#include <cmath>

namespace dn::tests {
namespace {

using namespace dn::screen::qt;

constexpr double legibleEnough = 4.5; // of WCAG 2, for texts of this size

constexpr std::array stateColours{0x0000FFU, 0x004000U, 0xFF0000U, 0x800080U, 0xFF8080U}; // blue in the high byte

std::string nameOf(const testing::TestParamInfo<Scheme>& scheme)
{
    constexpr std::array names{"light", "dark", "white_on_black", "black_on_white"};
    return names.at(static_cast<std::size_t>(scheme.param));
}

class ThemeTest : public ListViewTest, public testing::WithParamInterface<Scheme> {
protected:
    ThemeTest() { QApplication::setPalette(schemePalette(GetParam())); }
    ~ThemeTest() override
    {
        view.reset();
        QApplication::setPalette(before);
    }

    const QPalette before = QApplication::palette();
};

TEST_P(ThemeTest, texts_stand_out_from_what_they_stand_on)
{
    const QPalette palette = schemePalette(GetParam());
    const bool stark = GetParam() == Scheme::whiteOnBlack || GetParam() == Scheme::blackOnWhite;
    using Pair = std::pair<QPalette::ColorRole, QPalette::ColorRole>;
    for (const auto& [ink, paper] :
         {Pair{QPalette::WindowText, QPalette::Window}, Pair{QPalette::Text, QPalette::Base},
          Pair{QPalette::Text, QPalette::AlternateBase}, Pair{QPalette::ButtonText, QPalette::Button},
          Pair{QPalette::HighlightedText, QPalette::Highlight},
          Pair{QPalette::ToolTipText, QPalette::ToolTipBase}})
        EXPECT_GE(contrast(palette.color(ink), palette.color(paper)), stark ? 7 : legibleEnough)
            << ink << " on " << paper;
    EXPECT_GE(contrast(palette.color(QPalette::PlaceholderText), palette.color(QPalette::Base)), legibleEnough);
    EXPECT_GE(contrast(palette.color(QPalette::Highlight), palette.color(QPalette::Window)), 3) << "the focus";
}

TEST_P(ThemeTest, the_colours_of_the_lists_can_be_read_and_told_apart)
{
    addRows(0, 10);
    for (std::size_t i = 0; i < stateColours.size(); ++i) {
        list.ListItems()("K" + std::to_string(i * 2)).Paint(stateColours.at(i), true);
        list.ListItems()("K" + std::to_string(i * 2 + 1)).Paint(stateColours.at(i), true);
    }
    show();
    const auto& painter = dynamic_cast<const ListCellPainter&>(*table().itemDelegate());
    std::vector<QColor> inks;
    for (int row = 0; row < 10; ++row) {
        QStyleOptionViewItem option;
        option.palette = table().palette();
        option.state = QStyle::State_Enabled | QStyle::State_Active;
        const bool second = row % 2 == 1; // each colour on both papers
        if (second) option.features |= QStyleOptionViewItem::Alternate;
        painter.describe(option, model().index(row, 0));
        const QColor paper = option.palette.color(second ? QPalette::AlternateBase : QPalette::Base);
        const QColor ink = option.palette.color(QPalette::Text);
        EXPECT_GE(contrast(ink, paper), legibleEnough) << "row " << row;
        EXPECT_GE(
            contrast(option.palette.color(QPalette::HighlightedText), option.palette.color(QPalette::Highlight)),
            legibleEnough)
            << "row " << row;
        const QColor given = fromColour(stateColours.at(static_cast<std::size_t>(row / 2)));
        EXPECT_NEAR(ink.hslHueF(), given.hslHueF(), 0.02) << "row " << row << ": it stays the colour that it was";
        if (!second) inks.push_back(ink);
    }
    for (std::size_t one = 0; one < inks.size(); ++one)
        for (std::size_t other = 0; other < one; ++other)
            EXPECT_NE(inks[one], inks[other]);
    EXPECT_EQ(list.ListItems()("K2").ForeColor(), 0x004000U) << "the element keeps what it was given";
}

TEST_P(ThemeTest, a_white_strip_is_paper_and_a_coloured_one_stays_coloured)
{
    screen::PicturePanel strip{&root, "strip"};
    screen::Label counter{&strip, "counter"};
    place(strip, 0, 200, 100, 30);
    strip.BackColor(screen::white);
    counter.BackColor(screen::white);
    show();
    auto& shown = widget<QWidget>("strip");
    auto& text = widget<QWidget>("counter");
    const QPalette palette = schemePalette(GetParam());
    EXPECT_EQ(colourAt(shown, {50, 25}), palette.color(QPalette::Base));
    EXPECT_GE(contrast(text.palette().color(text.foregroundRole()), text.palette().color(text.backgroundRole())),
              legibleEnough);
    strip.BackColor(0x0000FF);
    EXPECT_EQ(colourAt(shown, {50, 25}), QColor(Qt::red));
    view.reset();
}

INSTANTIATE_TEST_SUITE_P(All, ThemeTest,
                         testing::Values(Scheme::light, Scheme::dark, Scheme::whiteOnBlack, Scheme::blackOnWhite),
                         nameOf);

TEST(SchemeOf, a_desktop_is_the_nearest_one)
{
    for (const Scheme scheme : {Scheme::light, Scheme::dark, Scheme::whiteOnBlack, Scheme::blackOnWhite})
        EXPECT_EQ(schemeOf(schemePalette(scheme)), scheme);
    QPalette usual;
    usual.setColor(QPalette::Window, QColor(0xEF, 0xEF, 0xEF));
    usual.setColor(QPalette::WindowText, Qt::black);
    EXPECT_EQ(schemeOf(usual), Scheme::light);
}

} // namespace
} // namespace dn::tests
