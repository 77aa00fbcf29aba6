// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "bench/alternatives.h"

#include <mysql.h>

#include <chrono>
#include <cstdlib>
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

unsigned columnOf(MYSQL_RES* result, const char* name)
{
    const unsigned columns = mysql_num_fields(result);
    const MYSQL_FIELD* const fields = mysql_fetch_fields(result);
    for (unsigned i = 0; i < columns; ++i)
        if (strcasecmp(fields[i].name, name) == 0) return i;
    throw std::runtime_error(std::string("the statement gives no ") + name);
}

// Looks at the length and the first byte of every cell, so that the compiler cannot leave the reading out.
std::size_t bytesOf(MYSQL_ROW row, const unsigned long* lengths, unsigned columns)
{
    std::size_t bytes = 0;
    for (unsigned i = 0; i < columns; ++i)
        if (row[i] != nullptr && lengths[i] > 0) bytes += static_cast<unsigned char>(row[i][0]) + lengths[i];
    return bytes;
}

void readAll(MYSQL_RES* result, Fetched& fetched)
{
    const unsigned columns = mysql_num_fields(result);
    while (MYSQL_ROW row = mysql_fetch_row(result)) {
        fetched.bytes += bytesOf(row, mysql_fetch_lengths(result), columns);
        ++fetched.rows;
    }
}

void stream(MYSQL* handle, const std::string& statement, const std::string& textField, Streamed& streamed)
{
    const auto start = std::chrono::steady_clock::now();
    send(handle, statement);
    const Result result(mysql_use_result(handle), &mysql_free_result);
    MYSQL_ROW row = mysql_fetch_row(result.get());
    const std::chrono::duration<double, std::milli> passed = std::chrono::steady_clock::now() - start;
    if (streamed.fetched == 0) streamed.firstRow = passed.count();
    const unsigned columns = mysql_num_fields(result.get());
    const unsigned keyColumn = columnOf(result.get(), "Sys_PK");
    const unsigned textColumn = columnOf(result.get(), textField.c_str());
    for (; row != nullptr; row = mysql_fetch_row(result.get())) {
        const unsigned long* const lengths = mysql_fetch_lengths(result.get());
        streamed.bytes += bytesOf(row, lengths, columns);
        ++streamed.fetched;
        const char* const text = row[textColumn] == nullptr ? "" : row[textColumn];
        streamed.seen.add(std::strtoll(row[keyColumn], nullptr, 10), {text, lengths[textColumn]});
    }
    if (mysql_errno(handle) != 0) throw std::runtime_error(mysql_error(handle));
}

} // namespace

Fetched bareFetch(const BenchDatabase& database, const Statements& statements)
{
    const Handle handle = open(database.target());
    Fetched fetched;
    fetched.cost = measure([&] {
        for (const std::string& statement : statements) {
            send(handle.get(), statement);
            const Result result(mysql_store_result(handle.get()), &mysql_free_result);
            readAll(result.get(), fetched);
        }
    });
    return fetched;
}

Streamed bareStream(const BenchDatabase& database, const Query& query)
{
    const Handle handle = open(database.target());
    Streamed streamed;
    for (const std::string& statement : query.statements)
        stream(handle.get(), statement, query.textField, streamed);
    if (streamed.fetched == 0) throw std::runtime_error("the bare fetch got no row");
    return streamed;
}

Fetched driverFetch(const BenchDatabase& database, const Statements& statements)
{
    const auto connection = host::connect(database.target());
    Fetched fetched;
    fetched.cost = measure([&] {
        for (const std::string& statement : statements) {
            const auto records = connection->execute(statement);
            const std::size_t columns = records->names().size();
            for (; !records->Eof(); records->MoveNext()) {
                for (std::size_t column = 0; column < columns; ++column) {
                    const std::string_view cell = records->value(column).raw();
                    if (!cell.empty()) fetched.bytes += static_cast<unsigned char>(cell.front()) + cell.size();
                }
                ++fetched.rows;
            }
        }
    });
    return fetched;
}

} // namespace dn::bench
