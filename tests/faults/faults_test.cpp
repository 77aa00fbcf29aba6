// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// Every action of an operator, with every fault, at every statement in turn. Behind each: nothing left the control
// that may not leave it, the screen is one that he can go on with, he was told what he is to be told and no more,
// the database holds what was acknowledged, and the work goes on over a new connection.

#include "base/text.h"
#include "tests/faults/actions.h"
#include "tests/faults/faults.h"
#include "tests/support/control_statements.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <fstream>
#include <optional>
#include <set>
#include <utility>

namespace dn::tests {
namespace {

bool everything()
{
    const char* const wanted = std::getenv("DN_FAULTS");
    return wanted != nullptr && std::string_view(wanted) == "all";
}

/// A piece of statements that no action sends.
struct NotSent {
    const char* part;
    const char* why;
};

constexpr std::array<NotSent, 5> notSent{{
    {"UPDATE Proyecto SET IEjecutivo = 9  WHERE",
     "the group tool with conditions, where that of all projects is sent"},
    {"FROM ut_icontact W", "the mail list of prospects with filters, where that without any is sent"},
    {"SELECT Proyecto.IEjecutivo, Proyecto.IMeta", "the mail list of projects with filters, as above"},
    {"uf_res_ultimointento = -1", "only a host's own call ends with that code"},
    {", NULL, 0, 1, 0, 'URL_Directo')", "a supervisor's new prospect, which is an agent's with a null"},
}};

/// One run of an action, and what came of it.
struct Course {
    std::vector<Sent> sent;
    std::set<std::size_t> hadRows; ///< numbers of the changes that touched a row
    std::vector<std::string> boxes;
    std::optional<std::string> left; ///< what reached the host
    std::vector<std::string> effects;
    std::string uncertain; ///< a statement that may have run unacknowledged
    std::string stored;    ///< in the database
    std::string wrong;     ///< of the screen
};

/// The work goes on over a new connection. @return what does not.
std::string goesOn(AtWork& work)
{
    std::string wrong;
    office().beside().execute("INSERT IGNORE INTO Agente SELECT * FROM muestra.agente");
    const auto former = std::move(work.cnn); // for whoever holds it still
    work.cnn = std::make_unique<WatchedConnection>(office().salesperson());
    if (work.control.Call_Progress()) work.control.Call_NoConnect(0);
    work.begins(7, false);
    work.opensTab(desk::prospectos);
    const auto rows =
        office().beside().execute("SELECT COUNT(*) FROM ut_icontact WHERE uf_IEjecutivo = 7 AND uf_Status = 0");
    if (work.elements().prospects.lvw.ListItems().Count() != rows->value(0).toInt32())
        wrong += "; the list does not come back";
    if (work.pointer.MousePointer() != screen::Pointer::standard) wrong += "; the hourglass stays for ever";
    return wrong;
}

/// @return whether the change that has just run touched a row, as the traps have counted.
bool touchedARow(data::Connection& connection)
{
    const bool touched = connection.execute("SELECT IFNULL(@tocados, 0)")->value(0).toInt32() > 0;
    connection.execute("SET @tocados = 0");
    return touched;
}

Course perform(const Action& action, Fault* fault, std::size_t at)
{
    office().reset();
    AtWork work(fault == nullptr ? office().salesperson() : fault->connect());
    action.prepare(work);
    work.cnn->sent.clear();
    work.dialogs.boxes.clear();
    Course run;
    work.cnn->around = [&](std::size_t number, const std::string& statement, bool behind) {
        if (fault != nullptr && number == at) {
            if (!behind && !fault->changed(statement).empty()) run.effects.push_back(fault->changed(statement));
            try {
                behind ? fault->behind(*work.cnn, statement) : fault->ahead(*work.cnn, statement);
            } catch (const std::exception& failure) { // the control would pass it over
                ADD_FAILURE() << fault->name() << " could not be provoked: " << failure.what() << "\n"
                              << statement;
            }
        }
        if (!behind || !changes(statement)) return;
        if (fault == nullptr && touchedARow(work.cnn->real())) run.hadRows.insert(number);
        const bool carriedOut = fault != nullptr && number == at && fault->carriesOut();
        if (work.cnn->sent[number].acknowledged || carriedOut)
            run.effects.push_back(statement);
        else if (fault != nullptr && number == at && fault->leavesOpen())
            run.uncertain = statement;
    };
    try {
        action.act(work);
    } catch (const std::exception& failure) {
        run.left = failure.what();
    }
    if (!run.left) run.left = work.windows.left;
    work.cnn->around = nullptr;
    if (fault != nullptr) fault->over();
    run.sent = work.cnn->sent;
    run.boxes = work.dialogs.boxes;
    run.wrong = work.whatIsWrong(action.hourglassMayStay);
    run.stored = office().contents();
    run.wrong += goesOn(work);
    return run;
}

/// The texts that the operator must read, by what failed.
std::vector<std::string> boxesDue(const Action& action, const Course& run)
{
    std::vector<std::string> due;
    for (const Sent& sent : run.sent) {
        if (sent.acknowledged) continue;
        for (const Told& told : action.told) {
            if (!sent.text.starts_with(told.beginning)) continue;
            std::string text = told.text;
            if (const std::size_t sign = text.find('%'); sign != std::string::npos)
                text.replace(sign, 1, sent.failure);
            due.push_back(text);
            break;
        }
    }
    return due;
}

bool mustLeave(const Action& action, const Course& run)
{
    for (const Sent& sent : run.sent)
        for (const std::string& beginning : action.leaves)
            if (!sent.acknowledged && sent.text.starts_with(beginning)) return true;
    return false;
}

/// What was shown beyond what an undisturbed run shows, and what was due.
std::string wronglyTold(const Action& action, const Course& run, const Course& undisturbed, const Fault& fault)
{
    std::vector<std::string> due = boxesDue(action, run);
    for (const std::string& box : run.boxes) {
        if (const auto found = std::find(due.begin(), due.end(), box); found != due.end()) {
            due.erase(found);
            continue;
        }
        if (std::count(undisturbed.boxes.begin(), undisturbed.boxes.end(), box) > 0) continue;
        if (!fault.fails() && box == action.emptyTells) continue;
        return "told for nothing: " + box;
    }
    return due.empty() ? "" : "not told: " + due.front();
}

class Check {
public:
    Check(const Action& action, Fault& fault, const Course& undisturbed)
        : action_(action), fault_(fault), undisturbed_(undisturbed)
    {
    }

