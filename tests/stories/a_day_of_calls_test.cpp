// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The operator calls through the queue of the day: every outcome that a call can have, until nobody is left in it.

#include "screen/calendars.h"
#include "tests/stories/day.h"
#include "tests/support/element_tree.h"

namespace dn::tests {
namespace {

using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::IsEmpty;

class ADayOfCalls : public Day {
protected:
    ADayOfCalls()
    {
        rita = std::to_string(
            prospect("Rita", {{"uf_Telefono", "'961'"}, {"uf_proxcontac", "'2026-03-14 09:00:00'"}}));
        const auto key = project("Silo");
        activity(key, "2026-03-14 10:00:00");
        silo = std::to_string(key);
    }

    void calls(const std::string& contact)
    {
        clicksQueue(contact);
        presses("cmdCall");
        EXPECT_FALSE(canUse("lvwHoy"));
    }
    void decidesNothing()
    {
        ports.events.expectModal("dlgQueH", [](screen::Form& form) { form.closeWindow(); });
    }
    /// Agrees to another call tomorrow at the same hour.
    void schedulesTomorrow()
    {
        ports.events.expectModal("dlgQueH", [](screen::Form& form) {
            elementNamed<screen::OptionButton>(form, "Option1").choose();
            elementNamed<screen::Button>(form, "cmdOk").press();
        });
        ports.events.expectModal("dlgAgendarContacto", [this](screen::Form& form) {
            elementNamed<screen::OptionButton>(form, "opt2").choose();
            elementNamed<screen::MonthView>(form, "cal").pick({2026, 3, 15});
            agreesTo("¿Seguro desea programar el contacto para: 2026-mar-15 09:30:00?");
            elementNamed<screen::Button>(form, "cmdOk").press();
        });
    }
    std::string answer(int index) { return control.elements().call.cmdCallCon(index).Caption(); }

    static std::string note(const std::string& message, const std::string& prospect)
    {
        return "INSERT INTO xt_biticontact (uf_Tiempo, uf_Mensaje, uf_Usuario, uf_Iicontact) VALUES "
               "(CURRENT_TIMESTAMP, '" +
               message + "','ana'," + prospect + ")";
    }

    std::string rita, silo;
};

TEST_F(ADayOfCalls, every_outcome_leaves_its_attempt_and_the_last_one_an_appointment)
{
    enters(ana);
    opensTab(desk::hoy);
    std::vector<std::string> expected;
    int code = 0;
    for (const auto& [button, result] :
         std::vector<std::pair<std::string, std::string>>{{"cmdOcupado", "Línea ocupada"},
                                                          {"cmdNoContestan", "No contestan"},
                                                          {"cmdFueraServ", "Fuera de servicio"}}) {
        calls("Rita");
        decidesNothing();
        presses(button);
        expected.push_back("UPDATE ut_icontact SET uf_ultimointento=CURRENT_TIMESTAMP, uf_res_ultimointento=" +
                           std::to_string(++code) + " Where Sys_PK=" + rita);
        expected.push_back(note("No se pudo establecer llamada al: 961 " + result, rita));
    }
    calls("Rita");
    decidesNothing();
    presses("cmdCancelCall"); // leaves nothing
    for (int index = 0; index <= 5; ++index) {
        calls("Rita");
        presses("cmdContesta");
        if (index == 5) answers("Motivo para no comunicarme:", "habla otro idioma");
        decidesNothing();
        presses("cmdCallCon(" + std::to_string(index) + ")");
        expected.push_back(note("Se estableció llamada al: 961 pero no se pudo contactar al prospecto. <" +
                                    (index == 5 ? "habla otro idioma" : answer(index)) + ">",
                                rita));
        expected.push_back("UPDATE ut_icontact SET uf_ultimointento= CURRENT_TIMESTAMP, uf_res_ultimointento =  " +
                           std::to_string(11 + index) + " Where Sys_PK = " + rita);
    }
    EXPECT_THAT(changesSent(), ElementsAreArray(expected));
    EXPECT_THAT(seesQueue(), ElementsAre("Contacto 09:00:00 Rita", "Proyecto 10:00:00 Silo")) << "nobody left it";

    calls("Rita");
    presses("cmdContesta");
    presses("cmdCallCon(6)");
    types("txtResCall", "quiere una visita");
    schedulesTomorrow();
    presses("cmdOkCall");
    EXPECT_THAT(
        changesSent(),
        ElementsAre(
            note("Se estableció llamada al 961 Con éxito. Resumen: quiere una visita", rita),
            "UPDATE ut_icontact SET uf_contactado = 1, uf_primercontac = CURRENT_TIMESTAMP Where Sys_PK=" + rita +
                " and isnull(uf_contactado)",
            "UPDATE ut_icontact SET uf_ultimointento = CURRENT_TIMESTAMP, uf_res_ultimointento = 50, "
            "uf_ultimocontac = CURRENT_TIMESTAMP Where Sys_PK = " +
                rita,
            "UPDATE ut_icontact SET uf_proxcontac = CAST('2026-03-15 09:30:00' AS DATETIME) WHERE Sys_PK=" +
                rita));
    EXPECT_THAT(seesQueue(), ElementsAre("Proyecto 10:00:00 Silo"));
    EXPECT_THAT(inTheDatabase("SELECT uf_contactado, uf_primercontac, uf_ultimocontac, uf_ultimointento, "
                              "uf_res_ultimointento, uf_proxcontac FROM ut_icontact"),
                ElementsAre(std::string(onSqlServer() ? "NULL|NULL" : "1|2026-03-14 09:30:00") +
                            "|2026-03-14 09:30:00|2026-03-14 09:30:00|50|2026-03-15 09:30:00"))
        << "SQL Server refuses the statement of the first contact";

    calls("Silo");
    whileTheHost("EditarProyecto " + silo, {"UPDATE actividad SET FInicio = '2026-03-20 10:00:00'"});
    presses("cmdNoContestan"); // a project's screen opens in the place of the question
    EXPECT_THAT(seesQueue(), IsEmpty());
    EXPECT_THAT(inTheDatabase("SELECT uf_ultimointento, uf_res_ultimointento FROM Proyecto"),
                ElementsAre("2026-03-14 09:30:00|2"));
    EXPECT_TRUE(canUse("cmdCall"));
    EXPECT_FALSE(control.Call_Progress());

    itIs("2026-03-15 08:00:00");
    opensTab(desk::hoy);
    EXPECT_THAT(seesQueue(), ElementsAre("Contacto 09:30:00 Rita"));
}

} // namespace
} // namespace dn::tests
