// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The screen of a project, a new one or one with its activities.
#pragma once

#include "host/screens/activity_list.h"
#include "host/screens/record_form.h"

namespace dn::host {

class ProjectForm : public RecordForm {
public:
    /// @param key 0 for a new one, which is the context's agent's. @throws data::Error, RowGone
    ProjectForm(ScreenContext& context, std::int32_t key, QWidget* over);

    /// Whom the project is with, from the start. @throws data::Error
    void person(std::int32_t key) { persona_->choose(key); }
    void organisation(std::int32_t key) { organizacion_->choose(key); }

    /// Asks ahead of giving up what was changed in a project that is there.
    void reject() override;

private:
    void addFields();
    void addGoals();
    void addParties();
    void followParties();
    void personChanged();
    void organisationChanged();
    void storeMore(std::int32_t key) override;

    PartyField* organizacion_ = nullptr;
    PartyField* persona_ = nullptr;
    ActivityList* activities_ = nullptr; // none on a new project
};

/// Opens a project and waits until the operator has done with it. @throws data::Error, RowGone
void editProject(ScreenContext& context, std::int32_t key, QWidget* over);

} // namespace dn::host
