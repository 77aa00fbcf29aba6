// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// Windows of dialogs through the real event loop: shown, worked in, closed.

#include "screen/button.h"
#include "screen/qt/ports.h"
#include "screen/text_box.h"
#include "tests/screen/qt/modal_driver.h"
#include "tests/screen/qt/stage.h"

#include <QApplication>
#include <QDialog>
#include <QLineEdit>
#include <QPushButton>

#include <gtest/gtest-spi.h>

#include <optional>
#include <stdexcept>

namespace dn::tests {
namespace {

using namespace dn::screen;

/// A dialog's elements, as a unit of the control would hold them.
struct SampleForm {
    SampleForm()
    {
        form.Caption("Muestra");
        StagePlacer::put(form, 0, 0, 300, 120);
        StagePlacer::put(text, 10, 10, 200, 21);
        StagePlacer::put(ok, 10, 60, 90, 24);
        StagePlacer::put(cancel, 110, 60, 90, 24);
        ok.Caption("&Aceptar");
        ok.Default(true);
        cancel.Caption("Cancelar");
        cancel.Cancel(true);
        wires.push_back(ok.Click.connect([this] {
            ++accepted;
            form.Hide();
        }));
        wires.push_back(cancel.Click.connect([this] {
            ++cancelled;
            form.Hide();
        }));
    }

    struct StagePlacer {
        static void put(Element& element, int left, int top, int width, int height)
        {
            element.Move(left * 15, top * 15, width * 15, height * 15);
        }
    };

    int accepted = 0;
    int cancelled = 0;
    Form form{"dlgMuestra"};
    Button cancel{&form, "cmdCancel"};
    Button ok{&form, "cmdOk"};
    TextBox text{&form, "txtNombre"};
    Subscriptions wires;
};

class FormViewTest : public StageTest {
protected:
    FormViewTest() { show(); }
    ~FormViewTest() override { view.reset(); }

