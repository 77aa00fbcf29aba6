// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The list of a project's activities with its buttons. Insert adds, Enter edits, the space bar marks as done.
#pragma once

#include "host/screens/activities.h"
#include "host/screens/choices.h"

#include <QPushButton>
#include <QTreeWidget>

#include <vector>

namespace dn::host {

class ActivityList : public QWidget {
public:
    /// Reads the activities. @throws data::Error
    ActivityList(OwnConnection& database, std::int32_t project, QWidget* parent);

    bool changed() const;
    /// In a transaction of the caller. @throws data::Error, HostError
    void store() { storeActivities(database_, activities_); }

    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    void changeEvent(QEvent* event) override;

private:
    void build();
    void buildButtons();
    QPushButton* button(const char* name, const QString& caption, void (ActivityList::*command)());
    void add();
    void edit() { open(false); }
    void reschedule() { open(true); }
    void toggle();
    void open(bool atDate);
    void mark(std::size_t row, bool done);
    void fill(std::size_t select);
    void showRow(QTreeWidgetItem& item, const Activity& activity);
    /// What is done steps back behind what is to do.
    void ink(QTreeWidgetItem& item, bool done) const;
    void followSelection();
    /// The selected row, or as many as there are.
    std::size_t current() const;

    OwnConnection& database_;
    std::int32_t project_;
    std::vector<Choice> kinds_;
    std::vector<Activity> activities_;
    QTreeWidget* list_;
    std::vector<QPushButton*> needRow_;
    QPushButton* toggle_ = nullptr;
};

} // namespace dn::host
