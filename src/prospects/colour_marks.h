// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The five colours with which the operator marks a prospect or a project.
#pragma once

#include "desk/elements.h"
#include "desk/session.h"
#include "desk/tab_strip.h"
#include "screen/ports.h"

#include <cstdint>

namespace dn::prospects {

class ColourMarks {
public:
    ColourMarks(desk::Session& session, desk::ProspectElements& prospects, desk::ProjectElements& projects,
                desk::TopElements& top, desk::TabStrip& tabs, screen::Dialogs& dialogs)
        : session_(session), prospects_(prospects), projects_(projects), top_(top), tabs_(tabs), dialogs_(dialogs)
    {
    }

    /// Stores a colour for the selected prospect, or on any other tab than theirs for the selected project, and
    /// paints its row; the list is not loaded anew. A failure is told to the operator and paints nothing.
    /// @param index of the button: the colour's code.
    void bColor_Click(std::int16_t index);

private:
    struct Target;
    Target target();

    desk::Session& session_;
    desk::ProspectElements& prospects_;
    desk::ProjectElements& projects_;
    desk::TopElements& top_;
    desk::TabStrip& tabs_;
    screen::Dialogs& dialogs_;
};

} // namespace dn::prospects
