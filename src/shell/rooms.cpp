// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "shell/rooms.h"

namespace dn::shell {

Rooms::Rooms(screen::Ports ports, desk::PublicOperations& control)
    : tabStrip_(elements_.top),
      counters_(elements_),
      timeline_(session_, elements_, ports),
      hostScreens_(session_),
      prospectDetail_(elements_.detail, elements_.top, tabStrip_, timeline_),
      prospectInteraction_(elements_.prospects),
      prospectList_(session_, elements_.prospects, elements_.top, tabStrip_, prospectDetail_, counters_, ports),
      prospectStatus_(session_, elements_.prospects, elements_.detail, prospectList_, hostScreens_, ports.dialogs),
      prospectEditing_(session_, elements_.prospects, elements_.top, prospectList_, control, ports),
      assignment_(session_, elements_.prospects, prospectList_, control, ports),
      prospectConversion_(session_, elements_.prospects, prospectList_, hostScreens_, ports.dialogs),
      colourMarks_(session_, elements_.prospects, elements_.projects, elements_.top, tabStrip_, ports.dialogs),
      phoneChoice_(session_),
      projectDetail_(elements_.detail, elements_.top, tabStrip_, timeline_, phoneChoice_, prospectDetail_),
      projectList_(session_, elements_.projects, elements_.top, projectDetail_, counters_),
      projectCommands_(session_, elements_.projects, elements_.top, projectList_, hostScreens_, ports),
      todayPanel_(elements_, prospectDetail_, projectDetail_, control),
      queue_(session_, elements_, tabStrip_, todayPanel_, counters_, ports.clock),
      todayCommands_(elements_.today, queue_, prospectEditing_, prospectConversion_, hostScreens_, ports.dialogs),
      search_(elements_, prospectDetail_, projectDetail_, ports.dialogs),
      notes_(session_, elements_, tabStrip_, todayPanel_, ports),
      directoryLoader_(session_, elements_.top, counters_, ports.dialogs),
      organisations_(elements_.organisations, directoryLoader_, hostScreens_, ports.dialogs),
      persons_(session_, elements_.persons, directoryLoader_, hostScreens_, ports.dialogs),
      partyInHand_(elements_, tabStrip_, todayPanel_),
      listInSight_(elements_, prospectList_, projectList_, queue_),
      callDecision_(session_, elements_.detail.Combo1, partyInHand_, prospectStatus_, projectCommands_, control,
                    ports),
      callOutcomes_(session_, elements_, notes_, callDecision_, listInSight_, ports.dialogs),
      callFlow_(session_, elements_, partyInHand_, callOutcomes_, ports.dialogs),
      projectAddresses_(session_, elements_.projects, ports),
      recordMail_(session_, hostScreens_, ports.dialogs),
      mail_(elements_, partyInHand_, projectAddresses_, recordMail_, notes_),
      layout_(elements_),
      tabs_(session_, elements_, tabStrip_,
            {prospectDetail_, prospectList_, projectDetail_, projectList_, queue_, organisations_, persons_}),
      agents_(session_, elements_.top, tabs_, ports),
      startUp_(session_, elements_, agents_, tabs_, queue_, ports)
{
}

} // namespace dn::shell
