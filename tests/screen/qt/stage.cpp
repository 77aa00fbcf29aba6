// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/screen/qt/stage.h"

#include <QApplication>

namespace dn::tests {

StageTest::StageTest()
{
    root.Move(0, 0, 600 * 15, 400 * 15);
    guard.onError([this](const std::exception& error) {
        errors.emplace_back(error.what());
        if (!errorsExpected) ADD_FAILURE() << "a gesture threw: " << error.what();
    });
}

StageTest::~StageTest() = default;

void StageTest::show()
{
    view = std::make_unique<screen::qt::ControlView>(root, nullptr, guard);
    view->show();
    view->activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(view.get()));
    settle();
}

void StageTest::settle()
{
    QCoreApplication::processEvents();
    QCoreApplication::processEvents(); // what the first round posted
}

QColor StageTest::colourAt(QWidget& widget, const QPoint& place)
{
    const QImage image = widget.grab().toImage();
    return image.pixelColor(place * image.devicePixelRatio());
}

void StageTest::place(screen::Element& element, int left, int top, int width, int height)
{
    element.Move(left * 15, top * 15, width * 15, height * 15);
}

} // namespace dn::tests
