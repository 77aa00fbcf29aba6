// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "prospects/prospect_row.h"

#include "base/format.h"
#include "base/runtime_error.h"
#include "base/text.h"
#include "data/error.h"
#include "data/failure_modes.h"
#include "desk/shared.h"
#include "prospects/origin.h"

#include <algorithm>

namespace dn::prospects {
namespace {

using data::resumeNext;
using desk::NullATexto;
using desk::textOrEmpty;

constexpr int proxContacto = 2; // the sub-item "Prox. Contacto"
constexpr std::string_view notScheduled = "Agendar";
constexpr screen::Colour scheduledColour = 0xFF8080;
constexpr int iconOverdue = 5;
constexpr int iconAhead = 6;
constexpr std::string_view datePattern = "yyyy-mm-dd";
constexpr std::string_view momentPattern = "yyyy-mm-dd hh:nn:ss";

// A date as the drivers deliver it begins with what the pattern gives: three columns of each row need no calendar.
bool startsWithDay(const data::Value& value)
{
    const std::string_view raw = value.raw();
    return value.kind() == data::Value::Kind::dateTime && raw.size() >= datePattern.size() && raw[4] == '-' &&
           raw[7] == '-';
}

// Whether each sign of the pattern that stands for no figure stands in its place, and nothing is left over.
bool hasFormOf(std::string_view text, std::string_view pattern)
{
    const auto fits = [](char c, char p) { return (p >= 'a' && p <= 'z') ? c >= '0' && c <= '9' : c == p; };
    return std::equal(text.begin(), text.end(), pattern.begin(), pattern.end(), fits);
}

} // namespace

ProspectRowBuilder::ProspectRowBuilder(screen::ListView& lvw, const data::Recordset& records, const DateTime& now)
    : lvw_(lvw), records_(records), now_(now)
{
    const data::Fields fields = records.Fields();
    sysPk_ = fields.find("Sys_PK");
    tipo_ = fields.find("uf_Tipo");
    redirect_ = fields.find("uf_Redirect");
    interes_ = fields.find("uf_Interes");
    proxContac_ = fields.find("uf_proxcontac");
    fecha_ = fields.find("uf_Fecha");
    eDias_ = fields.find("e_dias");
    eUltimoContacto_ = fields.find("e_ultimocontacto");
    eDuc_ = fields.find("e_duc");
    eUltimoIntento_ = fields.find("e_ultimointento");
    eDui_ = fields.find("e_dui");
    comentarios_ = fields.find("uf_Comentarios");
    correoVerif_ = fields.find("uf_correoverif");
    contactado_ = fields.find("uf_contactado");
    color_ = fields.find("uf_color");
    plain_ = {fields.find("uf_Nombre"),  fields.find("uf_EMail"),  fields.find("uf_Telefono"),
              fields.find("uf_Empresa"), fields.find("uf_Puesto"), fields.find("uf_Ciudad"),
              fields.find("uf_Estado"),  fields.find("uf_Pais")};
}

void ProspectRowBuilder::build()
{
    data::Value tipo;
    data::Value redirect;
    resumeNext([&] { tipo = read(tipo_); });
    resumeNext([&] { redirect = read(redirect_); });
    TipoOrigen(tipo, redirect, label_);
    std::optional<screen::ListItem> added;
    resumeNext([&] { added = lvw_.ListItems().Add(key(), label_, 1); });
    if (!added) return;
    addInteres(*added);
    addProxContacto(*added);
    for (const Column& column : plain_)
        addCell(*added, column);
    addDateCell(*added, fecha_);
    addDias(*added);
    addDateCell(*added, eUltimoContacto_);
    addCell(*added, eDuc_);
    addDateCell(*added, eUltimoIntento_);
    addCell(*added, eDui_);
    addToolTip(*added);
    setSmallIcon(*added);
    paint(*added);
}

data::Value ProspectRowBuilder::read(const Column& column) const
{
    if (!column) throw data::Error("42S22", 0, "No existe la columna");
    return records_.value(*column);
}

std::string ProspectRowBuilder::key() const { return "K" + read(sysPk_).toText(); }

void ProspectRowBuilder::addCell(screen::ListItem& item, const Column& column)
{
    std::string_view text;
    resumeNext([&] { text = textOrEmpty(read(column), text_); });
    resumeNext([&] { item.ListSubItems().Add(text); });
}

void ProspectRowBuilder::addDateCell(screen::ListItem& item, const Column& column)
{
    std::string_view text;
    text_.clear();
    resumeNext([&] {
        const data::Value value = read(column);
        if (startsWithDay(value)) {
            text = value.raw().substr(0, datePattern.size());
        } else if (value.kind() == data::Value::Kind::dateTime) {
            appendDate(text_, value.toDateTime(), datePattern);
            text = text_;
        } else {
            text = textOrEmpty(value, text_);
        }
    });
    resumeNext([&] { item.ListSubItems().Add(text); });
}

void ProspectRowBuilder::addInteres(screen::ListItem& item)
{
    text_.clear();
    resumeNext([&] { NullATexto(read(interes_), text_); });
    resumeNext([&] { ProductoInteres(text_, text_); });
    resumeNext([&] { item.ListSubItems().Add(text_); });
}

void ProspectRowBuilder::addProxContacto(screen::ListItem& item)
{
    data::Value value;
    const bool wasRead = resumeNext([&] { value = read(proxContac_); });
    if (wasRead && value.isNull()) {
        resumeNext([&] { item.ListSubItems().Add(notScheduled); });
        return;
    }
    std::string_view text;
    std::optional<DateTime> moment;
    resumeNext([&] {
        moment = value.toDateTime();
        if (hasFormOf(value.raw(), momentPattern)) {
            text = value.raw();
        } else {
            text_.clear();
            appendDate(text_, *moment, momentPattern);
            text = text_;
        }
    });
    resumeNext([&] { item.ListSubItems().Add(text); });
    if (!moment) return;
    resumeNext([&] { item.ListSubItems()(proxContacto).ReportIcon(*moment < now_ ? iconOverdue : iconAhead); });
}

// Three digits, because the list sorts as text.
void ProspectRowBuilder::addDias(screen::ListItem& item)
{
    text_.clear();
    resumeNext([&] {
        const data::Value dias = read(eDias_);
        if (!dias.isNull()) text_ = formatThreeDigits(dias.toWhole());
    });
    resumeNext([&] { item.ListSubItems().Add(text_); });
}

void ProspectRowBuilder::addToolTip(screen::ListItem& item)
{
    std::string_view comments;
    std::string_view link;
    std::string room;
    resumeNext([&] { comments = textOrEmpty(read(comentarios_), text_); });
    resumeNext([&] { link = textOrEmpty(read(redirect_), room); });
    toolTip_.assign(comments).append(crlf).append(link);
    resumeNext([&] { item.ToolTipText(toolTip_); });
}

void ProspectRowBuilder::setSmallIcon(screen::ListItem& item)
{
    const bool verified = flag(correoVerif_);
    const bool contacted = flag(contactado_);
    if (!verified && !contacted) return;
    resumeNext([&] { item.SmallIcon(contacted ? (verified ? 4 : 3) : 2); });
}

void ProspectRowBuilder::paint(screen::ListItem& item)
{
    screen::Colour colour = 0;
    resumeNext([&] { colour = desk::ColorProyecto(read(color_)); });
    resumeNext([&] { desk::PaintProyItem(item, colour); });
    resumeNext([&] {
        screen::ListSubItem date = item.ListSubItems()(proxContacto);
        if (date.Text() != notScheduled) date.ForeColor(scheduledColour);
    });
}

bool ProspectRowBuilder::flag(const Column& column) const
{
    bool result = false;
    resumeNext([&] {
        const data::Value value = read(column);
        result = !value.isNull() && value.toBoolean();
    });
    return result;
}

} // namespace dn::prospects
