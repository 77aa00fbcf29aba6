// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The contract suite on ODBC, with the driver for SQL Server, on the stand-in.
#include "data/odbc/connection.h"
#include "tests/data/contract/contract.h"
#include "tests/support/sql_server_stand_in.h"

namespace dn::tests::contract {
namespace {

class StandInBackend final : public Backend {
public:
    Dialect dialect() const override { return sqlServer(); }
    std::unique_ptr<data::Connection> connect() override
    {
        return std::make_unique<data::odbc::Connection>(sharedStandIn().connectionString());
    }
};

} // namespace

std::unique_ptr<Backend> makeBackend() { return std::make_unique<StandInBackend>(); }

} // namespace dn::tests::contract
