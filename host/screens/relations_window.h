// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The window with what hangs together with a directory entry. It changes nothing itself: Enter or a double click
// opens the row's own screen.
#pragma once

#include "host/screens/context.h"
#include "host/screens/party_field.h"
#include "host/screens/relations.h"
#include "host/screens/report_list.h"

#include <QDialog>
#include <QLabel>
#include <QVBoxLayout>

#include <vector>

namespace dn::host {

class RelationsWindow : public QDialog {
public:
    /// @throws data::Error
    RelationsWindow(ScreenContext& context, PartyField::Kind kind, std::int32_t key, const QString& caption,
                    QWidget* over);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool ofOrganisation() const { return kind_ == PartyField::Kind::organisation; }
    QTreeWidget* addList(QLabel*& caption, const char* name, const char* accessible,
                         const std::vector<ReportColumn>& columns, int stretch);
    void addClose();
    void load();
    void fill(QTreeWidget& list, QLabel& caption, const QString& title, const std::vector<Relation>& relations);
    void openChosen(const QTreeWidget& list);

    ScreenContext& context_;
    PartyField::Kind kind_;
    std::int32_t key_;
    QVBoxLayout* layout_;
    QLabel *projectsCaption_ = nullptr, *activitiesCaption_ = nullptr, *partiesCaption_ = nullptr;
    QTreeWidget *projects_ = nullptr, *activities_ = nullptr, *parties_ = nullptr;
};

} // namespace dn::host
