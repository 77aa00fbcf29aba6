// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The list from which an agent is chosen.
#pragma once

#include "data/connection.h"
#include "dialogs/dialog.h"
#include "dialogs/field_grid.h"
#include "screen/list_box.h"

#include <cstdint>

namespace dn::dialogs {

class dlgSelAgente : public Dialog {
public:
    explicit dlgSelAgente(screen::Ports screenPorts);

    data::Connection* Cnn = nullptr; ///< set by the caller ahead of Show; not owned
    std::int32_t pkAgenteSel = 0;    ///< the result: the key of the agent; 0 when none was chosen

    // ---- Events

    /// Accepts the selected line; asks for one while there is none.
    void Command1_Click();
    /// Gives up.
    void Command2_Click();

    // ---- Elements

    screen::ListBox cbAgente{&form, "cbAgente"};
    screen::Button Command1{&form, "Command1"};
    screen::Button Command2{&form, "Command2"};

protected:
    void Form_Load() override;

private:
    FieldGrid grid_;
};

} // namespace dn::dialogs
