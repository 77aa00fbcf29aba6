// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// A day at the real window over a server that dies again and again: it dies in each of its ways once here, and for
// ten minutes in scripts/soak (DN_LONG_DAY, in seconds), which looks at the memory as well.

#include "bench/report/growth.h"
#include "tests/host/screens/losing_the_server.h"

#include <QApplication>
#include <QPlainTextEdit>
#include <QTableView>

#include <malloc.h>

#include <chrono>
#include <cstdio>
#include <cstdlib>

namespace dn::host::tests {
namespace {

using testing::ElementsAreArray;
using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

constexpr int prospectsOfAna = 40;

/// What the server dies under, one after the other.
enum class Death : std::uint8_t { whileTyping, atTheReturnKey, duringACall, inAnOpenWindow, ofTheConnection };
constexpr int deaths = 5;

class LongDay : public LosingTheServer {
protected:
    LongDay()
    {
        const auto beside = reach(*server);
        beside->execute("DELETE FROM ut_icontact");
        for (int key = 1; key <= prospectsOfAna; ++key)
            beside->execute("INSERT INTO ut_icontact (Sys_PK, uf_Nombre, uf_Telefono, uf_IEjecutivo) VALUES (" +
                            std::to_string(key) + ", 'Prospecto " + std::to_string(key) + "', '961', 7)");
        beside->execute("INSERT INTO Persona (Sys_PK, Nombre, IEjecutivo) VALUES (5, 'Eva', 7), (6, 'Iris', 7)");
        beside->execute("INSERT INTO Organizacion (Sys_PK, Nombre, IEjecutivo) VALUES (8, 'Acme', 7)");
        beside->execute("INSERT INTO Meta (Sys_PK, Descripcion) VALUES (3, 'Venta')");
        beside->execute("INSERT INTO Proyecto (Sys_PK, Descripcion, IEjecutivo, IMeta, IOrganizacion, IContacto, "
                        "UF_Status1) VALUES (9, 'Silo', 7, 3, 8, 5, 1)");
    }

    void clicksTab(desk::Tab tab)
    {
        QTest::mouseClick(&in(("lblItem(" + std::to_string(tab) + ")").c_str()), Qt::LeftButton);
        QApplication::processEvents();
    }
    /// @return the key of the row, as the statements have it.
    std::string clicksRow(const char* list, screen::ListView& rows, int row)
    {
        auto& table = in<QTableView>(list);
        QApplication::processEvents(); // the view learns of its rows
        table.scrollTo(table.model()->index(row, 1));
        QTest::mouseClick(table.viewport(), Qt::LeftButton, {},
                          table.visualRect(table.model()->index(row, 1)).center());
        return selected(rows).substr(1);
    }
    std::string clicksProspect(int number)
    {
        return clicksRow("lvw", elements().prospects.lvw, number % prospectsOfAna);
    }

    /// A prospect is clicked and a note typed, not registered yet.
    void typesNote(const std::string& text)
    {
        party_ = clicksProspect(++clicked_);
        auto& box = in<QPlainTextEdit>("txtText");
        box.setFocus();
        presses(box, QString::fromStdString(text));
    }
    /// @param text that the box holds.
    void registers(const std::string& text)
    {
        QTest::keyClick(&in<QPlainTextEdit>("txtText"), Qt::Key_Return);
        EXPECT_EQ(elements().detail.txtText.Text(), "") << "it is stored";
        written_.push_back(party_ + " " + text);
    }

    /// Opens a window and closes it with nothing done.
    void looksInto(const char* opened, const char* button)
    {
        operatorAt.expect(opened, [](QWidget& shown) { shown.close(); });
        clicks(button);
    }

    /// What is done between two deaths of the server.
    void works()
    {
        clicksTab(desk::hoy);
        clicksRow("lvwHoy", elements().today.lvwHoy, 0);
        clicksTab(desk::proyectos);
        clicksRow("lvwProy", elements().projects.lvwProy, 0);
        looksInto("EditarProyecto", "cmdNewProjEditProj");
        clicksTab(desk::organizaciones);
        clicksRow("lvwOrganizaciones", elements().organisations.lvwOrganizaciones, 0);
        looksInto("MostrarRelaciones", "showOrganizationRelations");
        clicksTab(desk::contactos);
        clicksRow("lvwContactos", elements().persons.lvwContactos, 1);
        looksInto("EditarPersona", "editContact");
        clicksTab(desk::prospectos);
        EXPECT_EQ(elements().prospects.lvw.ListItems().Count(), prospectsOfAna);
        looksInto("dlgNuevoPros", "cmdProsNewPros");
        elements().prospects.lvw.clickHeader(++clicked_ % 10);
        for (int note = 0; note < 3; ++note) {
            const std::string text = "nota " + std::to_string(written_.size());
            typesNote(text);
            registers(text);
        }
        clicks("cmdCall");
        operatorAt.expect("dlgQueH", [](QWidget& question) { question.close(); });
        clicks("cmdCancelCall");
    }

