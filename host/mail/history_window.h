// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The window with the mails that were sent to a party: the list above, the text of the one chosen below.
#pragma once

#include "host/mail/mail_history.h"

#include <QDialog>
#include <QLabel>
#include <QPlainTextEdit>
#include <QTreeWidget>

namespace dn::host {

class HistoryWindow : public QDialog {
public:
    /// @param record the identifier of the party. @param party its name, for the title; may be empty.
    /// @throws data::Error
    HistoryWindow(OwnConnection& database, const std::string& record, const QString& party, QWidget* over);

private:
    void build();
    void fill(const std::string& record);
    void showText();

    OwnConnection& database_;
    QLabel* caption_ = new QLabel(this);
    QTreeWidget* list_ = new QTreeWidget(this);
    QLabel* head_ = new QLabel(this);
    QPlainTextEdit* text_ = new QPlainTextEdit(this);
    std::vector<StoredMail> mails_;
};

} // namespace dn::host
