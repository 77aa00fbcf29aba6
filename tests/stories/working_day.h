// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// One working day of Ana's, party by party. Each step begins and ends before the queue of the day.
#pragma once

#include "tests/stories/day.h"

#include <functional>
#include <string>
#include <vector>

namespace dn::tests {

class WorkingDay : public Day {
protected:
    /// The evening before, this was there: six prospects of hers, one of them for the day after, and two projects.
    WorkingDay();

    struct Piece {
        std::string hour;
        std::function<void()> work;
    };
    /// All of what follows, each at its hour.
    std::vector<Piece> pieces();
    /// Both clocks stand at that hour of the day.
    void itIsAt(const std::string& hour) { itIs("2026-03-14 " + hour); }

    void opensTheQueue();
    /// Notes what she hears, finds the prospect by the search, and gives it up with a reason.
    void losesMaria();
    void makesAProjectOfNora();
    /// Corrects the telephone, and makes an opportunity of the prospect.
    void promotesLuz();
    /// Busy, no answer, out of service, and one call that she breaks off: the question is closed each time.
    void reachesNobodyAtRitas();
    /// The six answers that are no contact.
    void reachesSomebodyElseAtRitas();
    /// The contact, its summary, and an appointment for tomorrow at the same hour.
    void agreesWithRita();
    /// A note, a call that nobody takes, and in the project's screen the next activity.
    void callsAboutSilo();
    /// Finds the project by the search, and plans an activity in its screen.
    void plansAnActivityOfMolino();
    /// A wrong number: the answer to the question discards the prospect, before the attempt is stored.
    void discardsPedro();

    /// The statements sent since the start that read, each once.
    std::vector<std::string> readsSent();
    /// What the host's screens of persons and projects were asked, in order.
    std::vector<std::string> screensAsked();

    // ---- What that must leave behind, in order but for the reads

    std::vector<std::string> changesToBeSent() const;
    std::vector<std::string> readsToBeSent() const;
    std::vector<std::string> logToBeWritten() const;
    /// Looks at every row that the day was to leave.
    void leftItsRows();

    std::string maria, luz, nora, rita, pedro, tere, silo, molino;

private:
    std::string named(const std::string& name, const std::string& next);
    void calls(const std::string& contact);
    void closesTheQuestion();
    void answersTheQuestion(int option);
};

} // namespace dn::tests