    /// @return whether the statement met with the fault at all.
    bool at(std::size_t number, const Target& target)
    {
        fault_.aim(target);
        const Course run = perform(action_, &fault_, number);
        const std::string what = fault_.name() + (target.table.empty() ? "" : " (" + target.table) +
                                 (target.column.empty() ? "" : "." + target.column) +
                                 (target.table.empty() ? "" : ")");
        const std::string where = action_.name + ", " + what + " at statement " + std::to_string(number + 1) +
                                  ": " + undisturbed_.sent[number].text;
        EXPECT_EQ(run.wrong, "") << where;
        EXPECT_EQ(wronglyTold(action_, run, undisturbed_, fault_), "") << where;
        const bool mayLeave = !fault_.fails() && action_.emptyLeaves;
        if (mustLeave(action_, run) != run.left.has_value() && !(mayLeave && run.left))
            ADD_FAILURE() << where << "\nreached the host: " << run.left.value_or("nothing");
        rows(run, where);
        const bool met = number < run.sent.size() && (!fault_.fails() || !run.sent[number].acknowledged);
        if (met && fault_.fails()) {
            EXPECT_THAT(fault_.codes(), testing::Contains(run.sent[number].code)) << where;
        }
        EXPECT_TRUE(met || isSpared(number)) << where << "\nran all the same";
        return met;
    }

private:
    bool isSpared(std::size_t number) const { return fault_.needsRow() && !undisturbed_.hadRows.contains(number); }

    static void rows(const Course& run, const std::string& where)
    {
        if (run.stored == office().contentsAfter(run.effects)) return;
        if (!run.uncertain.empty()) {
            std::vector<std::string> withIt = run.effects;
            withIt.push_back(run.uncertain);
            if (run.stored == office().contentsAfter(withIt)) return;
        }
        EXPECT_EQ(run.stored, office().contentsAfter(run.effects)) << where;
    }

