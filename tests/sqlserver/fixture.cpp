// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/sqlserver/fixture.h"

#include "host/database/database_choice.h"
#include "host/database/schema.h"
#include "tests/support/sql_server_stand_in.h"

namespace dn::tests {

std::unique_ptr<data::Connection> OnStandIn::connect(const std::string& application)
{
    return host::connect(
        host::OdbcTarget{sharedStandIn().connectionString(SqlServerStandIn::database, application)});
}

std::unique_ptr<data::Connection> OnStandIn::freshDatabase(const std::string& name, const std::string& application)
{
    connect()->execute("CREATE DATABASE " + name);
    const auto to = [&](const std::string& who) {
        return host::connect(host::OdbcTarget{sharedStandIn().connectionString(name, who)});
    };
    host::createSchema(*to("esquema"), host::Engine::sqlServer);
    return to(application);
}

std::vector<Row> OnStandIn::rowsOf(data::Connection& connection, const std::string& statement)
{
    std::vector<Row> all;
    const auto rows = connection.execute(statement);
    for (; rows && !rows->Eof(); rows->MoveNext()) {
        Row& row = all.emplace_back();
        for (std::size_t i = 0; i < rows->names().size(); ++i)
            row.push_back(rows->value(i).isNull() ? "NULL" : std::string(rows->value(i).raw()));
    }
    return all;
}

std::int32_t OnStandIn::refusalOf(data::Connection& connection, const std::string& statement)
{
    try {
        const auto rows = connection.execute(statement);
        while (rows && !rows->Eof())
            rows->MoveNext();
        return 0;
    } catch (const data::Error& refusal) {
        return refusal.nativeCode() == 0 ? aheadOfTheServer : static_cast<std::int32_t>(refusal.nativeCode());
    }
}

} // namespace dn::tests
