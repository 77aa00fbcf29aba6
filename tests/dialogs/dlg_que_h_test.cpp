// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The question what happens next: one answer of four, or none.

#include "dialogs/dlg_que_h.h"
#include "tests/support/fake_ports.h"
#include "tests/support/public_operations.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdint>

namespace dn::tests {
namespace {

struct WhatNext : testing::Test {
    WhatNext() { dialog.Contenedor = &control; }

    void show(const std::function<void()>& act)
    {
        ports.events.expectModal("dlgQueH", [&act](screen::Form& form) {
            act();
            form.closeWindow();
        });
        dialog.Show();
    }

    FakePorts ports;
    FakeOperations control;
    dialogs::dlgQueH dialog{ports.ports()};
};

TEST_F(WhatNext, opens_with_nothing_marked)
{
    show([&] {
        EXPECT_EQ(dialog.cmdOk.parent()->name(), "dlgQueH");
        EXPECT_EQ(dynamic_cast<screen::Form&>(*dialog.cmdOk.parent()).Caption(), "¿Qué hacer?");
        EXPECT_EQ(dialog.Option1.Caption(), "Agendar una próxima llamada");
        EXPECT_EQ(dialog.Option2.Caption(), "Crear un proyecto");
        EXPECT_EQ(dialog.Option3.Caption(), "Marcar sin interés");
        EXPECT_EQ(dialog.Option4.Caption(), "Descartar");
        EXPECT_EQ(dialog.cmdMail.Caption(), "Enviar un correo");
        EXPECT_EQ(dialog.cmdMail.Picture(), "mail");
        EXPECT_EQ(dialog.cmdOk.Caption(), "&Aceptar");
        EXPECT_TRUE(dialog.cmdOk.Default());
        for (const auto* option : {&dialog.Option1, &dialog.Option2, &dialog.Option3, &dialog.Option4})
            EXPECT_FALSE(option->Value()) << option->name();
        EXPECT_EQ(dialog.Opcion, 0);
    });
}

TEST_F(WhatNext, gives_the_number_of_the_marked_option)
{
    std::int16_t number = 1;
    for (auto option : {&dialogs::dlgQueH::Option1, &dialogs::dlgQueH::Option2, &dialogs::dlgQueH::Option3,
                        &dialogs::dlgQueH::Option4}) {
        dialogs::dlgQueH fresh(ports.ports());
        ports.events.expectModal("dlgQueH", [&](screen::Form&) {
            fresh.Option4.choose(); // a change of mind
            (fresh.*option).choose();
            fresh.cmdOk.press();
        });
        fresh.Show();
        EXPECT_EQ(fresh.Opcion, number++);
    }
}

TEST_F(WhatNext, insists_on_an_option_each_time)
{
    show([&] {
        for (int i = 0; i < 3; ++i) {
            ports.dialogs.expectBox("Debe seleccionar una opción");
            dialog.cmdOk.press();
            EXPECT_TRUE(dialog.cmdOk.usable()) << "it stays open";
            EXPECT_EQ(dialog.Opcion, 0);
        }
    });
    EXPECT_EQ(ports.dialogs.boxes().back().icon, screen::MessageBox::Icon::none);
    EXPECT_EQ(ports.dialogs.boxes().back().buttons, screen::MessageBox::Buttons::ok);
    EXPECT_EQ(dialog.Opcion, 0);
}

TEST_F(WhatNext, closed_by_its_frame_is_no_decision_whatever_was_marked)
{
    show([&] { dialog.Option2.choose(); });
    EXPECT_EQ(dialog.Opcion, 0);
}

TEST_F(WhatNext, writes_mails_and_stays)
{
    show([&] {
        dialog.Option3.choose();
        dialog.cmdMail.press();
        control.failing = true;
        dialog.cmdMail.press();
        dialog.Contenedor = nullptr;
        dialog.cmdMail.press();
        EXPECT_TRUE(dialog.Option3.Value());
        EXPECT_TRUE(dialog.cmdOk.usable());
    });
    EXPECT_THAT(control.calls, testing::ElementsAre("cmdSend_Click", "cmdSend_Click"));
    EXPECT_EQ(dialog.Opcion, 0);
}

} // namespace
} // namespace dn::tests
