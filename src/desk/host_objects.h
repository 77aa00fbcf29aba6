// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The objects that the host lends to the control: its own screens behind small interfaces. The control never knows
// how a screen looks; it asks an operation and goes on with the answer.
//
// A failure of an operation is an exception. Keys are those of the database. Arguments by reference may be changed
// by the host; the control says with each operation what it reads back.
#pragma once

#include "base/export.h"
#include "data/connection.h"

#include <any>
#include <cstdint>
#include <memory>
#include <string>

namespace dn {

/// An object that the control only passes on from one object of the host to another.
using HostObject = std::shared_ptr<void>;

/// Holds the connection for the host's screens.
class DN_EXPORT ConexionCRM {
public:
    virtual ~ConexionCRM() = default;
    /// @param connection lives as long as the host keeps it; nothing when the control was given none.
    virtual void AdoCnn(data::Connection* connection) = 0;
};

/// The host's screens for persons and organisations.
class DN_EXPORT UI_CRM {
public:
    virtual ~UI_CRM() = default;

    /// Tells the screens which agent works. Called at every change of agent, with 0 for "< Sin asignar >".
    virtual void SetAgente(std::int32_t agente) = 0;
    /// Called once at the binding. @param path as `InitUICRM` took it.
    virtual void SetPathXML(const std::string& path) = 0;
    /// The holder of the connection: most simply the one that was handed over.
    virtual std::shared_ptr<ConexionCRM> Conexion() = 0;
    /// Called first at the binding, with a holder of which the factory has made a new one.
    virtual void Conexion(std::shared_ptr<ConexionCRM> holder) = 0;
    /// Called once at the binding, after SetFXLands.
    virtual void Abrir() = 0;
    /// Deletes an organisation, after a confirmation of its own where `confirm` is true.
    /// @param result set to another value than 0 when it is gone.
    virtual void BorrarOrganizacion(std::int32_t& key, bool& confirm, std::int32_t& result) = 0;
    /// Creates an organisation. @param object an empty reference, for the host to fill or to leave.
    virtual void NuevaOrganizacion(HostObject& object, std::int32_t& agente, std::any& result) = 0;
    /// Opens an organisation. @param key 0 makes a new one. @param agente 0 when the caller has none.
    /// @param result of no meaning to the control.
    virtual void EditarOrganizacion(std::int32_t& key, std::int32_t& agente, std::any& result) = 0;
    /// Deletes a person, as BorrarOrganizacion does.
    virtual void BorrarPersona(std::int32_t& key, bool& confirm, std::int32_t& result) = 0;
    /// Creates a person, as NuevaOrganizacion does.
    virtual void NuevaPersona(HostObject& object, std::int32_t& agente, std::any& result) = 0;
    /// Opens a person, as EditarOrganizacion does.
    virtual void EditarPersona(std::int32_t& key, std::int32_t& agente, std::any& result) = 0;
    /// Called once at the binding. @param lands as `InitUICRM` took it.
    virtual void SetFXLands(const HostObject& lands) = 0;
    /// Shows what hangs together with a directory entry.
    /// @param kind 0 a person, 1 an organisation. @param caption of the window.
    virtual void MostrarRelaciones(std::int16_t& kind, std::int32_t& key, std::string& caption) = 0;
    /// Called once at the binding, last of this object's operations.
    virtual void Preparar() = 0;
    /// Searches persons and organisations.
    /// @param result empty on cancel, else a letter and the key: "O" an organisation, any other letter a person.
    virtual void BuscarEntidad(const std::string& text, bool persons, bool organisations, std::string& result) = 0;
};

/// The host's screens for projects.
class DN_EXPORT UIProyectos {
public:
    virtual ~UIProyectos() = default;

