// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// Texts that go into a statement as they were typed, written to do harm. Each is sent to the byte, and the account
// that docs/database.md asks for keeps it to the columns that it may write: nothing is dropped, no other table is
// read or written, and no secret comes into a column or onto the screen.

#include "screen/combo_box.h"
#include "screen/list_box.h"
#include "tests/stories/injected_texts.h"
#include "tests/support/element_tree.h"

#include <algorithm>

namespace dn::tests {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

TEST_F(RightsAndInjectedTexts, as_the_reason_of_a_change_of_status)
{
    for (const Harm& harm : harms) {
        layOut();
        enters(ana);
        answers("Motivo del cambio de estado:", harm.text);
        doesWhatMayBeRefused([&] { picks("Combo1", "Descartado"); });
        expectSent(statusChange("1", harm.text), harm.update);
        expectConfined(harm.text);
    }
}

TEST_F(RightsAndInjectedTexts, as_the_reason_in_the_log_of_a_change_of_status)
{
    // Where the update fails the log is not reached.
    cnn->passesOver = [](std::string_view statement) { return statement.starts_with("UPDATE"); };
    for (const Harm& harm : harms) {
        layOut();
        enters(ana);
        answers("Motivo del cambio de estado:", harm.text);
        doesWhatMayBeRefused([&] { picks("Combo1", "Descartado"); });
        expectSent(logRow(">> Descartado: " + harm.text), harm.row);
        expectConfined(harm.text);
    }
}

TEST_F(RightsAndInjectedTexts, as_a_reason_that_the_update_takes_and_the_log_does_not)
{
    // The update takes it: its end is a comment, and so every row is changed. The row of the log then breaks.
    const std::string text = "x' -- ";
    layOut();
    enters(ana);
    answers("Motivo del cambio de estado:", text);
    ports.dialogs.expectAnyBox();
    picks("Combo1", "Descartado");
    expectSent(statusChange("1", text), taken);
    expectSent(logRow(">> Descartado: " + text), refused::syntax);
    EXPECT_THAT(inTheDatabase("SELECT DISTINCT uf_Status FROM ut_icontact"), ElementsAre("1"))
        << "the documents tell of this: the rows of the columns that may be written are not protected";
    expectConfined(text);
}

TEST_F(RightsAndInjectedTexts, as_the_text_of_the_status_that_was_picked)
{
    for (const Harm& harm : harms) {
        layOut();
        enters(ana);
        screen::ComboBox& Combo1 = control.elements().detail.Combo1;
        Combo1.AddItem(harm.text);
        Combo1.ItemData(Combo1.ListCount() - 1, 2);
        answers("Motivo del cambio de estado:", "x");
        doesWhatMayBeRefused([&] { Combo1.pick(Combo1.ListCount() - 1); });
        expectSent(statusChange("2", "x"), taken);
        const bool escapesTheEnd = harm.text.ends_with('\\'); // here ": x" stands behind it
        expectSent(logRow(">> " + harm.text + ": x"), escapesTheEnd ? taken : harm.row);
        expectConfined(harm.text);
    }
}

TEST_F(RightsAndInjectedTexts, as_the_reason_of_a_discard)
{
    for (const Harm& harm : harms) {
        layOut();
        discards(harm.text, "ana");
        expectSent(discard(harm.text), harm.update);
        expectSent(logRow(">> Descartado: " + harm.text), harm.row);
        expectConfined(harm.text);
    }
}

TEST_F(RightsAndInjectedTexts, as_the_city_of_a_prospect_that_becomes_a_project)
{
    for (const Harm& harm : harms) {
        layOut(harm.text);
        enters(ana);
        try {
            presses("cmdProsNewProj");
            EXPECT_EQ(harm.search, taken);
        } catch (const data::Error& failure) {
            EXPECT_EQ(failure.nativeCode(), harm.search);
        }
        expectSent("SELECT Sys_PK FROM Ciudad WHERE Nombre LIKE '%" + harm.text + "%';", harm.search);
        expectConfined(harm.text);
    }
}

TEST_F(RightsAndInjectedTexts, as_each_field_of_a_correction)
{
    for (std::size_t field = 0; field < 5; ++field)
        for (const Harm& harm : harms) {
            layOut();
            std::array<std::string, 5> texts{"a", "a", "a", "a", "a"};
            texts.at(field) = harm.text;
            corrects(texts);
            expectSent(correction(texts), harm.update);
            expectConfined(std::to_string(field) + ": " + harm.text);
        }
}

TEST_F(RightsAndInjectedTexts, as_a_backslash_that_makes_the_next_field_a_part_of_the_statement)
{
    for (const auto& [next, code] :
         std::map<std::string, int>{{", uf_Redirect = 0x61 -- ", refused::column},
                                    {", uf_Puesto = (SELECT MAX(secreto) FROM otra.cofre) -- ", refused::table},
                                    {", uf_Puesto = (SELECT MAX(Notas) FROM Organizacion) -- ", refused::column},
                                    {", uf_Puesto = LOAD_FILE(0x2F6574632F706173737764) -- ", taken},
                                    {"; DROP TABLE ut_icontact; -- ", refused::syntax}}) {
        layOut();
        const std::array<std::string, 5> texts{"x\\", next, "a", "a", "a"};
        corrects(texts);
        expectSent(correction(texts), code);
        expectConfined(next);
    }
    for (const auto& [user, code] :
         std::map<std::string, int>{{", (SELECT MAX(secreto) FROM otra.cofre), 12) -- ", refused::table},
                                    {", (SELECT MAX(Notas) FROM Organizacion), 12) -- ", refused::column},
                                    {"); DROP TABLE xt_biticontact; -- ", refused::syntax}}) {
        layOut();
        discards("x\\", user);
        expectSent(logRow(">> Descartado: x\\", user), code);
        expectConfined(user);
    }
}

TEST_F(RightsAndInjectedTexts, as_what_a_new_prospect_teaches)
{
    const std::map<std::string, std::string> calls{{"cInteres", "CALL AddInteresContacto ('"},
                                                   {"cObtencion", "CALL AddOrigenContacto ('"},
                                                   {"cReferencia", "CALL AddReferenciaContacto ('"}};
    for (const auto& [combo, call] : calls)
        for (const Harm& harm : harms) {
            layOut();
            addsProspect({{combo, harm.text}});
            if (combo == "cInteres" && harm.text.ends_with('\\')) { // breaks the INSERT, and no call is sent
                EXPECT_THAT(cnn->statements, Not(Contains(HasSubstr("CALL"))));
                EXPECT_THAT(cnn->codes,
                            Contains(testing::Pair(HasSubstr("INSERT INTO ut_icontact"), refused::syntax)));
            } else {
                expectSent(call + harm.text + "');", harm.call);
            }
            expectConfined(combo + ": " + harm.text);
        }
}

TEST_F(RightsAndInjectedTexts, as_a_backslash_or_a_mark_in_the_fields_of_a_new_prospect)
{
    const std::string values = ", 3, 4, 5, 6, 7, 8, 9, 10, CURRENT_DATE, 7, 0, 1, 0, 0x75) -- @";
    for (const char* name : {"xxxxx\\", "@uf_EMail"}) // either way the address stands outside of its quotes
        for (const auto& [email, code] :
             std::map<std::string, int>{{", (SELECT MAX(secreto) FROM otra.cofre)" + values, refused::table},
                                        {", (SELECT MAX(Notas) FROM Organizacion)" + values, refused::column},
                                        {", LOAD_FILE(0x2F6574632F706173737764)" + values, taken},
                                        {"; DROP TABLE ut_icontact; -- @", refused::syntax}}) {
            layOut();
            addsProspect({{"txtNombre", name}, {"txtCorreo", email}});
            const auto inserts = [](const std::string& statement) {
                return statement.starts_with("INSERT INTO ut_");
            };
            const auto sent = std::find_if(cnn->statements.begin(), cnn->statements.end(), inserts);
            ASSERT_NE(sent, cnn->statements.end());
            const std::string quoted = "'" + email + "'";
            EXPECT_THAT(*sent, HasSubstr(name[0] == '@' ? "'@', '" + quoted + "', " + quoted + ", "
                                                        : "'@', 'xxxxx\\', " + quoted + ", "));
            expectSent(*sent, code);
            database("DELETE FROM ut_icontact WHERE uf_Telefono = '3'"); // a row of the account's own making
            expectConfined(std::string(name) + " " + email);
        }
}

TEST_F(RightsAndInjectedTexts, as_the_name_of_the_user_in_each_kind_of_row_of_the_log)
{
    const std::string nave = std::to_string(project("Nave"));
    for (const Harm& harm : harms) {
        layOut();
        enters(ana);
        control.SetObjects(cnn.get(), ana, false, harm.text);
        cnn->statements.clear();
        doesWhatMayBeRefused([&] { types("txtText", "hola\n"); });
        expectSent(logRow("hola", harm.text), harm.user);
        ports.events.expectModal("dlgSelAgente", [](screen::Form& form) {
            elementNamed<screen::ListBox>(form, "cbAgente").doubleClick(1);
        });
        presses("cmdProsAsignPros");
        expectSent(logRow("Contacto transferido", harm.text), harm.user);
        opensTab(desk::proyectos);
        doesWhatMayBeRefused([&] { types("txtText", "hola\n"); });
        expectSent("INSERT INTO xt_biticontact (uf_Tiempo, uf_Mensaje, uf_Usuario, uf_Iicontact, uf_IProy) VALUES "
                   "(CURRENT_TIMESTAMP, 'hola','" +
                       harm.text + "',0," + nave + ")",
                   harm.user == refused::count ? refused::null : harm.user);
        expectConfined(harm.text);
    }
}

TEST_F(RightsAndInjectedTexts, as_the_name_of_the_user_who_discards_changes_and_converts)
{
    for (const Harm& harm : harms) {
        layOut();
        discards("x", harm.text);
        expectSent(logRow(">> Descartado: x", harm.text), harm.user);
        layOut();
        enters(ana);
        control.SetObjects(cnn.get(), ana, false, harm.text);
        answers("Motivo del cambio de estado:", "x");
        doesWhatMayBeRefused([&] { picks("Combo1", "Sin interés"); });
        expectSent(logRow(">> Sin interés: x", harm.text), harm.user);
        layOut();
        enters(ana);
        control.SetObjects(cnn.get(), ana, false, harm.text);
        try {
            presses("cmdProsNewProj");
        } catch (const data::Error& failure) {
            EXPECT_EQ(failure.nativeCode(), harm.user);
        }
        expectSent(logRow(">> Descartado: ", harm.text), harm.user);
        expectConfined(harm.text);
    }
}

TEST_F(RightsAndInjectedTexts, may_copy_what_the_account_reads_which_the_documents_tell)
{
    layOut();
    corrects({"María", "", "", "", "', uf_Empresa = (SELECT MAX(EMail) FROM Persona), uf_Puesto = '"});
    EXPECT_THAT(inTheDatabase("SELECT uf_Empresa FROM ut_icontact WHERE uf_Nombre = 'María'"),
                ElementsAre("m@acme.mx"));
}

} // namespace
} // namespace dn::tests
