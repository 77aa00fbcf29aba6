// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "bench/bench_database.h"

#include "bench/processes.h"
#include "directories/kind.h"
#include "directories/statement.h"
#include "projects/project_statement.h"
#include "prospects/prospect_statement.h"

#include <algorithm>
#include <cstdio>
#include <stdexcept>

namespace dn::bench {
namespace {

constexpr std::size_t sampleRows = 3000;

host::Database open(const std::string& folder)
{
    host::DatabaseOptions options;
    options.demoRows = sampleRows;
    options.server.folder = folder;
    options.server.bufferPoolMegabytes = 2048;
    return host::openDatabase(options,
                              [](const std::string& step) { std::fprintf(stderr, "%s\n", step.c_str()); });
}

std::string queueStatement(const char* view, std::int32_t agent)
{
    return std::string("select * from ") + view + " where ejecutivo=" + std::to_string(agent) +
           " order by cita, tipo, sys_pk";
}

} // namespace

BenchDatabase::BenchDatabase(const std::string& folder, std::size_t largest, std::size_t loadAgents)
    : database_(open(folder)), scales_(scalesUpTo(largest))
{
    if (database_.server() == nullptr || !database_.server()->owned())
        throw std::runtime_error("the benchmarks need a server of their own");
    target_ = std::get<host::MariadbTarget>(database_.choice());
    target_.readTimeout = 600; // the server sorts a million rows for long
    connection_ = std::make_unique<HeardConnection>(host::connect(target_));
    connection().execute("SET GLOBAL max_connections = 400");
    for (const Scale& scale : scales_) {
        std::fprintf(stderr, "rows of the agent with %zu\n", scale.rows);
        makeScaleRows(connection(), scale);
    }
    makeLoadRows(connection(), loadAgents);
}

const Scale& BenchDatabase::scale(std::size_t rows) const
{
    const auto found =
        std::find_if(scales_.begin(), scales_.end(), [rows](const Scale& scale) { return scale.rows == rows; });
    if (found == scales_.end()) throw std::out_of_range("no agent has " + std::to_string(rows) + " rows");
    return *found;
}

std::string BenchDatabase::version() { return connection().execute("SELECT VERSION()")->value(0).toText(); }

double BenchDatabase::serverCpu() const { return cpuOfProcess(database_.server()->pid()); }

const std::vector<List>& allLists()
{
    // The projects come last: they are another agent's.
    static const std::vector<List> lists{{desk::prospectos, "prospects", "uf_Nombre", 3},
                                         {desk::hoy, "queue of the day", "Contacto", 2},
                                         {desk::organizaciones, "organisations", "Codigo", 0},
                                         {desk::contactos, "persons", "Codigo", 0},
                                         {desk::proyectos, "projects", "Descripcion", 5}};
    return lists;
}

std::int32_t ownerOf(desk::Tab tab, const Scale& scale)
{
    return tab == desk::proyectos ? scale.projectAgent() : scale.agent;
}

std::vector<std::string> statementsOf(desk::Tab tab, std::int32_t agent)
{
    switch (tab) {
    case desk::prospectos:
        return {prospects::prospectStatement(true, agent, 0)};
    case desk::proyectos:
        return {projects::pendingActivitiesStatement(true, agent, projects::anyStatus),
                projects::projectsStatement(agent, projects::anyStatus)};
    case desk::hoy:
        return {queueStatement("qhoy", agent), queueStatement("qatascados", agent)};
    case desk::organizaciones:
        return {directories::directoryStatement(directories::organisations, true, agent)};
    case desk::contactos:
        return {directories::directoryStatement(directories::persons, true, agent)};
    default:
        return {};
    }
}

} // namespace dn::bench
