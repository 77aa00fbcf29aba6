// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// Notes: a line of text of the operator goes to the activity log of the party in hand and to the top of its
// timeline. Other rooms write their own entries the same way: they place a text in `txtText` and run
// `cmdIntro_Click`.
#pragma once

#include "desk/elements.h"
#include "desk/session.h"
#include "desk/tab_strip.h"
#include "screen/ports.h"
#include "today/today_panel.h"

#include <string>

namespace dn::notes {

class Notes {
public:
    Notes(desk::Session& session, desk::Elements& elements, desk::TabStrip& tabs, today::TodayPanel& todayPanel,
          screen::Ports ports)
        : session_(session), elements_(elements), tabs_(tabs), todayPanel_(todayPanel), ports_(ports)
    {
    }

    /// Stores the text of `txtText` for the selected row of the tab in view, and empties the box. Without a
    /// selected row it does nothing; a failure is told and leaves the cleaned text in the box. On the tab "Hoy" it
    /// yields; whoever goes on to another party meanwhile has the note stored for the former one all the same.
    void cmdIntro_Click();

    /// Asks for a note and stores it.
    void cmdNote_Click();

    /// Enter stores the note instead of breaking the line.
    void txtText_KeyPress(int& KeyAscii);

private:
    struct Note {
        const screen::ListView* list = nullptr;
        std::string key, text;
        bool operator==(const Note&) const = default;
    };

    screen::ListView* targetList();
    screen::ListView* listOfTheDay(const screen::ListItem& row);
    void storeForThePartyLeft(screen::ListView& list, const std::string& rowKey, const std::string& typed);
    void insert(const screen::ListView& list, const std::string& key, const std::string& text);
    void cleanText();
    void store(screen::ListView& target);

    desk::Session& session_;
    desk::Elements& elements_;
    desk::TabStrip& tabs_;
    today::TodayPanel& todayPanel_;
    screen::Ports ports_;
    // What was written during a yield, so that the note that waited is not written a second time.
    unsigned written_ = 0;
    Note last_;
};

} // namespace dn::notes
