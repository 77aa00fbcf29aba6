// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/screen/qt/keyboard.h"

#include <QTest>

namespace dn::tests {

// The test library's own function knows the keys of ASCII alone.
void presses(QWidget& widget, const QString& text)
{
    for (const char32_t character : text.toStdU32String()) {
        const QString one = QString::fromUcs4(&character, 1);
        const int key = character < 128 ? QTest::asciiToKey(static_cast<char>(character)) : Qt::Key_unknown;
        QTest::simulateEvent(&widget, true, key, Qt::NoModifier, one, false);
        QTest::simulateEvent(&widget, false, key, Qt::NoModifier, one, false);
    }
}

} // namespace dn::tests
