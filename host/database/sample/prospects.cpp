// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// All the prospects and their log.

#include "host/database/bulk_insert.h"
#include "host/database/sample/log_lines.h"
#include "host/database/sample/prospect.h"
#include "host/database/sample/words.h"

#include <array>

namespace dn::host::sample {
namespace {

constexpr int rowsPerReport = 20'000;

void logCalls(World& world, LogLines& log, const Prospect& prospect)
{
    if (!prospect.lastAttempt) return;
    const std::string message = *prospect.result == 50 ? reachedMessage(world.dice, prospect.telephone)
                                                       : notReachedMessage(prospect.telephone, *prospect.result);
    log.aboutProspect(prospect.key, *prospect.lastAttempt, message, prospect.worker());
}

void logStatus(LogLines& log, const Prospect& prospect)
{
    constexpr std::array<std::string_view, 4> words{"", ">> Descartado: ", ">> Sin interés: ", ">> Oportunidad: "};
    if (!prospect.statusTime) return;
    const std::string message(words.at(static_cast<std::size_t>(prospect.status)));
    log.aboutProspect(prospect.key, *prospect.statusTime, message + prospect.reason, prospect.worker());
}

void writeLog(World& world, LogLines& log, const Prospect& prospect)
{
    if (world.dice.chance(15))
        log.aboutProspect(prospect.key, prospect.created, "Contacto transferido", prospect.worker());
    if (world.dice.chance(20))
        log.aboutProspect(prospect.key, prospect.created, world.dice.pick(notes()), prospect.worker());
    logCalls(world, log, prospect);
    logStatus(log, prospect);
}

void report(const World& world, int done)
{
    if (!world.progress || done % rowsPerReport != 0) return;
    world.progress("Escribiendo los datos de ejemplo: " + std::to_string(done) + " de " +
                   std::to_string(world.sizes.prospects) + " prospectos…");
}

} // namespace

void writeProspects(World& world)
{
    BulkInsert rows(world.connection, world.engine, "ut_icontact", prospectColumns);
    LogLines log(world);
    for (int key = 1; key <= world.sizes.prospects; ++key) {
        const Prospect prospect = inventProspect(world, key);
        writeProspect(world, rows, prospect);
        writeLog(world, log, prospect);
        report(world, key);
    }
    rows.finish();
    log.finish();
}

} // namespace dn::host::sample
