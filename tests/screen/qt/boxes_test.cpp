// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// Message box, input box, save-file dialog, pointer, clock and the yield of the event loop.

#include "screen/label.h"
#include "screen/qt/file_filter.h"
#include "screen/qt/ports.h"
#include "tests/screen/qt/modal_driver.h"
#include "tests/screen/qt/stage.h"

#include <QApplication>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTemporaryDir>

namespace dn::tests {
namespace {

using namespace dn::screen;
using testing::ElementsAre;
using testing::UnorderedElementsAre;

class PortsTest : public StageTest {
protected:
    ~PortsTest() override { view.reset(); }

    qt::QtPorts ports{guard, nullptr};
    Dialogs& dialogs = ports.ports().dialogs;
    ModalDriver driver;
};

TEST_F(PortsTest, a_box_has_an_accept_button_and_the_hosts_name)
{
    driver.expect("MsgBox", [](QWidget& window) {
        auto& box = dynamic_cast<QMessageBox&>(window);
        EXPECT_EQ(box.text(), QStringLiteral("<b>Texto</b>"));
        EXPECT_EQ(box.textFormat(), Qt::PlainText);
        EXPECT_EQ(box.windowTitle(), QStringLiteral("Anfitrión"));
        EXPECT_EQ(box.icon(), QMessageBox::NoIcon);
        EXPECT_THAT(buttons(box), ElementsAre("Aceptar"));
        QTest::keyClick(&box, Qt::Key_Return);
    });
    EXPECT_EQ(dialogs.MsgBox({.prompt = "<b>Texto</b>"}), screen::Answer::ok);
}

TEST_F(PortsTest, a_title_and_an_icon_show_when_they_are_given)
{
    driver.expect("MsgBox", [](QWidget& window) {
        auto& box = dynamic_cast<QMessageBox&>(window);
        EXPECT_EQ(box.windowTitle(), QStringLiteral("Fuerza de ventas"));
        EXPECT_EQ(box.icon(), QMessageBox::Critical);
        pressButton(box, "Aceptar");
    });
    dialogs.MsgBox({.prompt = "x", .icon = MessageBox::Icon::critical, .title = "Fuerza de ventas"});
}

TEST_F(PortsTest, a_question_is_answered_by_button_key_and_frame)
{
    struct Case {
        int defaultButton;
        std::function<void(QWidget&)> act;
        screen::Answer answer;
    };
    const std::vector<Case> cases{
        {1, [](QWidget& box) { pressButton(box, "Sí"); }, screen::Answer::yes},
        {1, [](QWidget& box) { pressButton(box, "No"); }, screen::Answer::no},
        {1, [](QWidget& box) { QTest::keyClick(&box, Qt::Key_Return); }, screen::Answer::yes},
        {2, [](QWidget& box) { QTest::keyClick(&box, Qt::Key_Return); }, screen::Answer::no},
        {1, [](QWidget& box) { QTest::keyClick(&box, Qt::Key_Escape); }, screen::Answer::no},
        {1, [](QWidget& box) { box.close(); }, screen::Answer::no},
    };
    for (const Case& one : cases) {
        driver.expect("MsgBox", [&](QWidget& box) {
            EXPECT_THAT(buttons(box), UnorderedElementsAre("Sí", "No"));
            one.act(box);
        });
        EXPECT_EQ(
            dialogs.MsgBox(
                {.prompt = "¿Seguro?", .buttons = MessageBox::Buttons::yesNo, .defaultButton = one.defaultButton}),
            one.answer);
    }
}

TEST_F(PortsTest, the_input_box_gives_the_text_and_nothing_on_cancel)
{
    const auto typing = [](const char* button) {
        return [button](QWidget& box) {
            EXPECT_THAT(buttons(box), UnorderedElementsAre("Aceptar", "Cancelar"));
            EXPECT_EQ(box.windowTitle(), QStringLiteral("Anfitrión"));
            auto* const edit = box.findChild<QLineEdit*>();
            EXPECT_TRUE(edit->hasFocus());
            EXPECT_EQ(edit->accessibleName(), QStringLiteral("Motivo:"));
            QTest::keyClicks(edit, QStringLiteral(" no contesta "));
            pressButton(box, button);
        };
    };
    driver.expect("InputBox", typing("Aceptar"));
    EXPECT_EQ(dialogs.InputBox("Motivo:"), " no contesta ");
    driver.expect("InputBox", typing("Cancelar"));
    EXPECT_EQ(dialogs.InputBox("Motivo:"), "");
    driver.expect("InputBox", [](QWidget& box) { QTest::keyClick(&box, Qt::Key_Escape); });
    EXPECT_EQ(dialogs.InputBox("Motivo:"), "");
}

TEST_F(PortsTest, the_save_dialog_gives_path_and_filter)
{
    const QTemporaryDir folder;
    const auto save = [&](const QString& name, int filter) {
        return [=, &folder](QWidget& window) {
            auto& dialog = dynamic_cast<QFileDialog&>(window);
            dialog.setDirectory(folder.path());
            dialog.selectNameFilter(dialog.nameFilters()[filter - 1]);
            dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->setText(name);
            pressButton(dialog, "Guardar");
        };
    };
    const std::string filter = "Archivos de MS Excel|*.xls|Archivos HTML|*.html";
    driver.expect("ShowSave", save(QStringLiteral("correos"), 2));
    std::optional<SaveChoice> choice = dialogs.ShowSave(filter);
    ASSERT_TRUE(choice.has_value());
    EXPECT_EQ(choice->path, folder.filePath(QStringLiteral("correos")).toStdString());
    EXPECT_EQ(choice->filterIndex, 2);

    QFile there(folder.filePath(QStringLiteral("ya.xls")));
    ASSERT_TRUE(there.open(QIODevice::WriteOnly));
    driver.expect("ShowSave", save(QStringLiteral("ya.xls"), 1));
    driver.expect("MsgBox", [](QWidget& box) { pressButton(box, "No"); });
    driver.expect("ShowSave", save(QStringLiteral("ya.xls"), 1));
    driver.expect("MsgBox", [](QWidget& box) { pressButton(box, "Sí"); });
    choice = dialogs.ShowSave(filter);
    ASSERT_TRUE(choice.has_value());
    EXPECT_EQ(choice->filterIndex, 1);

    driver.expect("ShowSave", [](QWidget& window) { pressButton(window, "Cancelar"); });
    EXPECT_FALSE(dialogs.ShowSave(filter).has_value());
}

TEST_F(PortsTest, the_hourglass_is_an_override_cursor_that_goes_as_often_as_it_came)
{
    Pointer& pointer = ports.ports().pointer;
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
    pointer.MousePointer(Pointer::hourglass);
    pointer.MousePointer(Pointer::hourglass);
    EXPECT_EQ(pointer.MousePointer(), Pointer::hourglass);
    ASSERT_NE(QApplication::overrideCursor(), nullptr);
    EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
    pointer.MousePointer(Pointer::standard);
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
    {
        qt::QtPointer other;
        other.MousePointer(Pointer::hourglass);
    }
    EXPECT_EQ(QApplication::overrideCursor(), nullptr); // a control that ends in the middle of its work
}

TEST_F(PortsTest, the_pointer_rests_while_a_box_waits_for_its_answer)
{
    Pointer& pointer = ports.ports().pointer;
    pointer.MousePointer(Pointer::hourglass);
    driver.expect("MsgBox", [](QWidget& box) {
        EXPECT_EQ(QApplication::overrideCursor(), nullptr);
        pressButton(box, "Aceptar");
    });
    dialogs.MsgBox({.prompt = "Falló."});
    EXPECT_NE(QApplication::overrideCursor(), nullptr) << "it is not the box that ends the hourglass";
    pointer.MousePointer(Pointer::standard);
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

TEST_F(PortsTest, the_clock_gives_the_machines_time_in_whole_seconds)
{
    const QDateTime before = QDateTime::currentDateTime();
    const DateTime now = ports.ports().clock.Now();
    const QDateTime asQt({now.year, now.month, now.day}, {now.hour, now.minute, now.second});
    EXPECT_EQ(now.microsecond, 0);
    EXPECT_LE(asQt, QDateTime::currentDateTime());
    EXPECT_LT(before.msecsTo(asQt), 1000);
    EXPECT_GT(asQt.msecsTo(before), -1001);
    EXPECT_LT(asQt.msecsTo(before), 1001);
}

TEST_F(PortsTest, one_yield_lets_pending_paints_through)
{
    struct Painted : QObject {
        bool eventFilter(QObject*, QEvent* event) override
        {
            if (event->type() == QEvent::Paint) ++count;
            return false;
        }
        int count = 0;
    } painted;
    Label label(&root, "lbl");
    place(label, 10, 10, 100, 20);
    show();
    widget<QWidget>("lbl").installEventFilter(&painted);
    label.Caption("otro texto");
    EXPECT_EQ(painted.count, 0);
    ports.ports().events.DoEvents();
    EXPECT_EQ(painted.count, 1);
    view.reset();
}

TEST(FileFilter, pairs_become_name_filters)
{
    const qt::FileFilter filter("Hojas|*.xls;*.xlsx|Todo|*.*");
    EXPECT_EQ(filter.nameFilters(),
              QStringList({QStringLiteral("Hojas (*.xls *.xlsx)"), QStringLiteral("Todo (*.*)")}));
    EXPECT_EQ(filter.number(QStringLiteral("Todo (*.*)")), 2);
    EXPECT_EQ(filter.number(QStringLiteral("otro")), 1);
}

} // namespace
} // namespace dn::tests
