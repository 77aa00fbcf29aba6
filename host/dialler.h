// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// Hands a number to whatever the desktop dials with. The call itself is that program's and the operator's matter.
#pragma once

#include <QString>

#include <string>

namespace dn::host {

/// The address of a number for the desktop, "tel:+525512345678". The text may hold several numbers and words: the
/// first number counts. Empty when there is none.
QString telephoneAddress(const std::string& text);

/// Starts the desktop's program for telephone numbers and does not wait for it. @return whether there was a number
/// and a program to hand it to.
bool dial(const std::string& text);

} // namespace dn::host
