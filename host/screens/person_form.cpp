// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "host/screens/person_form.h"

#include "host/screens/organisation_form.h"

namespace dn::host {

PersonForm::PersonForm(ScreenContext& context, std::int32_t key, std::int32_t agent, QWidget* over)
    : Form(key == 0 ? "NuevaPersona" : "EditarPersona", key == 0 ? "Nueva persona" : "Persona", over),
      context_(context),
      key_(key),
      agent_(agent)
{
    nombre_ = addLine("Nombre", "&Nombre:", 255);
    apellido1_ = addLine("Apellido1", "A&pellido paterno:", 255);
    apellido2_ = addLine("Apellido2", "Apell&ido materno:", 255);
    organizacion_ = new PartyField("Organizacion", PartyField::Kind::organisation, context, this);
    addField("&Organización:", organizacion_);
    organizacion_->offerNew("N&ueva…", [this](const QString& name) {
        OrganisationForm form(context_, 0, agent_, this);
        form.name(name);
        return form.exec() == QDialog::Accepted ? form.key() : 0;
    });
    puesto_ = addLine("Puesto", "Pue&sto:", 255);
    email_ = addLine("EMail", "Corr&eo electrónico:", 255);
    telTrabajo_ = addLine("Tel_Trabajo", "&Teléfono del trabajo:", 100);
    telMovil_ = addLine("Tel_Movil", "Teléfono mó&vil:", 100);
    domicilio_ = addLine("Domicilio", "&Domicilio:", 255);
    colonia_ = addLine("Colonia", "Co&lonia:", 255);
    codPostal_ = addLine("CodPostal", "Códi&go postal:", 20);
    addButtons();
    if (key_ == 0) return;
    Person person = readPerson(context_.database, key_);
    for (const auto& [line, text] : pairs(person))
        line->setText(QString::fromStdString(*text));
    organizacion_->choose(person.organizacion);
}

bool PersonForm::validate()
{
    if (typed(*nombre_).empty()) {
        complain(nombre_, "Escriba el nombre de la persona.");
        return false;
    }
    if (organizacion_->resolve()) return true;
    complain(organizacion_, "Elija una organización de la lista, o créela con «Nueva».");
    return false;
}

void PersonForm::store()
{
    Person person;
    for (const auto& [line, text] : pairs(person))
        *text = typed(*line);
    person.organizacion = organizacion_->key();
    if (key_ == 0)
        key_ = insertPerson(context_.database, person, agent_);
    else
        updatePerson(context_.database, key_, person);
}

std::vector<std::pair<QLineEdit*, std::string*>> PersonForm::pairs(Person& person) const
{
    return {{nombre_, &person.nombre},      {apellido1_, &person.apellido1}, {apellido2_, &person.apellido2},
            {puesto_, &person.puesto},      {email_, &person.email},         {telTrabajo_, &person.telTrabajo},
            {telMovil_, &person.telMovil},  {domicilio_, &person.domicilio}, {colonia_, &person.colonia},
            {codPostal_, &person.codPostal}};
}

} // namespace dn::host
