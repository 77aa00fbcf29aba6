// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// Every action of an operator, with every fault, at every statement in turn. Behind each: nothing left the control
// that may not leave it, the screen is one that he can go on with, he was told what he is to be told and no more,
// the database holds what was acknowledged, and the work goes on over a new connection.

#include "base/text.h"
#include "tests/faults/actions.h"
#include "tests/faults/faults.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <optional>

namespace dn::tests {
namespace {

bool everything()
{
    const char* const wanted = std::getenv("DN_FAULTS");
    return wanted != nullptr && std::string_view(wanted) == "all";
}

/// One run of an action, and what came of it.
struct Course {
    std::vector<Sent> sent;
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

Course perform(const Action& action, Fault* fault, std::size_t at)
{
    office().reset();
    AtWork work(fault == nullptr ? office().salesperson() : office().salesperson(fault->patience()));
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
        if (work.cnn->sent[number].acknowledged)
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
    bool at(std::size_t number)
    {
        const Course run = perform(action_, &fault_, number);
        const std::string where = action_.name + ", " + fault_.name() + " at statement " +
                                  std::to_string(number + 1) + ": " + undisturbed_.sent[number].text;
        EXPECT_EQ(run.wrong, "") << where;
        EXPECT_EQ(wronglyTold(action_, run, undisturbed_, fault_), "") << where;
        const bool mayLeave = !fault_.fails() && action_.emptyLeaves;
        if (mustLeave(action_, run) != run.left.has_value() && !(mayLeave && run.left))
            ADD_FAILURE() << where << "\nreached the host: " << run.left.value_or("nothing");
        rows(run, where);
        const bool met = number < run.sent.size() && (!fault_.fails() || !run.sent[number].acknowledged);
        EXPECT_TRUE(met || !fault_.isSure()) << where << "\nran all the same";
        return met;
    }

private:
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
};

// The dear ones at the first statement of the first action that can meet with them, unless all are asked for.
bool isDue(const Fault& fault, std::size_t action, std::size_t number, const Course& undisturbed)
{
    if (!fault.dear() || everything()) return true;
    if (action != 0) return false;
    return std::none_of(undisturbed.sent.begin(), undisturbed.sent.begin() + static_cast<std::ptrdiff_t>(number),
                        [&](const Sent& earlier) { return fault.meets(earlier.text); });
}

void writeTable(const std::vector<std::pair<std::string, Count>>& counts, std::size_t statements)
{
    const char* const file = std::getenv("DN_FAULTS_TABLE");
    if (file == nullptr) return;
    std::ofstream out(file);
    out << "| Fault | Raised by | Actions | Statements met with it |\n|---|---|---|---|\n";
    for (const auto& [line, count] : counts)
        out << "| " << line << " | " << count.actions << " | " << count.statements << " |\n";
    out << "\n" << allActions().size() << " actions, " << statements << " statements without a fault.\n";
}

TEST(Faults, leave_the_operator_at_work_and_the_database_with_what_was_acknowledged)
{
    std::vector<Course> undisturbed;
    std::size_t statements = 0;
    for (const Action& action : allActions()) {
        SCOPED_TRACE(action.name);
        undisturbed.push_back(perform(action, nullptr, 0));
        const Course& run = undisturbed.back();
        statements += run.sent.size();
        EXPECT_FALSE(run.left) << *run.left;
        EXPECT_EQ(run.wrong, "");
        EXPECT_FALSE(run.sent.empty());
        EXPECT_EQ(run.stored, office().contentsAfter(run.effects));
    }
    std::vector<std::pair<std::string, Count>> counts;
    for (const auto& fault : allFaults()) {
        Count count;
        for (std::size_t i = 0; i < allActions().size(); ++i) {
            Check check(allActions()[i], *fault, undisturbed[i]);
            std::size_t met = 0;
            for (std::size_t number = 0; number < undisturbed[i].sent.size(); ++number)
                if (fault->meets(undisturbed[i].sent[number].text) && isDue(*fault, i, number, undisturbed[i]))
                    met += check.at(number) ? 1 : 0;
            count.statements += met;
            count.actions += met > 0 ? 1 : 0;
        }
        EXPECT_GT(count.statements, 0U) << fault->name();
        counts.emplace_back(fault->name() + " | " + fault->origin(), count);
    }
    writeTable(counts, statements);
}

} // namespace
} // namespace dn::tests
