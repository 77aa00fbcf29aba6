// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "bench/alternatives.h"

#include <mysql.h>

#include <chrono>
#include <cstring>
#include <memory>
#include <stdexcept>

namespace dn::bench {
namespace {

using Handle = std::unique_ptr<MYSQL, decltype(&mysql_close)>;
using Result = std::unique_ptr<MYSQL_RES, decltype(&mysql_free_result)>;

Handle open(const host::MariadbTarget& target)
{
    Handle handle(mysql_init(nullptr), &mysql_close);
    mysql_options(handle.get(), MYSQL_SET_CHARSET_NAME, "utf8mb4");
    if (mysql_real_connect(handle.get(), nullptr, target.user.c_str(), nullptr, target.database.c_str(), 0,
                           target.socket.c_str(), 0) == nullptr)
        throw std::runtime_error(mysql_error(handle.get()));
    return handle;
}

void send(MYSQL* handle, const std::string& statement)
{
    if (mysql_real_query(handle, statement.data(), statement.size()) != 0)
        throw std::runtime_error(mysql_error(handle));
}

unsigned keyColumnOf(MYSQL_RES* result)
{
    const unsigned columns = mysql_num_fields(result);
    const MYSQL_FIELD* const fields = mysql_fetch_fields(result);
    for (unsigned i = 0; i < columns; ++i)
        if (strcasecmp(fields[i].name, "Sys_PK") == 0) return i;
    throw std::runtime_error("the statement gives no Sys_PK");
}

// Reads every byte of every cell, so that the compiler cannot leave the reading out.
void readAll(MYSQL_RES* result, Fetched& fetched, std::size_t& bytes)
{
    const unsigned columns = mysql_num_fields(result);
    const unsigned keyColumn = keyColumnOf(result);
    while (MYSQL_ROW row = mysql_fetch_row(result)) {
        const unsigned long* const lengths = mysql_fetch_lengths(result);
        for (unsigned i = 0; i < columns; ++i)
            if (row[i] != nullptr && lengths[i] > 0) bytes += static_cast<unsigned char>(row[i][0]) + lengths[i];
        if (fetched.rows == 0) fetched.firstKey = row[keyColumn];
        ++fetched.rows;
        fetched.cells += columns;
    }
}

} // namespace

Fetched bareFetch(const BenchDatabase& database, const Statements& statements)
{
    const Handle handle = open(database.target());
    std::size_t bytes = 0;
    Fetched fetched;
    fetched.cost = measure([&] {
        for (const std::string& statement : statements) {
            send(handle.get(), statement);
            const Result result(mysql_store_result(handle.get()), &mysql_free_result);
            readAll(result.get(), fetched, bytes);
        }
    });
    if (bytes == 0) throw std::runtime_error("the bare fetch read nothing");
    return fetched;
}

double bareFirstRow(const BenchDatabase& database, const std::string& statement)
{
    const Handle handle = open(database.target());
    const auto start = std::chrono::steady_clock::now();
    send(handle.get(), statement);
    const Result result(mysql_use_result(handle.get()), &mysql_free_result);
    if (mysql_fetch_row(result.get()) == nullptr) throw std::runtime_error("the bare fetch got no row");
    const std::chrono::duration<double, std::milli> passed = std::chrono::steady_clock::now() - start;
    return passed.count();
}

Fetched driverFetch(const BenchDatabase& database, const Statements& statements)
{
    const auto connection = host::connect(database.target());
    Fetched fetched;
    std::size_t bytes = 0;
    fetched.cost = measure([&] {
        for (const std::string& statement : statements) {
            const auto records = connection->execute(statement);
            const std::size_t columns = records->names().size();
            const std::size_t keyColumn = records->Fields().find("Sys_PK").value();
            if (fetched.rows == 0 && !records->Eof()) fetched.firstKey = records->value(keyColumn).toText();
            for (; !records->Eof(); records->MoveNext()) {
                for (std::size_t column = 0; column < columns; ++column)
                    bytes += records->value(column).raw().size();
                ++fetched.rows;
                fetched.cells += columns;
            }
        }
    });
    if (bytes == 0) throw std::runtime_error("the driver read nothing");
    return fetched;
}

} // namespace dn::bench
