// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// Somebody calls who is in no list yet: the operator types him in, and later corrects what he misheard.

#include "screen/list_box.h"
#include "tests/stories/missing_table.h"
#include "tests/stories/operator.h"
#include "tests/support/element_tree.h"

#include <cstdlib>

namespace dn::tests {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class EnteringProspects : public Operator {
protected:
    EnteringProspects()
    {
        for (const char* table : {"ut_InteresContacto", "ut_OrigenContacto", "ut_ReferenciaContacto"})
            database(std::string("DELETE FROM ") + table);
    }

    static void types(screen::Form& form, const char* box, const std::string& text)
    {
        elementNamed<screen::TextBox>(form, box).edit(text);
    }
    static void picks(screen::Form& form, const char* combo, const char* entry)
    {
        elementNamed<screen::ComboBox>(form, combo).pick(std::string_view(entry));
    }
    static void writes(screen::Form& form, const char* combo, const char* text)
    {
        elementNamed<screen::ComboBox>(form, combo).edit(text);
    }
    static void press(screen::Form& form, const char* button)
    {
        elementNamed<screen::Button>(form, button).press();
    }
    static std::vector<std::string> offered(screen::Form& form, const char* combo)
    {
        return entriesOf(elementNamed<screen::ComboBox>(form, combo));
    }

    static void fillIn(screen::Form& form)
    {
        types(form, "txtNombre", "María Ñúñez");
        types(form, "txtTelefono", "961 111 1111");
        types(form, "txtCorreo", "maria@example.com");
        types(form, "txtEmpresa", "Acme del Sureste");
        types(form, "txtPuesto", "Compras");
        picks(form, "cEdo", "Michoacán de Ocampo");
        types(form, "cCiudad", "Morelia");
        writes(form, "cInteres", "Netoria");
        writes(form, "cObtencion", "Llamada");
        writes(form, "cReferencia", "Un amigo");
        types(form, "cNotas", "llamar el lunes");
    }

    /// Presses "Nuevo" and acts in the dialog.
    void entersAProspect(const std::function<void(screen::Form&)>& act)
    {
        ports.events.expectModal("dlgNuevoPros", act);
        presses("cmdProsNewPros");
    }

    void corrects(const std::function<void(screen::Form&)>& act)
    {
        ports.events.expectModal("dlgCorregir", act);
        presses("cmdEditC");
    }

    /// The line ends of a new prospect's comments go out as "\\r\\n", which MariaDB takes for the characters meant
    /// and SQL Server for the four that stand there.
    static std::string withLineEnds(std::string text)
    {
        for (std::size_t at = 0; onSqlServer() && (at = text.find("\r\n", at)) != std::string::npos;)
            text.replace(at, 2, R"(\r\n)");
        return text;
    }

