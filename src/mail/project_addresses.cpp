// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "mail/project_addresses.h"

#include "data/failure_modes.h"
#include "desk/row_key.h"
#include "dialogs/dlg_dir_mail.h"

namespace dn::mail {

using data::resumeNext;

namespace {

// The inner joins leave a project without an organisation or without a contact out: it has no addresses.
std::string statement(std::int32_t project)
{
    return "SELECT Organizacion.EMail as Email2, Persona.EMail as EMail1, Persona.EMail2 as EMail3, "
           "Persona.MSN as EMail4 FROM (Proyecto INNER JOIN Organizacion ON "
           "Proyecto.IOrganizacion=Organizacion.Sys_PK) INNER JOIN Persona ON "
           "Proyecto.IContacto=Persona.Sys_PK WHERE Proyecto.Sys_PK=" +
           std::to_string(project);
}

// The contact's first address, the organisation's, the contact's second one, and its messenger's name, which is
// an address too.
void gather(const data::Recordset& found, dialogs::dlgDirMail& into)
{
    for (const char* field : {"EMail1", "EMail2", "EMail3", "EMail4"}) {
        resumeNext([&] {
            const data::Value address = found.Fields()(field).Value();
            if (!address.isNull()) into.AddItem(address.toText());
        });
    }
}

} // namespace

std::string ProjectAddresses::DireccionesProyecto() // continue-on-error
{
    const auto row = projects_.lvwProy.SelectedItem();
    if (!row) {
        resumeNext([&] { ports_.dialogs.say("Seleccione un proyecto"); });
        return {};
    }
    std::int32_t project = 0;
    resumeNext([&] { project = desk::keyNumber(*row); });
    if (project < 1) return {};
    std::unique_ptr<data::Recordset> found;
    resumeNext([&] { found = session_.cnn().execute(statement(project)); });
    if (!found || (found->Eof() && found->Bof())) return {};

    dialogs::dlgDirMail dialog(ports_); // a fresh one holds neither lines nor a result
    gather(*found, dialog);
    if (dialog.lstDir.ListCount() > 0) resumeNext([&] { dialog.lstDir.Selected(0, true); });
    if (dialog.lstDir.ListCount() == 0) {
        resumeNext([&] { ports_.dialogs.say("No hay direcciones de correo electrónico registradas"); });
        return {};
    }
    if (dialog.lstDir.ListCount() == 1) return dialog.lstDir.List(0);
    resumeNext([&] { dialog.Show(); });
    return dialog.Direcciones;
}

} // namespace dn::mail
