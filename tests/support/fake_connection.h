// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The connection for tests of the control: it writes down every statement and answers as it was told.
//
//     FakeConnection cnn;
//     cnn.on("SELECT Sys_PK, Nombre FROM Agente").gives({"Sys_PK", "Nombre"}, {{whole(7), text("Ana")}});
//     cnn.onContaining("UPDATE Proyecto").fails("Table 'Proyecto' doesn't exist", "42S02", 1146).once();
//     cnn.failAt(2, "Lost connection");                       // the second statement from here
//     control.RefreshData();
//     EXPECT_THAT(cnn.statements(), ElementsAre("SELECT Sys_PK, Nombre FROM Agente", "UPDATE ..."));
//
// The answer that was told last wins; a statement that none fits gives nothing, as an update does.
#pragma once

#include "data/connection.h"
#include "data/error.h"
#include "tests/support/fake_recordset.h"

#include <deque>
#include <functional>
#include <map>
#include <string>
#include <vector>

namespace dn::tests {

/// What a FakeConnection answers to the statements that fit.
class Answer {
public:
    /// Rows, fresh ones for each statement.
    Answer& gives(Rows rows);
    Answer& gives(std::vector<std::string> names, std::vector<std::vector<Cell>> rows);
    Answer& givesNothing(); ///< no recordset; so it is without a further word
    Answer& fails(const std::string& text, const std::string& sqlState = "HY000", int nativeCode = 0);
    Answer& fails(const data::Error& error);
    /// For the next statement that fits alone; then the answers told earlier count again.
    Answer& once();
    /// A change of the world with the answer: called each time ahead of it.
    Answer& calling(std::function<void()> action);

private:
    friend class FakeConnection;
    bool fits(std::string_view statement) const;
    std::unique_ptr<data::Recordset> answer();

    std::string pattern_;
    bool exact_ = true;
    bool once_ = false;
    bool used_ = false;
    std::optional<Rows> rows_;
    std::optional<data::Error> error_;
    std::function<void()> action_;
};

class FakeConnection final : public data::Connection {
public:
    /// For the statements that are this text to the byte. The reference stays good.
    Answer& on(std::string exactText);
    /// For the statements that hold this text, to the byte; an empty one fits all.
    Answer& onContaining(std::string part);
    /// The n-th statement from now, 1 for the next one, fails whatever else was told.
    void failAt(std::size_t n, const std::string& text = "fallo provocado", const std::string& sqlState = "HY000",
                int nativeCode = 0);
    /// A statement that no answer fits fails the test.
    void strict(bool on = true) { strict_ = on; }
    /// Called with each statement ahead of its answer, to look at the screen as it is then.
    void beforeExecute(std::function<void(std::string_view)> hook) { hook_ = std::move(hook); }

    /// Called with each statement of every FakeConnection there is, for as long as the program runs.
    static void observeAll(std::function<void(std::string_view)> observer);

    /// Every statement that was asked for, in order, those that failed among them.
    const std::vector<std::string>& statements() const { return statements_; }
    void forgetStatements() { statements_.clear(); }

    void setState(int state) { state_ = state; } ///< Connection::closed makes every statement fail
    int State() const override { return state_; }
    std::unique_ptr<data::Recordset> execute(std::string_view statement) override;

private:
    Answer& add(std::string pattern, bool exact);
    Answer* find(std::string_view statement);

    std::deque<Answer> answers_;                  // references to its members stay good
    std::map<std::size_t, data::Error> failures_; // by the count of statements ahead of them
    std::size_t count_ = 0;
    std::vector<std::string> statements_;
    std::function<void(std::string_view)> hook_;
    int state_ = open;
    bool strict_ = false;
};

} // namespace dn::tests
