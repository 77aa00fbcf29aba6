// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/stories/qt/window.h"

#include "tests/screen/qt/accessible_tree.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QApplication>
#include <QDir>
#include <QMessageBox>

namespace dn::tests {

AtTheWindow::AtTheWindow()
{
    widget.onError([](const std::exception& error) { ADD_FAILURE() << "a gesture threw: " << error.what(); });
    widget.resize(widget.sizeHint());
    widget.show();
    widget.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&widget));
}

void AtTheWindow::opens(std::int32_t agent, bool admin)
{
    ctrDnContacts& shown = widget.control();
    shown.hostObjects(screens);
    shown.SetObjects(cnn.get(), agent, admin, "ana");
    shown.InitUICRM("pantallas", lands);
    shown.RefreshData();
    shown.elements().top.lblItem(desk::prospectos).click();
    QApplication::processEvents();
    cnn->statements.clear();
}

void AtTheWindow::clicks(const char* button)
{
    QTest::mouseClick(&widgetIn<QAbstractButton>(widget, button), Qt::LeftButton);
}

std::vector<std::string> AtTheWindow::listed()
{
    constexpr int nameColumn = 3;
    std::vector<std::string> names;
    screen::ListItems rows = widget.control().elements().prospects.lvw.ListItems();
    for (int i = 1; i <= rows.Count(); ++i)
        names.emplace_back(rows(i).ListSubItems()(nameColumn).Text());
    return names;
}

void AtTheWindow::key(Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    QTest::keyClick(QApplication::focusWidget(), key, modifiers);
    QApplication::processEvents();
}

void AtTheWindow::writes(const char* text)
{
    dn::tests::presses(*QApplication::focusWidget(), QString::fromUtf8(text));
}

int AtTheWindow::tabsTo(const char* name)
{
    int pressed = 0;
    for (; focus() != name && pressed < 60; ++pressed)
        key(Qt::Key_Tab);
    EXPECT_EQ(focus(), name);
    return pressed;
}

void AtTheWindow::backTo(QWidget& window)
{
    window.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
}

std::string AtTheWindow::focus()
{
    const QWidget* const focused = QApplication::focusWidget();
    return focused == nullptr ? "" : focused->objectName().toStdString();
}

std::string AtTheWindow::boxText(const QWidget& box)
{
    return dynamic_cast<const QMessageBox&>(box).text().toStdString();
}

std::vector<std::string> AtTheWindow::tabOrder(QWidget& window)
{
    std::vector<std::string> names;
    const QWidget* const first = QApplication::focusWidget();
    do {
        names.push_back(focus());
        QTest::keyClick(&window, Qt::Key_Tab);
    } while (QApplication::focusWidget() != first && names.size() < 50);
    return names;
}

void AtTheWindow::isLegible(QWidget& window)
{
    EXPECT_THAT(cutOff(window), testing::IsEmpty());
    EXPECT_THAT(unnamed(window), testing::IsEmpty());
    for (QWidget* child : window.findChildren<QWidget*>()) {
        if (child->objectName().startsWith(QStringLiteral("qt_")) || child->objectName().isEmpty()) continue;
        if ((child->focusPolicy() & Qt::TabFocus) != 0) {
            const QString name = QAccessible::queryAccessibleInterface(child)->text(QAccessible::Name);
            EXPECT_FALSE(name.isEmpty()) << child->objectName().toStdString();
            EXPECT_NE(name, child->objectName());
        }
        EXPECT_TRUE(window.rect().contains(child->geometry()) || child->parentWidget() != &window)
            << child->objectName().toStdString();
    }
}

void AtTheWindow::picture(QWidget& window, const char* name)
{
    QDir folder(QCoreApplication::applicationDirPath());
    folder.mkpath(QStringLiteral("pictures"));
    const QPixmap image = window.grab();
    const QString file =
        QStringLiteral("pictures/%1-scale-%2.png").arg(QString::fromUtf8(name)).arg(image.devicePixelRatio());
    EXPECT_TRUE(image.save(folder.filePath(file)));
}

} // namespace dn::tests
