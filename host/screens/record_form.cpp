// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "host/screens/record_form.h"

#include "screen/qt/hourglass.h"

namespace dn::host {

RecordForm::RecordForm(ScreenContext& context, const RecordKind& kind, std::int32_t key, const QString& name,
                       const QString& title, QWidget* over)
    : FieldsForm(name, title, over), context_(context), kind_(kind), key_(key)
{
}

void RecordForm::load()
{
    base_ = readRecord(context_.database, kind_, key_);
    show(base_);
}

void RecordForm::store()
{
    const screen::qt::Hourglass hourglass;
    Transaction transaction(context_.database);
    std::int32_t key = key_;
    if (isNew()) {
        key = insertRecord(context_.database, kind_, values());
    } else if (const auto clashes = updateRecord(context_.database, kind_, key, base_, values());
               !clashes.empty()) {
        tell(clashes);
    }
    storeMore(key);
    transaction.commit();
    key_ = key;
}

// What the other one wrote counts as read from here on: to accept once more is to overwrite it knowingly.
void RecordForm::tell(const std::vector<Clash>& clashes)
{
    for (const auto& [column, theirs] : clashes) {
        base_.at(column) = theirs;
        const QString now = theirs.empty() ? QString("(vacío)") : field(column).describe(theirs);
        remark(field(column).widget(), QString("Otra persona lo cambió a: %1").arg(now));
    }
    field(clashes.front().column).widget()->setFocus(Qt::OtherFocusReason);
    throw HostError("Otra persona cambió este registro mientras usted lo tenía abierto. Debajo de cada dato en "
                    "duda verá lo que escribió. Acepte otra vez para guardar lo de usted, o cancele para dejar lo "
                    "de la otra persona.");
}

} // namespace dn::host
