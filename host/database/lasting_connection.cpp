// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "host/database/lasting_connection.h"

#include "data/error.h"

namespace dn::host {
namespace {

constexpr int notReady = 1047; // "WSREP has not yet prepared node for application use"

} // namespace

std::unique_ptr<data::Recordset> LastingConnection::execute(std::string_view statement)
try {
    return present_->execute(statement);
} catch (const data::Error& error) {
    left_ = left_ || error.nativeCode() == notReady;
    throw;
}

void LastingConnection::renew(std::unique_ptr<data::Connection> fresh)
{
    present_ = std::move(fresh);
    left_ = false;
}

} // namespace dn::host
