// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The control as its host places it: names, drawings, sizes, errors.

#include "desk/elements.h"
#include "desk/tab_strip.h"
#include "screen/qt/colours.h"
#include "screen/qt/ctr_dn_contacts_widget.h"
#include "screen/qt/icons.h"
#include "screen/qt/text.h"
#include "shell/ctr_dn_contacts.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QImage>
#include <QTest>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <set>
#include <stdexcept>

namespace dn::tests {
namespace {

using namespace dn::screen;

class WidgetTest : public testing::Test {
protected:
    WidgetTest()
    {
        widget.resize(widget.sizeHint());
        widget.show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&widget));
    }

    qt::CtrDnContactsWidget widget;
};

/// Every element of a container, to any depth.
void collect(const Container& container, std::vector<Element*>& elements)
{
    for (Element* child : container.children()) {
        elements.push_back(child);
        if (const auto* inner = dynamic_cast<const Container*>(child)) collect(*inner, elements);
    }
}

TEST_F(WidgetTest, every_element_has_an_object_of_its_name)
{
    std::vector<Element*> elements;
    collect(widget.control().root(), elements);
    EXPECT_GT(elements.size(), 70U);
    for (const Element* element : elements)
        EXPECT_NE(widget.findChild<QObject*>(qt::fromUtf8(element->name())), nullptr) << element->name();
}

TEST_F(WidgetTest, everything_that_takes_the_keyboard_has_a_name_for_a_screen_reader)
{
    int seen = 0;
    for (QWidget* child : widget.findChildren<QWidget*>()) {
        if ((child->focusPolicy() & Qt::TabFocus) == 0 || child->objectName().isEmpty() ||
            child->objectName().startsWith(QStringLiteral("qt_")))
            continue;
        ++seen;
        EXPECT_FALSE(QAccessible::queryAccessibleInterface(child)->text(QAccessible::Name).isEmpty())
            << child->objectName().toStdString();
    }
    EXPECT_GT(seen, 40);
}

TEST_F(WidgetTest, every_picture_that_the_control_names_is_drawn)
{
    std::vector<Element*> elements;
    collect(widget.control().root(), elements);
    std::set<std::string> names;
    for (const Element* element : elements)
        if (const auto* button = dynamic_cast<const Button*>(element)) names.insert(button->Picture());
    for (const ImageList* images :
         {&widget.control().elements().prospects.imgContactos, &widget.control().elements().projects.ImageList1})
        for (int number = 1; number <= images->Count(); ++number)
            names.insert(images->image(number));
    names.erase("");
    EXPECT_GT(names.size(), 20U);
    for (const std::string& name : names)
        EXPECT_FALSE(qt::drawing(name).pixmap(16, 16).isNull()) << name;
}

// In one colour: what is left of a drawing when colours are not told apart.
TEST_F(WidgetTest, the_pictures_of_a_list_differ_in_shape)
{
    const auto shape = [](const std::string& name) {
        return qt::drawing(name).pixmap(16, 16).toImage().convertToFormat(QImage::Format_Alpha8);
    };
    for (const ImageList* images :
         {&widget.control().elements().prospects.imgContactos, &widget.control().elements().projects.ImageList1})
        for (int one = 1; one <= images->Count(); ++one)
            for (int other = one + 1; other <= images->Count(); ++other) {
                const QImage left = shape(images->image(one));
                const QImage right = shape(images->image(other));
                int different = 0;
                for (int y = 0; y < left.height(); ++y)
                    for (int x = 0; x < left.width(); ++x)
                        different += qAbs(left.scanLine(y)[x] - right.scanLine(y)[x]) > 96 ? 1 : 0;
                EXPECT_GT(different, left.width() * left.height() / 12)
                    << images->image(one) << " and " << images->image(other);
            }
}

