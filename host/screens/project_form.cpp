// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "host/screens/project_form.h"

#include "host/screens/amount.h"
#include "host/screens/organisation_form.h"
#include "host/screens/person_form.h"
#include "host/screens/projects.h"

#include <array>

namespace dn::host {
namespace {

constexpr std::array temperatures{"Congelado", "Frío", "Tibio", "Caliente"}; // UF_Status1 from 1 on

} // namespace

ProjectForm::ProjectForm(ScreenContext& context, QWidget* over)
    : Form("CrearProyecto", "Nuevo proyecto", over), context_(context)
{
    addGoals();
    addParties();
    descripcion_ = addLine("Descripcion", "&Descripción:", 500);
    monto_ = addLine("Monto", "Mo&nto:", 30);
    monto_->setPlaceholderText("Opcional, por ejemplo 1,234.50");
    addTemperature();
    addButtons();
    organisationChanged();
}

void ProjectForm::addGoals()
{
    meta_->setObjectName("Meta");
    meta_->setPlaceholderText("Elija una meta");
    for (const Goal& goal : readGoals(context_.database))
        meta_->addItem(QString::fromStdString(goal.description), goal.key);
    meta_->setCurrentIndex(-1);
    addField("&Meta:", meta_);
}

void ProjectForm::addParties()
{
    organizacion_ = new PartyField("Organizacion", PartyField::Kind::organisation, context_, this);
    addField("&Organización:", organizacion_);
    organizacion_->offerNew("N&ueva…", [this](const QString& name) { return makeOrganisation(name); });
    organizacion_->onChange([this] { organisationChanged(); });
    persona_ = new PartyField("Persona", PartyField::Kind::person, context_, this);
    addField("&Persona:", persona_);
    persona_->offerNew("Nu&eva…", [this](const QString& name) { return makePerson(name); });
    persona_->onChange([this] { personChanged(); });
}

void ProjectForm::addTemperature()
{
    temperatura_ = new QComboBox(this); // not earlier: the tab key goes by the order of the making
    temperatura_->setObjectName("Temperatura");
    for (const char* name : temperatures)
        temperatura_->addItem(name);
    addField("&Temperatura:", temperatura_);
}

void ProjectForm::person(std::int32_t key) { persona_->choose(key); }

std::int32_t ProjectForm::makeOrganisation(const QString& name)
{
    OrganisationForm form(context_, 0, context_.agent, this);
    form.name(name);
    return form.exec() == QDialog::Accepted ? form.key() : 0;
}

std::int32_t ProjectForm::makePerson(const QString& name)
{
    PersonForm form(context_, 0, context_.agent, this);
    form.name(name);
    form.organisation(organizacion_->key());
    return form.exec() == QDialog::Accepted ? form.key() : 0;
}

// Whoever picks a person most often means the organisation that the person works for.
void ProjectForm::personChanged()
{
    if (persona_->key() == 0 || !organizacion_->isEmpty()) return;
    organizacion_->choose(readPerson(context_.database, persona_->key()).organizacion);
}

// The control's lists of projects join the organisation.
void ProjectForm::organisationChanged()
{
    remark(organizacion_, organizacion_->isEmpty()
                              ? "Sin organización, el proyecto no aparecerá en las listas de proyectos."
                              : "");
}

bool ProjectForm::validate()
{
    if (!validateGoal()) return false;
    if (!validateParty(*organizacion_, "Elija una organización de la lista, o créela con «Nueva».")) return false;
    if (!validateParty(*persona_, "Elija una persona de la lista, o créela con «Nueva».")) return false;
    if (typed(*descripcion_).empty()) {
        complain(descripcion_, "Escriba una descripción del proyecto.");
        return false;
    }
    return validateAmount();
}

bool ProjectForm::validateGoal()
{
    if (meta_->currentIndex() >= 0) return true;
    complain(meta_, meta_->count() > 0
                        ? "Elija la meta del proyecto."
                        : "No hay metas en la base de datos. Pida a su administrador que registre al menos una.");
    return false;
}

bool ProjectForm::validateParty(PartyField& field, const QString& complaint)
{
    if (field.resolve()) return true;
    complain(&field, complaint);
    return false;
}

bool ProjectForm::validateAmount()
{
    if (typed(*monto_).empty() || readAmount(typed(*monto_))) return true;
    complain(monto_, "Escriba el monto con números y hasta dos decimales, por ejemplo 1234.50 o 1,234.50.");
    monto_->selectAll();
    return false;
}

void ProjectForm::store()
{
    NewProject project;
    project.goal = meta_->currentData().toInt();
    project.organisation = organizacion_->key();
    project.person = persona_->key();
    project.description = typed(*descripcion_);
    if (const auto amount = readAmount(typed(*monto_))) project.amount = Decimal(*amount);
    project.temperature = temperatura_->currentIndex() + 1;
    project.agent = context_.agent;
    key_ = insertProject(context_.database, project);
}

} // namespace dn::host
