// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// A supervisor takes the mail lists of the month home, and hands the projects of one executive to another.

#include "screen/data_grid.h"
#include "screen/option_list_field.h"
#include "tests/stories/with_projects.h"
#include "tests/support/element_tree.h"
#include "tests/support/table_files.h"

#include <functional>

namespace dn::tests {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class Exporting : public WithProjects<Operator> {
protected:
    /// In the dialog of the filters.
    void filters(const std::function<void(screen::Form&)>& act)
    {
        ports.events.expectModal("dlgFiltro", [act](screen::Form& form) {
            act(form);
            elementNamed<screen::Button>(form, "cmdCancel").press();
        });
        control.ExportarListas();
    }

    static void marks(screen::Form& form, const std::string& box)
    {
        elementNamed<screen::CheckBox>(form, box).toggle();
    }

    static void chooses(screen::Form& form, const std::string& field, const std::string& entry)
    {
        elementNamed<screen::ComboBox>(form, field + ".InnerList").pick(std::string_view(entry));
    }

    /// Presses "Exportar" and gives the rows of the list that comes, cells joined by bars, the total last.
    std::vector<std::string> exports(screen::Form& form, const std::function<void(screen::Form&)>& act = {})
    {
        std::vector<std::string> seen;
        ports.events.expectModal("dlgShow", [&](screen::Form& lists) {
            auto& grid = elementNamed<screen::DataGrid>(lists, "dxGrid");
            for (int i = 1; i <= grid.ListItems().Count(); ++i) {
                const screen::ListItem row = grid.ListItems()(i);
                std::string cells(row.Text());
                for (int n = 1; n <= row.ListSubItems().Count(); ++n)
                    cells += "|" + std::string(row.ListSubItems()(n).Text());
                seen.push_back(cells);
            }
            seen.push_back(elementNamed<screen::Label>(lists, "lblTotal").Caption());
            if (act) act(lists);
            elementNamed<screen::Button>(lists, "cmdCerrar").press();
        });
        elementNamed<screen::Button>(form, "cmdExportar").press();
        return seen;
    }

    /// SQL Server refuses the list of the projects, and no lists come.
    static void isRefusedTheExport(screen::Form& form)
    {
        try {
            elementNamed<screen::Button>(form, "cmdExportar").press();
            ADD_FAILURE() << "the list was not refused";
        } catch (const data::Error& refusal) {
            EXPECT_THAT(refusal.nativeCode(), testing::AnyOf(102, 174)); // a parenthesis, or an argument too few
        }
        EXPECT_TRUE(form.Visible());
    }

