// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// Panels, progress bar, timer, calendars, and where all of them stand on the screen.

#include "screen/calendars.h"
#include "screen/label.h"
#include "screen/progress_bar.h"
#include "screen/qt/geometry.h"
#include "screen/qt/icons.h"
#include "screen/qt/small_views.h"
#include "screen/qt/text.h"
#include "screen/qt/theme.h"
#include "screen/text_box.h"
#include "screen/timer.h"
#include "tests/screen/qt/stage.h"

#include <QApplication>
#include <QCalendarWidget>
#include <QEventLoop>
#include <QHelpEvent>
#include <QLabel>
#include <QPainter>
#include <QProgressBar>
#include <QStyleOptionToolButton>
#include <QTimeEdit>
#include <QToolButton>
#include <QToolTip>

namespace dn::tests {
namespace {

using namespace dn::screen;
using dn::screen::qt::dress;

class SmallViewsTest : public StageTest {
protected:
    ~SmallViewsTest() override { view.reset(); }
};

TEST_F(SmallViewsTest, the_first_child_stands_in_front)
{
    PicturePanel front(&root, "picFront");
    PicturePanel back(&root, "picBack");
    place(front, 10, 10, 50, 50);
    place(back, 10, 10, 50, 50);
    front.BackColor(0x0000FF);
    back.BackColor(0xFF0000);
    show();
    EXPECT_EQ(colourAt(*view, {30, 30}), QColor(0xFF, 0, 0));
    front.Visible(false);
    EXPECT_EQ(colourAt(*view, {30, 30}), QColor(0, 0, 0xFF));
    view.reset();
}

TEST_F(SmallViewsTest, a_panel_without_a_colour_hides_what_lies_behind_it)
{
    PicturePanel front(&root, "picFront");
    PicturePanel back(&root, "picBack");
    place(front, 10, 10, 50, 50);
    place(back, 10, 10, 50, 50);
    back.BackColor(0xFF0000);
    show();
    EXPECT_EQ(colourAt(*view, {30, 30}), view->palette().color(QPalette::Window));
    view.reset();
}

TEST_F(SmallViewsTest, texts_on_a_coloured_panel_stay_legible)
{
    PicturePanel panel(&root, "pic");
    Label label(&panel, "lbl");
    panel.BackColor(0x004000);
    show();
    EXPECT_EQ(widget<QWidget>("lbl").palette().color(QPalette::WindowText), QColor(Qt::white));
    panel.BackColor(0xFFFFFF);
    const QPalette usual = QApplication::palette(); // white is paper
    EXPECT_EQ(widget<QWidget>("lbl").palette().color(QPalette::WindowText), usual.color(QPalette::WindowText));
    panel.BackColor(0xF0F0F0);
    EXPECT_EQ(widget<QWidget>("lbl").palette().color(QPalette::WindowText), QColor(Qt::black));
    view.reset();
}

TEST_F(SmallViewsTest, the_control_takes_the_size_of_its_view)
{
    int resized = 0;
    const Subscription wire = root.Resize.connect([&] { ++resized; });
    show();
    view->resize(500, 321);
    settle();
    EXPECT_EQ(root.Width(), 7500);
    EXPECT_EQ(root.Height(), 4815);
    EXPECT_GE(resized, 1);
    view.reset();
}

// Widths that are no whole pixels: panel follows panel without a gap and without an overlap.
TEST_F(SmallViewsTest, what_touches_in_twips_touches_on_the_screen)
{
    std::vector<std::unique_ptr<PicturePanel>> panels;
    Twips left = 0;
    for (int n = 0; n < 12; ++n) {
        panels.push_back(std::make_unique<PicturePanel>(&root, "pic" + std::to_string(n)));
        panels.back()->Move(left, 0, 157 + n, 300);
        panels.back()->BackColor(n % 2 == 0 ? 0x0000FF : 0x00FF00);
        left += 157 + n;
    }
    show();
    for (int n = 1; n < 12; ++n)
        EXPECT_EQ(widget<QWidget>(("pic" + std::to_string(n - 1)).c_str()).geometry().right() + 1,
                  widget<QWidget>(("pic" + std::to_string(n)).c_str()).x());
    const QImage image = view->grab().toImage();
    const int behind = static_cast<int>(qt::pixelEdge(left) * image.devicePixelRatio());
    const int row = static_cast<int>(10 * image.devicePixelRatio());
    for (int x = 0; x < behind; ++x)
        EXPECT_EQ(image.pixelColor(x, row).blue(), 0) << "the window shows through at " << x;
    view.reset();
}

TEST_F(SmallViewsTest, edges_are_rounded_on_either_side_of_zero)
{
    EXPECT_EQ(qt::pixelEdge(0), 0);
    EXPECT_EQ(qt::pixelEdge(7), 0);
    EXPECT_EQ(qt::pixelEdge(8), 1);
    EXPECT_EQ(qt::pixelEdge(-7), 0);
    EXPECT_EQ(qt::pixelEdge(-8), -1);
    EXPECT_EQ(qt::pixelEdge(-75), -5);
    EXPECT_EQ(qt::pixelEdge(15720), 1048);
}

TEST_F(SmallViewsTest, a_progress_bar_and_a_line_mirror_their_elements)
{
    ProgressBar bar(&root, "PG");
    Line line(&root, "lin");
    bar.Range(0, 50);
    line.Move(150, 150, 1500, 0);
    show();
    bar.Value(20);
    EXPECT_EQ(widget<QProgressBar>("PG").value(), 20);
    EXPECT_EQ(widget<QProgressBar>("PG").maximum(), 50);
    EXPECT_EQ(widget<QWidget>("lin").geometry(), QRect(10, 10, 100, 1));
    view.reset();
}

TEST_F(SmallViewsTest, a_timer_ticks_also_while_one_of_its_ticks_waits)
{
    Timer timer(&root, "Timer1");
    Timer other(&root, "Timer2");
    other.Interval(1);
    int ticks = 0;
    int ticksOfOther = 0;
    QEventLoop nested;
    QTimer::singleShot(5000, &nested, &QEventLoop::quit); // a silent timer fails the test and does not hang it
    const Subscription wireOfOther = other.TimerEvent.connect([&] { ++ticksOfOther; });
    const Subscription wire = timer.TimerEvent.connect([&] {
        if (++ticks == 1) nested.exec(); // a handler that shows a window, say
        if (ticks == 4) nested.quit();
    });
    show();
    settle();
    EXPECT_EQ(ticks, 0); // no interval yet
    timer.Interval(1);
    waitUntil([&] { return ticks >= 1; });
    EXPECT_GE(ticks, 4);
    timer.Enabled(false);
    const int before = ticks;
    ticksOfOther = 0;
    waitUntil([&] { return ticksOfOther > 3; });
    EXPECT_EQ(ticks, before);
    timer.Enabled(true);
    waitUntil([&] { return ticks > before; });
    view.reset();
}

TEST_F(SmallViewsTest, a_timer_stands_still_while_what_it_moves_is_out_of_sight_and_makes_up_for_it_at_once)
{
    PicturePanel panel(&root, "pic");
    ProgressBar bar(&panel, "PG");
    Timer timer(&root, "Timer1");
    Timer clock(&root, "Timer2");
    panel.Visible(false);
    timer.Interval(1);
    timer.Moves(bar, 1'000'000'000);
    clock.Interval(1);
    int ticks = 0;
    int ticksOfClock = 0;
    const Subscription wire = timer.TimerEvent.connect([&] { ++ticks; });
    const Subscription wireOfClock = clock.TimerEvent.connect([&] { ++ticksOfClock; });
    show();
    waitUntil([&] { return ticksOfClock > 50; });
    EXPECT_EQ(ticks, 0);
    panel.Visible(true);
    EXPECT_GE(ticks, 50) << "a millisecond each, without a turn of the event loop";
    const int before = ticks;
    waitUntil([&] { return ticks > before + 3; });
    view.reset();
}

TEST_F(SmallViewsTest, a_timer_makes_up_for_no_whole_rounds)
{
    PicturePanel panel(&root, "pic");
    ProgressBar bar(&panel, "PG");
    Timer timer(&root, "Timer1");
    Timer clock(&root, "Timer2");
    panel.Visible(false);
    timer.Interval(1);
    timer.Moves(bar, 7);
    clock.Interval(1);
    int ticks = 0;
    int ticksOfClock = 0;
    const Subscription wire = timer.TimerEvent.connect([&] { ++ticks; });
    const Subscription wireOfClock = clock.TimerEvent.connect([&] { ++ticksOfClock; });
    show();
    waitUntil([&] { return ticksOfClock > 20; });
    panel.Visible(true);
    EXPECT_LT(ticks, 7);
    view.reset();
}

TEST_F(SmallViewsTest, a_day_and_a_time_are_picked)
{
    MonthView month(&root, "cal");
    DTPicker picker(&root, "dtHora");
    place(month, 10, 10, 250, 200);
    place(picker, 10, 220, 100, 21);
    month.Value({2026, 3, 14});
    picker.Value({0, 0, 0, 9, 30, 15});
    show();
    auto& calendar = widget<QCalendarWidget>("cal");
    auto& time = widget<QTimeEdit>("dtHora");
    EXPECT_EQ(calendar.selectedDate(), QDate(2026, 3, 14));
    EXPECT_EQ(calendar.locale().language(), QLocale::Spanish);
    EXPECT_EQ(time.text(), QStringLiteral("09:30:15"));
    calendar.setFocus();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Right);
    EXPECT_EQ(month.Value(), (DateTime{2026, 3, 15}));
    EXPECT_TRUE(month.hasFocus());
    QTest::keyClick(&time, Qt::Key_Up);
    EXPECT_EQ(picker.Value(), (DateTime{0, 0, 0, 10, 30, 15}));
    month.Value({2027, 1, 1});
    EXPECT_EQ(calendar.selectedDate(), QDate(2027, 1, 1));
    month.Enabled(false);
    EXPECT_FALSE(calendar.isEnabled());
    view.reset();
}

TEST_F(SmallViewsTest, accelerators_are_taken_out_where_no_widget_knows_them)
{
    EXPECT_EQ(qt::withoutMnemonic("&Buscar:"), QStringLiteral("Buscar:"));
    EXPECT_EQ(qt::withoutMnemonic("Uno && dos"), QStringLiteral("Uno & dos"));
    EXPECT_EQ(qt::withoutMnemonic("&&&x"), QStringLiteral("&x"));
    EXPECT_EQ(qt::withoutMnemonic(""), QString());
}

TEST_F(SmallViewsTest, a_label_of_the_size_of_its_text_keeps_to_the_room_of_its_panel)
{
    PicturePanel strip(&root, "strip");
    Label counter(&strip, "counter");
    const std::string text = "Hoy: 150 actividades | Proyectos: 38 Contactos: 135";
    place(strip, 0, 0, 400, 21);
    place(counter, 20, 1, 3, 13);
    counter.AutoSize(true);
    counter.Caption(text);
    counter.ToolTipText("");
    show();
    auto& label = widget<QLabel>("counter");
    const int whole = label.width();
    ASSERT_LT(whole, 380);
    EXPECT_EQ(label.font().stretch(), QFont::Unstretched);
    place(strip, 0, 0, 20 + whole * 85 / 100, 21);
    EXPECT_LE(label.x() + label.width(), strip.Width() / 15) << "set narrower";
    EXPECT_LT(label.font().stretch(), 90);
    EXPECT_EQ(label.text().toStdString(), text);
    EXPECT_EQ(label.toolTip(), "");
    place(strip, 0, 0, 20 + whole / 2, 21);
    EXPECT_EQ(label.toolTip().toStdString(), text) << "no room for what can still be read";
    place(strip, 0, 0, 400, 21);
    EXPECT_EQ(label.width(), whole);
    EXPECT_EQ(label.font().stretch(), QFont::Unstretched);
    EXPECT_EQ(label.toolTip(), "");
}

TEST_F(SmallViewsTest, a_label_without_any_room_is_told_by_what_it_lies_in)
{
    PicturePanel strip(&root, "strip");
    Label counter(&strip, "counter");
    place(strip, 0, 0, 100, 21);
    place(counter, 110, 0, 10, 15);
    counter.AutoSize(true);
    counter.Caption("Hoy: 3 actividades");
    show();
    auto& panel = widget<QWidget>("strip");
    const auto asks = [&] {
        QHelpEvent help(QEvent::ToolTip, {5, 5}, panel.mapToGlobal(QPoint(5, 5)));
        QApplication::sendEvent(&panel, &help);
        return help.isAccepted();
    };
    EXPECT_TRUE(asks());
    EXPECT_EQ(QToolTip::text().toStdString(), "Hoy: 3 actividades");
    QToolTip::hideText();
    place(strip, 0, 0, 400, 21);
    EXPECT_FALSE(asks()) << "it shows itself";
}

TEST_F(SmallViewsTest, the_hourglass_shows_while_a_click_on_a_tab_works)
{
    Label tab(&root, "lblItem(0)");
    place(tab, 0, 0, 100, 21);
    tab.handPointer(true);
    bool shown = false;
    const auto works = tab.Click.connect([&] { shown = QApplication::overrideCursor() != nullptr; });
    show();
    QTest::mouseClick(&widget<QWidget>("lblItem(0)"), Qt::LeftButton);
    EXPECT_TRUE(shown);
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

TEST_F(SmallViewsTest, the_name_of_a_month_has_no_arrow_on_it)
{
    MonthView month(&root, "month");
    place(month, 0, 0, 250, 200);
    show();
    dress(*view);
    const auto* const name = view->findChild<QToolButton*>("qt_calendar_monthbutton");
    ASSERT_NE(name, nullptr);
    QStyleOptionToolButton option;
    option.initFrom(name);
    option.rect = {0, 0, 60, 20};
    option.text = "marzo";
    option.subControls = QStyle::SC_ToolButton;
    const auto drawn = [&](bool menu) {
        option.features = menu ? QStyleOptionToolButton::HasMenu : QStyleOptionToolButton::None;
        QImage image(60, 20, QImage::Format_RGB32);
        image.fill(Qt::white);
        QPainter painter(&image);
        name->style()->drawComplexControl(QStyle::CC_ToolButton, &option, &painter, name);
        return image;
    };
    EXPECT_EQ(drawn(true), drawn(false));
}

} // namespace
} // namespace dn::tests
