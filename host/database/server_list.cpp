// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "host/database/server_list.h"

#include "data/error.h"
#include "host/database/host_error.h"

namespace dn::host {
namespace {

/// The second column of the first row; empty where the server does not know the name. A node that is not ready
/// answers these and hardly anything else.
std::string shown(data::Connection& connection, const std::string& statement)
{
    const auto rows = connection.execute(statement);
    return rows && !rows->Eof() ? rows->value(1).toText() : std::string();
}

DatabaseChoice asWanted(DatabaseChoice choice, const ConnectionWish& wish)
{
    if (wish.readTimeout) std::visit([&](auto& target) { target.readTimeout = *wish.readTimeout; }, choice);
    return choice;
}

} // namespace

// Servers that were built for clusters and stand alone say that they are not ready, too.
bool isReady(data::Connection& connection)
{
    return shown(connection, "SHOW GLOBAL VARIABLES LIKE 'wsrep_on'") != "ON" ||
           shown(connection, "SHOW GLOBAL STATUS LIKE 'wsrep_ready'") == "ON";
}

std::unique_ptr<data::Connection> connectReady(const DatabaseChoice& choice)
{
    auto connection = connect(choice);
    if (!std::holds_alternative<MariadbTarget>(choice)) return connection;
    try {
        if (isReady(*connection)) return connection;
    } catch (const data::Error& error) {
        throw HostError("La base de datos " + describe(choice) +
                        " dejó de responder. El servidor dice: " + error.what());
    }
    throw HostError("La base de datos " + describe(choice) +
                    " no atiende: su nodo está fuera de la parte principal del clúster (wsrep_ready).");
}

std::unique_ptr<data::Connection> ServerList::connect(const ConnectionWish& wish)
{
    const std::size_t first = present_;
    std::string failures;
    for (std::size_t i = 0; i < choices_.size() && !wish.givenUp.stop_requested(); ++i) {
        const std::size_t at = (first + i) % choices_.size();
        try {
            auto connection = open_(asWanted(choices_[at], wish));
            present_ = at;
            return connection;
        } catch (
            const std::exception& failure) { // whatever keeps one server away is no reason not to ask the next
            failures += (failures.empty() ? "" : "\n") + std::string(failure.what());
        }
    }
    throw HostError(failures);
}

std::string ServerList::description() const
{
    std::string one = describe(present());
    if (count() == 1) return one;
    return one + " (servidor " + std::to_string(present_ + 1) + " de " + std::to_string(count()) + ")";
}

} // namespace dn::host
