// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The form of a person, for a new one or one of the directory.
#pragma once

#include "host/screens/context.h"
#include "host/screens/directory.h"
#include "host/screens/form.h"
#include "host/screens/party_field.h"

#include <utility>
#include <vector>

namespace dn::host {

class PersonForm : public Form {
public:
    /// @param key 0 for a new one. @param agent who looks after a new one. @throws data::Error, HostError
    PersonForm(ScreenContext& context, std::int32_t key, std::int32_t agent, QWidget* over);

    void name(const QString& name) { nombre_->setText(name); }
    /// The organisation that a new person works for. @throws data::Error
    void organisation(std::int32_t key) { organizacion_->choose(key); }
    /// Of who was stored; 0 before.
    std::int32_t key() const { return key_; }

private:
    bool validate() override;
    void store() override;
    std::vector<std::pair<QLineEdit*, std::string*>> pairs(Person& person) const;

    ScreenContext& context_;
    std::int32_t key_;
    std::int32_t agent_;
    PartyField* organizacion_;
    QLineEdit *nombre_, *apellido1_, *apellido2_, *puesto_, *email_, *telTrabajo_, *telMovil_, *domicilio_,
        *colonia_, *codPostal_;
};

} // namespace dn::host
