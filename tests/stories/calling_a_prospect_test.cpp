// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The operator calls a prospect, tells how it went and decides what happens next.

#include "tests/stories/operator.h"
#include "tests/support/element_tree.h"

namespace dn::tests {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

class CallingAProspect : public Operator {
protected:
    void decides(int option)
    {
        ports.events.expectModal("dlgQueH", [option](screen::Form& form) {
            elementNamed<screen::OptionButton>(form, "Option" + std::to_string(option)).choose();
            elementNamed<screen::Button>(form, "cmdOk").press();
        });
    }
    void closesTheQuestion()
    {
        ports.events.expectModal("dlgQueH", [](screen::Form& form) { form.closeWindow(); });
    }
    /// Agrees to an hour from now, 14/03/2026 09:30.
    void schedulesAnHourAhead()
    {
        ports.events.expectModal("dlgAgendarContacto", [this](screen::Form& form) {
            agreesTo("¿Seguro desea programar el contacto para: 2026-mar-14 10:30:00?");
            elementNamed<screen::Button>(form, "cmdOk").press();
        });
    }
    std::string stored(const std::string& column)
    {
        return inTheDatabase("SELECT " + column + " FROM ut_icontact WHERE uf_Nombre = 'María'").at(0);
    }
    std::vector<std::string> log()
    {
        return inTheDatabase("SELECT uf_Mensaje FROM xt_biticontact ORDER BY Sys_PK");
    }
};

TEST_F(CallingAProspect, from_the_click_to_the_next_appointment)
{
    prospect("Ana");
    prospect("María", {{"uf_Telefono", "'5512345678'"}});
    enters(ana);
    clicksRow("María");
    presses("cmdCall");
    EXPECT_EQ(sees("lbltel"), "55-12-34-56-78");
    EXPECT_FALSE(canUse("lvw"));
    EXPECT_FALSE(canUse("cmdCall"));
    presses("cmdContesta");
    presses("cmdCallCon(6)");
    types("txtResCall", "Pide precios d'Acero\ny plazos");
    decides(1);
    schedulesAnHourAhead();
    presses("cmdOkCall");

    EXPECT_TRUE(canUse("lvw"));
    EXPECT_TRUE(canUse("cmdCall"));
    EXPECT_THAT(log(), ElementsAre("Se estableció llamada al 5512345678 Con éxito. Resumen: Pide precios dAceroy "
                                   "plazos"));
    // The form of the statement that stores the first contact is one that SQL Server refuses.
    EXPECT_EQ(stored("uf_contactado"), onSqlServer() ? "NULL" : "1");
    EXPECT_EQ(stored("uf_primercontac") == "NULL", onSqlServer());
    EXPECT_NE(stored("uf_ultimocontac"), "NULL");
    EXPECT_EQ(stored("uf_res_ultimointento"), "50");
    EXPECT_EQ(stored("uf_proxcontac"), "2026-03-14 10:30:00");
    EXPECT_EQ(sees("lblCuenta"), "2");
    EXPECT_THAT(sees("txtBit"), HasSubstr("Pide precios")) << "the reload shows the log of the same prospect";
    EXPECT_THAT(sees("txtInfo"), HasSubstr("María"));
}

TEST_F(CallingAProspect, a_second_contact_leaves_the_first_one_where_it_was)
{
    prospect("María", {{"uf_Telefono", "'1'"},
                       {"uf_contactado", "1"},
                       {"uf_primercontac", "'2026-01-05 10:00:00'"},
                       {"uf_ultimocontac", "'2026-01-05 10:00:00'"}});
    enters(ana);
    closesTheQuestion();
    presses("cmdCall");
    control.Call_Connect(6);
    control.Call_Resumen("otra vez");
    EXPECT_EQ(stored("uf_primercontac"), "2026-01-05 10:00:00");
    EXPECT_NE(stored("uf_ultimocontac"), "2026-01-05 10:00:00");
}

// As SQL Server does with the form of that statement.
TEST_F(CallingAProspect, a_first_contact_that_the_server_refuses_leaves_the_last_one_stored)
{
    prospect("María", {{"uf_Telefono", "'1'"}});
    enters(ana);
    cnn->refuses = [](std::string_view statement) {
        return statement.find("isnull(uf_contactado)") != std::string_view::npos;
    };
    for (const char* said : {"la primera vez", "otra vez"}) {
        closesTheQuestion();
        presses("cmdCall");
        control.Call_Connect(6);
        control.Call_Resumen(said);
        EXPECT_EQ(stored("uf_contactado"), "NULL");
        EXPECT_EQ(stored("uf_primercontac"), "NULL");
        EXPECT_EQ(stored("uf_res_ultimointento"), "50");
        EXPECT_NE(stored("uf_ultimocontac"), "NULL");
    }
}

TEST_F(CallingAProspect, nobody_answers_and_the_attempt_is_seen_in_the_list)
{
    prospect("María", {{"uf_Telefono", "'1'"}});
    enters(ana);
    EXPECT_EQ(seesCell("María", "Último intento"), "");
    presses("cmdCall");
    closesTheQuestion();
    presses("cmdNoContestan");
    EXPECT_EQ(stored("uf_res_ultimointento"), "2");
    EXPECT_EQ(stored("uf_contactado"), "NULL");
    EXPECT_NE(seesCell("María", "Último intento"), "");
    EXPECT_THAT(log(), ElementsAre("No se pudo establecer llamada al: 1 No contestan"));
}

TEST_F(CallingAProspect, who_wants_nothing_is_marked_so_after_all)
{
    prospect("María", {{"uf_Telefono", "'1'"}});
    enters(ana);
    presses("cmdCall");
    presses("cmdContesta");
    decides(3);
    answers("Motivo del cambio de estado:", ""); // hesitates, and is asked again
    decides(3);
    answers("Motivo del cambio de estado:", "ya tiene proveedor");
    presses("cmdCallCon(4)");
    EXPECT_THAT(log(),
                ElementsAre("Se estableció llamada al: 1 pero no se pudo contactar al prospecto. <No quiere "
                            "saber nada>",
                            ">> Sin interés: ya tiene proveedor"));
    EXPECT_EQ(stored("uf_Status"), "2");
    EXPECT_EQ(stored("uf_res_ultimointento"), "15") << "stored last, behind the decision";
    EXPECT_THAT(seesProspects(), IsEmpty());
    EXPECT_EQ(sees("lblCuenta"), "0");
}

TEST_F(CallingAProspect, a_cancelled_call_leaves_no_trace)
{
    prospect("María", {{"uf_Telefono", "'1'"}});
    enters(ana);
    presses("cmdCall");
    closesTheQuestion();
    changesSent();
    presses("cmdCancelCall");
    EXPECT_THAT(changesSent(), IsEmpty());
    EXPECT_THAT(log(), IsEmpty());
}

TEST_F(CallingAProspect, who_was_deleted_during_the_call_is_gone_afterwards)
{
    prospect("María", {{"uf_Telefono", "'1'"}});
    prospect("Otra");
    enters(ana);
    clicksRow("María");
    presses("cmdCall");
    database("DELETE FROM ut_icontact WHERE uf_Nombre = 'María'");
    closesTheQuestion();
    changesSent();
    presses("cmdOcupado");
    EXPECT_THAT(changesSent(), ElementsAre(StartsWith("UPDATE ut_icontact"), StartsWith("INSERT")));
    EXPECT_THAT(inTheDatabase("SELECT uf_res_ultimointento FROM ut_icontact"), ElementsAre("NULL"));
    EXPECT_THAT(seesProspects(), ElementsAre("Otra"));
    EXPECT_TRUE(canUse("cmdCall"));
}

TEST_F(CallingAProspect, an_attempt_that_the_server_refuses_is_not_stored_and_holds_nobody_up)
{
    prospect("María", {{"uf_Telefono", "'1'"}});
    enters(ana);
    presses("cmdCall");
    cnn->refuses = [](std::string_view statement) { return statement.rfind("UPDATE", 0) == 0; };
    closesTheQuestion();
    presses("cmdOcupado");
    EXPECT_EQ(stored("uf_res_ultimointento"), "NULL");
    EXPECT_THAT(log(), ElementsAre(StartsWith("No se pudo establecer llamada al: 1")));
    EXPECT_TRUE(canUse("cmdCall"));
}

} // namespace
} // namespace dn::tests
