// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// "Herramientas": hands a whole group of projects from one executive to another. It also opens the export of the
// mail lists, for which it has no button.
#pragma once

#include "data/connection.h"
#include "dialogs/dialog.h"
#include "dialogs/field_grid.h"
#include "screen/combo_box.h"

#include <cstdint>
#include <string>

namespace dn::dialogs {

class dlgTools : public Dialog {
public:
    explicit dlgTools(screen::Ports screenPorts);

    // ---- Set by the caller ahead of Show

    std::int16_t Motor = 0;          ///< engine of the connection, for the export alone
    data::Connection* Cnn = nullptr; ///< not owned

    /// Opens the export of the mail lists; the dialog itself need not be shown. Failures are passed over.
    void ShowExportFiltro();

    // ---- Events

    /// Hands the projects of the group over, once the operator has agreed; without a filter all of them.
    void cmdCambiar_Click();
    void cmdCerrar_Click();

    // ---- Elements: the four with the prefix of buttons are lists

    screen::Label Label1{&form, "Label1"};
    screen::ComboBox cmdColor{&form, "cmdColor"};
    screen::CheckBox Check1{&form, "Check1"};
    screen::ComboBox cmdEstado{&form, "cmdEstado"};
    screen::ComboBox cmdEjecutivo{&form, "cmdEjecutivo"};
    screen::ComboBox cmdDestino{&form, "cmdDestino"};
    screen::Button cmdCambiar{&form, "cmdCambiar"};
    screen::Button cmdCerrar{&form, "cmdCerrar"};

protected:
    void Form_Load() override;

private:
    void layOut();
    void loadAgents();
    void change();
    std::string group() const;
    data::Connection& cnn() const;

    FieldGrid grid_;
};

} // namespace dn::dialogs
