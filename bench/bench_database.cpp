// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "bench/bench_database.h"

#include "prospects/prospect_statement.h"

#include <cstdio>
#include <stdexcept>

namespace dn::bench {
namespace {

host::Database open(const std::string& folder, std::size_t rows)
{
    host::DatabaseOptions options;
    options.demoRows = rows;
    options.server.folder = folder;
    options.server.bufferPoolMegabytes = 512;
    return host::openDatabase(options,
                              [](const std::string& step) { std::fprintf(stderr, "%s\n", step.c_str()); });
}

} // namespace

BenchDatabase::BenchDatabase(const std::string& folder, std::size_t rows)
    : database_(open(folder, rows)), rows_(rows)
{
    if (database_.server() == nullptr) throw std::runtime_error("the benchmarks need the private server");
    target_ = std::get<host::MariadbTarget>(database_.choice());
    agent_ = connection().execute("SELECT MIN(Sys_PK) FROM Agente")->value(0).toInt32();
    connection().execute("UPDATE ut_icontact SET uf_IEjecutivo = " + std::to_string(agent_) + ", uf_Status = 0");
    const auto counted = connection().execute("SELECT COUNT(*) FROM ut_icontact")->value(0).toWhole();
    if (counted != static_cast<std::int64_t>(rows))
        throw std::runtime_error("the folder holds " + std::to_string(counted) + " prospects and not " +
                                 std::to_string(rows));
}

std::string BenchDatabase::statement() const { return prospects::prospectStatement(true, agent_, 0); }

} // namespace dn::bench
