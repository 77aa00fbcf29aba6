// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "host/screens/organisation_form.h"

namespace dn::host {

OrganisationForm::OrganisationForm(ScreenContext& context, std::int32_t key, std::int32_t agent, QWidget* over)
    : Form(key == 0 ? "NuevaOrganizacion" : "EditarOrganizacion", key == 0 ? "Nueva organización" : "Organización",
           over),
      context_(context),
      key_(key),
      agent_(agent)
{
    nombre_ = addLine("Nombre", "&Nombre o razón social:", 255);
    nomComercial_ = addLine("NomComercial", "Nombre co&mercial:", 255);
    tel1_ = addLine("Tel1", "&Teléfono:", 100);
    tel2_ = addLine("Tel2", "&Otro teléfono:", 100);
    email_ = addLine("EMail", "Corr&eo electrónico:", 255);
    webSite_ = addLine("WebSite", "Sitio &web:", 255);
    domicilio_ = addLine("Domicilio", "&Domicilio:", 255);
    colonia_ = addLine("Colonia", "Co&lonia:", 255);
    codPostal_ = addLine("CodPostal", "Código &postal:", 20);
    addButtons();
    if (key_ == 0) return;
    Organisation organisation = readOrganisation(context_.database, key_);
    for (const auto& [line, text] : pairs(organisation))
        line->setText(QString::fromStdString(*text));
}

bool OrganisationForm::validate()
{
    if (!typed(*nombre_).empty()) return true;
    complain(nombre_, "Escriba el nombre de la organización.");
    return false;
}

void OrganisationForm::store()
{
    Organisation organisation;
    for (const auto& [line, text] : pairs(organisation))
        *text = typed(*line);
    if (key_ == 0)
        key_ = insertOrganisation(context_.database, organisation, agent_);
    else
        updateOrganisation(context_.database, key_, organisation);
}

std::vector<std::pair<QLineEdit*, std::string*>> OrganisationForm::pairs(Organisation& organisation) const
{
    return {{nombre_, &organisation.nombre},       {nomComercial_, &organisation.nomComercial},
            {tel1_, &organisation.tel1},           {tel2_, &organisation.tel2},
            {email_, &organisation.email},         {webSite_, &organisation.webSite},
            {domicilio_, &organisation.domicilio}, {colonia_, &organisation.colonia},
            {codPostal_, &organisation.codPostal}};
}

} // namespace dn::host
