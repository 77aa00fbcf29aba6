// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The filters of the mail lists: what they offer, what they send, and what becomes of each failure.

#include "base/runtime_error.h"
#include "dialogs/dlg_filtro.h"
#include "tests/support/element_tree.h"
#include "tests/support/fake_connection.h"
#include "tests/support/fake_ports.h"

#include <gmock/gmock.h>

#include <functional>
#include <limits>

namespace dn::tests {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

const char* const executives = "Select Sys_PK, Nombre From Ejecutivo ORDER BY Nombre";
const char* const goals =
    "Select Sys_pk, Descripcion FROM Meta WHERE Descripcion NOT LIKE '~%' AND Descripcion NOT "
    "LIKE 'Otro%' Order By Descripcion;";
const char* const barePros = "Select uf_Email, uf_Nombre, uf_Telefono, uf_Empresa FROM ut_icontact";

std::vector<std::string> options(screen::eOptionLstField& field)
{
    std::vector<std::string> entries;
    for (int i = 0; i < field.OptionCount(); ++i)
        entries.push_back(std::to_string(field.InnerList().ItemData(i)) + " " + field.InnerList().List(i));
    return entries;
}

class ExportFilter : public testing::Test {
protected:
    ExportFilter()
    {
        cnn.on(executives).gives({"Sys_PK", "Nombre"}, {{whole(9), text("Beto")}, {whole(7), text("Ana")}});
        cnn.on(goals).gives({"Sys_pk", "Descripcion"}, {{whole(4), text("Venta")}});
        cnn.onContaining("FROM ut_icontact")
            .gives({"uf_Email", "uf_Nombre", "uf_Telefono", "uf_Empresa"},
                   {{text("luz@x"), text("Luz"), text("961"), text("Acme")}});
        cnn.onContaining("FROM (Proyecto")
            .gives({"Tel1", "Empresa", "EmailOrg", "EmailPersona", "Tel2", "Nombre"},
                   {{text("55"), text("Sol"), text("sol@x"), null, null, text("Rosa")}});
        dialog.Cnn = &cnn;
        dialog.Motor = 1;
    }

    void show(const std::function<void(screen::Form&)>& act)
    {
        ports.events.expectModal("dlgFiltro", [&](screen::Form& form) {
            loading = cnn.statements();
            cnn.forgetStatements();
            act(form);
            if (form.Visible()) dialog.cmdCancel.press();
        });
        dialog.Show();
    }

    /// Presses "Exportar", sees the total of the lists and closes them.
    std::string exported()
    {
        std::string total;
        ports.events.expectModal("dlgShow", [&](screen::Form& form) {
            total = elementNamed<screen::Label>(form, "lblTotal").Caption();
            elementNamed<screen::Button>(form, "cmdCerrar").press();
        });
        dialog.cmdExportar.press();
        return total;
    }

