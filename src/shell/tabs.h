// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// Which of the five work areas is in view: a switch shows the panels of a tab, empties the detail and loads the
// tab's list anew, also when the tab was in view already. A click on a tab is thus its refresh command.
#pragma once

#include "desk/elements.h"
#include "desk/session.h"
#include "desk/tab_strip.h"
#include "directories/organisations.h"
#include "directories/persons.h"
#include "projects/project_detail.h"
#include "projects/project_list.h"
#include "prospects/prospect_detail.h"
#include "prospects/prospect_list.h"
#include "today/queue.h"

#include <cstdint>

namespace dn::shell {

/// The rooms whose lists and details the tabs show.
struct TabRooms {
    prospects::ProspectDetail& prospectDetail;
    prospects::ProspectList& prospectList;
    projects::ProjectDetail& projectDetail;
    projects::ProjectList& projectList;
    today::Queue& queue;
    directories::Organisations& organisations;
    directories::Persons& persons;
};

class Tabs {
public:
    Tabs(desk::Session& session, desk::Elements& elements, desk::TabStrip& strip, TabRooms rooms)
        : session_(session), elements_(elements), strip_(strip), rooms_(rooms)
    {
    }

    void lblItem_Click(std::int16_t index);

    /// Makes a tab the active one and shows it.
    void SelectTab(std::int16_t index);

    /// Arranges the panels for the active tab and loads its list. Without an active tab all lists are hidden.
    void ShowActiveTab();

    /// Narrows or restores the strip for the agent in `cbAgente`, who must be selected.
    /// @throws RuntimeError for a key that does not fit 16 bits.
    void ArrangeTabs();

private:
    void clearCommonArea();
    void hideAll();
    void showTab(std::int16_t index);
    void showProspects();
    void showProjects();
    void showToday();
    void showDirectory(screen::ListView& list, screen::PicturePanel& panel);
    void placeInfo(screen::Twips top, screen::Twips height);

    desk::Session& session_;
    desk::Elements& elements_;
    desk::TabStrip& strip_;
    TabRooms rooms_;
    std::uint64_t switches_ = 0; // counts the switches, so that one overtaken in a yield knows
};

} // namespace dn::shell
