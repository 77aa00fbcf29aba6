// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The window in which a mail is written. It stays open, with everything typed, until the mail is out or the
// operator gives up; while it goes out the window goes on, and shows how far it is.
#pragma once

#include "host/mail/attachments_field.h"
#include "host/mail/mail_password.h"
#include "host/mail/mail_settings.h"
#include "host/mail/message.h"
#include "host/mail/party_fields.h"
#include "host/mail/sending.h"
#include "host/mail/templates.h"
#include "host/screens/form.h"

#include <QComboBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QTimer>

#include <memory>

namespace dn::host {

/// What the window begins with.
struct Letter {
    MailSettings settings;
    MailPassword* password = nullptr; ///< never null, and outlives the window
    PartyFields fields;
    std::vector<Template> templates;
    QString user;       ///< who works
    QString recipients; ///< joined by ";"
    QString subject;
    QString body;
    QStringList notices; ///< what the operator should know besides
};

class Composer : public Form {
public:
    Composer(Letter letter, QWidget* over);

    void accept() override;
    void reject() override;

    /// The mail that was sent; of meaning once the window was accepted.
    const Message& message() const { return *message_; }

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    bool validate() override;
    void store() override;
    bool stored() const override { return false; }

    void build();
    void buildBelow();
    void buildButtons();
    void showNotices();
    bool validateFields();
    bool validateSubject();
    Message compose() const;
    void useTemplate(int index);
    void write(const QString& subject, const QString& body);
    bool touched() const;
    void showSending(bool sends);
    void look();

    Letter letter_;
    std::shared_ptr<Message> message_; // its files are the sending's until that is over
    QString shownSubject_, shownBody_; // as they were filled in, before the operator typed
    QLineEdit* recipients_ = new QLineEdit(this);
    QComboBox* templates_ = new QComboBox(this);
    QLineEdit* subject_ = new QLineEdit(this);
    QPlainTextEdit* body_ = new QPlainTextEdit(this);
    AttachmentsField* attachments_;
    QLabel* state_ = new QLabel(this);
    QProgressBar* progress_ = new QProgressBar(this);
    QPushButton* sends_ = new QPushButton(this);
    QPushButton* cancels_ = new QPushButton(this);
    QTimer looks_; // at the sending
    std::unique_ptr<Sending> sending_;
};

} // namespace dn::host
