// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// A control of a test's own elements, shown in an active window, with its errors collected.
//
//     struct Fixture : StageTest {
//         screen::Button button{&root, "cmdOk"};
//     };
//     TEST_F(Fixture, ...) { show(); QTest::mouseClick(&widget<QPushButton>("cmdOk"), Qt::LeftButton); }
#pragma once

#include "screen/panels.h"
#include "screen/qt/guard.h"
#include "screen/qt/panel_views.h"

#include <QTest>
#include <QWidget>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace dn::tests {

class StageTest : public testing::Test {
protected:
    StageTest();
    ~StageTest() override;

    /// Builds the views of all elements, shows them and waits until their window is active.
    void show();

    /// The widget of an element; the test ends when there is none of that kind and name.
    template <class Kind>
    Kind& widget(const char* name)
    {
        Kind* const found = view->findChild<Kind*>(QString::fromUtf8(name));
        if (found == nullptr) throw std::logic_error(std::string("no such widget: ") + name);
        return *found;
    }

    /// Lets the event loop run until it has nothing left to do.
    static void settle();
    /// Lets it run until a condition holds; fails after some seconds.
    template <class Condition>
    static void waitUntil(const Condition& condition)
    {
        EXPECT_TRUE(QTest::qWaitFor(condition, 5000));
    }

    /// The pixel in the middle of a widget's part.
    static QColor colourAt(QWidget& widget, const QPoint& place);

    static void place(screen::Element& element, int left, int top, int width, int height);

    screen::qt::Guard guard;
    std::vector<std::string> errors; ///< texts of the exceptions that gestures threw
    bool errorsExpected = false;     ///< else each of them fails the test
    screen::UserControl root{"root"};
    std::unique_ptr<screen::qt::ControlView> view; // ends before the elements of a test's fixture do
};

} // namespace dn::tests
