// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "bench/alternatives.h"

#include <mysql.h>

#include <memory>
#include <stdexcept>

namespace dn::bench {
namespace {

using Handle = std::unique_ptr<MYSQL, decltype(&mysql_close)>;

Handle open(const host::MariadbTarget& target)
{
    Handle handle(mysql_init(nullptr), &mysql_close);
    mysql_options(handle.get(), MYSQL_SET_CHARSET_NAME, "utf8mb4");
    if (mysql_real_connect(handle.get(), nullptr, target.user.c_str(), nullptr, target.database.c_str(), 0,
                           target.socket.c_str(), 0) == nullptr)
        throw std::runtime_error(mysql_error(handle.get()));
    return handle;
}

// Reads every byte of every cell, so that the compiler cannot leave the reading out.
std::size_t readAll(MYSQL_RES* result, std::size_t& bytes)
{
    const unsigned columns = mysql_num_fields(result);
    std::size_t cells = 0;
    while (MYSQL_ROW row = mysql_fetch_row(result)) {
        const unsigned long* const lengths = mysql_fetch_lengths(result);
        for (unsigned i = 0; i < columns; ++i, ++cells)
            if (row[i] != nullptr && lengths[i] > 0) bytes += static_cast<unsigned char>(row[i][0]) + lengths[i];
    }
    return cells;
}

} // namespace

Cost bareFetch(const BenchDatabase& database, const std::vector<std::string>& statements, std::size_t& cells)
{
    const Handle handle = open(database.target());
    std::size_t bytes = 0;
    cells = 0;
    const Cost cost = measure([&] {
        for (const std::string& statement : statements) {
            if (mysql_real_query(handle.get(), statement.data(), statement.size()) != 0)
                throw std::runtime_error(mysql_error(handle.get()));
            const std::unique_ptr<MYSQL_RES, decltype(&mysql_free_result)> result(mysql_store_result(handle.get()),
                                                                                  &mysql_free_result);
            cells += readAll(result.get(), bytes);
        }
    });
    if (bytes == 0) throw std::runtime_error("the bare fetch read nothing");
    return cost;
}

} // namespace dn::bench