// What is left of a button without its colour: where it is light on dark or dark on light.
TEST_F(WidgetTest, the_colour_buttons_differ_in_shape)
{
    auto& marks = widget.control().elements().top.bColor;
    std::vector<QImage> shapes;
    for (int i = 0; i < marks.Count(); ++i) {
        const QString name = QString::fromStdString(marks(i).name());
        auto* const button = widget.findChild<QAbstractButton*>(name);
        ASSERT_NE(button, nullptr) << name.toStdString();
        QImage image = button->grab().toImage();
        const int swatch = qGray(qt::fromColour(*marks(i).BackColor()).rgb());
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                image.setPixel(x, y, qAbs(qGray(image.pixel(x, y)) - swatch) > 96 ? 0xFFFFFFFF : 0xFF000000);
        shapes.push_back(image);
    }
    for (std::size_t one = 0; one < shapes.size(); ++one)
        for (std::size_t other = one + 1; other < shapes.size(); ++other) {
            int either = 0;
            int different = 0;
            const int frame = qRound(3 * shapes[one].devicePixelRatio()); // of each button
            for (int y = frame; y < shapes[one].height() - frame; ++y)
                for (int x = frame; x < shapes[one].width() - frame; ++x) {
                    const bool left = qGray(shapes[one].pixel(x, y)) > 0;
                    const bool right = qGray(shapes[other].pixel(x, y)) > 0;
                    either += left || right ? 1 : 0;
                    different += left != right ? 1 : 0;
                }
            EXPECT_GT(different, either / 3) << one << " and " << other;
        }
}

TEST_F(WidgetTest, the_control_has_the_frame_of_the_design_and_follows_the_hosts_size)
{
    EXPECT_EQ(widget.control().root().Width(), 15720);
    EXPECT_EQ(widget.control().root().Height(), 10155);
    widget.resize(1200, 800);
    QTest::qWait(0);
    EXPECT_EQ(widget.control().root().Width(), 18000);
    const auto* const lvw = widget.findChild<QWidget*>(QStringLiteral("lvw"));
    EXPECT_EQ(lvw->width(), 1200 - 242);
    EXPECT_EQ(lvw->height(), 800 - 82);
}

TEST_F(WidgetTest, no_caption_of_the_strips_is_cut_off)
{
    for (const QAbstractButton* button : widget.findChildren<QAbstractButton*>()) {
        if (button->objectName().startsWith(QStringLiteral("qt_"))) continue;
        const int icon = button->icon().isNull() ? 0 : button->iconSize().width() + 4;
        EXPECT_LE(button->fontMetrics().size(Qt::TextShowMnemonic, button->text()).width() + icon, button->width())
            << button->objectName().toStdString();
    }
}

TEST_F(WidgetTest, the_commands_and_marks_of_the_projects_fit_into_800_pixels)
{
    widget.resize(800, 600);
    QTest::mouseClick(widget.findChild<QWidget*>(QStringLiteral("lblItem(1)")), Qt::LeftButton);
    int seen = 0;
    for (const char* strip : {"picItem(1)", "picColors"})
        for (const QWidget* part :
             widget.findChild<QWidget*>(QString::fromUtf8(strip))->findChildren<QAbstractButton*>()) {
            ++seen;
            EXPECT_TRUE(part->isVisibleTo(&widget)) << part->objectName().toStdString();
            EXPECT_LE(part->mapTo(&widget, QPoint(part->width(), 0)).x(), 800) << part->objectName().toStdString();
        }
    EXPECT_EQ(seen, 11);
}

TEST_F(WidgetTest, an_error_of_a_click_goes_to_the_hosts_handler)
{
    std::vector<std::string> errors;
    widget.onError([&](const std::exception& error) { errors.emplace_back(error.what()); });
    const Subscription wire =
        widget.control().elements().top.lblItem(0).Click.connect([] { throw std::runtime_error("sin red"); });
    QTest::mouseClick(widget.findChild<QWidget*>(QStringLiteral("lblItem(0)")), Qt::LeftButton);
    EXPECT_THAT(errors, testing::ElementsAre("sin red"));
}

TEST_F(WidgetTest, two_controls_live_side_by_side)
{
    auto second = std::make_unique<qt::CtrDnContactsWidget>();
    second->show();
    EXPECT_NE(&second->control(), &widget.control());
    second.reset();
    EXPECT_EQ(widget.control().root().Width(), 15720);
}

} // namespace
} // namespace dn::tests
