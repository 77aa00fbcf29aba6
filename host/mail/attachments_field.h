// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The files that go with a mail: a list with their sizes, and the buttons to add and to take away.
#pragma once

#include <QLabel>
#include <QListWidget>
#include <QPushButton>

#include <filesystem>
#include <vector>

namespace dn::host {

class AttachmentsField : public QWidget {
public:
    /// @param limit megabytes that all of them may have together.
    AttachmentsField(int limit, QWidget* parent);

    /// Adds a file; one that cannot go with the mail is told. A file that is there already adds nothing.
    void add(const QString& path);
    bool isEmpty() const { return list_->count() == 0; }
    /// The files, in the order of the list.
    std::vector<std::filesystem::path> files() const;

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void choose();
    void removeChosen();
    void showTotal();
    qint64 total() const;

    int limit_;
    QListWidget* list_ = new QListWidget(this);
    QPushButton* adds_ = new QPushButton("Ad&juntar…", this);
    QPushButton* removes_ = new QPushButton("&Quitar", this);
    QLabel* total_ = new QLabel(this);
};

} // namespace dn::host
