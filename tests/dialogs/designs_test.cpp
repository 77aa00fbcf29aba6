// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The nine dialogs as the operator first sees them: places, captions, keys and entries, against the files in
// `design`.

#include "dialogs/dlg_agendar_contacto.h"
#include "dialogs/dlg_corregir.h"
#include "dialogs/dlg_dir_mail.h"
#include "dialogs/dlg_filtro.h"
#include "dialogs/dlg_nuevo_pros.h"
#include "dialogs/dlg_que_h.h"
#include "dialogs/dlg_sel_agente.h"
#include "dialogs/dlg_show.h"
#include "dialogs/dlg_tools.h"
#include "tests/support/approved_text.h"
#include "tests/support/fake_connection.h"
#include "tests/support/fake_ports.h"
#include "tests/support/screen_design.h"

#include <gtest/gtest.h>

namespace dn::tests {
namespace {

class DialogDesigns : public testing::Test {
protected:
    DialogDesigns()
    {
        cnn.onContaining("Agente").gives({"Sys_PK", "Nombre"}, {{whole(7), text("Ana")}});
        cnn.onContaining("Ejecutivo").gives({"Sys_PK", "Nombre"}, {{whole(9), text("Beto")}});
        cnn.onContaining("Meta").gives({"Sys_PK", "Descripcion"}, {{whole(3), text("Silos")}});
        cnn.onContaining("uf_Interes").gives({"uf_Interes"}, {{text("Silos")}});
        cnn.onContaining("uf_Origen").gives({"uf_Origen"}, {{text("Llamada")}});
        cnn.onContaining("uf_Referencia").gives({"uf_Referencia"}, {{text("Un amigo")}});
    }

    template <class Dialog>
    void isAsDesigned(Dialog& dialog, const char* name)
    {
        ports.events.expectModal(name, [&](screen::Form& form) {
            expectApproved(designOf(form), std::string("dialogs/design/") + name + ".txt");
            form.closeWindow();
        });
        dialog.Show();
    }

    template <class Dialog>
    void isAsDesigned(const char* name)
    {
        Dialog dialog(ports.ports());
        if constexpr (requires { dialog.Cnn; }) dialog.Cnn = &cnn;
        isAsDesigned(dialog, name);
    }

    FakeConnection cnn;
    FakePorts ports;
};

TEST_F(DialogDesigns, of_a_new_prospect) { isAsDesigned<dialogs::dlgNuevoPros>("dlgNuevoPros"); }
TEST_F(DialogDesigns, of_the_next_contact) { isAsDesigned<dialogs::dlgAgendarContacto>("dlgAgendarContacto"); }
TEST_F(DialogDesigns, of_a_correction) { isAsDesigned<dialogs::dlgCorregir>("dlgCorregir"); }
TEST_F(DialogDesigns, of_the_agents) { isAsDesigned<dialogs::dlgSelAgente>("dlgSelAgente"); }
TEST_F(DialogDesigns, of_what_comes_next) { isAsDesigned<dialogs::dlgQueH>("dlgQueH"); }
TEST_F(DialogDesigns, of_the_group_tool) { isAsDesigned<dialogs::dlgTools>("dlgTools"); }
TEST_F(DialogDesigns, of_the_filter) { isAsDesigned<dialogs::dlgFiltro>("dlgFiltro"); }
TEST_F(DialogDesigns, of_the_mail_lists) { isAsDesigned<dialogs::dlgShow>("dlgShow"); }

TEST_F(DialogDesigns, of_the_addresses)
{
    dialogs::dlgDirMail dialog(ports.ports());
    dialog.AddItem("luz@example.com");
    isAsDesigned(dialog, "dlgDirMail");
}

} // namespace
} // namespace dn::tests
