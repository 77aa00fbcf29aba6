// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/data/contract/server_backend.h"

#include "tests/data/contract/contract.h"

namespace dn::tests::contract {
namespace {

class ServerBackend final : public Backend {
public:
    std::unique_ptr<data::Connection> connect() override { return connectTo(onSocket(sharedServer())); }
};

} // namespace

std::unique_ptr<Backend> makeBackend() { return std::make_unique<ServerBackend>(); }

Target onSocket(const MariaServer& server)
{
    Target target;
    target.socket = server.socket();
    return target;
}

} // namespace dn::tests::contract
