// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/support/fake_host.h"

#include <stdexcept>

namespace dn::tests {

void HostLog::called(const std::string& operation, const std::string& arguments)
{
    calls.push_back(arguments.empty() ? operation : operation + " " + arguments);
    if (during) during(calls.back());
    if (failing.count(operation) > 0) throw std::runtime_error("falló " + operation);
}

std::shared_ptr<ConexionCRM> FakeUICRM::Conexion()
{
    log_.called("Conexion (read)");
    return holder_;
}

void FakeUICRM::Conexion(std::shared_ptr<ConexionCRM> holder)
{
    log_.called("Conexion (write)");
    holder_ = std::move(holder);
}

void FakeUICRM::BorrarOrganizacion(std::int32_t& key, bool& confirm, std::int32_t& result)
{
    log_.called("BorrarOrganizacion", std::to_string(key) + (confirm ? " confirm" : ""));
    result = deleted;
}

void FakeUICRM::NuevaOrganizacion(HostObject&, std::int32_t& agente, std::any&)
{
    log_.called("NuevaOrganizacion", std::to_string(agente));
}

void FakeUICRM::EditarOrganizacion(std::int32_t& key, std::int32_t& agente, std::any&)
{
    log_.called("EditarOrganizacion", std::to_string(key) + " " + std::to_string(agente));
}

void FakeUICRM::BorrarPersona(std::int32_t& key, bool& confirm, std::int32_t& result)
{
    log_.called("BorrarPersona", std::to_string(key) + (confirm ? " confirm" : ""));
    result = deleted;
}

void FakeUICRM::NuevaPersona(HostObject&, std::int32_t& agente, std::any&)
{
    log_.called("NuevaPersona", std::to_string(agente));
}

void FakeUICRM::EditarPersona(std::int32_t& key, std::int32_t& agente, std::any&)
{
    log_.called("EditarPersona", std::to_string(key) + " " + std::to_string(agente));
}

void FakeUICRM::SetFXLands(const HostObject& newLands)
{
    log_.called("SetFXLands");
    lands = newLands;
}

void FakeUICRM::MostrarRelaciones(std::int16_t& kind, std::int32_t& key, std::string& caption)
{
    log_.called("MostrarRelaciones", std::to_string(kind) + " " + std::to_string(key) + " " + caption);
}

void FakeUICRM::BuscarEntidad(const std::string& text, bool persons, bool organisations, std::string& result)
{
    log_.called("BuscarEntidad",
                "'" + text + "'" + (persons ? " persons" : "") + (organisations ? " organisations" : ""));
    result = found;
}

void FakeUIProyectos::Inicializar(data::Connection* newConnection, std::shared_ptr<UI_CRM>& oUICRM,
                                  HostObject& newLands, const std::string& pathXML, const std::string& usuario)
{
    log_.called("Inicializar", pathXML + " " + usuario);
    connection = newConnection;
    screens = oUICRM;
    lands = newLands;
    if (replacement) oUICRM = replacement;
}

void FakeUIProyectos::CrearPersona(const std::string& nombre, const std::string& text1, const std::string& text2,
                                   std::int32_t ciudad, const std::string& telefono, const std::string& text3,
                                   const std::string& email, const std::string& text4, std::int32_t agente,
                                   std::int32_t& result)
{
    log_.called("CrearPersona", nombre + "|" + text1 + "|" + text2 + "|" + std::to_string(ciudad) + "|" +
                                    telefono + "|" + text3 + "|" + email + "|" + text4 + "|" +
                                    std::to_string(agente));
    result = newPerson;
}

void FakeUIProyectos::CrearProyecto(std::int16_t& kind, std::int32_t& party, std::int32_t& result)
{
    log_.called("CrearProyecto", std::to_string(kind) + " " + std::to_string(party));
    if (whileOpen) whileOpen();
    result = newProject;
    if (failsWithResult) throw std::runtime_error("falló al cerrar la pantalla");
}

std::shared_ptr<UI_CRM> FakeHost::newUI_CRM()
{
    log.called("new UI_CRM");
    return screens = std::make_shared<FakeUICRM>(log);
}

std::shared_ptr<ConexionCRM> FakeHost::newConexionCRM()
{
    log.called("new ConexionCRM");
    return holder = std::make_shared<FakeConexionCRM>(log);
}

std::shared_ptr<UIProyectos> FakeHost::newUIProyectos()
{
    log.called("new UIProyectos");
    return projects;
}

void FakeCorreoHost::Inicia(data::Connection* newConnection, const std::string& templatePath,
                            const std::string& usuario)
{
    log_.called("Inicia", templatePath + " " + usuario);
    connection = newConnection;
}

void FakeCorreoHost::Enviar(const std::string& record, const std::string& addresses, const std::string& text1,
                            const std::string& text2, const std::string& text3, const std::string& text4,
                            bool& result)
{
    log_.called("Enviar", record + " <" + addresses + ">" + text1 + text2 + text3 + text4);
    result = sent;
}

void FakePersonaRegistro::Conexion(data::Connection* newConnection)
{
    log_.called("PersonaRegistro.Conexion");
    connection = newConnection;
}

void FakePersonaRegistro::Cargar(std::int32_t& key, std::string& text, HostObject& object, std::int16_t& mode,
                                 bool& result)
{
    log_.called("Cargar",
                std::to_string(key) + " <" + text + ">" + (object ? " object " : " ") + std::to_string(mode));
    loaded = key;
    result = loads;
}

std::string FakePersonaRegistro::UltimoError()
{
    log_.called("UltimoError");
    return lastError;
}

std::int32_t FakePersonaRegistro::Llave()
{
    log_.called("Llave");
    return loaded;
}

std::shared_ptr<EjecutivoRegistro> FakePersonaRegistro::Ejecutivo()
{
    class Agent : public EjecutivoRegistro {
    public:
        Agent(HostLog& log, std::int32_t key) : log_(log), key_(key) {}
        std::int32_t Llave() override
        {
            log_.called("Ejecutivo.Llave");
            return key_;
        }

    private:
        HostLog& log_;
        std::int32_t key_;
    };
    log_.called("Ejecutivo");
    if (withoutAgent) return nullptr;
    return std::make_shared<Agent>(log_, agent);
}

std::shared_ptr<CorreoHost> FakeHost::newCorreoHost()
{
    log.called("new CorreoHost");
    return mail;
}

std::shared_ptr<PersonaRegistro> FakeHost::newPersonaRegistro()
{
    log.called("new PersonaRegistro");
    return person;
}

} // namespace dn::tests
