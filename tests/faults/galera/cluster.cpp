// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/faults/galera/cluster.h"

#include "host/database/database_choice.h"
#include "host/database/schema.h"
#include "host/database/unique_fd.h"

#include <poll.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <array>
#include <csignal>
#include <cstdlib>
#include <sstream>
#include <stdexcept>

namespace dn::tests {
namespace {

int numberIn(const char* variable, std::size_t position)
{
    const char* const value = std::getenv(variable);
    std::istringstream text(value == nullptr ? "" : value);
    std::array<int, Cluster::size> numbers{};
    for (int& number : numbers)
        if (!(text >> number)) throw std::runtime_error(std::string(variable) + " holds no three numbers");
    return numbers.at(position);
}

} // namespace

std::string Cluster::node(std::size_t number, const std::string& account, const std::string& database)
{
    return "mariadb://" + account + "@127.0.0.1:" + std::to_string(numberIn("DN_GALERA_PORTS", number)) + "/" +
           database + "?connect_timeout=3&read_timeout=20";
}

std::unique_ptr<data::Connection> Cluster::ownerAt(std::size_t number, const std::string& database)
{
    return host::connect(host::parseDatabaseChoice(node(number, owner, database)));
}

host::DatabaseOptions Cluster::servers(const std::string& account, const std::string& database)
{
    host::DatabaseOptions options;
    options.connect = node(0, account, database);
    for (std::size_t number = 1; number < size; ++number)
        options.further.push_back(node(number, account, database));
    return options;
}

void Cluster::makeVentas()
{
    ownerAt(0, "mysql")->execute("CREATE DATABASE ventas");
    const auto connection = ownerAt(0, "ventas");
    host::createSchema(*connection, host::Engine::mariadb);
    connection->execute("INSERT INTO Agente (Sys_PK, Nombre) VALUES (7, 'Ana')");
    connection->execute("INSERT INTO ut_icontact (Sys_PK, uf_Nombre, uf_Telefono, uf_IEjecutivo, uf_Fecha) VALUES "
                        "(1, 'Luz', '961', 7, '2026-03-01')");
}

void Cluster::kill(std::size_t number)
{
    constexpr int patience = 10'000; // milliseconds
    const pid_t process = numberIn("DN_GALERA_PROCESSES", number);
    const host::UniqueFd watch(static_cast<int>(::syscall(SYS_pidfd_open, process, 0)));
    pollfd end{watch.get(), POLLIN, 0};
    if (::kill(process, SIGKILL) != 0 || ::poll(&end, 1, patience) != 1)
        throw std::runtime_error("node " + std::to_string(number) + " cannot be killed");
}

} // namespace dn::tests
