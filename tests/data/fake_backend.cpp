// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The contract suite on the fake connection.
#include "tests/data/contract/contract.h"
#include "tests/support/fake_connection.h"

namespace dn::tests::contract {
namespace {

class FakeBackend final : public Backend {
public:
    std::unique_ptr<data::Connection> connect() override { return std::make_unique<FakeConnection>(); }

    void teach(data::Connection& connection, const std::string& statement, const Rows& rows) override
    {
        fake(connection).on(statement).gives(rows);
    }

    void teach(data::Connection& connection, const std::string& statement, const data::Error& error) override
    {
        fake(connection).on(statement).fails(error);
    }

private:
    static FakeConnection& fake(data::Connection& connection) { return dynamic_cast<FakeConnection&>(connection); }
};

} // namespace

std::unique_ptr<Backend> makeBackend() { return std::make_unique<FakeBackend>(); }

} // namespace dn::tests::contract
