// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The program's real window over a real server of its own, which goes away under it and comes back.
#pragma once

#include "host/main_window.h"
#include "shell/ctr_dn_contacts.h"
#include "tests/host/screens/fixture.h"
#include "tests/support/maria_server.h"

#include <QAbstractButton>
#include <QTest>

#include <optional>

namespace dn::host::tests {

/// For `--connect`, with time-outs of a second.
std::string textTo(const dn::tests::MariaServer& server);
/// A connection beside the window's.
std::unique_ptr<data::Connection> reach(const dn::tests::MariaServer& server);
/// The agents Ana (7) and Beto (9), the prospects Luz (1) and Gil (2) of Ana's and Rita (3) of Beto's.
std::unique_ptr<dn::tests::MariaServer> serverWithRows();

class LosingTheServer : public testing::Test {
protected:
    /// Tries at once, then once a second.
    static Rhythm quickly() { return {.pauses = {std::chrono::seconds(0), std::chrono::seconds(1)}}; }
    /// Tries at once, then hardly ever.
    static Rhythm once() { return {.pauses = {std::chrono::seconds(0), std::chrono::seconds(60)}}; }

    void opens(std::optional<std::int16_t> tab, Rhythm rhythm = quickly(),
               const Worker& worker = {7, false, "ana"});
    void TearDown() override { window.reset(); }

    virtual DatabaseOptions options();

    desk::Elements& elements() { return window->control().elements(); }
    template <class Kind = QWidget>
    Kind& in(const char* name)
    {
        auto* const found = window->findChild<Kind*>(name);
        if (found == nullptr) throw std::runtime_error(name);
        return *found;
    }
    /// What the bar says first; empty while there is none.
    std::string bar();
    /// The note that the bar keeps; empty for none.
    std::string keptNote();
    void clicks(const char* button) { QTest::mouseClick(&in<QAbstractButton>(button), Qt::LeftButton); }
    bool tells(const std::string& part);
    /// The operator is back in his work.
    bool goesOn();
    /// Whether the control is started anew within a few turns of the event loop: at once, where nothing keeps it.
    bool startsMeanwhile();
    static void selects(screen::ListView& list, const char* key);
    static std::string selected(screen::ListView& list);
    std::vector<std::string> notes();

    std::unique_ptr<dn::tests::MariaServer> server = serverWithRows();
    std::optional<Database> database;
    std::optional<MainWindow> window;
    dn::tests::ModalDriver operatorAt;
};

} // namespace dn::host::tests
