// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The operator looks after his projects: what is due next, and what nobody has planned anything for.

#include "tests/stories/missing_table.h"
#include "tests/stories/project_operator.h"

namespace dn::tests {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

class WatchingProjects : public ProjectOperator {};

TEST_F(WatchingProjects, each_stands_once_by_its_next_activity_and_those_without_come_last)
{
    const auto three = project("Tres citas");
    activity(three, "la segunda", {{"FInicio", "'2026-03-20 09:00:00'"}});
    activity(three, "la primera", {{"FInicio", "'2026-03-10 08:05:09'"}, {"ITpActividad", "2"}});
    activity(three, "la tercera", {{"FInicio", "'2026-04-01'"}});
    project("Sin citas B", {{"FInicio", "'2026-02-01'"}});
    project("Sin citas A", {{"FInicio", "'2026-01-01'"}});
    due("Otro", 15);
    const auto done = project("Ya hecha");
    activity(done, "pasada", {{"FInicio", "'2026-01-01'"}, {"Hecho", "1"}});
    const auto someday = project("Sin fecha");
    activity(someday, "algún día");
    enters(ana);
    opensProjects();
    EXPECT_THAT(seesProjects(),
                ElementsAre("Sin fecha", "Tres citas", "Otro", "Ya hecha", "Sin citas A", "Sin citas B"));
    EXPECT_EQ(seesProjectCell("Tres citas", "Fecha y hora"), "10/03/2026 08:05:09");
    EXPECT_EQ(seesProjectCell("Tres citas", "Actividad"), "Llamada");
    EXPECT_EQ(seesProjectCell("Tres citas", "Asunto"), "la primera");
    EXPECT_EQ(seesProjectCell("Tres citas", "Meta"), "Venta nueva");
    EXPECT_EQ(seesProjectCell("Tres citas", "Organización"), "Acme");
    EXPECT_EQ(seesProjectCell("Tres citas", "Persona"), "María Ñúñez ");
    EXPECT_EQ(seesProjectCell("Tres citas", "E-Mail"), "m@acme.mx");
    EXPECT_EQ(seesProjectCell("Tres citas", "Tel"), "55 1111");
    EXPECT_EQ(seesProjectCell("Ya hecha", "Actividad"), "< Ninguna >");
    EXPECT_EQ(seesProjectCell("Ya hecha", "Asunto"), "Revise el estado del proyecto");
    EXPECT_EQ(seesProjectCell("Ya hecha", "Persona"), "-");
    EXPECT_THAT(sees("lblCuenta"), HasSubstr(" | Proyectos: 6 Contactos: 0"));
}

TEST_F(WatchingProjects, the_days_are_counted_by_the_database)
{
    due("Antiguo", 1,
        {{"Sys_DTCreated", storyServer().fromNow(-45)},
         {"uf_ultimocontac", storyServer().fromNow(-3)},
         {"uf_ultimointento", storyServer().fromNow(2)}});
    due("De hoy", 2);
    enters(ana);
    opensProjects();
    EXPECT_EQ(seesProjectCell("Antiguo", "Días"), "45");
    EXPECT_EQ(seesProjectCell("Antiguo", "D.U.C."), "3");
    EXPECT_EQ(seesProjectCell("Antiguo", "D.U.I."), "-2");
    EXPECT_EQ(seesProjectCell("De hoy", "Días"), "0");
    EXPECT_EQ(seesProjectCell("De hoy", "Últ. Contacto"), "");
    EXPECT_EQ(seesProjectCell("De hoy", "D.U.C."), "");
}

TEST_F(WatchingProjects, an_agent_sees_his_own_and_an_agent_without_any_sees_none)
{
    due("De Ana", 1);
    enters(beto);
    opensProjects();
    EXPECT_THAT(seesProjects(), IsEmpty());
    EXPECT_EQ(sees("lblCuenta"), "Hoy: 0 actividades | Proyectos: 0 Contactos: 0");
    entersAsAdministrator(beto);
    opensProjects();
    picks("cbAgente", "Ana");
    EXPECT_THAT(seesProjects(), ElementsAre("De Ana"));
}

TEST_F(WatchingProjects, a_click_shows_whom_to_call_and_what_happened)
{
    const auto key = due("Veinte puestos", 10);
    due("Otro", 5);
    database("INSERT INTO xt_biticontact (uf_Tiempo, uf_Mensaje, uf_Usuario, uf_Iicontact, uf_IProy) VALUES "
             "('2026-03-01 10:00:00', 'visita', 'ana', 0, " +
             std::to_string(key) + ")");
    enters(ana);
    opensProjects();
    clicksProject("Veinte puestos");
    EXPECT_EQ(sees("txtInfo"), "10/03/2026 09:00:00\r\nVisita\r\ncita\r\nVenta nueva\r\nAcme\r\nVeinte puestos\r\n"
                               "Tel1: 55 1111\r\nEMail: ventas@acme.mx\r\nMaría Ñúñez \r\nEMail: m@acme.mx\r\n"
                               "Tel_Movil: 55 2222\r\n");
    EXPECT_EQ(sees("txtBit"), "ana [01/03/2026 10:00:00]\r\nvisita\r\n\r\n");
    EXPECT_EQ(control.Call_Tel(), "55 1111");
    types("txtText", "pide factura\n");
    EXPECT_THAT(sees("txtBit"), HasSubstr("pide factura"));
    EXPECT_THAT(inTheDatabase("SELECT uf_IProy FROM xt_biticontact WHERE uf_Mensaje = 'pide factura'"),
                ElementsAre(std::to_string(key)));
}

TEST_F(WatchingProjects, the_one_in_hand_stays_in_hand_when_the_list_is_loaded_anew)
{
    due("Primero", 1);
    const auto key = due("En mano", 2);
    enters(ana);
    opensProjects();
    clicksProject("En mano");
    database("UPDATE actividad SET Hecho = 1 WHERE IProyecto = " + std::to_string(key));
    opensProjects();
    EXPECT_THAT(seesProjects(), ElementsAre("Primero", "En mano"));
    EXPECT_TRUE(projectRow("En mano").Selected());
    EXPECT_THAT(sees("txtInfo"), StartsWith("\r\n< Ninguna >\r\nRevise el estado del proyecto\r\n"));
}

TEST_F(WatchingProjects, editing_one_that_thereby_leaves_the_list_selects_none_of_its_own)
{
    due("Se queda", 1);
    const auto key = due("Se pierde", 2);
    enters(ana);
    opensProjects();
    picks("cbProjStatusProj", "Congelados");
    clicksProject("Se pierde");
    database("UPDATE Proyecto SET UF_Status1 = 6 WHERE Sys_PK = " + std::to_string(key));
    host.log.calls.clear();
    presses("cmdNewProjEditProj");
    EXPECT_THAT(host.log.calls, ElementsAre("EditarProyecto " + std::to_string(key)));
    EXPECT_THAT(seesProjects(), ElementsAre("Se queda"));
    picks("cbProjStatusProj", "Perdidos");
    EXPECT_THAT(seesProjects(), ElementsAre("Se pierde"));
}

TEST_F(WatchingProjects, a_table_that_is_gone_leaves_the_other_half_and_no_message)
{
    due("Con cita", 1);
    project("Sin cita");
    enters(ana);
    {
        const MissingTable noActivities(*beside, "actividad");
        opensProjects();
        EXPECT_THAT(seesProjects(), testing::UnorderedElementsAre("Con cita", "Sin cita"));
        EXPECT_EQ(seesProjectCell("Con cita", "Actividad"), "< Ninguna >");
        const MissingTable noGoals(*beside, "Meta");
        opensProjects();
        EXPECT_THAT(seesProjects(), IsEmpty());
    }
    opensProjects();
    EXPECT_THAT(seesProjects(), ElementsAre("Con cita", "Sin cita"));
}

} // namespace
} // namespace dn::tests
