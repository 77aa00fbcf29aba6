// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The form of an organisation, for a new one or one of the directory.
#pragma once

#include "host/screens/context.h"
#include "host/screens/directory.h"
#include "host/screens/form.h"

#include <utility>
#include <vector>

namespace dn::host {

class OrganisationForm : public Form {
public:
    /// @param key 0 for a new one. @param agent who looks after a new one. @throws data::Error, HostError
    OrganisationForm(ScreenContext& context, std::int32_t key, std::int32_t agent, QWidget* over);

    void name(const QString& name) { nombre_->setText(name); }
    /// Of what was stored; 0 before.
    std::int32_t key() const { return key_; }

private:
    bool validate() override;
    void store() override;
    std::vector<std::pair<QLineEdit*, std::string*>> pairs(Organisation& organisation) const;

    ScreenContext& context_;
    std::int32_t key_;
    std::int32_t agent_;
    QLineEdit *nombre_, *nomComercial_, *tel1_, *tel2_, *email_, *webSite_, *domicilio_, *colonia_, *codPostal_;
};

} // namespace dn::host
