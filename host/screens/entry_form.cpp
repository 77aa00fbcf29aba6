// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "host/screens/entry_form.h"

#include "screen/qt/hourglass.h"

namespace dn::host {

EntryForm::EntryForm(ScreenContext& context, PartyField::Kind kind, std::int32_t key, std::int32_t agent,
                     QWidget* over)
    : RecordForm(context, entryKind(kind).record, key,
                 key == 0 ? entryKind(kind).newName : entryKind(kind).editName,
                 key == 0 ? entryKind(kind).newTitle : entryKind(kind).editTitle, over)
{
    Values first;
    for (const EntryField& field : entryKind(kind).fields) {
        addEntryField(field, entryKind(kind).nameMissing);
        first.push_back(field.kind == Entry::agent ? std::to_string(agent) : "");
    }
    addButtons();
    name_->setFocus();
    if (isNew())
        begin(first);
    else
        load();
}

void EntryForm::addEntryField(const EntryField& field, const char* nameMissing)
{
    switch (field.kind) {
    case Entry::name:
        name_ = addLine(field.name, field.label, field.longest, field.width, nameMissing);
        return;
    case Entry::text:
        addLine(field.name, field.label, field.longest, field.width);
        return;
    case Entry::mail:
        addLine<MailField>(field.name, field.label, field.longest, field.width);
        return;
    case Entry::organisation:
        addOrganisation(field);
        return;
    case Entry::city:
        addChoice(field.name, field.label, readCities(context().database), "(ninguna)", field.width);
        return;
    case Entry::agent:
        addChoice(field.name, field.label, readAgents(context().database), "(sin asignar)", field.width);
        return;
    }
}

void EntryForm::addOrganisation(const EntryField& field)
{
    organisation_ = addParty(field.name, field.label, PartyField::Kind::organisation, context());
    organisation_->offerNew("Nue&va…", [this](const QString& name) {
        return makeEntry(context(), PartyField::Kind::organisation, name, 0, this);
    });
}

void EntryForm::organisation(std::int32_t key)
{
    if (organisation_ != nullptr) organisation_->choose(key);
}

std::int32_t makeEntry(ScreenContext& context, PartyField::Kind kind, const QString& name,
                       std::int32_t organisation, QWidget* over)
{
    EntryForm form = screen::qt::waiting([&] { return EntryForm(context, kind, 0, context.agent, over); });
    form.name(name);
    if (organisation != 0) form.organisation(organisation);
    return form.exec() == QDialog::Accepted ? form.key() : 0;
}

} // namespace dn::host
