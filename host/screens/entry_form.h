// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The form of a person or an organisation, for a new one or one of the directory: one table of fields for each.
#pragma once

#include "host/screens/entry_kinds.h"
#include "host/screens/record_form.h"

namespace dn::host {

class EntryForm : public RecordForm {
public:
    /// @param key 0 for a new one. @param agent who looks after a new one, 0 for nobody.
    /// @throws data::Error, RowGone
    EntryForm(ScreenContext& context, PartyField::Kind kind, std::int32_t key, std::int32_t agent, QWidget* over);

    /// The name of a new one, as far as it is known.
    void name(const QString& name) { name_->setText(name); }
    /// The organisation that a new person works for. @throws data::Error
    void organisation(std::int32_t key);

private:
    void addEntryField(const EntryField& field, const char* nameMissing);
    void addOrganisation(const EntryField& field);

    QLineEdit* name_ = nullptr;
    PartyField* organisation_ = nullptr;
};

/// Lets the operator make a new entry. @param organisation that a new person works for.
/// @return its key, 0 when the operator gave up.
std::int32_t makeEntry(ScreenContext& context, PartyField::Kind kind, const QString& name,
                       std::int32_t organisation, QWidget* over);

} // namespace dn::host