    const Action& action_;
    Fault& fault_;
    const Course& undisturbed_;
};

/// How often each fault was met with.
struct Count {
    std::size_t actions = 0;
    std::size_t statements = 0;
    std::size_t times = 0;
};

/// The actions without a fault.
const std::vector<Course>& undisturbed()
{
    static const std::vector<Course> courses = [] {
        std::vector<Course> all;
        for (const Action& action : allActions())
            all.push_back(perform(action, nullptr, 0));
        return all;
    }();
    return courses;
}

/// Provokes one fault all over the actions, as far as it is due.
class Round {
public:
    explicit Round(Fault& fault) : fault_(fault) {}

    Count run()
    {
        for (std::size_t i = 0; i < allActions().size(); ++i) {
            if (allActions()[i].isAlike && !everything()) continue;
            const std::size_t before = count_.statements;
            for (std::size_t number = 0; number < undisturbed()[i].sent.size(); ++number)
                at(i, number);
            count_.actions += count_.statements > before ? 1 : 0;
        }
        return count_;
    }

private:
    void at(std::size_t action, std::size_t number)
    {
        Check check(allActions()[action], fault_, undisturbed()[action]);
        const std::string& statement = undisturbed()[action].sent[number].text;
        bool met = false;
        bool nearest = true;
        for (const Target& target : fault_.targets(statement)) {
            if (!(std::exchange(nearest, false) ? isDue() : isFurtherDue(statement, target))) continue;
            const bool meets = check.at(number, target);
            count_.times += meets ? 1 : 0;
            met = met || meets;
        }
        count_.statements += met ? 1 : 0;
    }

    // The dear ones are provoked until one statement has met with them, unless all are asked for.
    bool isDue() const { return !fault_.dear() || everything() || count_.statements == 0; }

    // A further table or column of a statement once, wherever it is sent first.
    bool isFurtherDue(const std::string& statement, const Target& target)
    {
        return everything() && known_.insert(shapeOf(statement) + "|" + target.table + "." + target.column).second;
    }

    Fault& fault_;
    Count count_;
    std::set<std::string> known_;
};

void writeTable(const std::vector<std::pair<std::string, Count>>& counts, std::size_t statements)
{
    const char* const file = std::getenv("DN_FAULTS_TABLE");
    if (file == nullptr) return;
    std::ofstream out(file);
    out << "| Fault | Raised by | Actions | Statements met with it | Times provoked |\n|---|---|---|---|---|\n";
    for (const auto& [line, count] : counts)
        out << "| " << line << " | " << count.actions << " | " << count.statements << " | " << count.times
            << " |\n";
    out << "\n" << allActions().size() << " actions, " << statements << " statements without a fault.\n";
}

TEST(Faults, leave_an_undisturbed_operator_alone)
{
    for (std::size_t i = 0; i < allActions().size(); ++i) {
        SCOPED_TRACE(allActions()[i].name);
        const Course& run = undisturbed()[i];
        EXPECT_FALSE(run.left) << *run.left;
        EXPECT_EQ(run.wrong, "");
        EXPECT_FALSE(run.sent.empty());
        EXPECT_EQ(run.stored, office().contentsAfter(run.effects));
    }
}

TEST(Faults, leave_the_operator_at_work_and_the_database_with_what_was_acknowledged)
{
    std::vector<std::pair<std::string, Count>> counts;
    for (const auto& fault : allFaults()) {
        const Count count = Round(*fault).run();
        EXPECT_GT(count.statements, 0U) << fault->name();
        counts.emplace_back(fault->name() + " | " + fault->origin(), count);
    }
    std::size_t statements = 0;
    for (const Course& run : undisturbed())
        statements += run.sent.size();
    writeTable(counts, statements);
}

// Every statement of the control is sent by some action, or stands here with the reason why none needs to.
TEST(Faults, are_provoked_at_every_statement_of_the_control)
{
    std::set<std::string> sent;
    for (const Course& run : undisturbed())
        for (const Sent& each : run.sent)
            sent.insert(shapeOf(each.text));
    for (const std::string& statement : validStatements(Dialect::mySql)) {
        if (sent.contains(shapeOf(statement))) continue;
        const auto explains = [&](const NotSent& one) { return statement.find(one.part) != std::string::npos; };
        EXPECT_TRUE(std::any_of(notSent.begin(), notSent.end(), explains)) << statement;
    }
}

} // namespace
} // namespace dn::tests
