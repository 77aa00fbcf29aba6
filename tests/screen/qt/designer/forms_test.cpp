// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The control on forms: drawn with the plugin of Qt Designer, loaded while the program runs, and compiled from a
// form in which somebody without the plugin has promoted a plain widget to it. All of it over the shared
// libraries.

#include "ui_form.h"

#include "screen/qt/ctr_dn_contacts_widget.h"
#include "screen/qt/theme.h"
#include "shell/ctr_dn_contacts.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QIcon>
#include <QPluginLoader>
#include <QTableView>
#include <QtUiPlugin/QDesignerCustomWidgetInterface>
#include <QUiLoader>

#include <gtest/gtest.h>
#include <linux/filter.h>
#include <linux/seccomp.h>
#include <sys/prctl.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <array>
#include <csignal>
#include <cstddef>
#include <memory>

namespace dn::tests {
namespace {

using screen::qt::CtrDnContactsWidget;

/// The folder with the plugin: that of the build, unless the variable of that name has another one.
const QString pluginFolder = qEnvironmentVariable("DN_PLUGIN_FOLDER", QStringLiteral(DN_PLUGIN_FOLDER));

/// The plugin as Qt Designer loads it; nothing when it cannot be loaded.
QDesignerCustomWidgetInterface* plugin()
{
    static QPluginLoader loader(pluginFolder + "/libdncontacts.so");
    auto* const found = qobject_cast<QDesignerCustomWidgetInterface*>(loader.instance());
    EXPECT_NE(found, nullptr) << loader.errorString().toStdString();
    return found;
}

/// A control with its elements on the screen, to which no host has given anything yet.
void expectNewControl(QWidget* widget)
{
    auto* const contacts = qobject_cast<CtrDnContactsWidget*>(widget);
    ASSERT_NE(contacts, nullptr);
    EXPECT_EQ(contacts->control().AdoCnn(), nullptr);
    EXPECT_EQ(contacts->control().activeTab(), -1);
    EXPECT_EQ(contacts->findChildren<QTableView*>().size(), 5);
}

TEST(Designer, drops_the_control_on_a_form)
{
    ASSERT_NE(plugin(), nullptr);
    const std::unique_ptr<QWidget> widget(plugin()->createWidget(nullptr));
    expectNewControl(widget.get());
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

/// From here on the process ends with a signal where it opens a file or a socket.
void forbidsOpening()
{
    const auto refuse = [](unsigned call, sock_filter* place) {
        place[0] = BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, call, 0, 1);
        place[1] = BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_KILL_PROCESS);
    };
    std::array<sock_filter, 8> rules{};
    rules[0] = BPF_STMT(BPF_LD | BPF_W | BPF_ABS, offsetof(seccomp_data, nr));
    refuse(__NR_openat, &rules[1]);
    refuse(__NR_socket, &rules[3]);
    refuse(__NR_connect, &rules[5]);
    rules[7] = BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ALLOW);
    const sock_fprog program{static_cast<unsigned short>(rules.size()), rules.data()};
    ASSERT_EQ(prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0), 0);
    ASSERT_EQ(prctl(PR_SET_SECCOMP, SECCOMP_MODE_FILTER, &program), 0);
}

/// What the toolkit itself loads when it is first used: the faces of the font, the engine of the drawings, the
/// style.
void warmsUp()
{
    QWidget window;
    QFont bold = screen::qt::controlFont();
    bold.setBold(true);
    for (const QFont& font : {screen::qt::controlFont(), bold})
        static_cast<void>(QFontMetrics(font).horizontalAdvance("Ñandú"));
    static_cast<void>(QIcon(":/dn/icons/dncontacts.svg").pixmap(16));
    screen::qt::dress(window);
}

TEST(Designer, makes_the_control_without_opening_a_file_or_a_connection)
{
    warmsUp();
    EXPECT_EXIT(
        {
            forbidsOpening();
            const CtrDnContactsWidget widget;
            _exit(widget.findChildren<QTableView*>().size() == 5 ? 0 : 1);
        },
        testing::ExitedWithCode(0), "");
    EXPECT_EXIT(
        {
            forbidsOpening();
            QFile file(QString::fromUtf8(DN_FORM));
            _exit(file.open(QIODevice::ReadOnly) ? 0 : 1);
        },
        testing::KilledBySignal(SIGSYS), "");
}

TEST(Designer, is_told_what_the_code_of_a_form_needs)
{
    ASSERT_NE(plugin(), nullptr);
    EXPECT_EQ(plugin()->name().toStdString(), "dn::screen::qt::CtrDnContactsWidget");
    EXPECT_EQ(plugin()->includeFile().toStdString(), "screen/qt/ctr_dn_contacts_widget.h");
    EXPECT_FALSE(plugin()->isContainer());
    EXPECT_FALSE(plugin()->icon().pixmap(22).isNull());
    EXPECT_TRUE(plugin()->domXml().contains("<widget class=\"" + plugin()->name() + "\" name=\"contactos\">"));
}

TEST(Forms, load_with_the_plugin_while_a_program_runs)
{
    QUiLoader loader;
    loader.addPluginPath(pluginFolder);
    QFile file(QString::fromUtf8(DN_FORM));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const std::unique_ptr<QWidget> form(loader.load(&file));
    ASSERT_NE(form, nullptr) << loader.errorString().toStdString();
    expectNewControl(form->findChild<QWidget*>("contactos"));
}

TEST(Forms, compile_without_the_plugin)
{
    QWidget window;
    Ui::SalesForm form;
    form.setupUi(&window);
    expectNewControl(form.contactos);
    EXPECT_EQ(form.contactos->parentWidget(), &window);
}

} // namespace
} // namespace dn::tests

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
