// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "host/screens/project_form.h"

#include "host/screens/boxes.h"
#include "host/screens/directory.h"
#include "host/screens/entry_form.h"
#include "screen/qt/hourglass.h"

namespace dn::host {
namespace {

const RecordKind& projectKind()
{
    static const RecordKind kind{
        {ColumnType::number, ColumnType::number, ColumnType::number, ColumnType::text, ColumnType::amount,
         ColumnType::number, ColumnType::number, ColumnType::number},
        "SELECT IMeta, IOrganizacion, IContacto, Descripcion, UF_monto, UF_Status1, UF_Color, IEjecutivo FROM "
        "Proyecto WHERE Sys_PK = ?",
        "UPDATE Proyecto SET Descripcion = Descripcion WHERE Sys_PK = ?",
        "INSERT INTO Proyecto (IMeta, IOrganizacion, IContacto, Descripcion, UF_monto, UF_Status1, UF_Color, "
        "IEjecutivo, Sys_GUID, Sys_DTCreated, FInicio) VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, CURRENT_TIMESTAMP, "
        "CURRENT_TIMESTAMP)",
        "UPDATE Proyecto SET IMeta = ?, IOrganizacion = ?, IContacto = ?, Descripcion = ?, UF_monto = ?, "
        "UF_Status1 = ?, UF_Color = ?, IEjecutivo = ? WHERE Sys_PK = ?"};
    return kind;
}

} // namespace

ProjectForm::ProjectForm(ScreenContext& context, std::int32_t key, QWidget* over)
    : RecordForm(context, projectKind(), key, key == 0 ? "CrearProyecto" : "EditarProyecto",
                 key == 0 ? "Nuevo proyecto" : "Proyecto", over)
{
    addFields();
    if (isNew()) {
        begin({"", "", "", "", "", "1", "", std::to_string(context.agent)});
    } else {
        load();
        activities_ = new ActivityList(context.database, key, this);
        addBelow(activities_);
        resize(minimumWidth(), fontMetrics().height() * 42);
    }
    addButtons();
    followParties();
}

void ProjectForm::addFields()
{
    addGoals();
    addParties();
    addLine("Descripcion", "&Descripción:", 500, Width::whole, "Escriba una descripción del proyecto.");
    addLine<AmountField>("Monto", "Mo&nto:", 30, Width::half)
        ->setPlaceholderText("Opcional, por ejemplo 1,234.50");
    addChoice("Temperatura", "&Temperatura:", temperatures(!isNew()), {}, Width::half,
              "Elija la temperatura del proyecto.");
    addChoice("Color", "Co&lor:", colours(), "Predeterminado", Width::half);
    addChoice("Agente", "A&gente:", readAgents(context().database), "(sin asignar)", Width::half);
}

void ProjectForm::addGoals()
{
    const std::vector<Choice> goals = readGoals(context().database);
    addChoice("Meta", "&Meta:", goals, {}, Width::whole,
              goals.empty()
                  ? "No hay metas en la base de datos. Pida a su administrador que registre al menos una."
                  : "Elija la meta del proyecto.")
        ->setPlaceholderText("Elija una meta");
}

void ProjectForm::addParties()
{
    organizacion_ = addParty("Organizacion", "&Organización:", PartyField::Kind::organisation, context());
    organizacion_->offerNew("N&ueva…", [this](const QString& name) {
        return makeEntry(context(), PartyField::Kind::organisation, name, 0, this);
    });
    persona_ = addParty("Persona", "&Persona:", PartyField::Kind::person, context());
    persona_->offerNew("Nu&eva…", [this](const QString& name) {
        return makeEntry(context(), PartyField::Kind::person, name, organizacion_->key(), this);
    });
}

// Only once the row is shown: what stands in it is not for the form to complete.
void ProjectForm::followParties()
{
    organizacion_->onChange([this] { organisationChanged(); });
    persona_->onChange([this] { personChanged(); });
    organisationChanged();
}

// Whoever picks a person most often means the organisation that the person works for.
void ProjectForm::personChanged()
{
    if (persona_->key() == 0 || !organizacion_->isEmpty()) return;
    organizacion_->choose(organisationOf(context().database, persona_->key()));
}

// The control's lists of projects join the organisation.
void ProjectForm::organisationChanged()
{
    remark(organizacion_, organizacion_->isEmpty()
                              ? "Sin organización, el proyecto no aparecerá en las listas de proyectos."
                              : "");
}

void ProjectForm::storeMore(std::int32_t)
{
    if (activities_ != nullptr) activities_->store();
}

void ProjectForm::reject()
{
    const bool loses = activities_ != nullptr && (changed() || activities_->changed());
    if (!loses ||
        ask(this, "¿Cerrar el proyecto sin guardar los cambios?", "Cerrar &sin guardar", "S&eguir editando"))
        RecordForm::reject();
}

void editProject(ScreenContext& context, std::int32_t key, QWidget* over)
{
    ProjectForm form = screen::qt::waiting([&] { return ProjectForm(context, key, over); });
    form.exec();
}

} // namespace dn::host
