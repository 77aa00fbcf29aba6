// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// Scheduling the next contact: from now, or for a day and an hour.

#include "dialogs/dlg_agendar_contacto.h"
#include "tests/support/fake_connection.h"
#include "tests/support/fake_ports.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace dn::tests {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* tooEarly = "La fecha y hora para el próximo contacto debe ser posterior a este momento";

struct Scheduling : testing::Test {
    Scheduling()
    {
        dialog.PKContacto = 12;
        dialog.Cnn = &cnn;
        ports.clock.now = {2026, 12, 31, 23, 30, 15};
    }

    void show(const std::function<void()>& act)
    {
        ports.events.expectModal("dlgAgendarContacto", [&act](screen::Form& form) {
            act();
            form.closeWindow();
        });
        dialog.Show();
    }

    /// Presses "Aceptar" and agrees to the moment.
    void accepts(const std::string& shown)
    {
        ports.dialogs.expectBox("¿Seguro desea programar el contacto para: " + shown + "?", screen::Answer::yes);
        dialog.cmdOk.press();
        EXPECT_FALSE(dialog.cmdOk.usable()) << "it is closed";
    }

    static std::string stored(const std::string& moment)
    {
        return "UPDATE ut_icontact SET uf_proxcontac = CAST('" + moment + "' AS DATETIME) WHERE Sys_PK=12";
    }

    FakePorts ports;
    FakeConnection cnn;
    dialogs::dlgAgendarContacto dialog{ports.ports()};
};

TEST_F(Scheduling, opens_on_an_hour_from_now)
{
    show([&] {
        EXPECT_EQ(dynamic_cast<screen::Form&>(*dialog.cmdOk.parent()).Caption(), "Agendar próximo contacto");
        EXPECT_EQ(dialog.opt1.Caption(), "Contactar dentro de:");
        EXPECT_EQ(dialog.opt2.Caption(), "Programar para el dìa y hora:");
        EXPECT_EQ(dialog.cmdOk.Caption(), "&Aceptar");
        EXPECT_EQ(dialog.cmdCancel.Caption(), "&Cancelar");
        EXPECT_TRUE(dialog.cmdOk.Default());
        EXPECT_TRUE(dialog.cmdCancel.Cancel());
        EXPECT_TRUE(dialog.opt1.Value());
        EXPECT_FALSE(dialog.opt2.Value());
        ASSERT_EQ(dialog.cmbTiempo.ListCount(), 45);
        EXPECT_EQ(dialog.cmbTiempo.List(0), "1");
        EXPECT_EQ(dialog.cmbTiempo.List(44), "45");
        EXPECT_EQ(dialog.cmbTiempo.Text(), "1");
        ASSERT_EQ(dialog.cmbMedida.ListCount(), 2);
        EXPECT_EQ(dialog.cmbMedida.List(1), "Minutos");
        EXPECT_EQ(dialog.cmbMedida.Text(), "Horas");
        EXPECT_EQ(dialog.cal.Value(), (DateTime{2026, 12, 31}));
        EXPECT_EQ(dialog.dtHora.Value(), (DateTime{0, 0, 0, 23, 30, 15}));
        accepts("2027-ene-01 00:30:15");
    });
    EXPECT_THAT(cnn.statements(), ElementsAre(stored("2027-01-01 00:30:15")));
}

TEST_F(Scheduling, lets_only_what_belongs_to_the_marked_option_be_used)
{
    show([&] {
        const auto fromNow = [&](bool yes) {
            EXPECT_EQ(dialog.cmbTiempo.Enabled(), yes);
            EXPECT_EQ(dialog.cmbMedida.Enabled(), yes);
            EXPECT_EQ(dialog.cal.Enabled(), !yes);
            EXPECT_EQ(dialog.dtHora.Enabled(), !yes);
        };
        fromNow(true);
        dialog.opt2.choose();
        fromNow(false);
        dialog.opt1.choose();
        fromNow(true);
    });
}

