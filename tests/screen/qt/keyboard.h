// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The keyboard of tests on real widgets.
#pragma once

#include <QString>
#include <QWidget>

namespace dn::tests {

/// The keys of a text, whatever its alphabet.
void presses(QWidget& widget, const QString& text);

} // namespace dn::tests
