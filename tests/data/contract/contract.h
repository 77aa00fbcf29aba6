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

class Backend {
public:
    virtual ~Backend() = default;
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

/// The rows of "SELECT seq FROM seq_1_to_n".
Rows sequence(long long last);

class Contract : public ::testing::Test {
protected:
    data::Connection& cnn() { return *cnn_; }
    void disconnect() { cnn_.reset(); }

    void run(const std::string& statement) { cnn_->execute(statement); }
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
    std::unique_ptr<data::Connection> cnn_ = backend_->connect();
};

} // namespace dn::tests::contract
