// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "today/queue_row.h"

#include "base/format.h"
#include "data/error.h"
#include "data/failure_modes.h"
#include "desk/shared.h"
#include "today/today_panel.h"

namespace dn::today {
namespace {

using data::resumeNext;

constexpr std::string_view withoutAppointment = "URGENTE";

} // namespace

QueueRowBuilder::QueueRowBuilder(screen::ListView& lvwHoy, const data::Recordset& records, const DateTime& now)
    : lvwHoy_(lvwHoy), records_(records), today_(now.date())
{
    const data::Fields fields = records.Fields();
    tipo_ = fields.find("Tipo");
    sysPk_ = fields.find("Sys_PK");
    cita_ = fields.find("cita");
    plain_ = {fields.find("Contacto"), fields.find("empresa"), fields.find("telefono"), fields.find("email")};
}

void QueueRowBuilder::build()
{
    std::optional<screen::ListItem> row;
    resumeNext([&] { row = addRow(); });
    if (!row) return;
    addHora(*row);
    for (const Column& column : plain_)
        addCell(*row, column);
}

data::Value QueueRowBuilder::read(const Column& column) const
{
    if (!column) throw data::Error("42S22", 0, "No existe la columna");
    return records_.value(*column);
}

std::optional<screen::ListItem> QueueRowBuilder::addRow()
{
    const std::string_view tipo = desk::textOrEmpty(read(tipo_), text_);
    key_ = tipo == prospectType ? "K" : "P";
    key_ += read(sysPk_).toText();
    return lvwHoy_.ListItems().Add(key_, tipo);
}

void QueueRowBuilder::addCell(screen::ListItem& row, const Column& column)
{
    resumeNext([&] { row.ListSubItems().Add(desk::textOrEmpty(read(column), text_)); });
}

void QueueRowBuilder::addHora(screen::ListItem& row)
{
    resumeNext([&] {
        const data::Value cita = read(cita_);
        row.ListSubItems().Add(cita.isNull() ? withoutAppointment : hora(cita));
    });
}

// A past day shows in full, today and whatever comes later by its hour alone. What reads as no date shows as it
// is.
std::string_view QueueRowBuilder::hora(const data::Value& cita)
{
    text_.clear();
    const bool isDate = resumeNext([&] {
        const DateTime moment = cita.toDateTime();
        const bool past = moment.date() < today_;
        if (past && cita.kind() != data::Value::Kind::dateTime)
            text_ = cita.raw();
        else
            appendDefaultText(text_, past ? moment : moment.timeOfDay());
    });
    return isDate ? std::string_view(text_) : cita.raw();
}

} // namespace dn::today
