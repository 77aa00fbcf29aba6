// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "bench/bench_database.h"

#include "directories/statement.h"
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
    makePersons();
}

// A person for each prospect. A former run left as many as there are, or the sample data fewer.
void BenchDatabase::makePersons()
{
    const auto counted = connection().execute("SELECT COUNT(*) FROM Persona")->value(0).toWhole();
    if (counted == static_cast<std::int64_t>(rows_)) return;
    connection().execute("DELETE FROM Persona");
    connection().execute(
        "INSERT INTO Persona (Codigo, Nombre, Apellido1, Apellido2, EMail, Tel_Casa, Tel_Movil, Domicilio, "
        "Colonia, "
        "CodPostal, IEjecutivo) SELECT CONCAT('P-', Sys_PK), SUBSTRING_INDEX(uf_Nombre, ' ', 1), "
        "SUBSTRING_INDEX(uf_Nombre, ' ', -1), uf_Ciudad, uf_EMail, uf_Telefono, uf_Telefono, CONCAT('Calle ', "
        "uf_Ciudad, ' ', Sys_PK), uf_Estado, LPAD(Sys_PK % 100000, 5, '0'), " +
        std::to_string(agent_) + " FROM ut_icontact");
}

std::string BenchDatabase::personStatement() const
{
    return directories::directoryStatement(directories::persons, true, agent_);
}

std::string BenchDatabase::statement() const { return prospects::prospectStatement(true, agent_, 0); }

} // namespace dn::bench
