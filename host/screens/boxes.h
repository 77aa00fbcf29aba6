// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// What the host's screens say in boxes, and what else their windows have in common.
#pragma once

#include <QString>
#include <QWidget>

#include <exception>

class QLineEdit;

namespace dn::host {

/// The window that a new window or box stands over.
QWidget* windowBelow(QWidget* mainWindow);

/// Gives a line the button that empties it, with a name for a screen reader, which the toolkit leaves out.
void offerToClear(QLineEdit& line);

/// Shows a text under the program's name and waits. The box's object name is "Aviso".
void tell(QWidget* over, const QString& text);

/// Shows what kept something from being done, in the words of whoever refused it: the server or the host itself.
void report(QWidget* over, const std::exception& failure);

/// Asks and waits. The box's object name is "Pregunta"; Enter and Escape are a no.
bool ask(QWidget* over, const QString& question, const QString& yes, const QString& no);

/// Runs an operation that the control asked for; a failure is shown instead of being passed on to the control,
/// which would be silent about it.
template <class Operation>
void reporting(QWidget* over, Operation&& operation)
{
    try {
        operation();
    } catch (const std::exception& failure) {
        report(over, failure);
    }
}

} // namespace dn::host
