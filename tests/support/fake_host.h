// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The host's objects for tests: they write down what they are asked, answer as they were told, and fail on demand.
#pragma once

#include "desk/host_objects.h"

#include <functional>
#include <set>
#include <string>
#include <vector>

namespace dn::tests {

/// What was asked of the host, in order, and which operations fail.
struct HostLog {
    std::vector<std::string> calls;
    std::set<std::string> failing; ///< names of operations
    /// What happens in the host while an operation runs: called with the call as it is written down.
    std::function<void(const std::string& call)> during;

    /// Writes down a call. @throws std::runtime_error when the operation is to fail.
    void called(const std::string& operation, const std::string& arguments = {});
};

class FakeConexionCRM : public ConexionCRM {
public:
    explicit FakeConexionCRM(HostLog& log) : log_(log) {}
    void AdoCnn(data::Connection* newConnection) override
    {
        log_.called("AdoCnn");
        connection = newConnection;
    }

    data::Connection* connection = nullptr;

private:
    HostLog& log_;
};

class FakeUICRM : public UI_CRM {
public:
    explicit FakeUICRM(HostLog& log) : log_(log) {}

    void SetAgente(std::int32_t agente) override { log_.called("SetAgente", std::to_string(agente)); }
    void SetPathXML(const std::string& path) override { log_.called("SetPathXML", path); }
    std::shared_ptr<ConexionCRM> Conexion() override;
    void Conexion(std::shared_ptr<ConexionCRM> holder) override;
    void Abrir() override { log_.called("Abrir"); }
    void BorrarOrganizacion(std::int32_t& key, bool& confirm, std::int32_t& result) override;
    void NuevaOrganizacion(HostObject& object, std::int32_t& agente, std::any& result) override;
    void EditarOrganizacion(std::int32_t& key, std::int32_t& agente, std::any& result) override;
    void BorrarPersona(std::int32_t& key, bool& confirm, std::int32_t& result) override;
    void NuevaPersona(HostObject& object, std::int32_t& agente, std::any& result) override;
    void EditarPersona(std::int32_t& key, std::int32_t& agente, std::any& result) override;
    void SetFXLands(const HostObject& lands) override;
    void MostrarRelaciones(std::int16_t& kind, std::int32_t& key, std::string& caption) override;
    void Preparar() override { log_.called("Preparar"); }
    void BuscarEntidad(const std::string& text, bool persons, bool organisations, std::string& result) override;

    HostObject lands;
    std::int32_t deleted = 1; ///< the result of the two deletions
    std::string found;        ///< the result of the search

private:
    HostLog& log_;
    std::shared_ptr<ConexionCRM> holder_;
};

class FakeUIProyectos : public UIProyectos {
public:
    explicit FakeUIProyectos(HostLog& log) : log_(log) {}

    void Inicializar(data::Connection* connection, std::shared_ptr<UI_CRM>& oUICRM, HostObject& lands,
                     const std::string& pathXML, const std::string& usuario) override;
    void CrearPersona(const std::string& nombre, const std::string& text1, const std::string& text2,
                      std::int32_t ciudad, const std::string& telefono, const std::string& text3,
                      const std::string& email, const std::string& text4, std::int32_t agente,
                      std::int32_t& result) override;
    void EditarProyecto(std::int32_t key) override { log_.called("EditarProyecto", std::to_string(key)); }
    void SetMotorBD(std::int16_t motor) override { log_.called("SetMotorBD", std::to_string(motor)); }
    void CrearProyecto(std::int16_t& kind, std::int32_t& party, std::int32_t& result) override;

    data::Connection* connection = nullptr;
    std::shared_ptr<UI_CRM> screens;     ///< as Inicializar received them
    HostObject lands;                    ///< as Inicializar received it
    std::shared_ptr<UI_CRM> replacement; ///< put in the place of oUICRM by Inicializar
    std::int32_t newProject = 1;         ///< the result of CrearProyecto
    std::int32_t newPerson = 1;          ///< the result of CrearPersona
    bool failsWithResult = false;        ///< CrearProyecto gives its result and fails then
    std::function<void()> whileOpen;     ///< what the operator does while the screen of a new project is open

private:
    HostLog& log_;
};

class FakeCorreoHost : public CorreoHost {
public:
    explicit FakeCorreoHost(HostLog& log) : log_(log) {}

    void Inicia(data::Connection* connection, const std::string& templatePath,
                const std::string& usuario) override;
    void Enviar(const std::string& record, const std::string& addresses, const std::string& text1,
                const std::string& text2, const std::string& text3, const std::string& text4,
                bool& result) override;
    void VerHistorial(const std::string& record) override { log_.called("VerHistorial", record); }

    data::Connection* connection = nullptr;
    bool sent = true; ///< the result of Enviar

private:
    HostLog& log_;
};

class FakePersonaRegistro : public PersonaRegistro {
public:
    explicit FakePersonaRegistro(HostLog& log) : log_(log) {}

    void Conexion(data::Connection* newConnection) override;
    void Cargar(std::int32_t& key, std::string& text, HostObject& object, std::int16_t& mode,
                bool& result) override;
    std::string UltimoError() override;
    std::int32_t Llave() override;
    std::shared_ptr<EjecutivoRegistro> Ejecutivo() override;

    data::Connection* connection = nullptr;
    bool loads = true;         ///< the result of Cargar
    std::string lastError;     ///< the result of UltimoError
    std::int32_t loaded = 0;   ///< the result of Llave, set by Cargar
    std::int32_t agent = 0;    ///< the key of the person's agent
    bool withoutAgent = false; ///< Ejecutivo gives nothing

private:
    HostLog& log_;
};

class FakeHost : public HostFactory {
public:
    std::shared_ptr<UI_CRM> newUI_CRM() override;
    std::shared_ptr<ConexionCRM> newConexionCRM() override;
    std::shared_ptr<UIProyectos> newUIProyectos() override;
    std::shared_ptr<CorreoHost> newCorreoHost() override;
    std::shared_ptr<PersonaRegistro> newPersonaRegistro() override;

    HostLog log;
    std::shared_ptr<FakeUICRM> screens; ///< the ones made last
    std::shared_ptr<FakeConexionCRM> holder;
    std::shared_ptr<FakeUIProyectos> projects =
        std::make_shared<FakeUIProyectos>(log);                                   ///< given out when asked for
    std::shared_ptr<FakeCorreoHost> mail = std::make_shared<FakeCorreoHost>(log); ///< likewise
    std::shared_ptr<FakePersonaRegistro> person = std::make_shared<FakePersonaRegistro>(log); ///< likewise
};

} // namespace dn::tests
