// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "host/database/sample_data.h"

#include "data/error.h"
#include "host/database/sample/world.h"

#include <algorithm>

namespace dn::host {
namespace {

/// Fewer prospects than the default leave the rest as it is; more let it grow.
sample::Sizes sizesFor(std::size_t prospects)
{
    const int count = static_cast<int>(prospects);
    const int extra = std::max(0, count - 3000);
    return {.agents = 12,
            .organisations = 400 + extra / 250,
            .persons = 700 + extra / 150,
            .projects = 500 + extra / 100,
            .prospects = count};
}

DateTime presentMoment(data::Connection& connection)
{
    const auto rows = connection.execute("SELECT CURRENT_TIMESTAMP");
    DateTime now = rows->value(0).toDateTime();
    now.microsecond = 0;
    return now;
}

/// One transaction: a program that is killed half-way leaves no half of it.
template <class Work>
void inTransaction(data::Connection& connection, Engine engine, Work&& work)
{
    connection.execute(engine == Engine::mariadb ? "START TRANSACTION" : "BEGIN TRANSACTION");
    try {
        work();
        connection.execute("COMMIT");
    } catch (...) {
        if (connection.State() == data::Connection::open) connection.execute("ROLLBACK");
        throw;
    }
}

/// The server counts its keys late after so many rows, and chooses its indexes by the old counts until then.
void refreshStatistics(data::Connection& connection, Engine engine)
{
    if (engine != Engine::mariadb) return;
    connection.execute("ANALYZE TABLE ut_icontact, xt_biticontact, Proyecto, actividad, Persona, Organizacion");
}

} // namespace

void writeSampleData(data::Connection& connection, Engine engine, const SampleOptions& options,
                     const Progress& progress)
{
    if (progress) progress("Escribiendo los datos de ejemplo…");
    const DateTime now = options.now ? *options.now : presentMoment(connection);
    sample::World world{connection, engine, sample::Dice(options.seed), now, sizesFor(options.prospects),
                        progress};
    inTransaction(connection, engine, [&] {
        sample::writeCatalogues(world);
        sample::writeDirectory(world);
        sample::writeProjects(world);
        sample::writeProspects(world);
    });
    refreshStatistics(connection, engine);
}

} // namespace dn::host
