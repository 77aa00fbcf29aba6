// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// A form for one row of a table, a new one or one that is there.
#pragma once

#include "host/screens/fields_form.h"

namespace dn::host {

class RecordForm : public FieldsForm {
public:
    /// Of what was stored; 0 before.
    std::int32_t key() const { return key_; }

protected:
    /// @param key 0 for a new row. @param name the window's object name.
    RecordForm(ScreenContext& context, const RecordKind& kind, std::int32_t key, const QString& name,
               const QString& title, QWidget* over);

    ScreenContext& context() { return context_; }
    /// What a row that is there holds. @throws RowGone, data::Error
    void load();
    /// What a new row begins with.
    void begin(const Values& values) { show(values); }
    bool isNew() const { return key_ == 0; }
    /// Whether anything differs from what the form was opened with.
    bool changed() const { return values() != base_; }

private:
    void store() override;
    /// Stores what belongs to the row but lies elsewhere, in the same transaction.
    virtual void storeMore(std::int32_t) {}
    [[noreturn]] void tell(const std::vector<Clash>& clashes);

    ScreenContext& context_;
    const RecordKind& kind_;
    std::int32_t key_;
    Values base_; // as the row was shown
};

} // namespace dn::host
