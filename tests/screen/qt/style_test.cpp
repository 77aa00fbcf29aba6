// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// What the plain style keeps of what it draws must not grow with the windows that come and go.

#include "screen/qt/style.h"

#include <QComboBox>
#include <QHeaderView>
#include <QStyleOption>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <gmock/gmock.h>

#include <set>

namespace dn::tests {
namespace {

using screen::qt::KnownPalettes;
using testing::SizeIs;

/// Drawn with by the style under test: notes the keys under which the plain style would keep its pictures.
class PlainStyle : public QProxyStyle {
public:
    PlainStyle() : QProxyStyle(QStringLiteral("Fusion")) {}

    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override
    {
        if (element == CE_HeaderSection) headers.insert(option->palette.cacheKey());
        QProxyStyle::drawControl(element, option, painter, widget);
    }
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                            const QWidget* widget) const override
    {
        if (control == CC_ComboBox) boxes.insert(option->palette.cacheKey());
        QProxyStyle::drawComplexControl(control, option, painter, widget);
    }

    mutable std::set<qint64> headers;
    mutable std::set<qint64> boxes;
};

class StyleTest : public testing::Test {
protected:
    StyleTest() { style.setBaseStyle(plain); }

    /// A window with a list and a combo box comes and goes.
    void comesAndGoes(const QPalette& colours)
    {
        QWidget window;
        auto* const list = new QTreeWidget(&window);
        auto* const box = new QComboBox(&window);
        auto* const layout = new QVBoxLayout(&window);
        layout->addWidget(list);
        layout->addWidget(box);
        list->setHeaderLabels({"Nombre", "Ciudad"});
        box->addItem("Uno");
        for (QWidget* const widget : std::initializer_list<QWidget*>{list, list->header(), box})
            widget->setStyle(&style);
        window.setPalette(colours);
        window.grab();
    }

    PlainStyle* plain = new PlainStyle; // the style's, which ends it
    screen::qt::Style style;
};

TEST_F(StyleTest, what_is_drawn_in_one_window_after_the_other_is_kept_once)
{
    QPalette colours;
    for (int window = 0; window < 3; ++window)
        comesAndGoes(colours);
    EXPECT_THAT(plain->headers, SizeIs(1));
    EXPECT_THAT(plain->boxes, SizeIs(1));
    colours.setColor(QPalette::Button, Qt::red);
    comesAndGoes(colours);
    EXPECT_THAT(plain->headers, SizeIs(2)) << "other colours are another picture";
    EXPECT_THAT(plain->boxes, SizeIs(2));
}

TEST(KnownPalettes, an_equal_one_is_the_first_one_again_and_no_more_are_kept_than_are_of_use)
{
    KnownPalettes palettes;
    const auto inked = [&](std::size_t ink) {
        QPalette palette;
        palette.setColor(QPalette::Text, QColor::fromRgb(static_cast<QRgb>(ink)));
        return palettes.of(palette);
    };
    const qint64 first = inked(0).cacheKey();
    for (std::size_t ink = 1; ink < KnownPalettes::most; ++ink) {
        EXPECT_EQ(inked(ink).color(QPalette::Text).rgb(), QColor::fromRgb(static_cast<QRgb>(ink)).rgb());
        ASSERT_EQ(inked(0).cacheKey(), first) << ink;
    }
    inked(KnownPalettes::most);
    EXPECT_NE(inked(0).cacheKey(), first) << "it began anew";
}

} // namespace
} // namespace dn::tests
