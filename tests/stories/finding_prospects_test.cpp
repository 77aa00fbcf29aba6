// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The operator opens the workbench and looks for his prospects.

#include "tests/stories/missing_table.h"
#include "tests/stories/operator.h"

namespace dn::tests {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

class FindingProspects : public Operator {};

TEST_F(FindingProspects, an_agent_sees_his_own_and_no_others)
{
    prospect("María Ñúñez");
    prospect("De Beto", {{"uf_IEjecutivo", "9"}});
    prospect("De nadie", {{"uf_IEjecutivo", "NULL"}});
    enters(ana);
    EXPECT_EQ(control.MotorBD(), onSqlServer() ? 0 : 1);
    EXPECT_THAT(seesProspects(), ElementsAre("María Ñúñez"));
    EXPECT_FALSE(canUse("cbAgente"));
    EXPECT_EQ(sees("lblCuenta"), "Hoy: 1 actividades | Proyectos: 0 Contactos: 1");
}

TEST_F(FindingProspects, an_administrator_without_key_sees_those_of_nobody)
{
    prospect("Nulo", {{"uf_IEjecutivo", "NULL"}});
    prospect("Cero", {{"uf_IEjecutivo", "0"}});
    prospect("De Ana");
    entersAsAdministrator();
    EXPECT_EQ(sees("cbAgente"), "< Sin asignar >");
    EXPECT_THAT(seesProspects(), UnorderedElementsAre("Nulo", "Cero"));
    picks("cbAgente", "Ana");
    EXPECT_THAT(seesProspects(), ElementsAre("De Ana"));
}

TEST_F(FindingProspects, those_never_scheduled_come_first_then_by_next_contact_and_reception)
{
    prospect("Mañana", {{"uf_proxcontac", storyServer().fromNow(1)}});
    prospect("Ayer", {{"uf_proxcontac", storyServer().fromNow(-1)}});
    prospect("Nuevo", {{"uf_Fecha", storyServer().fromNow(0)}});
    prospect("Viejo", {{"uf_Fecha", storyServer().fromNow(-30)}});
    enters(ana);
    EXPECT_THAT(seesProspects(), ElementsAre("Viejo", "Nuevo", "Ayer", "Mañana"));
    EXPECT_EQ(seesCell("Nuevo", "Prox. Contacto"), "Agendar");
}

TEST_F(FindingProspects, each_status_has_its_list_and_a_status_beyond_has_none)
{
    for (const int status : {0, 1, 2, 3, 4, -1})
        prospect("Estado " + std::to_string(status), {{"uf_Status", std::to_string(status)}});
    enters(ana);
    EXPECT_THAT(seesProspects(), ElementsAre("Estado 0"));
    picks("cbStatus", "Descartado");
    EXPECT_THAT(seesProspects(), ElementsAre("Estado 1"));
    picks("cbStatus", "Sin interés");
    EXPECT_THAT(seesProspects(), ElementsAre("Estado 2"));
    picks("cbStatus", "Oportunidad");
    EXPECT_THAT(seesProspects(), ElementsAre("Estado 3"));
}

TEST_F(FindingProspects, the_days_are_counted_by_the_database)
{
    prospect("Antiguo", {{"Sys_DTCreated", storyServer().fromNow(-45)},
                         {"uf_ultimocontac", storyServer().fromNow(-3)},
                         {"uf_ultimointento", storyServer().fromNow(2)}});
    prospect("De hoy");
    enters(ana);
    EXPECT_EQ(seesCell("Antiguo", "Días"), "045");
    EXPECT_EQ(seesCell("Antiguo", "D.U.C."), "3");
    EXPECT_EQ(seesCell("Antiguo", "D.U.I."), "-2");
    EXPECT_EQ(seesCell("De hoy", "Días"), "000");
    EXPECT_EQ(seesCell("De hoy", "D.U.C."), "");
}

TEST_F(FindingProspects, the_origin_tells_how_they_came)
{
    prospect("A mano", {{"uf_Tipo", "1"}, {"uf_Redirect", "'URL_Directo'"}});
    prospect("De la web", {{"uf_Interes", "'http://descargas.example.com/netoria/download'"}});
    prospect("Del curso", {{"uf_Tipo", "2"}, {"uf_Redirect", "'descargas.example.com/x?curso_gratis'"}});
    enters(ana);
    EXPECT_EQ(seesCell("A mano", "Tipo"), "Contacto");
    EXPECT_EQ(seesCell("De la web", "Tipo"), "Descarga");
    EXPECT_EQ(seesCell("De la web", "Interés"), "Netoria");
    EXPECT_EQ(seesCell("Del curso", "Tipo"), "Curso gratis");
}

TEST_F(FindingProspects, a_table_that_is_gone_shows_an_empty_list_and_no_message)
{
    prospect("María");
    enters(ana);
    {
        const MissingTable noProspects(*beside, "ut_icontact");
        opensTab(0);
        EXPECT_THAT(seesProspects(), IsEmpty());
        EXPECT_EQ(sees("lblCuenta"), "Hoy: 1 actividades | Proyectos: 0 Contactos: 0");
    }
    opensTab(0);
    EXPECT_THAT(seesProspects(), ElementsAre("María"));
}

} // namespace
} // namespace dn::tests
