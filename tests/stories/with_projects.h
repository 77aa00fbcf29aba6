// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// What the mail lists and the group tool need beside prospects: projects with their organisations and contacts.
#pragma once

#include "tests/stories/operator.h"

namespace dn::tests {

/// Any of the fixtures of an operator.
template <class Base>
class WithProjects : public Base {
protected:
    WithProjects()
    {
        for (const char* table : {"Proyecto", "Organizacion", "Persona", "Meta", "Ejecutivo"})
            this->database(std::string("DELETE FROM ") + table);
        this->database("INSERT INTO Ejecutivo (Sys_PK, Nombre) VALUES (7, 'Ana'), (9, 'Beto')");
        this->database("INSERT INTO Meta (Sys_PK, Descripcion) VALUES (1, 'Venta'), (2, '~Vieja'), (3, 'Otros'), "
                       "(4, 'Renta')");
        this->database("INSERT INTO Organizacion (Sys_PK, Nombre, Email, Tel1) VALUES (1, 'Café «El Sol»', "
                       "'sol@example.com', '55'), (2, 'Niebla', NULL, NULL)");
        this->database(
            "INSERT INTO Persona (Sys_PK, Nombre, Apellido1, EMail, Tel_Trabajo) VALUES (1, 'Rosa', 'Ñuño', "
            "'rosa@example.com', '961'), (2, 'Gil', NULL, NULL, NULL)");
    }

    /// A project of Ana's with that organisation and that contact.
    void project(int organisation, int contact, int status = 1, int colour = 0)
    {
        this->database("INSERT INTO Proyecto (IEjecutivo, IMeta, IOrganizacion, IContacto, uf_status1, uf_color) "
                       "VALUES (7, 1, " +
                       std::to_string(organisation) + ", " + std::to_string(contact) + ", " +
                       std::to_string(status) + ", " + std::to_string(colour) + ")");
    }
};

} // namespace dn::tests
