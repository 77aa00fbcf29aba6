// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The operator works through what is due today.

#include "tests/stories/day.h"
#include "tests/support/element_tree.h"

namespace dn::tests {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

class WorkingTheQueue : public Day {};

TEST_F(WorkingTheQueue, what_is_due_comes_first_and_then_what_got_stuck)
{
    prospect("Hoy", {{"uf_proxcontac", "'2026-03-14 12:00:00'"}});
    prospect("Ayer", {{"uf_proxcontac", "'2026-03-13 10:00:00'"}});
    prospect("Mañana", {{"uf_proxcontac", "'2026-03-15 00:00:00'"}});
    prospect("Sin cita");
    prospect("Descartada", {{"uf_proxcontac", "'2026-03-13 10:00:00'"}, {"uf_Status", "1"}});
    prospect("De Beto", {{"uf_proxcontac", "'2026-03-13 10:00:00'"}, {"uf_IEjecutivo", "9"}});
    activity(project("Silo"), "2026-03-14 08:00:00");
    project("Molino");
    enters(ana);
    opensTab(desk::hoy);
    EXPECT_THAT(seesQueue(),
                ElementsAre("Contacto 13/03/2026 10:00:00 Ayer", "Proyecto 08:00:00 Silo", "Contacto 12:00:00 Hoy",
                            "Contacto URGENTE Sin cita", "Proyecto URGENTE Molino"));
    EXPECT_EQ(sees("lblcuenta2"), "Hoy: 5 actividades | Proyectos: 2 Contactos: 4");
}

TEST_F(WorkingTheQueue, a_click_shows_the_party_and_a_note_goes_to_it)
{
    const auto maria = prospect("María", {{"uf_proxcontac", "'2026-03-14 12:00:00'"}, {"uf_Empresa", "'Acme'"}});
    prospect("Luz", {{"uf_proxcontac", "'2026-03-14 13:00:00'"}});
    const auto silo = project("Silo");
    activity(silo, "2026-03-14 08:00:00");
    enters(ana);
    opensTab(desk::hoy);
    clicksQueue("María");
    EXPECT_THAT(sees("txtInfo"), HasSubstr("Acme"));
    types("txtText", "pide precios\n");
    EXPECT_THAT(sees("txtBit"), StartsWith("ana [14/03/2026 09:30:00]\r\npide precios\r\n"));
    clicksQueue("Silo");
    types("txtText", "manda planos\n");
    EXPECT_THAT(log(), ElementsAre("prospecto " + std::to_string(maria) + " ana 2026-03-14 09:30:00 pide precios",
                                   "proyecto " + std::to_string(silo) + " ana 2026-03-14 09:30:00 manda planos"));
    EXPECT_EQ(seesQueue().size(), 3U) << "a note moves nobody out of the queue";
}

TEST_F(WorkingTheQueue, a_prospect_is_corrected_from_the_queue)
{
    prospect("Maria", {{"uf_EMail", "'m@x.mx'"},
                       {"uf_Telefono", "'961'"},
                       {"uf_Empresa", "'Acme'"},
                       {"uf_Puesto", "'Compras'"},
                       {"uf_proxcontac", "'2026-03-14 12:00:00'"}});
    enters(ana);
    opensTab(desk::hoy);
    clicksQueue("Maria");
    ports.events.expectModal("dlgCorregir", [](screen::Form& form) {
        elementNamed<screen::TextBox>(form, "txtNombre").edit("María Ñúñez");
        elementNamed<screen::Button>(form, "cmdOk").press();
    });
    presses("cmdEditHoy");
    EXPECT_THAT(seesQueue(), ElementsAre("Contacto 12:00:00 María Ñúñez"));
    EXPECT_THAT(sees("txtInfo"), HasSubstr("María Ñúñez"));
    EXPECT_THAT(seesProspects(), ElementsAre("María Ñúñez"));
}

TEST_F(WorkingTheQueue, a_project_leaves_the_queue_when_its_activity_is_done)
{
    const auto silo = project("Silo");
    activity(silo, "2026-03-14 08:00:00");
    enters(ana);
    opensTab(desk::hoy);
    clicksQueue("Silo");
    whileTheHost(
        "EditarProyecto " + std::to_string(silo),
        {"UPDATE actividad SET Hecho = 1", "INSERT INTO actividad (IProyecto, ITpActividad, FInicio) VALUES (" +
                                               std::to_string(silo) + ", 1, '2026-03-20 10:00:00')"});
    presses("cmdEditHoy");
    EXPECT_THAT(seesQueue(), IsEmpty());
    EXPECT_FALSE(canUse("cmdEditHoy"));
}

TEST_F(WorkingTheQueue, a_look_at_the_queue_takes_the_other_lists_back_to_all_that_is_open)
{
    prospect("María", {{"uf_proxcontac", "'2026-03-14 12:00:00'"}});
    prospect("Perdida", {{"uf_Status", "2"}});
    enters(ana);
    picks("cbStatus", "Sin interés");
    EXPECT_THAT(seesProspects(), ElementsAre("Perdida"));
    opensTab(desk::hoy);
    clicksQueue("María");
    EXPECT_THAT(sees("txtInfo"), HasSubstr("María"));
    opensTab(desk::prospectos);
    EXPECT_EQ(sees("cbStatus"), "Recibido");
    EXPECT_THAT(seesProspects(), ElementsAre("María"));
}

TEST_F(WorkingTheQueue, a_search_finds_prospects_on_their_tab_and_projects_elsewhere)
{
    prospect("María", {{"uf_Ciudad", "'Tapachula'"}});
    prospect("Luz", {{"uf_Ciudad", "'Comitán'"}});
    project("Silo");
    enters(ana);
    types("txtBuscar", "comitÁN\n");
    EXPECT_THAT(sees("txtInfo"), HasSubstr("Luz"));
    opensTab(desk::hoy);
    isTold("No se encontró ninguna coincidencia");
    presses("cmdOkBuscar");
    control.elements().top.txtBuscar.edit("de silo");
    presses("cmdOkBuscar");
    EXPECT_THAT(sees("txtInfo"), HasSubstr("Proyecto de Silo"));
}

TEST_F(WorkingTheQueue, a_server_that_refuses_gives_an_empty_queue_and_no_message)
{
    prospect("María");
    enters(ana);
    opensTab(desk::hoy);
    EXPECT_EQ(seesQueue().size(), 1U);
    cnn->refuses = [](std::string_view statement) { return statement.find("from q") != std::string_view::npos; };
    opensTab(desk::hoy);
    EXPECT_THAT(seesQueue(), IsEmpty());
    EXPECT_FALSE(canUse("cmdEditHoy"));
}

} // namespace
} // namespace dn::tests