TEST_F(Scheduling, turns_more_than_six_into_minutes_which_can_be_turned_back)
{
    show([&] {
        dialog.cmbTiempo.pick("6");
        EXPECT_EQ(dialog.cmbMedida.Text(), "Horas");
        dialog.cmbTiempo.pick("7");
        EXPECT_EQ(dialog.cmbMedida.Text(), "Minutos");
        dialog.cmbTiempo.pick("3");
        EXPECT_EQ(dialog.cmbMedida.Text(), "Minutos") << "few leave the unit as it is";
        dialog.cmbTiempo.pick("7");
        ports.dialogs.expectBox("¿Seguro desea programar el contacto para: 2026-dic-31 23:37:15?",
                                screen::Answer::no);
        dialog.cmdOk.press();
        dialog.cmbMedida.pick("Horas");
        dialog.cmbTiempo.pick("45");
        EXPECT_EQ(dialog.cmbMedida.Text(), "Minutos");
        dialog.cmbMedida.pick("Horas");
        accepts("2027-ene-02 20:30:15");
    });
    EXPECT_THAT(cnn.statements(), ElementsAre(stored("2027-01-02 20:30:15")));
}

TEST_F(Scheduling, takes_a_day_and_an_hour)
{
    show([&] {
        dialog.opt2.choose();
        dialog.cal.pick({2027, 2, 3, 4, 5, 6});
        dialog.dtHora.pick({1999, 1, 1, 9, 5, 0});
        accepts("2027-feb-03 09:05:00");
    });
    EXPECT_THAT(cnn.statements(), ElementsAre(stored("2027-02-03 09:05:00")));
}

TEST_F(Scheduling, refuses_the_past_and_grants_no_margin)
{
    show([&] {
        dialog.opt2.choose();
        ports.clock.now.second = 16; // the operator took a second
        ports.dialogs.expectBox(tooEarly);
        dialog.cmdOk.press();
        EXPECT_TRUE(dialog.cmdOk.usable());
        dialog.cal.pick({2026, 12, 30});
        ports.dialogs.expectBox(tooEarly);
        dialog.cmdOk.press();
    });
    EXPECT_EQ(ports.dialogs.boxes().back().buttons, screen::MessageBox::Buttons::ok);
    EXPECT_THAT(cnn.statements(), IsEmpty());
}

TEST_F(Scheduling, takes_the_present_moment_itself)
{
    show([&] {
        dialog.opt2.choose();
        accepts("2026-dic-31 23:30:15");
    });
    EXPECT_THAT(cnn.statements(), ElementsAre(stored("2026-12-31 23:30:15")));
}

TEST_F(Scheduling, asks_before_it_writes)
{
    show([&] {
        ports.dialogs.expectAnyBox(screen::Answer::no);
        dialog.cmdOk.press();
        EXPECT_TRUE(dialog.cmdOk.usable()) << "it stays open";
    });
    const screen::MessageBox& box = ports.dialogs.boxes().back();
    EXPECT_EQ(box.buttons, screen::MessageBox::Buttons::yesNo);
    EXPECT_EQ(box.icon, screen::MessageBox::Icon::none);
    EXPECT_EQ(box.title, "");
    EXPECT_THAT(cnn.statements(), IsEmpty());
}

TEST_F(Scheduling, closes_without_a_word_when_the_server_refuses)
{
    cnn.failAt(1);
    show([&] { accepts("2027-ene-01 00:30:15"); });
    dialogs::dlgAgendarContacto unbound(ports.ports());
    ports.events.expectModal("dlgAgendarContacto", [&](screen::Form&) {
        ports.dialogs.expectAnyBox(screen::Answer::yes);
        unbound.cmdOk.press();
    });
    unbound.Show();
}

TEST_F(Scheduling, writes_nothing_when_it_is_cancelled)
{
    show([&] { dialog.cmdCancel.press(); });
    EXPECT_THAT(cnn.statements(), IsEmpty());
}

} // namespace
} // namespace dn::tests
