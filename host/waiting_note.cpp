// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "host/waiting_note.h"

#include <QApplication>

namespace dn::host {

void WaitingNote::tell(const QString& step)
{
    if (!label_) {
        label_ = std::make_unique<QLabel>();
        label_->setObjectName("NotaDeEspera");
        label_->setWindowTitle(QApplication::applicationDisplayName());
        label_->setAlignment(Qt::AlignCenter);
        label_->setMinimumSize(420, 90);
        label_->setMargin(16);
    }
    label_->setText(step);
    label_->show();
    QApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

} // namespace dn::host