    qt::QtPorts ports{guard, nullptr};
    EventLoop& events = ports.ports().events;
    Dialogs& dialogs = ports.ports().dialogs;
    std::optional<SampleForm> sample{std::in_place};
    ModalDriver driver;
};

TEST_F(FormViewTest, a_form_is_modal_and_returns_when_its_own_code_hides_it)
{
    driver.expect("dlgMuestra", [&](QWidget& window) {
        EXPECT_EQ(window.windowTitle(), QStringLiteral("Muestra"));
        EXPECT_EQ(window.size(), QSize(300, 120));
        EXPECT_TRUE(window.isModal());
        EXPECT_EQ(window.parentWidget(), view.get());
        EXPECT_TRUE(sample->form.Visible());
        QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("Ana"));
        pressButton(window, "Aceptar");
    });
    events.ShowModal(sample->form);
    EXPECT_FALSE(sample->form.Visible());
    EXPECT_EQ(sample->text.Text(), "Ana");
    EXPECT_EQ(sample->accepted, 1);
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

TEST_F(FormViewTest, a_form_shown_again_keeps_its_state)
{
    for (const char* letters : {"a", "b"}) {
        driver.expect("dlgMuestra", [&](QWidget& window) {
            auto* const edit = window.findChild<QLineEdit*>(QStringLiteral("txtNombre"));
            edit->end(false);
            QTest::keyClicks(edit, QString::fromUtf8(letters));
            pressButton(window, "Aceptar");
        });
        events.ShowModal(sample->form);
    }
    EXPECT_EQ(sample->text.Text(), "ab");
}

TEST_F(FormViewTest, enter_presses_the_default_button_and_escape_the_one_that_cancels)
{
    driver.expect("dlgMuestra", [&](QWidget& window) {
        QTest::keyClick(window.findChild<QLineEdit*>(QStringLiteral("txtNombre")), Qt::Key_Return);
    });
    events.ShowModal(sample->form);
    EXPECT_EQ(sample->accepted, 1);
    driver.expect("dlgMuestra", [](QWidget& window) { QTest::keyClick(&window, Qt::Key_Escape); });
    events.ShowModal(sample->form);
    EXPECT_EQ(sample->cancelled, 1);
}

TEST_F(FormViewTest, escape_without_a_button_to_press_and_the_frames_button_close_the_window_and_nothing_else)
{
    sample->cancel.Enabled(false);
    driver.expect("dlgMuestra", [](QWidget& window) { QTest::keyClick(&window, Qt::Key_Escape); });
    events.ShowModal(sample->form);
    sample->cancel.Enabled(true);
    driver.expect("dlgMuestra", [](QWidget& window) { window.close(); });
    events.ShowModal(sample->form);
    EXPECT_EQ(sample->cancelled, 0);
    EXPECT_EQ(sample->accepted, 0);
    EXPECT_FALSE(sample->form.Visible());
}

TEST_F(FormViewTest, a_form_that_unloads_itself_ends_its_window)
{
    sample->wires.push_back(sample->ok.Click.connect([this] { sample.reset(); }));
    driver.expect("dlgMuestra", [](QWidget& window) { pressButton(window, "Aceptar"); });
    sample->wires.erase(sample->wires.begin()); // the handler that hides
    events.ShowModal(sample->form);
    EXPECT_FALSE(sample.has_value());
}

TEST_F(FormViewTest, a_box_over_a_form_and_back)
{
    sample->wires.push_back(sample->ok.Click.connect([this] {
        dialogs.say("Falta el nombre");
        sample->form.Visible(true); // still there: the handler before this one hid it
    }));
    sample->wires.erase(sample->wires.begin());
    driver.expect("dlgMuestra", [](QWidget& window) { pressButton(window, "Aceptar"); });
    driver.expect("MsgBox", [](QWidget& box) {
        EXPECT_EQ(box.parentWidget()->objectName(), QStringLiteral("dlgMuestra"));
        pressButton(box, "Aceptar");
    });
    driver.expect("dlgMuestra", [](QWidget& window) { pressButton(window, "Cancelar"); });
    events.ShowModal(sample->form);
    EXPECT_EQ(sample->cancelled, 1);
}

TEST_F(FormViewTest, an_exception_in_a_form_goes_to_the_handler_and_the_form_stays)
{
    errorsExpected = true;
    sample->wires.push_back(sample->ok.Click.connect([] { throw std::runtime_error("falló"); }));
    sample->wires.erase(sample->wires.begin());
    driver.expect("dlgMuestra", [](QWidget& window) { pressButton(window, "Aceptar"); });
    driver.expect("dlgMuestra", [](QWidget& window) { pressButton(window, "Cancelar"); });
    events.ShowModal(sample->form);
    EXPECT_THAT(errors, testing::ElementsAre("falló"));
}

TEST_F(FormViewTest, the_focus_given_before_a_form_shows_is_there_when_it_does)
{
    sample->cancel.SetFocus();
    driver.expect("dlgMuestra", [](QWidget& window) {
        EXPECT_EQ(QApplication::focusWidget()->objectName(), QStringLiteral("cmdCancel"));
        pressButton(window, "Cancelar");
    });
    events.ShowModal(sample->form);
}

TEST_F(FormViewTest, a_form_keeps_its_size_unless_it_is_made_resizable)
{
    driver.expect("dlgMuestra", [](QWidget& window) {
        EXPECT_EQ(window.minimumSize(), window.maximumSize());
        pressButton(window, "Cancelar");
    });
    events.ShowModal(sample->form);
}

TEST_F(FormViewTest, a_resizable_form_follows_its_window_and_the_window_the_form)
{
    int resized = 0;
    sample->form.makeResizable();
    sample->wires.push_back(sample->form.Resize.connect([&] {
        ++resized;
        sample->text.Width(sample->form.Width() - 300);
    }));
    driver.expect("dlgMuestra", [&](QWidget& window) {
        EXPECT_EQ(window.minimumSize(), QSize(300, 120));
        EXPECT_EQ(resized, 0);
        window.resize(400, 160);
        EXPECT_TRUE(QTest::qWaitFor([&] { return resized > 0; }, 5000));
        EXPECT_EQ(sample->form.Width(), 400 * 15);
        EXPECT_EQ(sample->form.Height(), 160 * 15);
        EXPECT_EQ(resized, 1);
        EXPECT_EQ(window.size(), QSize(400, 160));
        EXPECT_EQ(window.findChild<QLineEdit*>(QStringLiteral("txtNombre"))->width(), 380);
        sample->form.Width(350 * 15);
        EXPECT_EQ(window.size(), QSize(350, 160));
        pressButton(window, "Cancelar");
    });
    events.ShowModal(sample->form);
}

TEST_F(FormViewTest, the_driver_refuses_a_window_that_nobody_expected)
{
    EXPECT_NONFATAL_FAILURE(events.ShowModal(sample->form), "a window that nobody expected: dlgMuestra");
    EXPECT_FALSE(sample->form.Visible());
}

} // namespace
} // namespace dn::tests