    OutputFolder folder;
};

TEST_F(Exporting, both_lists_come_in_one_and_go_into_files)
{
    prospect("José Ñúñez",
             {{"uf_Email", "'josé@example.com'"}, {"uf_Telefono", "'961'"}, {"uf_Empresa", "'<Acme>'"}});
    project(1, 1);
    project(2, 2);
    entersAsAdministrator();
    filters([&](screen::Form& form) {
        marks(form, "chkContactos");
        marks(form, "chkProyectos");
        if (onSqlServer()) return isRefusedTheExport(form);
        const auto lists = exports(form, [&](screen::Form& shown) {
            ports.dialogs.expectSave(screen::SaveChoice{folder.file("correos.html"), 2});
            elementNamed<screen::Button>(shown, "cmdExport").press();
            ports.dialogs.expectSave(screen::SaveChoice{folder.file("correos.xls"), 1});
            elementNamed<screen::Button>(shown, "cmdExport").press();
        });
        EXPECT_THAT(lists, ElementsAre("José Ñúñez|<Acme>|josé@example.com|961",
                                       "Rosa Ñuño |Café «El Sol»|sol@example.com;rosa@example.com|55;961",
                                       "Gil  |Niebla||", "Total de Registros: 3"));
    });
    if (onSqlServer()) {
        EXPECT_THAT(folder.names(), IsEmpty());
        return;
    }
    EXPECT_THAT(
        contentsOf(folder.file("correos.html")),
        HasSubstr("<tr><td>José Ñúñez</td><td>&lt;Acme&gt;</td><td>josé@example.com</td><td>961</td></tr>"));
    EXPECT_THAT(folder.names(), ElementsAre("correos.html", "correos.xls"));
    EXPECT_THAT(changesSent(), IsEmpty());
}

TEST_F(Exporting, the_filters_say_who_is_in_the_list)
{
    prospect("Luz", {{"uf_Status", "3"}});
    prospect("Eva", {{"uf_Status", "1"}});
    prospect("Gil", {{"uf_Status", "3"}, {"uf_IEjecutivo", "9"}});
    entersAsAdministrator();
    filters([&](screen::Form& form) {
        marks(form, "chkContactos");
        chooses(form, "dxEjecutivo", "Ana");
        chooses(form, "dxStatus", "Oportunidad");
        EXPECT_THAT(exports(form), ElementsAre("Luz|||", "Total de Registros: 1"));
        marks(form, "chkStatus");
        EXPECT_THAT(exports(form), ElementsAre("Eva|||", "Total de Registros: 1"));
        chooses(form, "dxStatus", "Descartado");
        chooses(form, "dxEjecutivo", "Beto");
        EXPECT_THAT(exports(form), ElementsAre("Gil|||", "Total de Registros: 1"));
    });
}

TEST_F(Exporting, a_cell_is_put_right_for_the_file_and_for_nothing_else)
{
    prospect("Luz", {{"uf_Email", "'luz@example,com'"}});
    entersAsAdministrator();
    filters([&](screen::Form& form) {
        marks(form, "chkContactos");
        exports(form, [&](screen::Form& shown) {
            elementNamed<screen::DataGrid>(shown, "dxGrid").edit(0, 2, "luz@example.com");
            ports.dialogs.expectSave(screen::SaveChoice{folder.file("correos.html"), 2});
            elementNamed<screen::Button>(shown, "cmdExport").press();
        });
        EXPECT_THAT(exports(form), ElementsAre("Luz||luz@example,com|", "Total de Registros: 1"))
            << "a further export reads the database anew";
    });
    EXPECT_THAT(contentsOf(folder.file("correos.html")), HasSubstr("<td>luz@example.com</td>"));
    EXPECT_THAT(changesSent(), IsEmpty());
}

TEST_F(Exporting, a_list_that_the_server_refuses_is_an_error_and_opens_no_view)
{
    prospect("Luz");
    entersAsAdministrator();
    filters([&](screen::Form& form) {
        marks(form, "chkContactos");
        marks(form, "chkProyectos");
        cnn->refuses = [](std::string_view statement) {
            return statement.find("FROM (Proyecto") != statement.npos;
        };
        EXPECT_THROW(elementNamed<screen::Button>(form, "cmdExportar").press(), data::Error);
        cnn->refuses = {};
        EXPECT_TRUE(form.Visible());
        marks(form, "chkProyectos");
        EXPECT_THAT(exports(form), ElementsAre("Luz|||", "Total de Registros: 1"));
    });
}

TEST_F(Exporting, projects_are_chosen_by_goal_colour_and_state)
{
    project(1, 1, 5, 1);
    project(2, 2, 3, 0);
    entersAsAdministrator();
    filters([&](screen::Form& form) {
        auto& goals = elementNamed<screen::ComboBox>(form, "dxMeta.InnerList");
        std::vector<std::string> offered;
        for (int i = 0; i < goals.ListCount(); ++i)
            offered.push_back(goals.List(i));
        EXPECT_THAT(offered, ElementsAre("Todas las metas", "Renta", "Venta"));
        marks(form, "chkProyectos");
        if (onSqlServer()) return isRefusedTheExport(form);
        chooses(form, "dxColor", "Negro");
        EXPECT_THAT(exports(form), ElementsAre("Gil  |Niebla||", "Total de Registros: 1"));
        chooses(form, "dxColor", "Todos los Colores");
        marks(form, "cCerrado");
        EXPECT_THAT(exports(form), ElementsAre("Gil  |Niebla||", "Total de Registros: 1"));
        chooses(form, "dxEstado", "Cerrado");
        EXPECT_THAT(exports(form), ElementsAre("Total de Registros: 0"));
        marks(form, "cCerrado");
        marks(form, "chkEstado");
        chooses(form, "dxMeta", "Venta");
        EXPECT_THAT(exports(form), ElementsAre("Gil  |Niebla||", "Total de Registros: 1"));
        marks(form, "chkMeta");
        EXPECT_THAT(exports(form), ElementsAre("Total de Registros: 0"));
    });
}

TEST_F(Exporting, a_group_of_projects_changes_hands_in_one_statement)
{
    project(1, 1, 3, 1);
    project(2, 2, 3, 2);
    project(1, 2, 1, 1);
    entersAsAdministrator(ana);
    opensTab(desk::proyectos);
    changesSent();
    ports.events.expectModal("dlgTools", [&](screen::Form& form) {
        const auto picks = [&](const char* list, const char* entry) {
            elementNamed<screen::ComboBox>(form, list).pick(std::string_view(entry));
        };
        picks("cmdColor", "Rojo");
        picks("cmdEstado", "Tibios");
        picks("cmdEjecutivo", "Ana");
        picks("cmdDestino", "Beto");
        agreesTo("¿Seguro desea ejecutar este proceso (es irreversible)?");
        isTold("Proceso completado.");
        elementNamed<screen::Button>(form, "cmdCambiar").press();
        elementNamed<screen::Button>(form, "cmdCerrar").press();
    });
    presses("cmdNewProjTool");
    EXPECT_THAT(changesSent(),
                ElementsAre("UPDATE Proyecto SET IEjecutivo = 9  WHERE  uf_Color= 1  AND uf_Status1 = 3 "
                            "AND IEjecutivo = 7 "));
    EXPECT_THAT(inTheDatabase("SELECT IEjecutivo FROM Proyecto ORDER BY Sys_PK"), ElementsAre("9", "7", "7"));
}

TEST_F(Exporting, a_change_that_the_server_refuses_is_told_and_may_be_tried_again)
{
    project(1, 1);
    entersAsAdministrator(ana);
    opensTab(desk::proyectos);
    ports.events.expectModal("dlgTools", [&](screen::Form& form) {
        elementNamed<screen::ComboBox>(form, "cmdDestino").pick("Beto");
        cnn->refuses = [](std::string_view statement) { return statement.starts_with("UPDATE Proyecto"); };
        agreesTo("¿Seguro desea ejecutar este proceso (es irreversible)?");
        isTold("Lock wait timeout exceeded");
        elementNamed<screen::Button>(form, "cmdCambiar").press();
        cnn->refuses = {};
        EXPECT_EQ(ports.pointer.MousePointer(), screen::Pointer::hourglass);
        agreesTo("¿Seguro desea ejecutar este proceso (es irreversible)?");
        isTold("Proceso completado.");
        elementNamed<screen::Button>(form, "cmdCambiar").press();
        EXPECT_EQ(ports.pointer.MousePointer(), screen::Pointer::standard);
        form.closeWindow();
    });
    presses("cmdNewProjTool");
    EXPECT_THAT(inTheDatabase("SELECT IEjecutivo FROM Proyecto"), ElementsAre("9"));
}

TEST_F(Exporting, a_refused_change_leaves_every_project_where_it_was)
{
    project(1, 1);
    entersAsAdministrator(ana);
    opensTab(desk::proyectos);
    ports.events.expectModal("dlgTools", [&](screen::Form& form) {
        elementNamed<screen::ComboBox>(form, "cmdDestino").pick("Beto");
        refuses("¿Seguro desea ejecutar este proceso (es irreversible)?");
        elementNamed<screen::Button>(form, "cmdCambiar").press();
        form.closeWindow();
    });
    presses("cmdNewProjTool");
    EXPECT_THAT(inTheDatabase("SELECT IEjecutivo FROM Proyecto"), ElementsAre("7"));
}

} // namespace
} // namespace dn::tests
