// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/stories/working_day.h"

#include "screen/calendars.h"
#include "tests/support/element_tree.h"

#include <set>

namespace dn::tests {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

std::string plans(const std::string& project)
{
    return "INSERT INTO actividad (IProyecto, ITpActividad, FInicio) VALUES (" + project +
           ", 1, '2026-03-20 10:00:00')";
}

} // namespace

WorkingDay::WorkingDay()
{
    itIs("2026-03-13 18:00:00");
    maria = named("María", "'2026-03-13 10:00:00'");
    luz = named("Luz", "'2026-03-14 12:00:00'");
    nora = named("Nora", "'2026-03-14 11:00:00'");
    rita = named("Rita", "'2026-03-14 12:30:00'");
    pedro = named("Pedro", "NULL");
    tere = named("Tere", "'2026-03-15 09:00:00'");
    silo = std::to_string(project("Silo"));
    molino = std::to_string(project("Molino"));
    activity(std::stoll(silo), "2026-03-14 08:00:00");
    host.projects->newPerson = 501;
}

std::string WorkingDay::named(const std::string& name, const std::string& next)
{
    return std::to_string(prospect(name, {{"uf_EMail", "'x@x.mx'"},
                                          {"uf_Telefono", "'961'"},
                                          {"uf_Empresa", "'Acme'"},
                                          {"uf_Puesto", "'Compras'"},
                                          {"uf_proxcontac", next}}));
}

std::vector<WorkingDay::Piece> WorkingDay::pieces()
{
    return {{"09:00:00", [this] { opensTheQueue(); }},
            {"09:10:00", [this] { losesMaria(); }},
            {"09:15:00", [this] { makesAProjectOfNora(); }},
            {"09:20:00", [this] { promotesLuz(); }},
            {"09:30:00", [this] { reachesNobodyAtRitas(); }},
            {"09:40:00", [this] { reachesSomebodyElseAtRitas(); }},
            {"10:00:00", [this] { agreesWithRita(); }},
            {"10:10:00", [this] { callsAboutSilo(); }},
            {"10:20:00", [this] { plansAnActivityOfMolino(); }},
            {"10:30:00", [this] { discardsPedro(); }}};
}

void WorkingDay::opensTheQueue()
{
    enters(ana);
    opensTab(desk::hoy);
    EXPECT_THAT(seesQueue(),
                ElementsAre("Contacto 13/03/2026 10:00:00 María", "Proyecto 08:00:00 Silo",
                            "Contacto 11:00:00 Nora", "Contacto 12:00:00 Luz", "Contacto 12:30:00 Rita",
                            "Contacto URGENTE Pedro", "Proyecto URGENTE Molino"));
    EXPECT_EQ(sees("lblcuenta2"), "Hoy: 7 actividades | Proyectos: 2 Contactos: 6");
}

void WorkingDay::losesMaria()
{
    clicksQueue("María");
    types("txtText", "ya compró en otro lado\n");
    opensTab(desk::prospectos);
    control.elements().prospects.lvw.clickRow(0);
    control.elements().top.txtBuscar.edit("marÍA");
    presses("cmdOkBuscar");
    EXPECT_THAT(sees("txtInfo"), HasSubstr("María"));
    answers("Motivo del cambio de estado:", "compró");
    picks("Combo1", "Sin interés");
    opensTab(desk::hoy);
    EXPECT_THAT(seesQueue(), Not(Contains(HasSubstr("María"))));
}

void WorkingDay::makesAProjectOfNora()
{
    clicksQueue("Nora");
    host.projects->newProject = 88;
    presses("geProyFromContacto");
    EXPECT_THAT(seesQueue(), Not(Contains(HasSubstr("Nora"))));
}

void WorkingDay::promotesLuz()
{
    clicksQueue("Luz");
    ports.events.expectModal("dlgCorregir", [](screen::Form& form) {
        elementNamed<screen::TextBox>(form, "txtTelefono").edit("961 555");
        elementNamed<screen::Button>(form, "cmdOk").press();
    });
    presses("cmdEditHoy");
    EXPECT_THAT(sees("txtInfo"), HasSubstr("961 555"));
    opensTab(desk::prospectos);
    host.projects->newProject = 77;
    picks("Combo1", "Oportunidad");
    opensTab(desk::hoy);
}

