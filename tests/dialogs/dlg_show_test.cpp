// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The mail lists on the screen: how two recordsets become one table, and what becomes of it in a file.

#include "dialogs/dlg_show.h"
#include "tests/support/fake_ports.h"
#include "tests/support/fake_recordset.h"
#include "tests/support/table_files.h"

#include <gmock/gmock.h>

#include <functional>

namespace dn::tests {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

const std::vector<std::string> prospectNames{"uf_Email", "uf_Nombre", "uf_Telefono", "uf_Empresa"};
const std::vector<std::string> projectNames{"Tel1", "Empresa", "EmailOrg", "EmailPersona", "Tel2", "Nombre"};

std::vector<Cell> prospect(const std::string& name)
{
    return {text(name + "@x"), text(name), text("961 " + name), text("de " + name)};
}

std::vector<Cell> project(Cell mailOfOrganisation, Cell mailOfPerson, Cell tel1, Cell tel2)
{
    return {std::move(tel1),         text("Sol"),     std::move(mailOfOrganisation),
            std::move(mailOfPerson), std::move(tel2), text("Rosa Paz ")};
}

class ExportView : public testing::Test {
protected:
    void show(const std::function<void(screen::Form&)>& act = {})
    {
        ports.events.expectModal("dlgShow", [&](screen::Form& form) {
            if (act) act(form);
            dialog.cmdCerrar.press();
        });
        dialog.Show();
    }

    void prospects(Rows rows) { dialog.rsContactos = &contactos.emplace(std::move(rows)); }
    void projects(Rows rows) { dialog.rsProyectos = &proyectos.emplace(std::move(rows)); }
    void prospects(std::vector<std::vector<Cell>> rows) { prospects(Rows{prospectNames, std::move(rows)}); }
    void projects(std::vector<std::vector<Cell>> rows) { projects(Rows{projectNames, std::move(rows)}); }

    std::vector<std::string> row(int number)
    {
        const screen::ListItem item = dialog.dxGrid.ListItems()(number);
        std::vector<std::string> cells{std::string(item.Text())};
        for (int i = 1; i <= item.ListSubItems().Count(); ++i)
            cells.emplace_back(item.ListSubItems()(i).Text());
        return cells;
    }
    int rows() { return dialog.dxGrid.ListItems().Count(); }

