// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The dialog that corrects a prospect: it writes what stands in its boxes and asks nothing.

#include "base/runtime_error.h"
#include "dialogs/dlg_corregir.h"
#include "tests/support/element_tree.h"
#include "tests/support/fake_connection.h"
#include "tests/support/fake_ports.h"
#include "tests/support/public_operations.h"

#include <gmock/gmock.h>

namespace dn::tests {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class Correction : public testing::Test {
protected:
    Correction()
    {
        dialog.txtNombre.Text("María");
        dialog.txtCorreo.Text("maria@example.com");
        dialog.txtTelefono.Text("961 111 1111");
        dialog.txtEmpresa.Text("Acme");
        dialog.txtPuesto.Text("Compras");
        dialog.PKContacto = 12;
        dialog.Cnn = &cnn;
        dialog.Contenedor = &control;
    }

    void show(const std::function<void(screen::Form&)>& act)
    {
        ports.events.expectModal("dlgCorregir", act);
        dialog.Show();
    }

    FakeConnection cnn;
    FakePorts ports;
    FakeOperations control;
    dialogs::dlgCorregir dialog{ports.ports()};
};

TEST_F(Correction, shows_what_the_caller_filled_in)
{
    show([&](screen::Form& form) {
        EXPECT_EQ(form.Caption(), "Corregir datos de contacto");
        EXPECT_EQ(dialog.txtNombre.Text(), "María");
        EXPECT_EQ(dialog.txtCorreo.Text(), "maria@example.com");
        EXPECT_EQ(dialog.txtTelefono.Text(), "961 111 1111");
        EXPECT_EQ(dialog.txtEmpresa.Text(), "Acme");
        EXPECT_EQ(dialog.txtPuesto.Text(), "Compras");
        EXPECT_EQ(dialog.cmdHistorial.Caption(), "Ver historial de correos");
        EXPECT_EQ(dialog.cmdOk.Caption(), "&Aceptar");
        EXPECT_EQ(dialog.cmdCancel.Caption(), "&Cancelar");
        dialog.cmdCancel.press();
    });
    EXPECT_THAT(cnn.statements(), IsEmpty());
}

TEST_F(Correction, has_each_box_beside_its_label_in_the_order_of_the_key_tab)
{
    show([&](screen::Form& form) {
        EXPECT_THAT(inTabOrder(form), ElementsAre("Nombre:", "txtNombre", "Teléfono:", "txtTelefono",
                                                  "Correo electrónico:", "txtCorreo", "Empresa:", "txtEmpresa",
                                                  "Puesto:", "txtPuesto", "cmdHistorial", "cmdOk", "cmdCancel"));
        dialog.cmdCancel.press();
    });
}

TEST_F(Correction, writes_the_five_columns)
{
    show([&](screen::Form&) { dialog.cmdOk.press(); });
    EXPECT_TRUE(dialog.Aceptado);
    EXPECT_THAT(cnn.statements(),
                ElementsAre("UPDATE ut_icontact set uf_Nombre='María',uf_EMail='maria@example.com',"
                            "uf_Telefono='961 111 1111',uf_Empresa='Acme',uf_Puesto='Compras' WHERE Sys_PK=12"));
}

TEST_F(Correction, tests_and_trims_nothing)
{
    show([&](screen::Form&) {
        dialog.txtNombre.edit("  ");
        dialog.txtCorreo.edit("sin arroba");
        dialog.txtTelefono.edit("");
        dialog.txtEmpresa.edit("d'Arc");
        dialog.txtPuesto.edit("C:\\x");
        dialog.cmdOk.press();
    });
    EXPECT_TRUE(dialog.Aceptado);
    EXPECT_THAT(cnn.statements(), ElementsAre("UPDATE ut_icontact set uf_Nombre='  ',uf_EMail='sin arroba',"
                                              "uf_Telefono='',uf_Empresa='d'Arc',uf_Puesto='C:\\x' WHERE "
                                              "Sys_PK=12"));
}

TEST_F(Correction, that_the_database_refuses_stays_on_the_screen)
{
    show([&](screen::Form& form) {
        cnn.onContaining("UPDATE").fails("You have an error in your SQL syntax", "42000", 1064).once();
        dialog.txtNombre.edit("d'Arc");
        ports.dialogs.expectBox("You have an error in your SQL syntax");
        dialog.cmdOk.press();
        EXPECT_EQ(ports.dialogs.boxes().back().buttons, screen::MessageBox::Buttons::ok);
        EXPECT_EQ(ports.dialogs.boxes().back().icon, screen::MessageBox::Icon::none);
        EXPECT_EQ(ports.dialogs.boxes().back().title, "");
        EXPECT_TRUE(form.Visible());
        EXPECT_FALSE(dialog.Aceptado);
        EXPECT_EQ(dialog.txtNombre.Text(), "d'Arc");
        dialog.txtNombre.edit("Arc");
        dialog.cmdOk.press();
    });
    EXPECT_TRUE(dialog.Aceptado);
}

TEST_F(Correction, without_a_connection_is_told)
{
    show([&](screen::Form&) {
        dialog.Cnn = nullptr;
        ports.dialogs.expectBox("Variable de objeto no establecida");
        dialog.cmdOk.press();
        dialog.cmdCancel.press();
    });
    EXPECT_FALSE(dialog.Aceptado);
}

TEST_F(Correction, cancelled_or_closed_writes_nothing)
{
    dialog.Aceptado = true;
    show([&](screen::Form&) { dialog.cmdCancel.press(); });
    EXPECT_FALSE(dialog.Aceptado);
    show([&](screen::Form& form) { form.closeWindow(); });
    EXPECT_FALSE(dialog.Aceptado);
    EXPECT_THAT(cnn.statements(), IsEmpty());
}

TEST_F(Correction, shows_the_mails_of_the_prospect_and_stays)
{
    show([&](screen::Form& form) {
        dialog.cmdHistorial.press();
        EXPECT_TRUE(form.Visible());
        dialog.cmdCancel.press();
    });
    EXPECT_THAT(control.calls, ElementsAre("Historial 0 12"));
}

TEST_F(Correction, passes_over_a_history_that_cannot_be_shown)
{
    show([&](screen::Form& form) {
        control.failing = true;
        dialog.cmdHistorial.press();
        dialog.Contenedor = nullptr;
        dialog.cmdHistorial.press();
        EXPECT_TRUE(form.Visible());
        dialog.cmdCancel.press();
    });
}

} // namespace
} // namespace dn::tests
