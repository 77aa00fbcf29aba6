// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// A form of fields, each for one value of a row, in the order of the row's columns.
#pragma once

#include "host/screens/context.h"
#include "host/screens/field.h"
#include "host/screens/form.h"
#include "host/screens/record.h"

#include <memory>
#include <vector>

namespace dn::host {

class FieldsForm : public Form {
public:
    /// What the form holds now, column by column.
    Values values() const;

protected:
    using Form::Form;

    // Each adds the field of the next column. Names are object names.

    /// @param longest in characters. @param missing what to say when the line is empty; empty where it may be.
    template <class Kind = LineField>
    QLineEdit* addLine(const QString& name, const QString& label, std::size_t longest, Width width = Width::whole,
                       const QString& missing = {})
    {
        auto* const edit = new QLineEdit(this);
        edit->setObjectName(name);
        add(std::make_unique<Kind>(edit, longest, missing), label, width);
        return edit;
    }
    /// @param none the entry for no choice; empty where there must be one, and then `missing` asks for it.
    QComboBox* addChoice(const QString& name, const QString& label, const std::vector<Choice>& choices,
                         const QString& none, Width width = Width::whole, const QString& missing = {});
    PartyField* addParty(const QString& name, const QString& label, PartyField::Kind kind, ScreenContext& context);
    void add(std::unique_ptr<Field> field, const QString& label, Width width = Width::whole);

    void show(const Values& values);
    using Form::show;
    Field& field(std::size_t column) { return *fields_.at(column); }

    bool validate() override;

private:
    std::vector<std::unique_ptr<Field>> fields_;
};

} // namespace dn::host
