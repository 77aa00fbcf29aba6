// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// What every connection must do, whichever database it reaches: one suite of tests, which each test program runs
// on a backend of its own. The fake runs it too, so that it cannot promise to the tests of the control what no
// driver keeps.
#pragma once

#include "data/connection.h"
#include "data/error.h"
#include "tests/support/fake_recordset.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace dn::tests::contract {

/// How a server writes what the suite asks of it, and what it says to a mistake.
struct Dialect {
    /// A source of rows with the column `seq` from 1 on.
    std::string (*sequence)(long long last);
    /// Ahead of the name of a new table that lives as long as its connection, and what such a name begins with.
    std::string temporaryTable;
    std::string temporaryPrefix;
    /// Ahead of a procedure's name, between it and the body, behind the body.
    std::string procedure;
    std::string procedureBegin;
    std::string procedureEnd;
    std::string call;
    std::string openName, closeName; ///< about a name that is no plain word
    data::Error missingTable;        ///< what "SELECT * FROM NoHayTal" gives
    data::Error syntax;              ///< what "SELECT 1 FROM WHERE" gives
    data::Error duplicateKey;        ///< what a second row with the key 1 gives
    data::Error stacked;             ///< what two statements in a text give
    data::Error severalRows;         ///< what a subquery with two rows gives in the place of a value
};

Dialect mariaDb();
Dialect sqlServer();

class Backend {
public:
    virtual ~Backend() = default;
    virtual Dialect dialect() const { return mariaDb(); }
    virtual std::unique_ptr<data::Connection> connect() = 0;

    // What a statement will give. A server knows it by itself and is told nothing; a fake has to be told.
    virtual void teach(data::Connection&, const std::string& /*statement*/, const Rows&) {}
    virtual void teach(data::Connection&, const std::string& /*statement*/, const data::Error&) {}
};

/// Each test program defines its own.
std::unique_ptr<Backend> makeBackend();

using Table = std::vector<std::vector<Cell>>;

/// Every cell from the present row on.
Table readAll(data::Recordset& recordset);

/// One row with one cell.
Rows single(std::string name, Cell cell);

/// The rows of `Contract::sequenceUpTo`.
Rows sequence(long long last);

class Contract : public ::testing::Test {
protected:
    data::Connection& cnn() { return *cnn_; }
    void disconnect() { cnn_.reset(); }

    void run(const std::string& statement) { cnn_->execute(statement); }
    /// "SELECT seq" of so many rows; other columns and clauses go around `from`.
    std::string sequenceUpTo(long long last) { return "SELECT seq FROM " + from(last); }
    std::string from(long long last) { return speaks.sequence(last); }
    /// The name of a table that lives as long as the connection.
    std::string temporary(const std::string& name) { return speaks.temporaryPrefix + name; }
    void createTemporary(const std::string& name, const std::string& columns)
    {
        run(speaks.temporaryTable + temporary(name) + " (" + columns + ")");
    }
    /// Runs a statement on a backend that knows its rows.
    std::unique_ptr<data::Recordset> ask(const std::string& statement, const Rows& rows);
    /// The same for one that must fail. @return the error
    data::Error askInVain(const std::string& statement, const data::Error& error);
    /// Names and cells are these.
    void expectRows(const std::string& statement, const Rows& rows);
    /// The connection still runs statements and gives each its own answer.
    void expectUsable();

private:
    std::unique_ptr<Backend> backend_ = makeBackend();

protected:
    const Dialect speaks = backend_->dialect();

private:
    std::unique_ptr<data::Connection> cnn_ = backend_->connect();
};

} // namespace dn::tests::contract
