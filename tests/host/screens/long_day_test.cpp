// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The real window over a server that is killed again and again while somebody works at it. Here it dies twice;
// scripts/soak lets it die for ten minutes (DN_LONG_DAY, in seconds) and looks at the memory too.

#include "bench/report/growth.h"
#include "host/database/schema.h"
#include "host/main_window.h"
#include "shell/ctr_dn_contacts.h"
#include "tests/host/screens/fixture.h"
#include "tests/support/maria_server.h"

#include <QAbstractButton>
#include <QPlainTextEdit>
#include <QTest>

#include <malloc.h>

#include <chrono>
#include <cstdio>
#include <cstdlib>

namespace dn::host::tests {
namespace {

using dn::tests::MariaServer;
using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

constexpr int prospectsOfAna = 40;
constexpr int patience = 20'000; // milliseconds

class LongDay : public testing::Test {
protected:
    LongDay()
    {
        const auto beside = reach();
        createSchema(*beside, Engine::mariadb);
        beside->execute("INSERT INTO Agente (Sys_PK, Nombre) VALUES (7, 'Ana')");
        for (int key = 1; key <= prospectsOfAna; ++key)
            beside->execute("INSERT INTO ut_icontact (Sys_PK, uf_Nombre, uf_Telefono, uf_IEjecutivo) VALUES (" +
                            std::to_string(key) + ", 'Prospecto " + std::to_string(key) + "', '961', 7)");
        beside->execute("INSERT INTO Persona (Nombre, IEjecutivo) VALUES ('Luz', 7)");
    }

    std::string textOfConnection() const
    {
        return "mariadb://" + std::string(MariaServer::user) + ":" + std::string(MariaServer::password) +
               "@localhost/" + std::string(MariaServer::database) +
               "?read_timeout=5&connect_timeout=5&socket=" + server.socket();
    }
    std::unique_ptr<data::Connection> reach() const { return connect(parseDatabaseChoice(textOfConnection())); }

    void opens()
    {
        DatabaseOptions options;
        options.connect = textOfConnection();
        database.emplace(openDatabase(options));
        window.emplace(*database, Worker{7, false, "ana"}, Reconnection::Pauses{0s, 1s});
        window->show();
        window->start(desk::prospectos);
        window->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&*window));
    }

    desk::Elements& elements() { return window->control().elements(); }
    template <class Kind>
    Kind& in(const char* name)
    {
        auto* const found = window->findChild<Kind*>(name);
        if (found == nullptr) throw std::runtime_error(name);
        return *found;
    }

    /// A row is clicked, and a note typed; not registered yet.
    void typesNote(std::size_t row, const std::string& text)
    {
        elements().prospects.lvw.clickRow(row % prospectsOfAna);
        auto& box = in<QPlainTextEdit>("txtText");
        box.setFocus();
        presses(box, QString::fromStdString(text));
    }
    void registers() { QTest::keyClick(&in<QPlainTextEdit>("txtText"), Qt::Key_Return); }

    /// What is done between two deaths of the server: each list, and some notes. @return their number.
    int works(int round)
    {
        for (const int tab :
             {desk::proyectos, desk::hoy, desk::organizaciones, desk::contactos, desk::prospectos}) {
            elements().top.lblItem(tab).click();
            QTest::qWait(1); // the window paints it
        }
        constexpr int notes = 5;
        for (int note = 0; note < notes; ++note) {
            typesNote(static_cast<std::size_t>(round * notes + note), "nota " + std::to_string(note));
            registers();
            EXPECT_EQ(elements().detail.txtText.Text(), "") << "it is stored";
        }
        in<QAbstractButton>("cmdCall").click();
        operatorAt.expect("dlgQueH", [](QWidget& question) { question.close(); });
        in<QAbstractButton>("cmdCancelCall").click();
        return notes;
    }

    /// The server dies under a note that is being typed, or under the key that registers it.
    void dies(int round)
    {
        typesNote(static_cast<std::size_t>(round), "a medias");
        server.kill();
        if (round % 2 == 1) {
            operatorAt.expect("MsgBox", [](QWidget& box) { dn::tests::pressButton(box, "Aceptar"); });
            registers();
        }
        const auto tells = [&](const char* part) {
            return QTest::qWaitFor([&] { return in<QLabel>("lblConexion").text().contains(part); }, patience);
        };
        ASSERT_TRUE(tells("Se perdió la conexión"));
        server.restart();
        ASSERT_TRUE(tells("Conexión restablecida"));
        ASSERT_TRUE(QTest::qWaitFor([&] { return window->ready(); }, patience));
        ASSERT_EQ(elements().detail.txtText.Text(), "a medias") << "what was typed is there still";
        registers();
        EXPECT_EQ(elements().detail.txtText.Text(), "");
        in<QAbstractButton>("cmdCerrarAviso").click();
    }

    MariaServer server{MariaServer::Network::socketOnly, {"--innodb-flush-log-at-trx-commit=1"}};
    std::optional<Database> database;
    std::optional<MainWindow> window;
    dn::tests::ModalDriver operatorAt;
};

double kilobytesInUse()
{
    const auto heap = mallinfo2();
    return static_cast<double>(heap.uordblks + heap.hblkhd) / 1024;
}

TEST_F(LongDay, goes_on_over_servers_that_die_and_loses_no_note)
{
    const char* const wanted = std::getenv("DN_LONG_DAY");
    const std::chrono::seconds length(wanted == nullptr ? 0 : std::atoi(wanted));
    opens();
    const auto begin = Clock::now();
    std::vector<bench::Sample> memory;
    int round = 0;
    for (; (round < 2 || Clock::now() - begin < length) && !HasFatalFailure(); ++round) {
        const int notes = works(round) + 1;
        dies(round);
        const auto beside = reach();
        EXPECT_EQ(beside->execute("SELECT COUNT(*) FROM xt_biticontact")->value(0).toInt32(), notes)
            << "each note once";
        beside->execute("DELETE FROM xt_biticontact"); // a log that grows would take memory by right
        const std::chrono::duration<double> now = Clock::now() - begin;
        memory.push_back({now.count(), kilobytesInUse()});
    }
    const bench::Growth growth = bench::growthOf(memory);
    std::printf("%d deaths of the server; in use from %.0f s on: %.0f KB, %+.0f KB by the end\n", round,
                growth.from, growth.level, growth.gain);
    constexpr double share = 0.02;
    EXPECT_TRUE(length < 300s || growth.isFlat(share)) << "the memory grows";
    window.reset();
}

} // namespace
} // namespace dn::host::tests
