// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// Every theme can be read: all pairs of colours that texts are drawn with, and those that tell a state.

#include "screen/label.h"
#include "screen/qt/colours.h"
#include "screen/qt/list_cell_painter.h"
#include "screen/qt/style.h"
#include "screen/qt/theme.h"
#include "tests/screen/qt/list_view_fixture.h"

#include <QApplication>
#include <QPainter>
#include <QStyleOptionSlider>

#include <array>
#include <cmath>
#include <functional>

namespace dn::tests {
namespace {

using namespace dn::screen::qt;

constexpr double legibleEnough = 4.5; // of WCAG 2, for texts of this size
constexpr double visibleEnough = 3;   // for what is worked with, and for texts of what is disabled

bool isStarkScheme(Scheme scheme) { return scheme == Scheme::whiteOnBlack || scheme == Scheme::blackOnWhite; }

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
    const bool stark = isStarkScheme(GetParam());
    using Pair = std::pair<QPalette::ColorRole, QPalette::ColorRole>;
    for (const auto& [ink, paper] :
         {Pair{QPalette::WindowText, QPalette::Window}, Pair{QPalette::Text, QPalette::Base},
          Pair{QPalette::Text, QPalette::AlternateBase}, Pair{QPalette::ButtonText, QPalette::Button},
          Pair{QPalette::HighlightedText, QPalette::Highlight},
          Pair{QPalette::ToolTipText, QPalette::ToolTipBase}})
        EXPECT_GE(contrast(palette.color(ink), palette.color(paper)), stark ? 7 : legibleEnough)
            << ink << " on " << paper;
    EXPECT_GE(contrast(palette.color(QPalette::PlaceholderText), palette.color(QPalette::Base)), legibleEnough);
    EXPECT_GE(contrast(palette.color(QPalette::Highlight), palette.color(QPalette::Window)), visibleEnough)
        << "the focus";
    EXPECT_GE(contrast(palette.color(QPalette::Disabled, QPalette::HighlightedText),
                       palette.color(QPalette::Disabled, QPalette::Highlight)),
              legibleEnough)
        << "the row of a call, while its list is disabled";
}

TEST_P(ThemeTest, what_is_done_steps_back_and_can_be_read)
{
    const QPalette palette = schemePalette(GetParam());
    const QColor ink = pastInk(palette);
    EXPECT_NE(ink, palette.color(QPalette::Text));
    for (const auto paper : {QPalette::Base, QPalette::AlternateBase})
        EXPECT_GE(contrast(ink, palette.color(paper)), isStarkScheme(GetParam()) ? 7 : legibleEnough) << paper;
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
    const double least = isStarkScheme(GetParam()) ? 7 : legibleEnough;
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
        EXPECT_GE(contrast(ink, paper), least) << "row " << row;
        EXPECT_GE(
            contrast(option.palette.color(QPalette::HighlightedText), option.palette.color(QPalette::Highlight)),
            least)
            << "row " << row;
        const QColor given = fromColour(stateColours.at(static_cast<std::size_t>(row / 2)));
        EXPECT_NEAR(ink.hslHueF(), given.hslHueF(), 0.02) << "row " << row << ": it stays the colour that it was";
        if (!second) inks.push_back(ink);
        option.state &= ~QStyle::State_Enabled;
        painter.describe(option, model().index(row, 0));
        EXPECT_GE(contrast(option.palette.color(QPalette::Text), paper), visibleEnough)
            << "row " << row << ", disabled";
    }
    for (std::size_t one = 0; one < inks.size(); ++one)
        for (std::size_t other = 0; other < one; ++other)
            EXPECT_NE(inks[one], inks[other]);
    EXPECT_EQ(list.ListItems()("K2").ForeColor(), 0x004000U) << "the element keeps what it was given";
}

TEST_P(ThemeTest, a_drawing_on_the_selected_row_stands_on_paper)
{
    list.SmallIcons(&images);
    addRows(0, 1);
    list.ListItems()("K0").SmallIcon(2);
    show();
    const auto& painter = dynamic_cast<const ListCellPainter&>(*table().itemDelegate());
    QStyleOptionViewItem option;
    option.palette = table().palette();
    option.decorationSize = {16, 16};
    const auto corner = [&](QStyle::State state) {
        option.state = state | QStyle::State_Enabled | QStyle::State_Active;
        painter.describe(option, model().index(0, 0));
        return option.icon.pixmap(QSize(16, 16), 1).toImage().pixelColor(2, 13);
    };
    EXPECT_EQ(corner(QStyle::State_Selected), option.palette.color(QPalette::Base));
    const qint64 drawing = option.icon.cacheKey();
    EXPECT_EQ(corner({}).alpha(), 0);
    corner(QStyle::State_Selected);
    EXPECT_EQ(option.icon.cacheKey(), drawing)
        << "it is made once, or every painting would leave one in the cache";
    option.palette.setColor(QPalette::Base, Qt::red);
    EXPECT_EQ(corner(QStyle::State_Selected), QColor(Qt::red));
}

