// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The control: the one public object of the system. It owns the elements and the rooms, joins them and decides
// nothing itself.
//
// Order of the host's calls, which is binding: create the control, hand over the factory of the host's objects,
// `SetObjects`, `InitUICRM`, `RefreshData`; from then on any of them again, at will. Everything runs on the host's
// user-interface thread. Neither the control nor the connection may end while one of the control's windows is
// open.
#pragma once

#include "mail/mail.h"
#include "mail/project_addresses.h"
#include "mail/record_mail.h"

#include "calling/call_decision.h"
#include "calling/call_flow.h"
#include "calling/call_outcomes.h"
#include "calling/list_in_sight.h"
#include "calling/party_in_hand.h"
#include "desk/counters.h"
#include "desk/elements.h"
#include "desk/host_objects.h"
#include "desk/host_screens.h"
#include "desk/public_operations.h"
#include "desk/session.h"
#include "desk/tab_strip.h"
#include "desk/timeline.h"
#include "directories/loader.h"
#include "directories/organisations.h"
#include "directories/persons.h"
#include "notes/notes.h"
#include "projects/phone_choice.h"
#include "projects/project_commands.h"
#include "projects/project_detail.h"
#include "projects/project_list.h"
#include "prospects/assignment.h"
#include "prospects/colour_marks.h"
#include "prospects/prospect_conversion.h"
#include "prospects/prospect_detail.h"
#include "prospects/prospect_editing.h"
#include "prospects/prospect_interaction.h"
#include "prospects/prospect_list.h"
#include "prospects/prospect_status.h"
#include "screen/ports.h"
#include "screen/signal.h"
#include "shell/agents.h"
#include "shell/layout.h"
#include "shell/start_up.h"
#include "shell/tabs.h"
#include "today/queue.h"
#include "today/search.h"
#include "today/today_commands.h"
#include "today/today_panel.h"

#include <any>
#include <cstdint>
#include <memory>
#include <string>

namespace dn {

class ctrDnContacts : public desk::PublicOperations {
public:
    /// @param ports what the control needs of the machine; kept alive by the caller for the life of the control.
    explicit ctrDnContacts(screen::Ports ports);
    ctrDnContacts(const ctrDnContacts&) = delete;
    ctrDnContacts& operator=(const ctrDnContacts&) = delete;
    ~ctrDnContacts();

    // ---- Properties: plain stored values, read and written by the host; none has side effects.

    /// Table of the party being called: "ut_icontact" or "Proyecto".
    const std::string& Call_Tabla() const { return session_.Call_Tabla; }
    void Call_Tabla(std::string table) { session_.Call_Tabla = std::move(table); }
    /// Key of the party being called.
    std::int32_t Call_PK() const { return session_.Call_PK; }
    void Call_PK(std::int32_t key) { session_.Call_PK = key; }
    /// Number being called.
    const std::string& Call_Tel() const { return session_.Call_Tel; }
    void Call_Tel(std::string number) { session_.Call_Tel = std::move(number); }
    /// Whether a call is in progress.
    bool Call_Progress() const { return session_.Call_Progress; }
    void Call_Progress(bool progress) { session_.Call_Progress = progress; }
    /// Folder of the mail templates.
    const std::string& TemplatePath() const { return session_.TemplatePath; }
    void TemplatePath(std::string path) { session_.TemplatePath = std::move(path); }
    /// The host's screens.
    const std::shared_ptr<UI_CRM>& oUICRM() const { return session_.oUICRM; }
    void oUICRM(std::shared_ptr<UI_CRM> screens) { session_.oUICRM = std::move(screens); }
    /// User name, written into every row of the activity log.
    const std::string& Usuario() const { return session_.Usuario; }
    void Usuario(std::string user) { session_.Usuario = std::move(user); }
    /// The open connection through which all statements run. It belongs to the host, who keeps it open and alive.
    data::Connection* AdoCnn() const { return session_.AdoCnn; }
    void AdoCnn(data::Connection* connection) { session_.AdoCnn = connection; }
    /// Key of the agent who works; not changed by a selection in `cbAgente`.
    std::int32_t PKAgente() const { return session_.PKAgente; }
    void PKAgente(std::int32_t key) { session_.PKAgente = key; }
    /// Whether the user is an administrator.
    bool GAdmon() const { return session_.GAdmon; }
    void GAdmon(bool administrator) { session_.GAdmon = administrator; }
    /// An object that the host wants to find here again; nothing in the control reads it.
    const std::any& eBasic() const { return session_.eBasic; }
    void eBasic(std::any object) { session_.eBasic = std::move(object); }

