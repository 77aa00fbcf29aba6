// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// A control whose prospects and projects can be written to: the fake host writes down every mail.
#pragma once

#include "tests/support/element_tree.h"
#include "tests/today/fixture.h"

#include <string>
#include <vector>

namespace dn::tests {

inline constexpr const char* notFound = "No se puede ubicar información del destinatario";

class MailTest : public TodayTest {
protected:
    static std::string addressesOf(int key)
    {
        return "SELECT Organizacion.EMail as Email2, Persona.EMail as EMail1, Persona.EMail2 as EMail3, "
               "Persona.MSN "
               "as EMail4 FROM (Proyecto INNER JOIN Organizacion ON Proyecto.IOrganizacion=Organizacion.Sys_PK) "
               "INNER JOIN Persona ON Proyecto.IContacto=Persona.Sys_PK WHERE Proyecto.Sys_PK=" +
               std::to_string(key);
    }
    static std::string prospectNote(int key)
    {
        return "INSERT INTO xt_biticontact (uf_Tiempo, uf_Mensaje, uf_Usuario, uf_Iicontact) VALUES "
               "(CURRENT_TIMESTAMP, 'Se envió un mensaje de correo electrónico','ana'," +
               std::to_string(key) + ")";
    }
    static std::string projectNote(int key)
    {
        return "INSERT INTO xt_biticontact (uf_Tiempo, uf_Mensaje, uf_Usuario, uf_Iicontact, uf_IProy) VALUES "
               "(CURRENT_TIMESTAMP, 'Se envió un mensaje de correo electrónico','ana',0," +
               std::to_string(key) + ")";
    }

    void SetUp() override
    {
        start(7, true);
        prospects({prospect(11), prospect(12, {{"uf_EMail", text("Maria@x.mx")}})});
        projects({project(40), project(41)});
        for (const char* table : {"ut_icontact", "Proyecto"})
            for (const char* where : {" Where Sys_PK = ", " Where Sys_PK="})
                cnn.onContaining("SELECT Sys_GUID FROM " + std::string(table) + where)
                    .gives({"Sys_GUID"}, {{text("ABCD")}});
        control.TemplatePath("/plantillas");
        forget();
    }

    void forget()
    {
        cnn.forgetStatements();
        host.log.calls.clear();
    }
    /// The addresses of every project: of its contact, of its organisation, the contact's second and its
    /// messenger.
    void addresses(const Cell& first, const Cell& ofOrganisation, const Cell& second, const Cell& messenger)
    {
        cnn.onContaining("SELECT Organizacion.EMail as Email2")
            .gives({"Email2", "EMail1", "EMail3", "EMail4"}, {{ofOrganisation, first, second, messenger}});
    }
    void openProspect12()
    {
        openProspects();
        lvw().clickRow(1);
        forget();
    }
    void openProject41()
    {
        openProjects();
        lvwProy().clickRow(1);
        forget();
    }
    void send() { elements().detail.cmdSend.press(); }

    /// What was asked of the host's mail object.
    const std::vector<std::string>& asked() const { return host.log.calls; }
    std::string lastAsked() const { return asked().empty() ? "nothing" : asked().back(); }
};

} // namespace dn::tests
