// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "host/screens/fields_form.h"

namespace dn::host {

QComboBox* FieldsForm::addChoice(const QString& name, const QString& label, const std::vector<Choice>& choices,
                                 const QString& none, Width width, const QString& missing)
{
    auto* const box = new QComboBox(this);
    box->setObjectName(name);
    box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    add(std::make_unique<ChoiceField>(box, choices, none, missing), label, width);
    return box;
}

PartyField* FieldsForm::addParty(const QString& name, const QString& label, PartyField::Kind kind,
                                 ScreenContext& context)
{
    auto* const party = new PartyField(name, kind, context, this);
    add(std::make_unique<PartyValue>(party, kind == PartyField::Kind::organisation
                                                ? "Elija una organización de la lista, o créela con «Nueva»."
                                                : "Elija una persona de la lista, o créela con «Nueva»."),
        label);
    return party;
}

void FieldsForm::add(std::unique_ptr<Field> field, const QString& label, Width width)
{
    addField(label, field->widget(), width);
    fields_.push_back(std::move(field));
}

void FieldsForm::show(const Values& values)
{
    for (std::size_t i = 0; i < fields_.size(); ++i)
        fields_[i]->show(values.at(i));
}

Values FieldsForm::values() const
{
    Values values;
    for (const auto& field : fields_)
        values.push_back(field->value());
    return values;
}

bool FieldsForm::validate()
{
    for (const auto& field : fields_) {
        const QString complaint = field->complaint();
        if (complaint.isEmpty()) continue;
        complain(field->widget(), complaint);
        return false;
    }
    return true;
}

} // namespace dn::host
