// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// One application object for all tests of widgets.

#include "screen/qt/theme.h"

#include <QApplication>

#include <gtest/gtest.h>

int main(int argc, char** argv)
{
    testing::InitGoogleTest(&argc, argv);
    QApplication application(argc, argv);
    QApplication::setApplicationDisplayName(QStringLiteral("Anfitrión"));
    QApplication::setCursorFlashTime(0); // or a picture would have the cursor now and then
    dn::screen::qt::applyTheme(application, dn::screen::qt::Scheme::light);
    return RUN_ALL_TESTS();
}