    // ---- Methods

    /// The maker of the host's objects; it belongs to the host, who keeps it alive. Needed by InitUICRM.
    void hostObjects(HostFactory* factory) { hostScreens_.factory(factory); }

    /// Hands over the connection, the agent who works, the rights and the user, and finds the database engine.
    /// A connection that is not open is told to the operator; the control then keeps its former agent, rights and
    /// user.
    /// @param Cn belongs to the host; used until the next SetObjects or the end of the control.
    /// @param Agente key in the table `Agente`; 0 for an administrator without a key of his own.
    /// @param Admon sees every agent's work and may change it in bulk.
    void SetObjects(data::Connection* Cn, std::int32_t Agente, bool Admon, const std::string& pUsuario)
    {
        startUp_.SetObjects(Cn, Agente, Admon, pUsuario);
    }

    /// Creates the host's screens objects and binds them to the connection and the user. Sets TemplatePath to
    /// "R:".
    /// @param PathXML passed on to the screens. @param FXLands passed on to the screens.
    /// @throws whatever an operation of the host fails with; RuntimeError without a factory.
    void InitUICRM(const std::string& PathXML, HostObject& FXLands) { hostScreens_.InitUICRM(PathXML, FXLands); }

    /// Opens the host's screen of a new project without a party.
    /// @param Key is not used. @return the project's key; 0 or less when none was made or anything failed.
    std::int32_t NuevoProyecto(std::int32_t& Key) { return hostScreens_.NuevoProyecto(Key); }
    std::int32_t NuevoProyecto()
    {
        std::int32_t key = 0;
        return NuevoProyecto(key);
    }

    /// Fills the agents, selects the one who works and shows the first screen.
    /// @throws data::Error when the agents cannot be read; RuntimeError before SetObjects.
    void RefreshData() { startUp_.RefreshData(); }

    /// Loads the queue of the day anew for the agent in view, and takes the status filters of prospects and
    /// projects back to their first entries. Does nothing else while no single agent is in view.
    void RefreshRobot() { queue_.RefreshRobot(); }

    /// Selects an agent by key; an unknown key changes nothing. The key 0, "< Sin asignar >", is the
    /// administrators'.
    void SelAgente(std::int32_t PK) { agents_.SelAgente(PK); }

    /// Asks for an agent in a dialog. @return his key; 0 when none was chosen or anything failed.
    std::int32_t ShSelAgente() override { return agents_.ShSelAgente(); }

    /// Opens the export of the mail lists of prospects and projects, for which the control has no button of its
    /// own. Returns when the operator closes it; a failure of a statement goes where those of his own clicks go.
    void ExportarListas() { projectCommands_.ExportarListas(); }

    /// Writes a mail to the party in hand, as the button "Correo" does.
    void cmdSend_Click() override { mail_.cmdSend_Click(); }

    /// Shows the mails of a record. @param t 0 a prospect, 1 a project. @param Sys_PK its key.
    void Historial(std::int16_t& t, std::int32_t& Sys_PK) override { recordMail_.Historial(t, Sys_PK); }

    // ---- The call: whoever dials drives it by these, in the place of the operator's buttons. None of them
    // throws.