    /// One column of the prospects, in the order of their keys.
    std::vector<std::string> stored(const std::string& column)
    {
        return inTheDatabase("SELECT " + column + " FROM ut_icontact ORDER BY Sys_PK");
    }
};

TEST_F(EnteringProspects, every_column_of_a_new_one_is_as_it_was_typed)
{
    enters(ana);
    entersAProspect([](screen::Form& form) {
        fillIn(form);
        press(form, "cmdOk");
    });
    EXPECT_THAT(seesProspects(), ElementsAre("María Ñúñez"));
    const std::pair<std::string, std::string> columns[]{
        {"uf_Nombre", "María Ñúñez"},
        {"uf_EMail", "maria@example.com"},
        {"uf_Telefono", "961 111 1111"},
        {"uf_Empresa", "Acme del Sureste"},
        {"uf_Puesto", "Compras"},
        {"uf_Pais", "MX"},
        {"uf_Estado", "Michoacán de Ocampo"},
        {"uf_Ciudad", "Morelia"},
        {"uf_Interes", "Netoria"},
        {"uf_Comentarios", withLineEnds("Obtenido: Llamada\r\nReferencia: Un amigo\r\nllamar el lunes ")},
        {storyServer().daysSince("uf_Fecha"), "0"},
        {"uf_IEjecutivo", "7"},
        {"uf_Status", "0"},
        {"uf_Tipo", "1"},
        {"uf_color", "0"},
        {"uf_Redirect", "URL_Directo"},
        {"Sys_User", "@"},
        {"Sys_LastUser", "@"},
        {"Sys_Info", "@"},
        {"Sys_Exported", "0"},
        {"uf_NotaStatus", "NULL"},
        {"uf_FechaStatus", "NULL"},
        {"uf_proxcontac", "NULL"},
        {"uf_ultimocontac", "NULL"},
        {"uf_ultimointento", "NULL"},
        {"uf_res_ultimointento", "NULL"},
        {"uf_contactado", "NULL"},
        {"uf_primercontac", "NULL"},
        {"uf_correoverif", "NULL"}};
    for (const auto& [column, value] : columns)
        EXPECT_THAT(stored(column), ElementsAre(value)) << column;
    for (const char* column : {"Sys_TimeStamp", "Sys_DTCreated", "Sys_DTExported"})
        EXPECT_LT(std::abs(std::stoi(stored(storyServer().secondsSince(column)).at(0))), 60) << column;
    EXPECT_THAT(stored("Sys_GUID"), ElementsAre(testing::MatchesRegex("[0-9a-fA-F]{32}")));
    EXPECT_EQ(seesCell("María Ñúñez", "Tipo"), "Contacto");
}

TEST_F(EnteringProspects, what_was_typed_into_the_combos_is_offered_the_next_time)
{
    enters(ana);
    entersAProspect([](screen::Form& form) {
        EXPECT_THAT(offered(form, "cInteres"), IsEmpty());
        fillIn(form);
        press(form, "cmdOk");
    });
    for (int again = 0; again < 2; ++again) // a known text is learnt once
        entersAProspect([](screen::Form& form) {
            EXPECT_THAT(offered(form, "cInteres"), ElementsAre("Netoria"));
            EXPECT_THAT(offered(form, "cObtencion"), ElementsAre("Llamada"));
            EXPECT_THAT(offered(form, "cReferencia"), ElementsAre("Un amigo"));
            fillIn(form);
            picks(form, "cInteres", "Netoria");
            press(form, "cmdOk");
        });
    EXPECT_THAT(stored("uf_Interes"), ElementsAre("Netoria", "Netoria", "Netoria"));
}

TEST_F(EnteringProspects, an_administrator_takes_one_down_for_nobody_or_for_the_agent_in_view)
{
    entersAsAdministrator();
    entersAProspect([](screen::Form& form) {
        fillIn(form);
        press(form, "cmdOk");
    });
    EXPECT_THAT(seesProspects(), ElementsAre("María Ñúñez"));
    Operator::picks("cbAgente", "Beto");
    entersAProspect([](screen::Form& form) {
        fillIn(form);
        picks(form, "cPais", "Perú");
        press(form, "cmdOk");
    });
    EXPECT_THAT(stored("uf_IEjecutivo"), ElementsAre("NULL", "9"));
    EXPECT_THAT(stored("uf_Pais"), ElementsAre("MX", "Perú"));
    EXPECT_THAT(stored("uf_Estado"), ElementsAre("Michoacán de Ocampo", "<No aplica>"));
}

TEST_F(EnteringProspects, an_apostrophe_is_lost_in_the_row_and_breaks_what_is_learnt)
{
    enters(ana);
    entersAProspect([this](screen::Form& form) {
        fillIn(form);
        types(form, "txtNombre", "Juana d'Arc");
        writes(form, "cInteres", "L'Oréal");
        ports.dialogs.expectAnyBox();
        press(form, "cmdOk");
    });
    EXPECT_THAT(ports.dialogs.boxes().back().prompt, testing::StartsWith("Error: "));
    EXPECT_THAT(ports.dialogs.boxes().back().prompt, storyServer().syntaxRefusal());
    EXPECT_THAT(seesProspects(), ElementsAre("Juana dArc"));
    EXPECT_THAT(stored("uf_Interes"), ElementsAre("LOréal"));
    EXPECT_THAT(inTheDatabase("SELECT uf_Interes FROM ut_InteresContacto"), IsEmpty());
    EXPECT_THAT(inTheDatabase("SELECT uf_Origen FROM ut_OrigenContacto"), ElementsAre("Llamada"));
}

TEST_F(EnteringProspects, notes_of_several_lines_and_of_any_alphabet_arrive_whole)
{
    enters(ana);
    entersAProspect([](screen::Form& form) {
        fillIn(form);
        types(form, "cNotas", "uno\r\ndos 😀\r\nثلاثة");
        press(form, "cmdOk");
    });
    EXPECT_THAT(stored("uf_Comentarios"),
                ElementsAre(withLineEnds("Obtenido: Llamada\r\nReferencia: Un amigo\r\nuno\r\ndos 😀\r\nثلاثة ")));
}

TEST_F(EnteringProspects, a_name_that_holds_a_marker_breaks_the_insert_and_nothing_is_lost)
{
    enters(ana);
    entersAProspect([this](screen::Form& form) {
        fillIn(form);
        types(form, "txtNombre", "soy @uf_EMail");
        ports.dialogs.expectAnyBox();
        press(form, "cmdOk");
        EXPECT_THAT(ports.dialogs.boxes().back().prompt, storyServer().syntaxRefusal());
        EXPECT_TRUE(form.Visible());
        types(form, "txtNombre", "soy @uf_status"); // a number needs no quotes
        press(form, "cmdOk");
    });
    EXPECT_THAT(seesProspects(), ElementsAre("soy 0"));
}

TEST_F(EnteringProspects, a_text_too_long_for_its_column_is_told_and_every_field_stays)
{
    enters(ana);
    entersAProspect([this](screen::Form& form) {
        fillIn(form);
        types(form, "txtTelefono", std::string(101, '9'));
        ports.dialogs.expectAnyBox();
        press(form, "cmdOk");
        EXPECT_THAT(ports.dialogs.boxes().back().prompt, HasSubstr("uf_Telefono"));
        for (const auto& [box, text] : {std::pair{"txtNombre", "María Ñúñez"},
                                        {"txtCorreo", "maria@example.com"},
                                        {"txtEmpresa", "Acme del Sureste"},
                                        {"txtPuesto", "Compras"},
                                        {"cCiudad", "Morelia"},
                                        {"cNotas", "llamar el lunes"}})
            EXPECT_EQ(elementNamed<screen::TextBox>(form, box).Text(), text);
        for (const auto& [combo, text] : {std::pair{"cPais", "México"},
                                          {"cEdo", "Michoacán de Ocampo"},
                                          {"cInteres", "Netoria"},
                                          {"cObtencion", "Llamada"},
                                          {"cReferencia", "Un amigo"}})
            EXPECT_EQ(elementNamed<screen::ComboBox>(form, combo).Text(), text);
        press(form, "cmdCancel");
    });
    EXPECT_THAT(seesProspects(), IsEmpty());
    EXPECT_THAT(inTheDatabase("SELECT uf_Origen FROM ut_OrigenContacto"), IsEmpty()) << "nothing is learnt";
}

TEST_F(EnteringProspects, without_the_procedures_the_prospect_stands_and_each_failure_is_told)
{
    enters(ana);
    {
        const MissingTable noInterests(*beside, "ut_InteresContacto");
        presses("cmdProsNewPros"); // the list cannot be read: no dialog, no word
    }
    cnn->refuses = [](std::string_view statement) {
        return statement.starts_with("CALL") || statement.starts_with("EXEC");
    };
    entersAProspect([this](screen::Form& form) {
        fillIn(form);
        for (int i = 0; i < 3; ++i)
            isTold("Error: Lock wait timeout exceeded");
        press(form, "cmdOk");
    });
    EXPECT_THAT(seesProspects(), ElementsAre("María Ñúñez"));
}

// ---- Correcting

TEST_F(EnteringProspects, a_correction_changes_five_columns_and_keeps_the_row_selected)
{
    prospect("Ana A");
    prospect("Maria Nunes",
             {{"uf_EMail", "'x'"}, {"uf_Telefono", "'1'"}, {"uf_Ciudad", "'Morelia'"}, {"uf_Empresa", "NULL"}});
    enters(ana);
    clicksRow("Maria Nunes");
    corrects([](screen::Form& form) {
        EXPECT_EQ(elementNamed<screen::TextBox>(form, "txtNombre").Text(), "Maria Nunes");
        EXPECT_EQ(elementNamed<screen::TextBox>(form, "txtEmpresa").Text(), "");
        types(form, "txtNombre", "María Ñúñez");
        types(form, "txtCorreo", "sin arroba");
        types(form, "txtTelefono", "");
        types(form, "txtEmpresa", "Acme");
        types(form, "txtPuesto", "Compras");
        press(form, "cmdOk");
    });
    EXPECT_THAT(inTheDatabase("SELECT uf_Nombre, uf_EMail, uf_Telefono, uf_Empresa, uf_Puesto, uf_Ciudad FROM "
                              "ut_icontact WHERE uf_Ciudad = 'Morelia'"),
                ElementsAre("María Ñúñez|sin arroba||Acme|Compras|Morelia"));
    EXPECT_THAT(seesProspects(), ElementsAre("Ana A", "María Ñúñez"));
    EXPECT_THAT(sees("txtInfo"), HasSubstr("María Ñúñez"));
}

TEST_F(EnteringProspects, an_apostrophe_in_a_correction_is_told_in_the_servers_words_and_can_be_taken_out)
{
    prospect("Juana");
    enters(ana);
    corrects([this](screen::Form& form) {
        types(form, "txtNombre", "Juana d'Arc");
        ports.dialogs.expectAnyBox();
        press(form, "cmdOk");
        EXPECT_THAT(ports.dialogs.boxes().back().prompt, storyServer().syntaxRefusal());
        EXPECT_THAT(stored("uf_Nombre"), ElementsAre("Juana"));
        EXPECT_EQ(elementNamed<screen::TextBox>(form, "txtNombre").Text(), "Juana d'Arc");
        types(form, "txtNombre", "Juana de Arco");
        press(form, "cmdOk");
    });
    EXPECT_THAT(seesProspects(), ElementsAre("Juana de Arco"));
}

TEST_F(EnteringProspects, a_correction_of_a_row_that_is_gone_writes_nothing)
{
    prospect("Luz");
    const auto juana = prospect("Juana");
    enters(ana);
    clicksRow("Juana");
    database("DELETE FROM ut_icontact WHERE Sys_PK = " + std::to_string(juana));
    corrects([](screen::Form& form) {
        EXPECT_EQ(elementNamed<screen::TextBox>(form, "txtNombre").Text(), "");
        types(form, "txtNombre", "Otra");
        press(form, "cmdOk");
    });
    EXPECT_THAT(stored("uf_Nombre"), ElementsAre("Luz"));
    EXPECT_THAT(seesProspects(), ElementsAre("Luz"));
}

} // namespace
} // namespace dn::tests
