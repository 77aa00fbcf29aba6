// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The mail lists on the screen: merges the recordsets of the export into one table, shows it and writes it to a
// file.
#pragma once

#include "data/recordset.h"
#include "dialogs/dialog.h"
#include "dialogs/field_grid.h"
#include "screen/data_grid.h"

#include <optional>
#include <string>

namespace dn::dialogs {

class dlgShow : public Dialog {
public:
    explicit dlgShow(screen::Ports screenPorts);

    // ---- Set by the caller ahead of Show; not owned, and each may be missing

    data::Recordset* rsContactos = nullptr; ///< prospects
    data::Recordset* rsProyectos = nullptr; ///< projects

    // ---- Events

    /// Asks for a file and writes the rows to it, in the order shown: a spreadsheet, or an HTML document when the
    /// operator chose that kind, whatever the file's name. A failure is passed over and leaves no file.
    void cmdExport_Click();
    void cmdCerrar_Click();

    // ---- Elements

    screen::DataGrid dxGrid{&form, "dxGrid"};
    screen::Label lblTotal{&form, "lblTotal"};
    screen::Button cmdExport{&form, "cmdExport"};
    screen::Button cmdCerrar{&form, "cmdCerrar"};

protected:
    void Form_Load() override;

private:
    void layOut();
    void InitGrid();
    void AddGridColumn(const std::string& name, int width);
    void FillGrid();
    void addProspect(data::Recordset& row);
    void addProject(data::Recordset& row);
    void copy(const char* field, data::Recordset& row, const char* column);
    void join(const char* field, data::Recordset& row, const char* column);
    void ExportGrid();
    std::optional<screen::SaveChoice> AskFileName(const std::string& filter);

    FieldGrid grid_;
};

} // namespace dn::dialogs
