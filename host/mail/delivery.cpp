// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "host/mail/delivery.h"

#include "host/mail/outbox.h"
#include "host/mail/smtp.h"

#include <QDateTime>
#include <QUuid>

namespace dn::host {
namespace {

std::string outboxName(const Message& message)
{
    const QString moment = QDateTime::currentDateTime().toString("yyyy-MM-dd hh.mm.ss");
    return moment.toStdString() + " " + message.id.substr(0, 8);
}

} // namespace

void stamp(Message& message)
{
    const std::string domain = message.sender.substr(message.sender.rfind('@') + 1);
    message.id = QUuid::createUuid().toString(QUuid::Id128).toStdString() + "@" + domain;
    message.date = QDateTime::currentDateTime().toString(Qt::RFC2822Date).toStdString();
}

Sending::Work delivery(const MailSettings& settings, const Message& message)
{
    if (settings.toOutbox())
        return [folder = settings.outbox, name = outboxName(message),
                text = messageText(message, Purpose::draft)](SendProgress& progress) {
            progress.heedCancel();
            putIntoOutbox(folder, name, text);
        };
    return [settings, envelope = Envelope{message.sender, message.recipients},
            text = messageText(message, Purpose::sending)](SendProgress& progress) {
        sendBySmtp(settings, envelope, text, progress);
    };
}

} // namespace dn::host
