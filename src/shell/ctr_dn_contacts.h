// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The control: the one public object of the system. It hands each operation on to the room whose business it is.
//
// Order of the host's calls, which is binding: create the control, hand over the factory of the host's objects,
// `SetObjects`, `InitUICRM`, `RefreshData`; from then on any of them again, at will. Everything runs on the host's
// user-interface thread. Neither the control nor the connection may end while one of the control's windows is
// open.
#pragma once

#include "base/export.h"
#include "desk/host_objects.h"
#include "desk/public_operations.h"
#include "screen/ports.h"
#include "screen/signal.h"

#include <any>
#include <cstdint>
#include <memory>
#include <string>

namespace dn::desk {
struct Elements;
}
namespace dn::screen {
class UserControl;
}
namespace dn::shell {
class Rooms;
}

namespace dn {

/// The control without a toolkit. A host gets it from the widget that shows it.
class DN_EXPORT ctrDnContacts : public desk::PublicOperations {
public:
    /// @param ports what the control needs of the machine; kept alive by the caller for the life of the control.
    explicit ctrDnContacts(screen::Ports ports);
    ctrDnContacts(const ctrDnContacts&) = delete;
    ctrDnContacts& operator=(const ctrDnContacts&) = delete;
    ~ctrDnContacts();

    // ---- Properties: plain stored values, read and written by the host; none has side effects.

    /// Table of the party being called: "ut_icontact" or "Proyecto".
    const std::string& Call_Tabla() const;
    void Call_Tabla(std::string table); ///< @overload
    /// Key of the party being called.
    std::int32_t Call_PK() const;
    void Call_PK(std::int32_t key); ///< @overload
    /// Number being called.
    const std::string& Call_Tel() const;
    void Call_Tel(std::string number); ///< @overload
    /// Whether a call is in progress.
    bool Call_Progress() const;
    void Call_Progress(bool progress); ///< @overload
    /// Folder of the mail templates.
    const std::string& TemplatePath() const;
    void TemplatePath(std::string path); ///< @overload
    /// The host's screens.
    const std::shared_ptr<UI_CRM>& oUICRM() const;
    void oUICRM(std::shared_ptr<UI_CRM> screens); ///< @overload
    /// User name, written into every row of the activity log.
    const std::string& Usuario() const;
    void Usuario(std::string user); ///< @overload
    /// The open connection through which all statements run. It belongs to the host, who keeps it open and alive.
    data::Connection* AdoCnn() const;
    void AdoCnn(data::Connection* connection); ///< @overload
    /// Key of the agent who works; not changed by a selection in `cbAgente`.
    std::int32_t PKAgente() const;
    void PKAgente(std::int32_t key); ///< @overload
    /// Whether the user is an administrator.
    bool GAdmon() const;
    void GAdmon(bool administrator); ///< @overload
    /// An object that the host wants to find here again; nothing in the control reads it.
    const std::any& eBasic() const;
    void eBasic(std::any object); ///< @overload

    // ---- Methods

    /// The maker of the host's objects; it belongs to the host, who keeps it alive. Needed by InitUICRM.
    void hostObjects(HostFactory* factory);

    /// Hands over the connection, the agent who works, the rights and the user, and finds the database engine.
    /// A connection that is not open is told to the operator; the control then keeps its former agent, rights and
    /// user.
    /// @param Cn belongs to the host; used until the next SetObjects or the end of the control.
    /// @param Agente key in the table `Agente`; 0 for an administrator without a key of his own.
    /// @param Admon sees every agent's work and may change it in bulk.
    void SetObjects(data::Connection* Cn, std::int32_t Agente, bool Admon, const std::string& pUsuario);

    /// Creates the host's screens objects and binds them to the connection and the user. Sets TemplatePath to
    /// "R:".
    /// @param PathXML passed on to the screens. @param FXLands passed on to the screens.
    /// @throws whatever an operation of the host fails with; RuntimeError without a factory.
    void InitUICRM(const std::string& PathXML, HostObject& FXLands);

