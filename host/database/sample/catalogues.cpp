// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The short tables that the others point to.

#include "host/database/bulk_insert.h"
#include "host/database/sample/people.h"
#include "host/database/sample/words.h"
#include "host/database/sample/world.h"

namespace dn::host::sample {
namespace {

void writeWords(World& world, std::string_view table, std::string_view column, Words words)
{
    BulkInsert rows(world.connection, world.engine, table, column);
    for (const std::string_view word : words)
        rows.row().text(word);
    rows.finish();
}

void writeKeyedWords(World& world, std::string_view table, const std::string& column, Words words)
{
    BulkInsert rows(world.connection, world.engine, table, "Sys_PK, " + column);
    int key = 0;
    for (const std::string_view word : words)
        rows.row().number(++key).text(word);
    rows.finish();
}

void writeAgents(World& world)
{
    BulkInsert rows(world.connection, world.engine, "Agente", "Sys_PK, Nombre, Usuario, EMail, Administrador");
    int key = 0;
    for (const std::string_view name : agents()) {
        ++key;
        const std::string account = plainName(name.substr(0, name.find(' ')));
        rows.row().number(key).text(name).text(account).text(account + "@ventas.example").number(key == 1 ? 1 : 0);
    }
    rows.finish();
    writeKeyedWords(world, "Ejecutivo", "Nombre", agents());
}

void writeCities(World& world)
{
    BulkInsert rows(world.connection, world.engine, "Ciudad", "Sys_PK, Nombre, Estado");
    int key = 0;
    for (const City& city : cities())
        rows.row().number(++key).text(city.name).text(city.state);
    rows.finish();
}

} // namespace

void writeCatalogues(World& world)
{
    writeAgents(world);
    writeCities(world);
    writeKeyedWords(world, "Meta", "Descripcion", goals());
    writeKeyedWords(world, "mdtpactividad", "Nombre", activityKinds());
    writeWords(world, "ut_ReferenciaContacto", "uf_Referencia", referrals());
    writeWords(world, "ut_OrigenContacto", "uf_Origen", origins());
    writeWords(world, "ut_InteresContacto", "uf_Interes", interests());
}

} // namespace dn::host::sample
