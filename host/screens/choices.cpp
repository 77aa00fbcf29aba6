// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "host/screens/choices.h"

#include <QPainter>
#include <QPixmap>

#include <algorithm>
#include <map>

namespace dn::host {
namespace {

std::vector<Choice> readChoices(OwnConnection& database, const Statement& statement)
{
    std::vector<Choice> choices;
    const auto rows = database.run(statement);
    for (; !rows->Eof(); rows->MoveNext())
        choices.push_back({rows->value(0).toInt32(), QString::fromUtf8(rows->value(1).raw())});
    return choices;
}

QIcon painted(const QColor& colour)
{
    QPixmap picture(16, 16);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(colour);
    painter.drawRoundedRect(2, 2, 12, 12, 3, 3);
    return picture;
}

/// Made once for each colour: the toolkit keeps something of every picture that it has ever drawn.
const QIcon& patch(const QColor& colour)
{
    static std::map<QRgb, QIcon> made;
    QIcon& icon = made[colour.rgba()];
    if (icon.isNull()) icon = painted(colour);
    return icon;
}

} // namespace

std::vector<Choice> readGoals(OwnConnection& database)
{
    return readChoices(database, Statement("SELECT Sys_PK, Descripcion FROM Meta ORDER BY Descripcion"));
}

std::vector<Choice> readAgents(OwnConnection& database)
{
    return readChoices(database, Statement("SELECT Sys_PK, Nombre FROM Agente ORDER BY Nombre"));
}

std::vector<Choice> readCities(OwnConnection& database)
{
    return readChoices(database,
                       Statement("SELECT Sys_PK, CASE WHEN Estado IS NULL THEN Nombre ELSE CONCAT(Nombre, ?, "
                                 "Estado) END FROM Ciudad ORDER BY Nombre, Estado")
                           .bind(", "));
}

std::vector<Choice> readActivityKinds(OwnConnection& database)
{
    return readChoices(database, Statement("SELECT Sys_PK, Nombre FROM mdtpactividad ORDER BY Nombre"));
}

std::vector<Choice> temperatures(bool ended)
{
    std::vector<Choice> choices{{1, "Congelado"}, {2, "Frío"}, {3, "Tibio"}, {4, "Caliente"}};
    if (ended) choices.insert(choices.end(), {{5, "Cerrado"}, {6, "Perdido"}});
    return choices;
}

std::vector<Choice> colours()
{
    return {{1, "Rojo", patch(QColor(0xFF, 0, 0))},
            {2, "Verde", patch(QColor(0, 0x80, 0))}, // a little lighter than in the lists, to tell it from black
            {3, "Azul", patch(QColor(0, 0, 0xFF))},
            {4, "Morado", patch(QColor(0x80, 0, 0x80))}};
}

QString textOf(const std::vector<Choice>& choices, std::int32_t key)
{
    const auto found =
        std::find_if(choices.begin(), choices.end(), [key](const Choice& c) { return c.key == key; });
    return found == choices.end() ? QString() : found->text;
}

} // namespace dn::host