    /// Shows that a party is being called; a call in progress is forgotten. Writes nothing to the database.
    /// @param Tabla "ut_icontact" for a prospect, "Proyecto" for a project. @param PK key of its row there.
    /// @param Tel the number, shown and logged; a text that is no number is shown as it is.
    void IniciarLlamada(const std::string& Tabla, std::int32_t PK, const std::string& Tel)
    {
        callFlow_.IniciarLlamada(Tabla, PK, Tel);
    }

    /// The line was answered.
    /// @param R 6 or more: by the right person, which leads to the summary and stores nothing yet. Below: 0 not
    /// there, 1 busy, 2 wrong number, 3 hung up, 4 wants nothing, 5 another reason, which the operator is asked
    /// for; the call then ends. Returns when the operator has said what happens next.
    void Call_Connect(std::int16_t R) { callOutcomes_.Call_Connect(R); }

    /// Ends a call with contact; returns when the operator has said what happens next. @param S what was said.
    void Call_Resumen(const std::string& S) { callOutcomes_.Call_Resumen(S); }

    /// Ends a call that reached nobody; returns when the operator has said what happens next.
    /// @param motivo 0 cancelled, 1 busy, 2 no answer, 3 out of service. Only 0 leaves no trace.
    void Call_NoConnect(std::int16_t motivo) { callOutcomes_.Call_NoConnect(motivo); }

    /// A call has started, by the operator or by the host: table, key and number as `IniciarLlamada` took them.
    /// Raised when the screen shows it. What a listener throws is passed over.
    screen::Signal<std::string, std::int32_t, std::string>& callStarted() { return callFlow_.started; }

    /// A call has ended, or the screen was told so. Raised ahead of the question what happens next: the line can
    /// be hung up, but the call in hand is still needed.
    screen::Signal<>& callEnded() { return callOutcomes_.ended; }

    /// What the end of a call brought is over: question, late statement, list. Nothing reads the call in hand any
    /// more, and another one may begin, unless the host has begun it already.
    screen::Signal<>& callSettled() { return callOutcomes_.turn().settled; }

    // ---- For the screen layer and for tests

    /// The outermost element, for the layer that shows the control and gives it its size.
    screen::UserControl& root() { return elements_.control; }
    desk::Elements& elements() { return elements_; }
    /// The engine found: 1 MySQL or MariaDB, 2 SQL Server, 0 when no probe succeeded.
    std::int16_t MotorBD() const { return session_.MotorBD; }

private:
    void wire();

    desk::Elements elements_;
    desk::Session session_;
    desk::TabStrip tabStrip_;
    desk::Counters counters_;
    desk::Timeline timeline_;
    desk::HostScreens hostScreens_;
    prospects::ProspectDetail prospectDetail_;
    prospects::ProspectInteraction prospectInteraction_;
    prospects::ProspectList prospectList_;
    prospects::ProspectStatus prospectStatus_;
    prospects::ProspectEditing prospectEditing_;
    prospects::Assignment assignment_;
    prospects::ProspectConversion prospectConversion_;
    prospects::ColourMarks colourMarks_;
    projects::PhoneChoice phoneChoice_;
    projects::ProjectDetail projectDetail_;
    projects::ProjectList projectList_;
    projects::ProjectCommands projectCommands_;
    today::TodayPanel todayPanel_;
    today::Queue queue_;
    today::TodayCommands todayCommands_;
    today::Search search_;
    notes::Notes notes_;
    directories::Loader directoryLoader_;
    directories::Organisations organisations_;
    directories::Persons persons_;
    calling::PartyInHand partyInHand_;
    calling::ListInSight listInSight_;
    calling::CallDecision callDecision_;
    calling::CallOutcomes callOutcomes_;
    calling::CallFlow callFlow_;
    mail::ProjectAddresses projectAddresses_;
    mail::RecordMail recordMail_;
    mail::Mail mail_;
    shell::Layout layout_;
    shell::Tabs tabs_;
    shell::Agents agents_;
    shell::StartUp startUp_;
    screen::Subscriptions wires_; // last member, cut first
};

} // namespace dn
