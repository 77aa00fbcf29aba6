// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "directories/persons.h"

#include "base/runtime_error.h"
#include "directories/selected_entry.h"

namespace dn::directories {

void Persons::LoadContactos() // trap
{
    loader_.load(persons, elements_.lvwContactos,
                 {&elements_.deleteContact, &elements_.editContact, &elements_.showContactRelations,
                  &elements_.genProyectFromContact});
}

void Persons::addContact_Click() // no trap
{
    std::int32_t key = 0; // a new person
    std::int32_t agente = loader_.agentForNewEntry();
    std::any unused;
    screens_.oUICRM()->EditarPersona(key, agente, unused);
    LoadContactos();
}

void Persons::editContact_Click() // no trap
{
    const auto person = screens_.newPersonaRegistro();
    person->Conexion(session_.AdoCnn);
    std::int32_t key = selectedKey();
    std::string text;
    HostObject object;
    std::int16_t mode = 3;
    bool loaded = false;
    person->Cargar(key, text, object, mode, loaded);
    if (!loaded) {
        dialogs_.say("Error al consultar los datos: " + person->UltimoError());
        return;
    }
    key = person->Llave();
    const auto ejecutivo = person->Ejecutivo();
    if (!ejecutivo) throw RuntimeError::objectNotSet();
    std::int32_t agente = ejecutivo->Llave();
    std::any unused;
    screens_.oUICRM()->EditarPersona(key, agente, unused);
    LoadContactos();
}

void Persons::deleteContact_Click() // no trap
{
    std::int32_t key = selectedKey();
    if (key < 1) {
        dialogs_.say("Debe seleccionar un elemento a eliminar.");
        return;
    }
    bool confirm = true;
    std::int32_t deleted = 0;
    screens_.oUICRM()->BorrarPersona(key, confirm, deleted);
    if (deleted != 0) LoadContactos();
}

void Persons::showContactRelations_Click() // no trap
{
    std::int32_t key = selectedKey();
    std::string caption = "Relaciones del contacto: ";
    for (std::int16_t index = 1; index <= 3; ++index) { // the name and the two surnames
        std::string part;
        ItemSubText(elements_.lvwContactos, index, part);
        caption.append(part).append(index < 3 ? " " : ".");
    }
    std::int16_t kind = desk::HostScreens::person;
    screens_.oUICRM()->MostrarRelaciones(kind, key, caption);
}

void Persons::genProyectFromContact_Click() // no trap
{
    std::int32_t key = selectedKey();
    std::int16_t kind = desk::HostScreens::person;
    std::int32_t project = 0;
    screens_.oUIProyectos().CrearProyecto(kind, key, project);
}

void Persons::lvwContactos_DblClick() // no trap
{
    editContact_Click();
}

std::int32_t Persons::selectedKey()
{
    std::int32_t key = 0;
    ItemKeyPK(elements_.lvwContactos, key);
    return key;
}

} // namespace dn::directories
