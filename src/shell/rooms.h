// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// Everything behind the control: its elements, what the host has set, and the rooms, each with what it needs of
// the others. The control hands each of its operations on to one of them; a host's compiler sees none of this, so
// that a library with other rooms inside takes the place of an older one.
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

namespace dn {
class ctrDnContacts;
}

namespace dn::shell {

class Rooms {
public:
    /// @param control outlives the rooms, which call it back.
    Rooms(screen::Ports ports, desk::PublicOperations& control);

private:
    friend class dn::ctrDnContacts;

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

} // namespace dn::shell