    /// The server dies, in a way of its own each time, and the operator goes on where he was.
    void dies(Death how)
    {
        const std::string text = "a medias " + std::to_string(written_.size());
        const bool typed = how != Death::duringACall && how != Death::inAnOpenWindow;
        if (typed)
            typesNote(text);
        else
            party_ = clicksProspect(++clicked_);
        switch (how) {
        case Death::whileTyping:
            server->kill();
            break;
        case Death::atTheReturnKey:
            server->kill();
            operatorAt.expect("MsgBox", [](QWidget& box) { dn::tests::pressButton(box, "Aceptar"); });
            QTest::keyClick(&in<QPlainTextEdit>("txtText"), Qt::Key_Return);
            break;
        case Death::duringACall:
            clicks("cmdCall");
            server->kill();
            break;
        case Death::inAnOpenWindow:
            operatorAt.expect("dlgCorregir", [&](QWidget& dialog) {
                types(dialog, "txtTelefono", "961");
                server->kill();
                EXPECT_TRUE(tells("Se perdió la conexión")) << bar();
                server->restart();
                EXPECT_TRUE(tells("Conexión restablecida")) << bar();
                dialog.activateWindow();
                QTest::mouseClick(dialog.findChild<QAbstractButton*>("cmdOk"), Qt::LeftButton);
            });
            clicks("cmdEditC");
            break;
        case Death::ofTheConnection:
            closesTheConnection();
            break;
        }
        if (how != Death::inAnOpenWindow && how != Death::ofTheConnection) {
            ASSERT_TRUE(tells("Se perdió la conexión")) << bar();
            server->restart();
        }
        if (how == Death::duringACall) {
            ASSERT_TRUE(tells("Conexión restablecida")) << bar();
            endsCall();
        }
        ASSERT_TRUE(goesOn()) << bar();
        EXPECT_EQ(selected(elements().prospects.lvw), "K" + party_);
        if (typed) {
            ASSERT_EQ(elements().detail.txtText.Text(), text) << "what was typed is there still";
            registers(text);
        }
        clicks("cmdCerrarAviso");
    }

    void endsCall()
    {
        clicks("cmdContesta");
        clicks("cmdCallCon(6)");
        elements().call.txtResCall.edit("quiere una visita");
        operatorAt.expect("dlgQueH", [](QWidget& question) { question.close(); });
        clicks("cmdOkCall");
        written_.push_back(party_ + " Se estableció llamada al 961 Con éxito. Resumen: quiere una visita");
    }

    /// The server lives and throws the window out.
    void closesTheConnection()
    {
        const auto beside = reach(*server);
        const auto others = beside->execute("SELECT ID FROM information_schema.PROCESSLIST WHERE DB = DATABASE() "
                                            "AND ID <> CONNECTION_ID()");
        std::vector<std::string> numbers;
        for (; !others->Eof(); others->MoveNext())
            numbers.push_back(others->value(0).toText());
        for (const std::string& number : numbers)
            beside->execute("KILL " + number);
    }

    /// Each note that was registered since the last time is there once. A log that grows would take memory by
    /// right, so it begins anew.
    void looksAtTheLog()
    {
        EXPECT_THAT(notes(), ElementsAreArray(written_));
        reach(*server)->execute("DELETE FROM xt_biticontact");
        written_.clear();
    }

private:
    int clicked_ = 0;
    std::string party_;
    std::vector<std::string> written_;
};

/// The toolkit's cache of pixmaps among it.
double kilobytesInUse()
{
    const auto heap = mallinfo2();
    return static_cast<double>(heap.uordblks + heap.hblkhd) / 1024;
}

TEST_F(LongDay, goes_on_over_servers_that_die_and_loses_no_note)
{
    const char* const wanted = std::getenv("DN_LONG_DAY");
    const std::chrono::seconds length(wanted == nullptr ? 0 : std::atoi(wanted));
    opens(desk::prospectos, {.pauses = {0s}, .steady = 0s});
    const auto begin = Clock::now();
    std::vector<bench::Sample> memory;
    int round = 0;
    for (; (round < deaths || Clock::now() - begin < length) && !HasFailure(); ++round) {
        works();
        dies(static_cast<Death>(round % deaths));
        looksAtTheLog();
        if (round % deaths != deaths - 1) continue;
        const std::chrono::duration<double> now = Clock::now() - begin;
        memory.push_back({now.count(), kilobytesInUse()});
    }
    const bench::Growth growth = bench::growthOf(memory);
    if (length > 0s)
        std::printf("%d deaths of the server; in use from %.0f s on: %.0f KB, %+.0f KB by the end\n", round,
                    growth.from, growth.level, growth.gain);
    constexpr double share = 0.02;
    constexpr auto enoughForALine = 300s;
    EXPECT_TRUE(length < enoughForALine || growth.isFlat(share)) << "the memory grows";
}

} // namespace
} // namespace dn::host::tests