    /// Binds the object to the connection and the user. It may put another object in the place of `oUICRM`; the
    /// control keeps what comes back.
    virtual void Inicializar(data::Connection* connection, std::shared_ptr<UI_CRM>& oUICRM, HostObject& lands,
                             const std::string& pathXML, const std::string& usuario) = 0;
    /// Creates a person, without a window. @param result its key, 0 on failure.
    virtual void CrearPersona(const std::string& nombre, const std::string& text1, const std::string& text2,
                              std::int32_t ciudad, const std::string& telefono, const std::string& text3,
                              const std::string& email, const std::string& text4, std::int32_t agente,
                              std::int32_t& result) = 0;
    /// Opens a project. @param key of the project.
    virtual void EditarProyecto(std::int32_t key) = 0;
    /// @param motor 1 MySQL or MariaDB, 2 SQL Server, 0 not found out.
    virtual void SetMotorBD(std::int16_t motor) = 0;
    /// Opens the screen of a new project.
    /// @param kind of the party: 0 a person, 1 an organisation, 2 none.
    /// @param party its key, 0 for none.
    /// @param result the new project's key; 0 or less when none was made.
    virtual void CrearProyecto(std::int16_t& kind, std::int32_t& party, std::int32_t& result) = 0;
};

/// Writes, sends and keeps mails. A new object serves each mail and each look at the history.
class DN_EXPORT CorreoHost {
public:
    virtual ~CorreoHost() = default;

    /// Called first. @param templatePath folder of the templates. @param usuario the sender.
    virtual void Inicia(data::Connection* connection, const std::string& templatePath,
                        const std::string& usuario) = 0;
    /// Lets the user write and send a mail.
    /// @param record "CT." or "PY." and the identifier of the prospect or project.
    /// @param addresses joined by ";", or empty. @param text1 to text4 the control passes empty.
    /// @param result true when a mail was sent.
    virtual void Enviar(const std::string& record, const std::string& addresses, const std::string& text1,
                        const std::string& text2, const std::string& text3, const std::string& text4,
                        bool& result) = 0;
    /// Shows the mails of a record.
    virtual void VerHistorial(const std::string& record) = 0;
};

/// The agent that a directory entry belongs to.
class DN_EXPORT EjecutivoRegistro {
public:
    virtual ~EjecutivoRegistro() = default;
    virtual std::int32_t Llave() = 0; ///< his key in the table `Agente`
};

/// A person of the directory, read ahead of its screen.
class DN_EXPORT PersonaRegistro {
public:
    virtual ~PersonaRegistro() = default;

    /// Called first. @param connection the control's own.
    virtual void Conexion(data::Connection* connection) = 0;
    /// Loads the person. @param text the control passes empty. @param object the control passes none.
    /// @param mode the control passes 3. @param result true on success.
    virtual void Cargar(std::int32_t& key, std::string& text, HostObject& object, std::int16_t& mode,
                        bool& result) = 0;
    /// What the last failure was, for the operator.
    virtual std::string UltimoError() = 0;
    /// Key of the loaded person.
    virtual std::int32_t Llave() = 0;
    /// The agent of the loaded person.
    virtual std::shared_ptr<EjecutivoRegistro> Ejecutivo() = 0;
};

/// Makes the host's objects when the control needs them. The host hands it over and keeps it alive.
class DN_EXPORT HostFactory {
public:
    virtual ~HostFactory() = default;
    /// For each InitUICRM, which fails without one.
    virtual std::shared_ptr<UI_CRM> newUI_CRM() = 0;
    /// For each InitUICRM, which fails without one.
    virtual std::shared_ptr<ConexionCRM> newConexionCRM() = 0;
    /// For the first InitUICRM or project; kept until the control ends.
    virtual std::shared_ptr<UIProyectos> newUIProyectos() = 0;
    /// For each mail and each look at the history; without one nothing opens.
    virtual std::shared_ptr<CorreoHost> newCorreoHost() = 0;
    /// For each "Editar" of a person, which fails without one.
    virtual std::shared_ptr<PersonaRegistro> newPersonaRegistro() = 0;
};

} // namespace dn