    FakeConnection cnn;
    FakePorts ports;
    std::vector<std::string> loading;
    dialogs::dlgFiltro dialog{ports.ports()};
};

TEST_F(ExportFilter, opens_on_filters_that_filter_nothing)
{
    show([&](screen::Form& form) {
        EXPECT_EQ(form.Caption(), "Exportar listas de correo");
        EXPECT_THAT(loading, ElementsAre(executives, goals));
        EXPECT_THAT(options(dialog.dxEjecutivo), ElementsAre("0 Todas los ejecutivos", "9 Beto", "7 Ana"));
        EXPECT_THAT(options(dialog.dxStatus),
                    ElementsAre("0 Todos los status", "1 Descartado", "2 Sin interes", "3 Oportunidad"));
        EXPECT_THAT(options(dialog.dxMeta), ElementsAre("0 Todas las metas", "4 Venta"));
        EXPECT_THAT(options(dialog.dxColor),
                    ElementsAre("99 Todos los Colores", "0 Negro", "1 Rojo", "2 Verde", "3 Azul", "4 Morado"));
        EXPECT_THAT(options(dialog.dxEstado), ElementsAre("0 Todos los estados", "1 Congelado", "2 Frio",
                                                          "3 Tibio", "4 Caliente", "5 Cerrado", "6 Perdido"));
        for (screen::eOptionLstField* field :
             {&dialog.dxEjecutivo, &dialog.dxStatus, &dialog.dxMeta, &dialog.dxColor, &dialog.dxEstado})
            EXPECT_EQ(field->InnerList().ListIndex(), 0) << field->name();
        for (const screen::CheckBox* box :
             {&dialog.chkContactos, &dialog.chkProyectos, &dialog.chkStatus, &dialog.chkMeta, &dialog.chkColor,
              &dialog.chkEstado, &dialog.cCerrado, &dialog.cPerdidos})
            EXPECT_EQ(box->Value(), 0) << box->name();
    });
}

TEST_F(ExportFilter, says_what_everything_is)
{
    EXPECT_THAT((std::vector{dialog.label1.Caption(), dialog.Label.Caption(), dialog.Label2.Caption(),
                             dialog.Label4.Caption()}),
                ElementsAre("Incluir:", "Filtros:", "Contactos:", "Proyectos"));
    EXPECT_THAT((std::vector{dialog.dxEjecutivo.caption(), dialog.dxStatus.caption(), dialog.dxMeta.caption(),
                             dialog.dxColor.caption(), dialog.dxEstado.caption()}),
                ElementsAre("Ejecutivo:", "Status:", "Meta:", "Color:", "Estado:"));
    EXPECT_THAT((std::vector{dialog.chkContactos.Caption(), dialog.chkProyectos.Caption(),
                             dialog.cCerrado.Caption(), dialog.cPerdidos.Caption()}),
                ElementsAre("Contactos", "Proyectos", "Excepto cerrados", "Excepto perdidos"));
    for (const screen::CheckBox* box : {&dialog.chkStatus, &dialog.chkMeta, &dialog.chkColor, &dialog.chkEstado})
        EXPECT_EQ(box->Caption(), "Excepto");
    EXPECT_EQ(dialog.cmdExportar.Caption(), "&Exportar");
    EXPECT_EQ(dialog.cmdCancel.Caption(), "Cerrar");
}

TEST_F(ExportFilter, asks_for_a_list_to_include_and_stays)
{
    show([&](screen::Form& form) {
        ports.dialogs.expectBox("Seleccion cuando menos un elemento a incluir");
        dialog.cmdExportar.press();
        EXPECT_TRUE(form.Visible());
        EXPECT_THAT(cnn.statements(), IsEmpty());
    });
}

TEST_F(ExportFilter, reads_the_lists_that_are_marked_prospects_first)
{
    show([&](screen::Form&) {
        dialog.chkProyectos.toggle();
        EXPECT_EQ(exported(), "Total de Registros: 1");
        EXPECT_THAT(cnn.statements(), ElementsAre(StartsWith("SELECT Proyecto.IEjecutivo")));
        dialog.chkContactos.toggle();
        cnn.forgetStatements();
        EXPECT_EQ(exported(), "Total de Registros: 2");
        EXPECT_THAT(
            cnn.statements(),
            ElementsAre(barePros, testing::AllOf(StartsWith("SELECT Proyecto.IEjecutivo"),
                                                 testing::EndsWith("Proyecto.IContacto = Persona.Sys_PK"))));
        dialog.chkProyectos.toggle();
        cnn.forgetStatements();
        EXPECT_EQ(exported(), "Total de Registros: 1");
        EXPECT_THAT(cnn.statements(), ElementsAre(barePros));
    });
}

TEST_F(ExportFilter, sends_every_choice_and_keeps_it_for_a_further_export)
{
    show([&](screen::Form& form) {
        for (screen::CheckBox* box :
             {&dialog.chkContactos, &dialog.chkProyectos, &dialog.chkStatus, &dialog.chkMeta, &dialog.chkColor,
              &dialog.chkEstado, &dialog.cCerrado, &dialog.cPerdidos})
            box->toggle();
        dialog.dxEjecutivo.InnerList().pick("Ana");
        dialog.dxStatus.InnerList().pick("Sin interes");
        dialog.dxMeta.InnerList().pick("Venta");
        dialog.dxColor.InnerList().pick("Negro");
        dialog.dxEstado.InnerList().pick("Tibio");
        for (int i = 0; i < 2; ++i) {
            exported();
            EXPECT_THAT(cnn.statements(),
                        ElementsAre(barePros + std::string(" WHERE uf_iEjecutivo=7 AND  uf_Status<>2"),
                                    testing::EndsWith("Persona.Sys_PK WHERE Proyecto.IEjecutivo=7 AND  "
                                                      "Proyecto.IMeta<>4 AND  Proyecto.uf_color<>0 AND  "
                                                      "Proyecto.uf_status1<>3 AND  Proyecto.uf_status1<>5 AND  "
                                                      "Proyecto.uf_status1<>6")));
            cnn.forgetStatements();
            EXPECT_TRUE(form.Visible());
        }
        EXPECT_EQ(dialog.dxMeta.SelectedKey(), 4);
    });
}

TEST_F(ExportFilter, takes_any_other_engine_for_sql_server)
{
    for (const int engine : {0, 2, 3}) {
        dialog.Motor = static_cast<std::int16_t>(engine);
        show([&](screen::Form&) {
            dialog.chkProyectos.Value(1);
            exported();
            EXPECT_THAT(cnn.statements(),
                        ElementsAre(HasSubstr("ISNULL(Persona.Apellido2), ''))  as Nombre FROM")));
        });
        for (screen::eOptionLstField* field :
             {&dialog.dxEjecutivo, &dialog.dxStatus, &dialog.dxMeta, &dialog.dxColor, &dialog.dxEstado})
            field->InnerList().Clear();
    }
}

// A list is filtered by its own filters alone: one of the other's without a selection does not keep it back.
TEST_F(ExportFilter, asks_only_the_filters_of_the_lists_that_are_marked)
{
    show([&](screen::Form&) {
        for (screen::eOptionLstField* field : {&dialog.dxMeta, &dialog.dxColor, &dialog.dxEstado})
            field->InnerList().ListIndex(-1);
        dialog.chkContactos.toggle();
        EXPECT_EQ(exported(), "Total de Registros: 1");
        dialog.chkProyectos.toggle();
        cnn.forgetStatements();
        EXPECT_THROW(dialog.cmdExportar.press(), RuntimeError);
        EXPECT_THAT(cnn.statements(), IsEmpty()) << "both statements are built ahead of the first one's run";
        for (screen::eOptionLstField* field : {&dialog.dxMeta, &dialog.dxColor, &dialog.dxEstado})
            field->InnerList().ListIndex(0);
        dialog.dxStatus.InnerList().ListIndex(-1);
        dialog.chkContactos.toggle();
        EXPECT_EQ(exported(), "Total de Registros: 1");
    });
}

TEST_F(ExportFilter, on_sql_server_reads_the_prospects_ahead_of_the_list_that_fails)
{
    dialog.Motor = 2;
    cnn.onContaining("FROM (Proyecto").fails("Incorrect syntax near ')'.");
    show([&](screen::Form&) {
        dialog.chkContactos.toggle();
        dialog.chkProyectos.toggle();
        EXPECT_THROW(dialog.cmdExportar.press(), data::Error);
        EXPECT_THAT(cnn.statements(), ElementsAre(barePros, StartsWith("SELECT Proyecto")));
        dialog.chkProyectos.toggle();
        EXPECT_EQ(exported(), "Total de Registros: 1");
    });
}

TEST_F(ExportFilter, hands_a_failed_list_on_and_shows_none)
{
    show([&](screen::Form& form) {
        dialog.chkContactos.toggle();
        dialog.chkProyectos.toggle();
        for (const std::size_t failing : {1U, 2U}) {
            cnn.failAt(failing, "Incorrect syntax near ')'.");
            EXPECT_THROW(dialog.cmdExportar.press(), data::Error);
            EXPECT_TRUE(form.Visible());
        }
        EXPECT_THAT(cnn.statements(), ElementsAre(barePros, barePros, StartsWith("SELECT Proyecto")));
        dialog.Cnn = nullptr;
        EXPECT_THROW(dialog.cmdExportar.press(), RuntimeError);
        dialog.Cnn = &cnn;
        EXPECT_EQ(exported(), "Total de Registros: 2");
    });
}

TEST_F(ExportFilter, shows_a_statement_without_rows_as_an_empty_list)
{
    cnn.onContaining("FROM ut_icontact").givesNothing();
    show([&](screen::Form&) {
        dialog.chkContactos.toggle();
        EXPECT_EQ(exported(), "Total de Registros: 0");
    });
}

TEST_F(ExportFilter, passes_over_lists_that_cannot_be_shown)
{
    show([&](screen::Form& form) {
        dialog.chkContactos.toggle();
        ports.events.expectModal("dlgShow", [](screen::Form& lists) {
            lists.Hide();
            throw std::runtime_error("sin ventana");
        });
        dialog.cmdExportar.press();
        EXPECT_TRUE(form.Visible());
    });
}

TEST_F(ExportFilter, loads_what_can_be_read)
{
    cnn.on(executives).fails("sin ejecutivos").once();
    cnn.on(goals).gives({"Sys_pk", "Descripcion"}, {{whole(4), null},
                                                    {whole(5), text("Renta")},
                                                    {whole(3'000'000'000), text("Mucho")},
                                                    {whole(6), text("Venta")}});
    show([&](screen::Form&) {
        EXPECT_THAT(options(dialog.dxEjecutivo), ElementsAre("0 Todas los ejecutivos"));
        EXPECT_THAT(options(dialog.dxMeta), ElementsAre("0 Todas las metas", "5 Renta", "6 Venta"));
        EXPECT_EQ(dialog.dxEjecutivo.InnerList().ListIndex(), 0);
        EXPECT_EQ(dialog.dxEstado.OptionCount(), 7);
    });
}

TEST_F(ExportFilter, loads_the_rest_behind_a_second_statement_that_fails)
{
    cnn.failAt(2);
    show([&](screen::Form&) {
        EXPECT_EQ(dialog.dxEjecutivo.OptionCount(), 3);
        EXPECT_EQ(dialog.dxMeta.OptionCount(), 1);
        EXPECT_EQ(dialog.dxEstado.InnerList().ListIndex(), 0);
    });
}

TEST_F(ExportFilter, ends_a_list_that_the_server_breaks_off)
{
    cnn.on(executives)
        .gives({.names = {"Sys_PK", "Nombre"},
                .rows = {{whole(9), text("Beto")}, {whole(7), text("Ana")}},
                .moveFailsAt = 1});
    show([&](screen::Form&) {
        EXPECT_THAT(options(dialog.dxEjecutivo), ElementsAre("0 Todas los ejecutivos", "9 Beto"));
    });
}

TEST_F(ExportFilter, without_a_connection_opens_all_the_same)
{
    dialog.Cnn = nullptr;
    show([&](screen::Form&) {
        EXPECT_EQ(dialog.dxEjecutivo.OptionCount(), 1);
        EXPECT_EQ(dialog.dxColor.OptionCount(), 6);
    });
}

TEST_F(ExportFilter, is_left_by_its_button_or_by_the_frame)
{
    show([&](screen::Form& form) {
        dialog.cmdCancel.press();
        EXPECT_FALSE(form.Visible());
    });
    EXPECT_TRUE(dialog.cmdCancel.Cancel());
    EXPECT_TRUE(dialog.cmdExportar.Default());
}

} // namespace
} // namespace dn::tests
