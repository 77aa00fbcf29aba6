// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "projects/project_row.h"

#include "base/format.h"
#include "data/error.h"
#include "data/failure_modes.h"
#include "desk/shared.h"

namespace dn::projects {
namespace {

using data::resumeNext;
using desk::NullATexto;

constexpr std::string_view noActivity = "< Ninguna >";
constexpr std::string_view reviseStatus = "Revise el estado del proyecto";
constexpr std::string_view amountToDefine = "<Definir>";

} // namespace

int IconoStatus(const data::Value& status)
{
    const std::int64_t code = status.toWhole();
    if (code >= 1 && code <= 4) return static_cast<int>(code);
    return code == 6 ? 5 : 0;
}

ProjectRowBuilder::ProjectRowBuilder(screen::ListView& lvwProy, const data::Recordset& records)
    : lvwProy_(lvwProy), records_(records)
{
    const data::Fields fields = records.Fields();
    sysPk_ = fields.find("Sys_PK");
    status_ = fields.find("UF_Status1");
    color_ = fields.find("UF_Color");
    fInicio_ = fields.find("FInicio");
    monto_ = fields.find("UF_monto");
    activity_ = {fields.find("Actividad"), fields.find("Asunto")};
    project_ = {fields.find("Meta"), fields.find("Organizacion"), fields.find("Descripcion")};
    behindAmount_ = {fields.find("contacto"),
                     fields.find("EMail1"),
                     fields.find("Tel1"),
                     fields.find("e_dias"),
                     fields.find("e_ultimocontacto"),
                     fields.find("e_duc"),
                     fields.find("e_ultimointento"),
                     fields.find("e_dui")};
}

void ProjectRowBuilder::addByActivity()
{
    std::optional<screen::ListItem> added;
    resumeNext([&] {
        if (!takeKey()) return;
        NullATexto(read(fInicio_), text_);
        added = lvwProy_.ListItems().Add(key_, text_, IconoStatus(read(status_)));
    });
    if (!added) return;
    for (const Column& column : activity_)
        addCell(*added, column);
    for (const Column& column : project_)
        addCell(*added, column);
    addMonto(*added);
    for (const Column& column : behindAmount_)
        addCell(*added, column);
    paint(*added);
}

// The amount is to define even where the project has one: it belongs to the activities' records.
void ProjectRowBuilder::addWithoutActivity()
{
    std::optional<screen::ListItem> added;
    resumeNext([&] {
        if (takeKey()) added = lvwProy_.ListItems().Add(key_, {}, IconoStatus(read(status_)));
    });
    if (!added) return;
    for (const std::string_view fixed : {noActivity, reviseStatus})
        resumeNext([&] { added->ListSubItems().Add(fixed); });
    for (const Column& column : project_)
        addCell(*added, column);
    resumeNext([&] { added->ListSubItems().Add(amountToDefine); });
    paint(*added);
}

data::Value ProjectRowBuilder::read(const Column& column) const
{
    if (!column) throw data::Error("42S22", 0, "No existe la columna");
    return records_.value(*column);
}

// A project comes once for each of its activities, and once more without them: a repeated key is the rule here, so
// it is asked for and not left to the failure of the add, which would cost more than all the rest of the record.
bool ProjectRowBuilder::takeKey()
{
    const data::Value key = read(sysPk_);
    key_ = "K";
    key_ += key.toText();
    return !lvwProy_.ListItems().Contains(key_);
}

void ProjectRowBuilder::addCell(screen::ListItem& item, const Column& column)
{
    resumeNext([&] { item.ListSubItems().Add(desk::textOrEmpty(read(column), text_)); });
}

void ProjectRowBuilder::addMonto(screen::ListItem& item)
{
    text_ = amountToDefine;
    resumeNext([&] {
        const data::Value monto = read(monto_);
        if (!monto.isNull()) text_ = formatAmount(monto.raw());
    });
    resumeNext([&] { item.ListSubItems().Add(text_); });
}

void ProjectRowBuilder::paint(screen::ListItem& item)
{
    resumeNext([&] { desk::PaintProyItem(item, desk::ColorProyecto(read(color_))); });
}

} // namespace dn::projects