    /// Opens the host's screen of a new project without a party.
    /// @param Key is not used. @return the project's key; 0 or less when none was made or anything failed.
    std::int32_t NuevoProyecto(std::int32_t& Key);
    /// @overload
    std::int32_t NuevoProyecto()
    {
        std::int32_t key = 0;
        return NuevoProyecto(key);
    }

    /// Fills the agents, selects the one who works and shows the first screen.
    /// @throws data::Error when the agents cannot be read; RuntimeError before SetObjects.
    void RefreshData();

    /// Loads the queue of the day anew for the agent in view, and takes the status filters of prospects and
    /// projects back to their first entries. Does nothing else while no single agent is in view.
    void RefreshRobot();

    /// Selects an agent by key; an unknown key changes nothing. The key 0, "< Sin asignar >", is the
    /// administrators'.
    void SelAgente(std::int32_t PK);

    /// Opens a tab as a click on it does, and so loads its list anew. Does nothing for a tab that the strip does
    /// not show.
    /// @param tab 0 "Prospectos", 1 "Proyectos", 2 "Hoy", 3 "Organizaciones", 4 "Contactos".
    /// @throws RuntimeError for another number.
    void openTab(std::int16_t tab);

    /// The tab in view, counted as in openTab; -1 while none is in front, as at the first screen.
    std::int16_t activeTab() const;

    /// Asks for an agent in a dialog. @return his key; 0 when none was chosen or anything failed.
    std::int32_t ShSelAgente() override;

    /// Opens the export of the mail lists of prospects and projects, for which the control has no button of its
    /// own. Returns when the operator closes it; a failure of a statement goes where those of his own clicks go.
    void ExportarListas();

    /// Writes a mail to the party in hand, as the button "Correo" does.
    void cmdSend_Click() override;

    /// Shows the mails of a record. @param t 0 a prospect, 1 a project. @param Sys_PK its key.
    void Historial(std::int16_t& t, std::int32_t& Sys_PK) override;

    // ---- The call: whoever dials drives it by these, in the place of the operator's buttons. None of them
    // throws.

    /// Shows that a party is being called; a call in progress is forgotten. Writes nothing to the database.
    /// @param Tabla "ut_icontact" for a prospect, "Proyecto" for a project. @param PK key of its row there.
    /// @param Tel the number, shown and logged; a text that is no number is shown as it is.
    void IniciarLlamada(const std::string& Tabla, std::int32_t PK, const std::string& Tel);

    /// The line was answered.
    /// @param R 6 or more: by the right person, which leads to the summary and stores nothing yet. Below: 0 not
    /// there, 1 busy, 2 wrong number, 3 hung up, 4 wants nothing, 5 another reason, which the operator is asked
    /// for; the call then ends. Returns when the operator has said what happens next.
    void Call_Connect(std::int16_t R);

    /// Ends a call with contact; returns when the operator has said what happens next. @param S what was said.
    void Call_Resumen(const std::string& S);

    /// Ends a call that reached nobody; returns when the operator has said what happens next.
    /// @param motivo 0 cancelled, 1 busy, 2 no answer, 3 out of service. Only 0 leaves no trace.
    void Call_NoConnect(std::int16_t motivo);

    /// A call has started, by the operator or by the host: table, key and number as `IniciarLlamada` took them.
    /// Raised when the screen shows it. What a listener throws is passed over.
    screen::Signal<std::string, std::int32_t, std::string>& callStarted();

    /// A call has ended, or the screen was told so. Raised ahead of the question what happens next: the line can
    /// be hung up, but the call in hand is still needed.
    screen::Signal<>& callEnded();

    /// What the end of a call brought is over: question, late statement, list. Nothing reads the call in hand any
    /// more, and another one may begin, unless the host has begun it already.
    screen::Signal<>& callSettled();

    // ---- For the screen layer and for tests

    /// The outermost element, for the layer that shows the control and gives it its size.
    screen::UserControl& root();
    /// All elements, whose headers stand in the source tree alone: they change as the control does.
    desk::Elements& elements();
    /// The engine found: 1 MySQL or MariaDB, 2 SQL Server, 0 when no probe succeeded.
    std::int16_t MotorBD() const;

private:
    std::unique_ptr<shell::Rooms> rooms_;
};

} // namespace dn
