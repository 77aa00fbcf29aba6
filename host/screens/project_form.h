// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The screen of a new project.
#pragma once

#include "host/screens/context.h"
#include "host/screens/form.h"
#include "host/screens/party_field.h"

#include <QComboBox>

namespace dn::host {

class ProjectForm : public Form {
public:
    /// The project is that of the context's agent. @throws data::Error
    ProjectForm(ScreenContext& context, QWidget* over);

    /// Whom the project is with, from the start. @throws data::Error
    void person(std::int32_t key);
    void organisation(std::int32_t key) { organizacion_->choose(key); }
    /// Of the project that was made; 0 before.
    std::int32_t key() const { return key_; }

private:
    void addGoals();
    void addParties();
    void addTemperature();
    std::int32_t makeOrganisation(const QString& name);
    std::int32_t makePerson(const QString& name);
    void personChanged();
    void organisationChanged();
    bool validate() override;
    bool validateGoal();
    bool validateParty(PartyField& field, const QString& complaint);
    bool validateAmount();
    void store() override;

    ScreenContext& context_;
    QComboBox* meta_ = new QComboBox(this);
    PartyField* organizacion_;
    PartyField* persona_;
    QLineEdit* descripcion_;
    QLineEdit* monto_;
    QComboBox* temperatura_ = nullptr;
    std::int32_t key_ = 0;
};

} // namespace dn::host
