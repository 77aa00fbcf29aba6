// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The notes in the bar that could not be put back. They may be of any length, and the control below keeps its
// room: a few lines show, and the rest is scrolled to.
#pragma once

#include <QPlainTextEdit>

namespace dn::host {

class KeptNotes : public QPlainTextEdit {
public:
    explicit KeptNotes(QWidget* parent);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
};

} // namespace dn::host