TEST_P(ThemeTest, the_handle_of_a_scroll_bar_stands_out_from_its_groove)
{
    const Style style;
    QStyleOptionSlider option;
    option.palette = schemePalette(GetParam());
    option.orientation = Qt::Vertical;
    option.rect = {0, 0, 13, 200};
    option.maximum = 100;
    option.pageStep = 50;
    option.state = QStyle::State_Enabled;
    QImage image(13, 200, QImage::Format_RGB32);
    QPainter painter(&image);
    style.drawComplexControl(QStyle::CC_ScrollBar, &option, &painter, nullptr);
    painter.end();
    const auto middle = [&](QStyle::SubControl part) {
        return image.pixelColor(style.subControlRect(QStyle::CC_ScrollBar, &option, part, nullptr).center());
    };
    const QColor groove = middle(QStyle::SC_ScrollBarAddPage);
    EXPECT_GE(contrast(middle(QStyle::SC_ScrollBarSlider), groove), visibleEnough);
    EXPECT_GE(contrast(middle(QStyle::SC_ScrollBarAddLine), groove), visibleEnough) << "the arrow";
}

TEST_P(ThemeTest, a_spin_box_has_the_edge_of_a_line)
{
    const Style style;
    const auto drawn = [&](const std::function<void(QPainter&)>& draw) {
        QImage image(120, 24, QImage::Format_RGB32);
        image.fill(schemePalette(GetParam()).color(QPalette::Window));
        QPainter painter(&image);
        draw(painter);
        return image;
    };
    const auto prepare = [](QStyleOption& option) {
        option.palette = schemePalette(GetParam());
        option.rect = {0, 0, 120, 24};
        option.state = QStyle::State_Enabled;
    };
    QStyleOptionSpinBox spin;
    prepare(spin);
    spin.frame = true;
    spin.subControls = QStyle::SC_All;
    spin.stepEnabled = QAbstractSpinBox::StepUpEnabled;
    const QImage box =
        drawn([&](QPainter& painter) { style.drawComplexControl(QStyle::CC_SpinBox, &spin, &painter, nullptr); });
    QStyleOptionFrame frame;
    prepare(frame);
    frame.lineWidth = 1;
    const QImage line = drawn(
        [&](QPainter& painter) { style.drawPrimitive(QStyle::PE_PanelLineEdit, &frame, &painter, nullptr); });
    for (int x = 0; x < 120; ++x)
        EXPECT_EQ(box.pixel(x, 0), line.pixel(x, 0)) << x;
    const auto place = [&](QStyle::SubControl part) {
        return style.subControlRect(QStyle::CC_SpinBox, &spin, part, nullptr).center();
    };
    const QColor base = spin.palette.color(QPalette::Base);
    EXPECT_GE(contrast(box.pixelColor(place(QStyle::SC_SpinBoxUp)), base), visibleEnough) << "the arrow";
    EXPECT_LT(contrast(box.pixelColor(place(QStyle::SC_SpinBoxDown)), base), visibleEnough) << "it is at its end";
}

TEST(Style, has_drawings_of_its_own_for_boxes_and_the_toolkits_for_the_rest)
{
    const Style style;
    for (const auto picture : {QStyle::SP_MessageBoxCritical, QStyle::SP_MessageBoxInformation,
                               QStyle::SP_MessageBoxQuestion, QStyle::SP_MessageBoxWarning}) {
        const QIcon icon = style.standardIcon(picture, nullptr, nullptr);
        EXPECT_EQ(icon.pixmap(QSize(32, 32), 3).size(), QSize(96, 96)) << picture << ": sharp at every scale";
    }
    EXPECT_FALSE(style.standardIcon(QStyle::SP_DirIcon, nullptr, nullptr).isNull());
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

TEST_P(ThemeTest, the_tabs_can_be_read_and_told_apart_and_glare_in_no_dark_window)
{
    constexpr screen::Colour idle = 0xC0FFFF; // blue in the high byte
    constexpr screen::Colour active = 0x8080FF;
    screen::Label one{&root, "one"};
    screen::Label other{&root, "other"};
    for (screen::Label* const tab : {&one, &other}) {
        tab->handPointer(true);
        tab->BackColor(idle);
    }
    place(one, 0, 200, 100, 21);
    place(other, 110, 200, 100, 21);
    other.BackColor(active);
    other.BorderStyle(1);
    show();
    const QPalette palette = schemePalette(GetParam());
    const QColor window = palette.color(QPalette::Window);
    const QColor behind = colourAt(widget<QWidget>("one"), {8, 12});
    const QColor inFront = colourAt(widget<QWidget>("other"), {8, 12});
    EXPECT_NE(behind, inFront);
    EXPECT_GE(contrast(inFront, window), 2.2) << "the tab in view";
    EXPECT_GT(inFront.hsvSaturationF(), 0.4F) << "it stays red";
    EXPECT_LT(std::min(inFront.hueF(), 1 - inFront.hueF()), 0.05F);
    if (GetParam() == Scheme::dark) {
        EXPECT_LT(contrast(behind, window), 3) << "calmer than any text";
        EXPECT_LT(contrast(behind, window), contrast(inFront, window));
    } else {
        EXPECT_EQ(behind, QColor(0xFF, 0xFF, 0xC0));
        EXPECT_EQ(inFront, QColor(0xFF, 0x80, 0x80));
    }
    for (const QColor& paper : {behind, inFront})
        EXPECT_GE(contrast(inkOn(paper), paper), legibleEnough);
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
