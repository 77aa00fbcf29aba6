// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "host/screens/project_screens.h"

#include "host/screens/boxes.h"
#include "host/screens/project_form.h"
#include "screen/qt/hourglass.h"

namespace dn::host {
namespace {

// The kinds of party of CrearProyecto; any other means none.
constexpr std::int16_t kindPerson = 0;
constexpr std::int16_t kindOrganisation = 1;

} // namespace

void ProjectScreens::Inicializar(data::Connection* connection, std::shared_ptr<UI_CRM>&, HostObject& lands,
                                 const std::string& pathXML, const std::string& usuario)
{
    context_->lent = connection;
    context_->lands = lands;
    context_->pathXML = pathXML;
    context_->user = usuario;
}

void ProjectScreens::CrearPersona(const std::string& nombre, const std::string& text1, const std::string& text2,
                                  std::int32_t ciudad, const std::string& telefono, const std::string& text3,
                                  const std::string& email, const std::string& text4, std::int32_t agente,
                                  std::int32_t& result)
{
    result = 0;
    reporting(windowBelow(context_->window), [&] {
        Statement statement("INSERT INTO Persona (Nombre, Domicilio, Colonia, ICiudad, Tel_Trabajo, Tel_Movil, "
                            "EMail, EMail2, IEjecutivo, Sys_GUID, Sys_DTCreated) VALUES (?, ?, ?, ?, ?, ?, ?, ?, "
                            "?, ?, CURRENT_TIMESTAMP)");
        statement.bind(nombre).bind(textOrNull(text1)).bind(textOrNull(text2)).bind(keyOrNull(ciudad));
        statement.bind(textOrNull(telefono)).bind(textOrNull(text3)).bind(textOrNull(email));
        statement.bind(textOrNull(text4)).bind(agente).bind(newGuid());
        Transaction transaction(context_->database);
        const std::int32_t key = context_->database.insert(statement);
        transaction.commit();
        result = key;
    });
}

void ProjectScreens::CrearProyecto(std::int16_t& kind, std::int32_t& party, std::int32_t& result)
{
    result = 0;
    QWidget* const over = windowBelow(context_->window);
    reporting(over, [&] {
        ProjectForm form = screen::qt::waiting([&] { return ProjectForm(*context_, 0, over); });
        if (kind == kindPerson) form.person(party);
        if (kind == kindOrganisation) form.organisation(party);
        if (form.exec() == QDialog::Accepted) result = form.key();
    });
}

void ProjectScreens::EditarProyecto(std::int32_t key)
{
    QWidget* const over = windowBelow(context_->window);
    reporting(over, [&] { editProject(*context_, key, over); });
}

} // namespace dn::host
