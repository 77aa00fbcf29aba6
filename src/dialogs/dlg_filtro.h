// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// "Exportar listas de correo": the filters of the mail lists of prospects and projects.
#pragma once

#include "data/connection.h"
#include "dialogs/dialog.h"
#include "dialogs/field_grid.h"
#include "dialogs/list_statements.h"
#include "screen/option_list_field.h"

#include <cstdint>

namespace dn::dialogs {

class dlgFiltro : public Dialog {
public:
    explicit dlgFiltro(screen::Ports screenPorts);

    // ---- Set by the caller ahead of Show

    data::Connection* Cnn = nullptr; ///< not owned
    std::int16_t Motor = 0;          ///< engine of the connection, the control's MotorBD

    // ---- Events

    /// Reads the lists that are marked and shows them; asks for one when none is. Stays open for a further export.
    /// @throws data::Error what a statement failed with; no list is shown then.
    void cmdExportar_Click();
    void cmdCancel_Click();

    // ---- Elements

    screen::Label label1{&form, "label1"};
    screen::CheckBox chkContactos{&form, "chkContactos"};
    screen::CheckBox chkProyectos{&form, "chkProyectos"};
    screen::Label Label{&form, "Label"};
    screen::eOptionLstField dxEjecutivo{&form, "dxEjecutivo"};
    screen::Label Label2{&form, "Label2"};
    screen::eOptionLstField dxStatus{&form, "dxStatus"};
    screen::CheckBox chkStatus{&form, "chkStatus"};
    screen::Label Label4{&form, "Label4"};
    screen::eOptionLstField dxMeta{&form, "dxMeta"};
    screen::CheckBox chkMeta{&form, "chkMeta"};
    screen::eOptionLstField dxColor{&form, "dxColor"};
    screen::CheckBox chkColor{&form, "chkColor"};
    screen::eOptionLstField dxEstado{&form, "dxEstado"};
    screen::CheckBox chkEstado{&form, "chkEstado"};
    screen::CheckBox cCerrado{&form, "cCerrado"};
    screen::CheckBox cPerdidos{&form, "cPerdidos"};
    screen::Button cmdExportar{&form, "cmdExportar"};
    screen::Button cmdCancel{&form, "cmdCancel"};

protected:
    void Form_Load() override;

private:
    void caption();
    void layOut();
    void addRows(screen::eOptionLstField& field, const char* statement, const char* column);
    ListFilter prospectFilter() const;
    ListFilter projectFilter() const;
    data::Connection& cnn() const;
    void ShowDlgExport(data::Recordset* contactos, data::Recordset* proyectos);

    FieldGrid grid_;
};

} // namespace dn::dialogs
