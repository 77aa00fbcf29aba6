// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The search over persons and organisations, for the keyboard: the letters go to the field and the arrows to the
// list below it, whichever of both has the focus.
#pragma once

#include "host/screens/context.h"
#include "host/screens/entity_search.h"

#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>
#include <QTreeWidget>

#include <optional>
#include <vector>

namespace dn::host {

class SearchWindow : public QDialog {
public:
    /// @param text to begin with.
    SearchWindow(ScreenContext& context, const QString& text, SearchScope scope, QWidget* over);

    /// What the operator picked; nothing before.
    std::optional<Entity> picked() const;

    void accept() override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void build();
    void buildList();
    void search();
    void goOn();
    void fill();
    QString countText() const;

    EntitySearch search_;
    QLineEdit* text_ = new QLineEdit(this);
    QTreeWidget* list_ = new QTreeWidget(this);
    QLabel* count_ = new QLabel(this);
    QPushButton* accepts_ = nullptr;
    QTimer pause_; // between a key and what it finds
    QTimer next_;  // the next slice of the search, once the operator's keys and clicks are taken
    std::vector<Entity> found_;
};

} // namespace dn::host
