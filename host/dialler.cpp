// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "host/dialler.h"

#include <QProcess>

namespace dn::host {

// Ends at the first character that no number has within itself: "961 12-34 / 55 10" is two numbers.
QString telephoneAddress(const std::string& text)
{
    QString number;
    bool digits = false;
    for (const QChar character : QString::fromStdString(text)) {
        if (character >= u'0' && character <= u'9') {
            number += character;
            digits = true;
        } else if (!digits) {
            number = character == u'+' ? QStringLiteral("+") : QString(); // the sign belongs to what follows it
        } else if (!QStringLiteral(" -.()").contains(character)) {
            break;
        }
    }
    return digits ? "tel:" + number : QString();
}

bool dial(const std::string& text)
{
    const QString address = telephoneAddress(text);
    return !address.isEmpty() && QProcess::startDetached("xdg-open", {address});
}

} // namespace dn::host