void WorkingDay::reachesNobodyAtRitas()
{
    for (const char* button : {"cmdOcupado", "cmdNoContestan", "cmdFueraServ", "cmdCancelCall"}) {
        calls("Rita");
        closesTheQuestion();
        presses(button);
        EXPECT_THAT(seesQueue(), Contains("Contacto 12:30:00 Rita")) << "nobody left the queue by that";
    }
}

void WorkingDay::reachesSomebodyElseAtRitas()
{
    for (int index = 0; index <= 5; ++index) {
        calls("Rita");
        presses("cmdContesta");
        if (index == 5) answers("Motivo para no comunicarme:", "habla otro idioma");
        closesTheQuestion();
        presses("cmdCallCon(" + std::to_string(index) + ")");
    }
    EXPECT_EQ(sees("lblcuenta2"), "4") << "after a call the bare number";
}

void WorkingDay::agreesWithRita()
{
    calls("Rita");
    presses("cmdContesta");
    presses("cmdCallCon(6)");
    types("txtResCall", "quiere una visita");
    answersTheQuestion(1);
    ports.events.expectModal("dlgAgendarContacto", [this](screen::Form& form) {
        elementNamed<screen::OptionButton>(form, "opt2").choose();
        elementNamed<screen::MonthView>(form, "cal").pick({2026, 3, 15});
        agreesTo("¿Seguro desea programar el contacto para: 2026-mar-15 10:00:00?");
        elementNamed<screen::Button>(form, "cmdOk").press();
    });
    presses("cmdOkCall");
    EXPECT_THAT(seesQueue(), Not(Contains(HasSubstr("Rita"))));
}

void WorkingDay::callsAboutSilo()
{
    clicksQueue("Silo");
    answers("Nota:", "planos recibidos");
    presses("cmdNote");
    calls("Silo");
    whileTheHost("EditarProyecto " + silo,
                 {"UPDATE actividad SET Hecho = 1 WHERE IProyecto = " + silo, plans(silo)});
    presses("cmdNoContestan"); // the project's screen comes in the place of the question
    host.log.during = nullptr;
    EXPECT_THAT(seesQueue(), Not(Contains(HasSubstr("Silo"))));
}

void WorkingDay::plansAnActivityOfMolino()
{
    control.elements().top.txtBuscar.edit("proyecto de molino"); // the projects are what this tab searches
    presses("cmdOkBuscar");
    EXPECT_THAT(sees("txtInfo"), HasSubstr("Proyecto de Molino"));
    clicksQueue("Molino");
    whileTheHost("EditarProyecto " + molino, {plans(molino)});
    presses("cmdEditHoy");
    host.log.during = nullptr;
}

void WorkingDay::discardsPedro()
{
    calls("Pedro");
    presses("cmdContesta");
    answersTheQuestion(4);
    answers("Motivo del cambio de estado:", ""); // a slip: without a reason the question comes back
    answersTheQuestion(4);
    answers("Motivo del cambio de estado:", "teléfono equivocado");
    presses("cmdCallCon(2)");
}

std::vector<std::string> WorkingDay::readsSent()
{
    std::set<std::string> reads;
    for (const std::string& statement : cnn->statements)
        if (statement.starts_with("select") || statement.starts_with("SELECT") || statement.starts_with("Select"))
            reads.insert(statement);
    return {reads.begin(), reads.end()};
}

std::vector<std::string> WorkingDay::screensAsked()
{
    std::vector<std::string> asked;
    for (const std::string& call : host.log.calls)
        if (call.starts_with("Crear") || call.starts_with("Editar")) asked.push_back(call);
    return asked;
}

void WorkingDay::calls(const std::string& contact)
{
    clicksQueue(contact);
    presses("cmdCall");
    EXPECT_TRUE(control.Call_Progress());
    EXPECT_FALSE(canUse("lvwHoy"));
}

void WorkingDay::closesTheQuestion()
{
    ports.events.expectModal("dlgQueH", [](screen::Form& form) { form.closeWindow(); });
}

void WorkingDay::answersTheQuestion(int option)
{
    ports.events.expectModal("dlgQueH", [option](screen::Form& form) {
        elementNamed<screen::OptionButton>(form, "Option" + std::to_string(option)).choose();
        elementNamed<screen::Button>(form, "cmdOk").press();
    });
}

} // namespace dn::tests
