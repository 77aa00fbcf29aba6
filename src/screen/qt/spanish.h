// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The toolkit's own texts in Spanish: the entries of its context menus and its standard buttons.
#pragma once

class QCoreApplication;

namespace dn::screen::qt {

/// Loads the toolkit's Spanish translation where it is installed, and below it a table of the texts that an
/// operator of the control meets.
void speakSpanish(QCoreApplication& application);

} // namespace dn::screen::qt
