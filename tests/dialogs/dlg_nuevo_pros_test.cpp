// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The dialog that takes down a new prospect: its lists, what it requires, what it stores and what it learns.

#include "base/runtime_error.h"
#include "dialogs/dlg_nuevo_pros.h"
#include "tests/support/element_tree.h"
#include "tests/support/fake_connection.h"
#include "tests/support/fake_ports.h"

#include <gmock/gmock.h>

#include <algorithm>

namespace dn::tests {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

constexpr const char* interests = "SELECT uf_Interes FROM ut_InteresContacto;";
constexpr const char* origins = "SELECT uf_Origen FROM ut_OrigenContacto;";
constexpr const char* referrals = "SELECT uf_Referencia FROM ut_ReferenciaContacto;";

class NewProspect : public testing::Test {
protected:
    NewProspect()
    {
        cnn.on(interests).gives({"uf_Interes"}, {{text("Netoria")}, {text("Curso")}});
        cnn.on(origins).gives({"uf_Origen"}, {{text("Llamada")}});
        cnn.on(referrals).gives({"uf_Referencia"}, {{text("Un amigo")}});
        dialog.Motor = 1;
        dialog.pkEjecutivo = 7;
        dialog.Cnn = &cnn;
    }

    /// Shows the dialog; what the operator does in it ends with the dialog hidden.
    void show(const std::function<void()>& act)
    {
        ports.events.expectModal("dlgNuevoPros", [&](screen::Form&) {
            cnn.forgetStatements();
            act();
        });
        dialog.Show();
    }

    void fillIn() { fillIn(dialog); }

    static void fillIn(dialogs::dlgNuevoPros& dialog)
    {
        dialog.txtNombre.edit("María Ñúñez");
        dialog.txtTelefono.edit("961 111 1111");
        dialog.txtCorreo.edit("maria@example.com");
        dialog.txtEmpresa.edit("Acme");
        dialog.txtPuesto.edit("Compras");
        dialog.cEdo.pick("Jalisco");
        dialog.cCiudad.edit("Zapopan");
        dialog.cInteres.edit("Netoria");
        dialog.cObtencion.edit("Llamada");
        dialog.cReferencia.edit("Un amigo");
        dialog.cNotas.edit("llamar");
    }

    static std::string insert(const std::string& values)
    {
        return "INSERT INTO ut_icontact (Sys_TimeStamp, Sys_GUID, Sys_DTCreated, Sys_User, Sys_LastUser, "
               "Sys_Exported , Sys_DTExported , Sys_Info,uf_Nombre,uf_EMail,uf_Telefono,uf_Empresa,uf_Puesto, "
               "uf_Pais,uf_Estado,uf_Ciudad,uf_Interes,uf_Comentarios,uf_fecha,uf_iejecutivo,uf_status,uf_tipo,"
               "uf_color,uf_redirect) VALUES " +
               values;
    }

