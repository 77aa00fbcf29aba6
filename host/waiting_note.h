// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// A small note on the screen while the database is made ready, which takes a moment the first time.
#pragma once

#include <QLabel>
#include <QString>

#include <memory>

namespace dn::host {

class WaitingNote {
public:
    /// Shows a step of the preparation.
    void tell(const QString& step);

private:
    std::unique_ptr<QLabel> label_;
};

} // namespace dn::host
