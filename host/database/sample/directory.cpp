// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// Organisations and persons.

#include "host/database/bulk_insert.h"
#include "host/database/sample/people.h"
#include "host/database/sample/words.h"
#include "host/database/sample/world.h"

namespace dn::host::sample {
namespace {

/// "O0001": a letter and the key.
std::string code(char letter, int key)
{
    const std::string digits = std::to_string(key);
    return letter + std::string(digits.size() < 4 ? 4 - digits.size() : 0, '0') + digits;
}

std::optional<std::string> perhaps(World& world, int percent, std::string (*make)(Dice&))
{
    if (!world.dice.chance(percent)) return {};
    return make(world.dice);
}

int cityCount() { return static_cast<int>(cities().size()); }

void writeOrganisation(World& world, BulkInsert& rows, int key)
{
    Dice& dice = world.dice;
    const std::string name = company(dice);
    const std::string site = plainName(name.substr(0, name.find(' '))) + std::to_string(key) + ".example";
    rows.row().number(key).text(dice.identifier()).moment(world.workingMoment(-dice.between(30, 1500)));
    rows.text(code('O', key)).text(name).text(dice.chance(60) ? std::optional(name) : std::nullopt);
    rows.text(perhaps(world, 90, telephone))
        .text(perhaps(world, 40, telephone))
        .text(perhaps(world, 15, telephone));
    rows.text(perhaps(world, 30, telephone));
    rows.text(dice.chance(80) ? std::optional("contacto@" + site) : std::nullopt);
    rows.text(dice.chance(60) ? std::optional("http://www." + site) : std::nullopt);
    rows.text(perhaps(world, 85, streetAddress)).text(dice.pick(quarters())).text(perhaps(world, 80, postalCode));
    rows.number(world.keyOrNull(cityCount(), 5)).text(dice.chance(90) ? "México" : dice.pick(otherCountries()));
    rows.number(world.keyOrNull(world.sizes.agents, 5));
}

void writePerson(World& world, BulkInsert& rows, int key)
{
    Dice& dice = world.dice;
    const std::string_view given = dice.pick(givenNames());
    const std::string_view surname = dice.pick(surnames());
    const std::string name = std::string(given) + " " + std::string(surname);
    rows.row().number(key).text(dice.identifier()).moment(world.workingMoment(-dice.between(10, 1500)));
    rows.text(code('P', key)).text(given).text(surname);
    rows.text(dice.chance(85) ? std::optional(std::string(dice.pick(surnames()))) : std::nullopt);
    rows.text(dice.chance(85) ? std::optional(mailAddress(dice, name)) : std::nullopt);
    rows.text(dice.chance(25) ? std::optional(mailAddress(dice, name)) : std::nullopt);
    rows.text(dice.chance(10) ? std::optional(mailAddress(dice, name)) : std::nullopt);
    rows.text(perhaps(world, 50, telephone))
        .text(perhaps(world, 70, telephone))
        .text(perhaps(world, 75, telephone));
    rows.text(perhaps(world, 70, streetAddress)).text(dice.pick(quarters())).text(perhaps(world, 70, postalCode));
    rows.number(world.keyOrNull(cityCount(), 10)).number(world.keyOrNull(world.sizes.organisations, 20));
    rows.text(dice.pick(jobTitles())).number(world.keyOrNull(world.sizes.agents, 5));
}

} // namespace

void writeDirectory(World& world)
{
    BulkInsert organisations(
        world.connection, world.engine, "Organizacion",
        "Sys_PK, Sys_GUID, Sys_DTCreated, Codigo, Nombre, NomComercial, Tel1, Tel2, Tel3, Fax, "
        "EMail, WebSite, Domicilio, Colonia, CodPostal, ICiudad, Nacionalidad, IEjecutivo");
    for (int key = 1; key <= world.sizes.organisations; ++key)
        writeOrganisation(world, organisations, key);
    organisations.finish();
    BulkInsert persons(
        world.connection, world.engine, "Persona",
        "Sys_PK, Sys_GUID, Sys_DTCreated, Codigo, Nombre, Apellido1, Apellido2, EMail, EMail2, MSN, "
        "Tel_Casa, Tel_Trabajo, Tel_Movil, Domicilio, Colonia, CodPostal, ICiudad, IOrganizacion, "
        "Puesto, IEjecutivo");
    for (int key = 1; key <= world.sizes.persons; ++key)
        writePerson(world, persons, key);
    persons.finish();
}

} // namespace dn::host::sample