    FakeConnection cnn;
    FakePorts ports;
    dialogs::dlgNuevoPros dialog{ports.ports()};
};

TEST_F(NewProspect, reads_the_lists_ahead_of_the_first_sight_and_preselects_none)
{
    ports.events.expectModal("dlgNuevoPros", [&](screen::Form& form) {
        EXPECT_EQ(form.Caption(), "Nuevo prospecto");
        EXPECT_THAT(cnn.statements(), ElementsAre(interests, origins, referrals));
        EXPECT_THAT(entriesOf(dialog.cInteres), ElementsAre("Netoria", "Curso"));
        EXPECT_THAT(entriesOf(dialog.cObtencion), ElementsAre("Llamada"));
        EXPECT_THAT(entriesOf(dialog.cReferencia), ElementsAre("Un amigo"));
        for (const screen::ComboBox* combo : {&dialog.cInteres, &dialog.cObtencion, &dialog.cReferencia}) {
            EXPECT_TRUE(combo->editable());
            EXPECT_EQ(combo->ListIndex(), -1);
            EXPECT_EQ(combo->Text(), "");
        }
        for (const screen::TextBox* box : {&dialog.txtNombre, &dialog.txtTelefono, &dialog.txtCorreo,
                                           &dialog.txtEmpresa, &dialog.txtPuesto, &dialog.cCiudad, &dialog.cNotas})
            EXPECT_EQ(box->Text(), "");
        EXPECT_EQ(dialog.chk1.Value(), 0);
        EXPECT_TRUE(dialog.cNotas.MultiLine());
        EXPECT_TRUE(dialog.cNotas.ScrollBars());
        EXPECT_EQ(dialog.cmdOk.Caption(), "&Aceptar");
        EXPECT_EQ(dialog.cmdCancel.Caption(), "&Cancelar");
        dialog.cmdCancel.press();
    });
    dialog.Show();
}

TEST_F(NewProspect, has_each_field_beside_its_label_in_the_order_of_the_key_tab)
{
    show([&] {
        EXPECT_THAT(inTabOrder(*dialog.txtNombre.parent()),
                    ElementsAre("Nombre:", "txtNombre", "Teléfono:", "txtTelefono",
                                "Correo electrónico:", "txtCorreo", "Empresa:", "txtEmpresa",
                                "Puesto:", "txtPuesto", "País:", "cPais", "Estado:", "cEdo", "Ciudad:", "cCiudad",
                                "Interes:", "cInteres", "chk1", "Forma de obtención:", "cObtencion",
                                "¿Cómo se enteró?", "cReferencia", "Notas:", "cNotas", "cmdOk", "cmdCancel"));
        EXPECT_EQ(dialog.chk1.Caption(), "Es distribuidor");
        dialog.cmdCancel.press();
    });
}

TEST_F(NewProspect, offers_the_countries_with_mexico_twice_and_its_states)
{
    show([&] {
        EXPECT_THAT(entriesOf(dialog.cPais),
                    ElementsAre("México", "España", "Argentina", "Bolivia", "Brasil", "Chile", "Colombia",
                                "Costa Rica", "Cuba", "República Dominicana", "Ecuador", "El Salvador",
                                "Guadalupe", "Guatemala", "Guayana Francesa", "Haití", "Honduras", "Martinica",
                                "México", "Nicaragua", "Panamá", "Paraguay", "Perú", "Puerto Rico", "Uruguay",
                                "Venezuela", "- Otros paises -"));
        EXPECT_FALSE(dialog.cPais.editable());
        EXPECT_EQ(dialog.cPais.ListIndex(), 0);
        for (const int mexico : {0, 18}) {
            dialog.cPais.pick(1);
            EXPECT_THAT(entriesOf(dialog.cEdo), ElementsAre("<No aplica>"));
            EXPECT_EQ(dialog.cEdo.ListIndex(), 0);
            dialog.cPais.pick(mexico);
            EXPECT_THAT(entriesOf(dialog.cEdo),
                        ElementsAre("Distrito federal", "Aguascalientes", "Baja California Norte",
                                    "Baja California Sur", "Campeche", "Chiapas", "Chihuahua", "Coahuila",
                                    "Colima", "Durango", "Guanajuato", "Guerrero", "Hidalgo", "Jalisco", "México",
                                    "Michoacán de Ocampo", "Morelos", "Nayarit", "Nuevo León", "Oaxaca", "Puebla",
                                    "Querétaro", "Quintana Roo", "San Luis Potosí", "Sinaloa", "Sonora", "Tabasco",
                                    "Tamaulipas", "Tlaxcala", "Veracruz", "Yucatán", "Zacatecas"));
            EXPECT_FALSE(dialog.cEdo.editable());
            EXPECT_EQ(dialog.cEdo.ListIndex(), -1) << "the operator must pick one";
        }
        dialog.cmdCancel.press();
    });
}

TEST_F(NewProspect, stores_and_learns_on_mysql)
{
    dialog.Aceptado = false;
    show([&] {
        fillIn();
        dialog.cmdOk.press();
    });
    EXPECT_TRUE(dialog.Aceptado);
    EXPECT_THAT(cnn.statements(),
                ElementsAre(insert("(NOW(), REPLACE(UUID(),'-',''), NOW(), '@', '@', 0, NOW(), '@', "
                                   "'María Ñúñez', 'maria@example.com', '961 111 1111', 'Acme', 'Compras', 'MX', "
                                   "'Jalisco', 'Zapopan', 'Netoria', 'Obtenido: Llamada\\r\\nReferencia: Un "
                                   "amigo\\r\\nllamar ', DATE(NOW()), 7, 0, 1, 0, 'URL_Directo')"),
                            "CALL AddReferenciaContacto ('Un amigo');", "CALL AddOrigenContacto ('Llamada');",
                            "CALL AddInteresContacto ('Netoria');"));
}

TEST_F(NewProspect, stores_two_letters_for_either_mexico_and_the_name_of_any_other_country)
{
    for (const auto& [country, stored] :
         std::vector<std::pair<int, std::string>>{{0, "'MX', 'Jalisco'"},
                                                  {18, "'MX', 'Jalisco'"},
                                                  {17, "'Martinica', '<No aplica>'"},
                                                  {19, "'Nicaragua', '<No aplica>'"},
                                                  {26, "'- Otros paises -', '<No aplica>'"}}) {
        dialogs::dlgNuevoPros other(ports.ports());
        other.Motor = 1;
        other.Cnn = &cnn;
        ports.events.expectModal("dlgNuevoPros", [&, at = country](screen::Form&) {
            cnn.forgetStatements();
            fillIn(other);
            other.cPais.pick(at);
            if (at == 0 || at == 18) other.cEdo.pick("Jalisco");
            other.cmdOk.press();
        });
        other.Show();
        EXPECT_THAT(cnn.statements().front(), HasSubstr("'Compras', " + stored + ", 'Zapopan', ")) << country;
    }
}

TEST_F(NewProspect, stores_and_learns_on_sql_server_and_on_an_engine_that_nobody_found)
{
    for (const std::int16_t motor : {std::int16_t{2}, std::int16_t{0}}) {
        dialogs::dlgNuevoPros other(ports.ports());
        other.Motor = motor;
        other.Cnn = &cnn;
        ports.events.expectModal("dlgNuevoPros", [&](screen::Form&) {
            cnn.forgetStatements();
            other.txtNombre.edit("Juana de Asbaje");
            other.txtTelefono.edit("0123456789");
            other.txtCorreo.edit("a@b.c");
            other.cPais.pick("- Otros paises -");
            other.cCiudad.edit("X");
            other.cInteres.edit("i");
            other.cObtencion.edit("o");
            other.cReferencia.edit("r");
            other.cmdOk.press();
        });
        other.Show();
        EXPECT_TRUE(other.Aceptado);
        EXPECT_THAT(
            cnn.statements(),
            ElementsAre(insert("(GETDATE(), REPLACE(NEWID(),'-',''), GETDATE(), '@', '@', 0, GETDATE(), '@', "
                               "'Juana de Asbaje', 'a@b.c', '0123456789', '', '', '- Otros paises -', "
                               "'<No aplica>', 'X', 'i', 'Obtenido: o\\r\\nReferencia: r\\r\\n ', "
                               "CAST(GETDATE() AS DATE), NULL, 0, 1, 0, 'URL_Directo')"),
                        "EXEC AddReferenciaContacto 'r';", "EXEC AddOrigenContacto 'o';",
                        "EXEC AddInteresContacto 'i';"));
    }
}

// ---- What is required

struct Requirement {
    std::function<void(dialogs::dlgNuevoPros&)> spoil;
    const char* message;
    const char* focus;
};

TEST_F(NewProspect, requires_in_this_order_and_goes_to_what_is_missing)
{
    const std::vector<Requirement> requirements{
        {[](auto& it) { it.txtNombre.edit("  José "); }, "Indique el nombre completo", "txtNombre"},
        {[](auto& it) { it.txtTelefono.edit(" 123456789 "); }, "Indique el teléfono con clave LADA",
         "txtTelefono"},
        {[](auto& it) { it.txtCorreo.edit("sin arroba"); }, "Indique una dirección de correo electrónico",
         "txtCorreo"},
        {[](auto& it) { it.cEdo.ListIndex(-1); }, "Indique el estado o provincia", "cEdo"},
        {[](auto& it) { it.cCiudad.edit("  "); }, "Indique la ciudad", "cCiudad"},
        {[](auto& it) { it.cInteres.edit(" "); }, "Indique el interés del prospecto", "cInteres"},
        {[](auto& it) { it.cObtencion.edit(""); }, "Indique la manera como obtuvo los datos del prospecto",
         "cObtencion"},
        {[](auto& it) { it.cReferencia.edit("   "); },
         "Indique el medio por el que el prospecto se enteró de nosotros", "cReferencia"}};
    show([&] {
        for (std::size_t first = 0; first < requirements.size(); ++first) {
            fillIn();
            // Whatever is missing behind it is told later.
            for (std::size_t i = requirements.size(); i-- > first;)
                requirements[i].spoil(dialog);
            ports.dialogs.expectBox(requirements[first].message);
            dialog.cmdOk.press();
            const screen::MessageBox& box = ports.dialogs.boxes().back();
            EXPECT_EQ(box.buttons, screen::MessageBox::Buttons::ok);
            EXPECT_EQ(box.icon, screen::MessageBox::Icon::none);
            EXPECT_EQ(box.title, "");
            EXPECT_TRUE(elementNamed(*dialog.txtNombre.parent(), requirements[first].focus).hasFocus());
            EXPECT_TRUE(dialog.txtNombre.parent()->Visible());
        }
        EXPECT_THAT(cnn.statements(), IsEmpty());
        EXPECT_FALSE(dialog.Aceptado);
        EXPECT_EQ(dialog.txtPuesto.Text(), "Compras") << "what was typed stays";
        dialog.cmdCancel.press();
    });
}

struct Attempt {
    screen::TextBox dialogs::dlgNuevoPros::*box;
    const char* typed;
    const char* told;
};

TEST_F(NewProspect, counts_characters_without_the_blanks_at_the_ends)
{
    using Form = dialogs::dlgNuevoPros;
    const char* const name = "Indique el nombre completo";
    const char* const telephone = "Indique el teléfono con clave LADA";
    const char* const mail = "Indique una dirección de correo electrónico";
    const char* const next = "Indique la ciudad"; // the box passes
    const Attempt attempts[]{{&Form::txtNombre, "Íñig", name},
                             {&Form::txtNombre, "Íñigo", next},
                             {&Form::txtNombre, "     ", name},
                             {&Form::txtNombre, "\tIñi\t", next},
                             {&Form::txtTelefono, "123456789", telephone},
                             {&Form::txtTelefono, "          ", telephone},
                             {&Form::txtTelefono, "diez letra", next},
                             {&Form::txtCorreo, "a@b", mail},
                             {&Form::txtCorreo, "a@b.c", next},
                             {&Form::txtCorreo, " a@b ", mail},
                             {&Form::txtCorreo, "abcdef", mail},
                             {&Form::txtCorreo, "@@@@@", next}};
    show([&] {
        for (const Attempt& attempt : attempts) {
            fillIn();
            (dialog.*attempt.box).edit(attempt.typed);
            dialog.cCiudad.edit("");
            ports.dialogs.expectBox(attempt.told);
            dialog.cmdOk.press();
        }
        dialog.cmdCancel.press();
    });
}

TEST_F(NewProspect, keeps_the_blanks_at_the_ends_of_a_text)
{
    show([&] {
        fillIn();
        dialog.txtNombre.edit("  María  ");
        dialog.cInteres.edit(" Netoria ");
        dialog.cmdOk.press();
    });
    EXPECT_THAT(cnn.statements().front(), HasSubstr("'@', '  María  ', "));
    EXPECT_THAT(cnn.statements().front(), HasSubstr(", ' Netoria ', "));
    EXPECT_EQ(cnn.statements().back(), "CALL AddInteresContacto (' Netoria ');");
}

TEST_F(NewProspect, does_not_care_whether_he_is_a_dealer)
{
    show([&] {
        fillIn();
        dialog.chk1.toggle();
        dialog.cmdOk.press();
    });
    const std::vector<std::string> ofDealer = cnn.statements();
    cnn.forgetStatements();
    dialogs::dlgNuevoPros other(ports.ports());
    other.Motor = dialog.Motor;
    other.pkEjecutivo = dialog.pkEjecutivo;
    other.Cnn = &cnn;
    ports.events.expectModal("dlgNuevoPros", [&](screen::Form&) {
        cnn.forgetStatements();
        fillIn(other);
        other.cmdOk.press();
    });
    other.Show();
    EXPECT_EQ(cnn.statements(), ofDealer);
}

TEST_F(NewProspect, writes_the_line_ends_of_the_notes_as_four_characters)
{
    show([&] {
        fillIn();
        dialog.cNotas.edit("uno\r\ndos\n tres\r\n");
        dialog.cmdOk.press();
    });
    EXPECT_THAT(cnn.statements().front(), HasSubstr("Un amigo\\r\\nuno\\r\\ndos\n tres\\r\\n ', DATE"));
}

TEST_F(NewProspect, without_an_agent_belongs_to_nobody)
{
    dialog.pkEjecutivo = 0;
    show([&] {
        fillIn();
        dialog.cmdOk.press();
    });
    EXPECT_THAT(cnn.statements().front(), HasSubstr("DATE(NOW()), NULL, 0, 1, 0, "));
}

TEST_F(NewProspect, with_an_apostrophe_loses_it_and_the_learning_call_keeps_it)
{
    cnn.onContaining("CALL AddInteresContacto").fails("You have an error in your SQL syntax", "42000", 1064);
    show([&] {
        fillIn();
        dialog.txtNombre.edit("Juana d'Arc");
        dialog.cInteres.edit("L'Oréal");
        ports.dialogs.expectBox("Error: You have an error in your SQL syntax");
        dialog.cmdOk.press();
    });
    EXPECT_TRUE(dialog.Aceptado);
    EXPECT_THAT(cnn.statements().front(), HasSubstr("'Juana dArc'"));
    EXPECT_THAT(cnn.statements().front(), HasSubstr("'LOréal'"));
    EXPECT_EQ(cnn.statements().back(), "CALL AddInteresContacto ('L'Oréal');");
}

TEST_F(NewProspect, a_name_that_holds_a_marker_takes_its_value_in)
{
    show([&] {
        fillIn();
        dialog.txtNombre.edit("soy @uf_EMail");
        dialog.txtPuesto.edit("@uf_Nombre");
        dialog.cmdOk.press();
    });
    EXPECT_THAT(cnn.statements().front(),
                HasSubstr("'soy 'maria@example.com'', 'maria@example.com', '961 111 1111', 'Acme', '@uf_Nombre'"));
}

TEST_F(NewProspect, fills_the_markers_in_the_order_of_the_columns)
{
    show([&] {
        fillIn();
        // Each text holds the marker of the column behind its own: none of them is left over.
        dialog.txtNombre.edit("nom @uf_EMail");
        dialog.txtCorreo.edit("a @uf_Telefono");
        dialog.txtTelefono.edit("tel @uf_Empresa");
        dialog.txtEmpresa.edit("@uf_Puesto");
        dialog.txtPuesto.edit("@uf_Pais @uf_Estado");
        dialog.cCiudad.edit("@uf_Interes");
        dialog.cInteres.edit("@uf_Comentarios");
        dialog.cNotas.edit("@uf_iejecutivo @uf_status @uf_tipo @uf_color @uf_redirect");
        dialog.cmdOk.press();
    });
    EXPECT_THAT(cnn.statements().front(), testing::Not(HasSubstr("@uf_")));
    EXPECT_THAT(cnn.statements().front(), HasSubstr("7 0 1 0 'URL_Directo'"));
}

// ---- Failures

TEST_F(NewProspect, that_the_database_refuses_stays_on_the_screen)
{
    show([&] {
        fillIn();
        cnn.onContaining("INSERT").fails("Table is read only", "HY000", 1036).once();
        ports.dialogs.expectBox("Table is read only");
        dialog.cmdOk.press();
        EXPECT_EQ(ports.dialogs.boxes().back().icon, screen::MessageBox::Icon::none);
        EXPECT_EQ(ports.dialogs.boxes().back().title, "");
        EXPECT_EQ(cnn.statements().size(), 1U) << "nothing is learnt";
        EXPECT_FALSE(dialog.Aceptado);
        EXPECT_TRUE(dialog.txtNombre.parent()->Visible());
        EXPECT_EQ(dialog.txtNombre.Text(), "María Ñúñez");
        EXPECT_EQ(dialog.cEdo.Text(), "Jalisco");
        EXPECT_EQ(dialog.cNotas.Text(), "llamar");
        dialog.cmdOk.press(); // once more
    });
    EXPECT_TRUE(dialog.Aceptado);
    EXPECT_EQ(cnn.statements().size(), 5U);
}

TEST_F(NewProspect, goes_on_when_the_database_does_not_learn)
{
    show([&] {
        fillIn();
        for (const std::size_t call : {2U, 3U, 4U})
            cnn.failAt(call, "no existe " + std::to_string(call));
        ports.dialogs.expectBox("Error: no existe 2");
        ports.dialogs.expectBox("Error: no existe 3");
        ports.dialogs.expectBox("Error: no existe 4");
        dialog.cmdOk.press();
    });
    EXPECT_TRUE(dialog.Aceptado);
    EXPECT_EQ(cnn.statements().size(), 4U);
}

TEST_F(NewProspect, is_not_shown_when_a_list_cannot_be_read)
{
    for (std::size_t list = 1; list <= 3; ++list) {
        dialogs::dlgNuevoPros other(ports.ports());
        other.Cnn = &cnn;
        cnn.failAt(list, "sin lista");
        EXPECT_THROW(other.Show(), data::Error); // a window would be one that nobody scripted
    }
    cnn.on(origins).gives({"uf_Origen"}, {{null}});
    EXPECT_THROW(dialog.Show(), RuntimeError);
}

TEST_F(NewProspect, shows_an_empty_list_when_a_statement_gives_no_rows)
{
    for (const char* statement : {interests, origins, referrals})
        cnn.on(statement).givesNothing();
    show([&] {
        EXPECT_EQ(dialog.cInteres.ListCount() + dialog.cObtencion.ListCount() + dialog.cReferencia.ListCount(), 0);
        dialog.cmdCancel.press();
    });
}

TEST_F(NewProspect, without_a_connection_is_not_shown)
{
    dialog.Cnn = nullptr;
    EXPECT_THROW(dialog.Show(), RuntimeError);
}

TEST_F(NewProspect, cancelled_stores_nothing)
{
    dialog.Aceptado = true;
    show([&] {
        fillIn();
        dialog.cmdCancel.press();
    });
    EXPECT_FALSE(dialog.Aceptado);
    EXPECT_THAT(cnn.statements(), IsEmpty());
}

} // namespace
} // namespace dn::tests