    FakePorts ports;
    OutputFolder folder;
    std::optional<FakeRecordset> contactos;
    std::optional<FakeRecordset> proyectos;
    dialogs::dlgShow dialog{ports.ports()};
};

TEST_F(ExportView, has_four_columns_and_its_captions)
{
    show([&](screen::Form& form) {
        EXPECT_EQ(form.Caption(), "dlgCorreos");
        std::vector<std::string> headers;
        for (const screen::ColumnHeader& header : dialog.dxGrid.ColumnHeaders()) {
            headers.push_back(header.Text + " " + std::to_string(header.Width / 15));
            EXPECT_EQ(header.Key, header.Text);
            EXPECT_EQ(dialog.dxGrid.Dataset().FieldSize(header.Text), 150);
        }
        EXPECT_THAT(headers, ElementsAre("Nombre 200", "Empresa 200", "Correos 150", "Telefonos 150"));
        EXPECT_EQ(dialog.cmdExport.Caption(), "Exportar datos");
        EXPECT_EQ(dialog.cmdCerrar.Caption(), "Cerrar");
    });
}

TEST_F(ExportView, without_any_rows_counts_none)
{
    show();
    EXPECT_EQ(rows(), 0);
    EXPECT_EQ(dialog.lblTotal.Caption(), "Total de Registros: 0");
}

TEST_F(ExportView, with_two_empty_recordsets_counts_none)
{
    prospects(std::vector<std::vector<Cell>>{});
    projects(std::vector<std::vector<Cell>>{});
    show();
    EXPECT_EQ(rows(), 0);
    EXPECT_EQ(dialog.lblTotal.Caption(), "Total de Registros: 0");
}

TEST_F(ExportView, shows_prospects_alone)
{
    prospects({prospect("Luz"), prospect("Ana")});
    show();
    EXPECT_EQ(rows(), 2);
    EXPECT_THAT(row(1), ElementsAre("Luz", "de Luz", "Luz@x", "961 Luz"));
    EXPECT_EQ(dialog.lblTotal.Caption(), "Total de Registros: 2");
    EXPECT_EQ(dialog.dxGrid.selectedPosition(), 0U);
}

TEST_F(ExportView, shows_projects_alone)
{
    projects({project(text("sol@x"), text("rosa@x"), text("55"), text("961"))});
    show();
    EXPECT_THAT(row(1), ElementsAre("Rosa Paz ", "Sol", "sol@x;rosa@x", "55;961"));
    EXPECT_EQ(dialog.lblTotal.Caption(), "Total de Registros: 1");
}

TEST_F(ExportView, shows_prospects_ahead_of_projects_and_keeps_what_is_there_twice)
{
    prospects({prospect("Luz"), prospect("Luz")});
    projects({project(text("luz@x"), null, null, null)});
    show();
    EXPECT_EQ(rows(), 3);
    EXPECT_EQ(row(1), row(2));
    EXPECT_EQ(row(3)[1], "Sol");
    EXPECT_EQ(dialog.lblTotal.Caption(), "Total de Registros: 3");
}

TEST_F(ExportView, walks_a_recordset_from_where_it_stands)
{
    prospects({prospect("Luz"), prospect("Ana")});
    contactos->MoveNext();
    show();
    EXPECT_EQ(rows(), 1);
    EXPECT_EQ(row(1)[0], "Ana");
}

struct Joint {
    Cell first;
    Cell second;
    const char* joined;
};

TEST_F(ExportView, joins_two_addresses_and_two_telephones)
{
    const std::vector<Joint> joints{{text("a"), text("b"), "a;b"}, {text("a"), null, "a;"},
                                    {text("a"), text(""), "a;"},   {null, text("b"), "b"},
                                    {text(""), text("b"), "b"},    {null, null, ""},
                                    {text(" "), text("b"), " ;b"}};
    std::vector<std::vector<Cell>> made;
    for (const Joint& joint : joints)
        made.push_back(project(joint.first, joint.second, joint.first, joint.second));
    projects(made);
    show();
    for (std::size_t i = 0; i < joints.size(); ++i) {
        EXPECT_EQ(row(static_cast<int>(i) + 1)[2], joints[i].joined) << i;
        EXPECT_EQ(row(static_cast<int>(i) + 1)[3], joints[i].joined) << i;
    }
}

TEST_F(ExportView, shows_a_null_as_nothing_and_a_number_as_its_digits)
{
    prospects({{null, null, whole(9611234567), null}});
    show();
    EXPECT_THAT(row(1), ElementsAre("", "", "", "9611234567"));
}

TEST_F(ExportView, keeps_a_text_that_is_longer_than_its_field)
{
    prospects({{text(std::string(400, 'm')), text("Luz"), null, null}});
    show();
    EXPECT_EQ(row(1)[2].size(), 400U);
}

TEST_F(ExportView, leaves_a_cell_empty_that_cannot_be_read)
{
    prospects({{failing("no"), text("Luz"), failing("no"), text("Acme")}});
    projects({project(failing("no"), text("rosa@x"), text("55"), failing("no"))});
    show();
    EXPECT_THAT(row(1), ElementsAre("Luz", "Acme", "", ""));
    EXPECT_THAT(row(2), ElementsAre("Rosa Paz ", "Sol", "rosa@x", "55"));
}

TEST_F(ExportView, joins_nothing_to_the_first_where_the_second_cannot_be_read)
{
    projects({project(text("sol@x"), failing("no"), text("55"), failing("no"))});
    show();
    EXPECT_THAT(row(1), ElementsAre("Rosa Paz ", "Sol", "sol@x", "55"));
    EXPECT_EQ(dialog.lblTotal.Caption(), "Total de Registros: 1");
}

TEST_F(ExportView, leaves_a_column_empty_that_is_not_there)
{
    prospects(Rows{{"uf_Nombre"}, {{text("Luz")}}});
    show();
    EXPECT_THAT(row(1), ElementsAre("Luz", "", "", ""));
    EXPECT_EQ(dialog.lblTotal.Caption(), "Total de Registros: 1");
}

TEST_F(ExportView, ends_a_recordset_that_the_server_breaks_off)
{
    prospects(Rows{prospectNames, {prospect("Luz"), prospect("Ana"), prospect("Eva")}, 2});
    projects({project(text("sol@x"), null, null, null)});
    show();
    EXPECT_EQ(rows(), 3);
    EXPECT_EQ(dialog.lblTotal.Caption(), "Total de Registros: 3");
}

// ---- The file

TEST_F(ExportView, asks_with_both_kinds_and_does_nothing_when_that_is_given_up)
{
    show([&](screen::Form& form) {
        for (const auto& answer :
             {std::optional<screen::SaveChoice>(), std::optional(screen::SaveChoice{"", 2})}) {
            ports.dialogs.expectSave(answer);
            dialog.cmdExport.press();
            EXPECT_TRUE(form.Visible());
        }
        EXPECT_EQ(ports.dialogs.filters(),
                  std::vector<std::string>(2, "Archivos de MS Excel|*.xls|Archivos HTML|*.html"));
    });
    EXPECT_THAT(folder.names(), IsEmpty());
}

TEST_F(ExportView, writes_the_kind_that_was_chosen_whatever_the_name)
{
    prospects({prospect("Luz")});
    show([&](screen::Form& form) {
        ports.dialogs.expectSave(screen::SaveChoice{folder.file("a.xls"), 2});
        dialog.cmdExport.press();
        EXPECT_THAT(contentsOf(folder.file("a.xls")), StartsWith("<!DOCTYPE html>"));
        ports.dialogs.expectSave(screen::SaveChoice{folder.file("b.html"), 1});
        dialog.cmdExport.press();
        EXPECT_THAT(contentsOf(folder.file("b.html")), StartsWith("\xD0\xCF\x11\xE0"));
        ports.dialogs.expectSave(screen::SaveChoice{folder.file("sin extensión"), 7});
        dialog.cmdExport.press();
        EXPECT_THAT(contentsOf(folder.file("sin extensión")), StartsWith("\xD0\xCF\x11\xE0"));
        EXPECT_TRUE(form.Visible());
    });
    EXPECT_THAT(folder.names(), ElementsAre("a.xls", "b.html", "sin extensión"));
}

TEST_F(ExportView, writes_the_columns_in_their_order_and_the_rows_in_the_order_shown)
{
    prospects({prospect("Luz"), prospect("Ana")});
    show([&](screen::Form&) {
        dialog.dxGrid.clickHeader(0);
        ports.dialogs.expectSave(screen::SaveChoice{folder.file("a.html"), 2});
        dialog.cmdExport.press();
    });
    EXPECT_THAT(
        contentsOf(folder.file("a.html")),
        HasSubstr("<tr><th scope=\"col\">Nombre</th><th scope=\"col\">Empresa</th><th scope=\"col\">Correos</th>"
                  "<th scope=\"col\">Telefonos</th></tr>\n</thead>\n<tbody>\n"
                  "<tr><td>Ana</td><td>de Ana</td><td>Ana@x</td><td>961 Ana</td></tr>\n"
                  "<tr><td>Luz</td><td>de Luz</td><td>Luz@x</td><td>961 Luz</td></tr>\n</tbody>"));
}

TEST_F(ExportView, lets_the_cells_be_changed_and_writes_what_they_then_say)
{
    prospects({prospect("Luz"), prospect("Ana")});
    show([&](screen::Form&) {
        EXPECT_FALSE(dialog.dxGrid.ReadOnly());
        dialog.dxGrid.edit(0, 2, "otra@x");
        ports.dialogs.expectSave(screen::SaveChoice{folder.file("a.html"), 2});
        dialog.cmdExport.press();
    });
    EXPECT_THAT(contentsOf(folder.file("a.html")),
                HasSubstr("<tr><td>Luz</td><td>de Luz</td><td>otra@x</td><td>961 Luz</td></tr>\n"
                          "<tr><td>Ana</td>"));
    EXPECT_EQ(dialog.lblTotal.Caption(), "Total de Registros: 2");
}

TEST_F(ExportView, says_nothing_of_a_file_that_cannot_be_written_and_leaves_none)
{
    std::vector<std::vector<Cell>> many(2'000, prospect("Luz"));
    prospects(many);
    show([&](screen::Form& form) {
        for (const int kind : {1, 2}) {
            ports.dialogs.expectSave(screen::SaveChoice{folder.file("no/existe"), kind});
            dialog.cmdExport.press();
            const FullDisk disk(50'000);
            ports.dialogs.expectSave(screen::SaveChoice{folder.file("lleno"), kind});
            dialog.cmdExport.press();
            EXPECT_TRUE(form.Visible());
        }
    });
    EXPECT_THAT(folder.names(), IsEmpty());
    EXPECT_THAT(ports.dialogs.boxes(), IsEmpty());
}

TEST_F(ExportView, is_left_by_its_button)
{
    show([&](screen::Form& form) {
        dialog.cmdCerrar.press();
        EXPECT_FALSE(form.Visible());
    });
    EXPECT_TRUE(dialog.cmdCerrar.Cancel());
}

} // namespace
} // namespace dn::tests
