// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// Our own ODBC connection, through the driver for SQL Server, on the stand-in.
#pragma once

#include "data/connection.h"
#include "data/error.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace dn::tests {

using Row = std::vector<std::string>;

class OnStandIn : public testing::Test {
protected:
    /// A connection to the database that is there from the start, as the host makes it.
    static std::unique_ptr<data::Connection> connect(const std::string& application = "prueba");
    /// A new database with the tables of the schema, and a connection to it.
    static std::unique_ptr<data::Connection> freshDatabase(const std::string& name,
                                                           const std::string& application = "prueba");

    /// The rows of a statement, each value in its raw text, a null as "NULL".
    static std::vector<Row> rowsOf(data::Connection& connection, const std::string& statement);
    /// The refusal of our own connection, which lets no second statement in one text through.
    static constexpr std::int32_t aheadOfTheServer = -1;
    /// SQL Server's number for the refusal of a statement; 0 when it is taken.
    static std::int32_t refusalOf(data::Connection& connection, const std::string& statement);
};

} // namespace dn::tests
