// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// "Agendar próximo contacto": when a prospect is to be called again, so many hours or minutes from now or at a day
// and hour. It writes one column of one row and tells its caller nothing.
#pragma once

#include "base/date_time.h"
#include "data/connection.h"
#include "dialogs/dialog.h"
#include "screen/button.h"
#include "screen/calendars.h"
#include "screen/combo_box.h"

#include <cstdint>

namespace dn::dialogs {

class dlgAgendarContacto : public Dialog {
public:
    explicit dlgAgendarContacto(screen::Ports screenPorts);

    // ---- Set by the caller ahead of Show

    std::int32_t PKContacto = 0;     ///< key of the prospect
    data::Connection* Cnn = nullptr; ///< not owned

    // ---- Events

    /// Only what belongs to the marked option can be used.
    void SyncControls();
    /// More than 6 turns the unit to minutes; the operator may turn it back.
    void cmbTiempo_Click();
    /// Writes the moment, after a confirmation. A moment of the past is refused.
    void cmdOk_Click();
    void cmdCancel_Click();

    // ---- Elements

    screen::OptionButton opt1{&form, "opt1"};
    screen::ComboBox cmbTiempo{&form, "cmbTiempo"};
    screen::ComboBox cmbMedida{&form, "cmbMedida"};
    screen::Line line{&form, "line"};
    screen::OptionButton opt2{&form, "opt2"};
    screen::MonthView cal{&form, "cal"};
    screen::DTPicker dtHora{&form, "dtHora"};
    screen::Button cmdOk{&form, "cmdOk"};
    screen::Button cmdCancel{&form, "cmdCancel"};

protected:
    void Form_Load() override;

private:
    void layOut();
    DateTime moment() const;

    static constexpr int hours = 0;
    static constexpr int minutes = 1;
};

} // namespace dn::dialogs
