// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "host/database/sample/prospect.h"

#include "host/database/sample/log_lines.h"
#include "host/database/sample/people.h"
#include "host/database/sample/words.h"

#include <algorithm>

namespace dn::host::sample {
namespace {

/// Today to two years, recent ones far more often.
int inventAge(Dice& dice)
{
    const int x = dice.between(0, 855);
    return x * x / 1001;
}

int inventStatus(Dice& dice)
{
    const int x = dice.between(1, 100);
    return x <= 60 ? 0 : x <= 78 ? 1 : x <= 92 ? 2 : 3;
}

std::optional<int> inventAgent(World& world)
{
    const int x = world.dice.between(1, 100);
    if (x <= 8) return {};
    if (x <= 12) return 0;
    return world.dice.between(1, world.sizes.agents);
}

std::optional<int> inventKind(Dice& dice)
{
    const int x = dice.between(1, 100);
    if (x <= 40) return 1;
    if (x <= 65) return {};
    return dice.between(0, 1) * 2;
}

/// Who is still worked on has a next contact, as a rule in days to come; some are late, few have none.
std::optional<DateTime> inventOpenContact(World& world)
{
    Dice& dice = world.dice;
    const int x = dice.between(1, 100);
    if (x <= 5) return {};
    if (x <= 15) return world.workingMoment(-dice.between(1, 9));
    if (x <= 25) return world.workingMoment(0);
    return world.workingMoment(dice.between(1, 45));
}

std::optional<DateTime> inventNextContact(World& world, int status)
{
    if (status == 0) return inventOpenContact(world);
    Dice& dice = world.dice;
    const int x = dice.between(1, 100);
    if (x <= 70) return {};
    if (x <= 80) return world.workingMoment(-dice.between(1, 60));
    if (x <= 88) return world.workingMoment(0);
    return world.workingMoment(dice.between(1, 60));
}

void inventStatusChange(World& world, Prospect& prospect)
{
    if (prospect.status == 0) return;
    Dice& dice = world.dice;
    prospect.statusTime = world.workingMoment(-dice.between(0, prospect.age));
    if (prospect.status == 1) prospect.reason = dice.pick(discardReasons());
    if (prospect.status == 2) prospect.reason = dice.pick(noInterestReasons());
}

void inventCalls(World& world, Prospect& prospect)
{
    Dice& dice = world.dice;
    if (dice.chance(35)) return;
    const int days = dice.between(0, prospect.age);
    prospect.lastAttempt = world.workingMoment(-days);
    const bool reached = dice.chance(55);
    prospect.result = reached ? 50 : failedResult(dice);
    if (!reached && dice.chance(70)) return;
    prospect.lastContact =
        reached ? *prospect.lastAttempt : world.workingMoment(-dice.between(days, prospect.age));
    prospect.firstContact = dice.chance(60) ? *prospect.lastContact : prospect.created;
}

template <class Text>
std::optional<std::string> perhaps(Dice& dice, int percent, Text&& text)
{
    if (!dice.chance(percent)) return {};
    return std::string(text);
}

void writeWhere(Dice& dice, BulkInsert& rows)
{
    const City& city = cities()[static_cast<std::size_t>(dice.between(0, static_cast<int>(cities().size()) - 1))];
    if (dice.chance(85))
        rows.text("MX").text(city.state).text(city.name);
    else
        rows.text(dice.pick(otherCountries())).text("<No aplica>").text("Ciudad lejana");
}

void writeWishes(Dice& dice, BulkInsert& rows, const Prospect& prospect)
{
    const bool byWeb = prospect.kind != 1;
    rows.text(perhaps(dice, 96, dice.pick(byWeb && dice.chance(70) ? interestLinks() : interests())));
    std::string comments = "Obtenido: " + std::string(dice.pick(origins())) +
                           "\r\nReferencia: " + std::string(dice.pick(referrals())) + "\r\n" +
                           std::string(dice.pick(remarks())) + " ";
    rows.text(perhaps(dice, byWeb ? 50 : 98, std::move(comments)));
}

std::optional<std::string> inventRedirect(Dice& dice, const Prospect& prospect)
{
    if (prospect.kind == 1 && dice.chance(85)) return "URL_Directo";
    return perhaps(dice, 85, dice.pick(webLinks()));
}

/// Null, 0 or 1; a contact makes it 1.
std::optional<int> contacted(Dice& dice, const Prospect& prospect)
{
    if (prospect.firstContact) return 1;
    return dice.chance(50) ? std::optional(0) : std::nullopt;
}

std::optional<int> mailVerified(Dice& dice)
{
    const int x = dice.between(0, 2);
    return x == 2 ? std::nullopt : std::optional(x);
}

} // namespace

const std::string_view prospectColumns =
    "Sys_PK, Sys_TimeStamp, Sys_GUID, Sys_DTCreated, Sys_User, Sys_LastUser, Sys_Exported, Sys_DTExported, "
    "Sys_Info, "
    "uf_Nombre, uf_EMail, uf_Telefono, uf_Empresa, uf_Puesto, uf_Pais, uf_Estado, uf_Ciudad, uf_Interes, "
    "uf_Comentarios, uf_Fecha, uf_IEjecutivo, uf_Status, uf_NotaStatus, uf_FechaStatus, uf_Tipo, uf_color, "
    "uf_Redirect, uf_proxcontac, uf_ultimocontac, uf_ultimointento, uf_res_ultimointento, uf_contactado, "
    "uf_primercontac, uf_correoverif";

Prospect inventProspect(World& world, int key)
{
    Prospect prospect;
    prospect.key = key;
    prospect.status = inventStatus(world.dice);
    prospect.age = inventAge(world.dice);
    prospect.agent = inventAgent(world);
    prospect.kind = inventKind(world.dice);
    prospect.name = fullName(world.dice);
    prospect.telephone = telephone(world.dice);
    // Nothing came in later than now.
    prospect.created = std::min(world.workingMoment(-prospect.age), world.now);
    prospect.nextContact = inventNextContact(world, prospect.status);
    inventStatusChange(world, prospect);
    inventCalls(world, prospect);
    return prospect;
}

void writeProspect(World& world, BulkInsert& rows, const Prospect& prospect)
{
    Dice& dice = world.dice;
    rows.row().number(prospect.key).moment(prospect.created).text(dice.identifier());
    rows.moment(prospect.created).text("@").text("@").number(0).moment(prospect.created).text("@");
    rows.text(prospect.name).text(perhaps(dice, 96, mailAddress(dice, prospect.name)));
    rows.text(perhaps(dice, 97, prospect.telephone)).text(perhaps(dice, 80, company(dice)));
    rows.text(perhaps(dice, 70, dice.pick(jobTitles())));
    writeWhere(dice, rows);
    writeWishes(dice, rows, prospect);
    rows.date(prospect.created).number(prospect.agent).number(prospect.status);
    rows.text(prospect.statusTime ? std::optional(prospect.reason) : std::nullopt).moment(prospect.statusTime);
    rows.number(prospect.kind).number(dice.chance(55) ? std::nullopt : std::optional(dice.between(0, 4)));
    rows.text(inventRedirect(dice, prospect)).moment(prospect.nextContact).moment(prospect.lastContact);
    rows.moment(prospect.lastAttempt).number(prospect.result).number(contacted(dice, prospect));
    rows.moment(prospect.firstContact).number(mailVerified(dice));
}

} // namespace dn::host::sample
