// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// One working day from the first queue to the empty one. Each party is a step of its own; the end looks at every
// statement that changed something and at every row that is left.

#include "tests/stories/day.h"
#include "tests/support/element_tree.h"

namespace dn::tests {
namespace {

using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::HasSubstr;
using testing::IsEmpty;

class AWorkingDay : public Day {
protected:
    AWorkingDay()
    {
        itIs("2026-03-13 18:00:00"); // what was there the evening before
        maria = named("María", "'2026-03-13 10:00:00'");
        luz = named("Luz", "'2026-03-14 12:00:00'");
        nora = named("Nora", "'2026-03-14 11:00:00'");
        pedro = named("Pedro", "NULL");
        tere = named("Tere", "'2026-03-15 09:00:00'"); // tomorrow's
        silo = std::to_string(project("Silo"));
        molino = std::to_string(project("Molino"));
        database("INSERT INTO actividad (IProyecto, ITpActividad, FInicio) VALUES (" + silo +
                 ", 1, '2026-03-14 08:00:00')");
    }

    std::string named(const std::string& name, const std::string& next)
    {
        return std::to_string(prospect(name, {{"uf_EMail", "'x@x.mx'"},
                                              {"uf_Telefono", "'961'"},
                                              {"uf_Empresa", "'Acme'"},
                                              {"uf_Puesto", "'Compras'"},
                                              {"uf_proxcontac", next}}));
    }

    // ---- The steps. Each leaves the operator before the queue.

    void opensTheQueue()
    {
        enters(ana);
        opensTab(desk::hoy);
        EXPECT_THAT(seesQueue(), ElementsAre("Contacto 13/03/2026 10:00:00 María", "Proyecto 08:00:00 Silo",
                                             "Contacto 11:00:00 Nora", "Contacto 12:00:00 Luz",
                                             "Contacto URGENTE Pedro", "Proyecto URGENTE Molino"));
    }

    void losesMaria()
    {
        clicksQueue("María");
        types("txtText", "ya compró en otro lado\n");
        changesStatusOf("María", "Sin interés", "compró");
        EXPECT_THAT(seesQueue(), testing::Not(testing::Contains(HasSubstr("María"))));
    }

    void makesAProjectOfNora()
    {
        clicksQueue("Nora");
        host.projects->newPerson = 501;
        host.projects->newProject = 88;
        presses("geProyFromContacto");
        EXPECT_THAT(seesQueue(), testing::Not(testing::Contains(HasSubstr("Nora"))));
    }

    void promotesLuz()
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

    void doesTheActivityOfSilo()
    {
        clicksQueue("Silo");
        answers("Nota:", "planos recibidos");
        presses("cmdNote");
        edits(silo, {"UPDATE actividad SET Hecho = 1 WHERE IProyecto = " + silo, plans(silo)});
    }

    void plansAnActivityOfMolino()
    {
        control.elements().top.txtBuscar.edit("proyecto de molino"); // the projects are what this tab searches
        presses("cmdOkBuscar");
        EXPECT_THAT(sees("txtInfo"), HasSubstr("Proyecto de Molino"));
        clicksQueue("Molino");
        edits(molino, {plans(molino)});
    }

    void discardsPedro()
    {
        opensTab(desk::prospectos);
        control.elements().top.txtBuscar.edit("pedro");
        presses("cmdOkBuscar");
        EXPECT_THAT(sees("txtInfo"), HasSubstr("Pedro"));
        answers("Motivo del cambio de estado:", "teléfono equivocado");
        picks("Combo1", "Descartado");
        opensTab(desk::hoy);
    }

    // ---- What the steps have in common

    void changesStatusOf(const std::string& name, const std::string& status, const std::string& reason)
    {
        opensTab(desk::prospectos);
        EXPECT_THAT(sees("txtInfo"), HasSubstr(name)) << "the click on the queue selected it here";
        answers("Motivo del cambio de estado:", reason);
        picks("Combo1", status);
        opensTab(desk::hoy);
    }

    void edits(const std::string& project, const std::vector<std::string>& inTheHostsScreen)
    {
        whileTheHost("EditarProyecto " + project, inTheHostsScreen);
        presses("cmdEditHoy");
        host.log.during = nullptr;
    }

    static std::string plans(const std::string& project)
    {
        return "INSERT INTO actividad (IProyecto, ITpActividad, FInicio) VALUES (" + project +
               ", 1, '2026-03-20 10:00:00')";
    }

    std::string maria, luz, nora, pedro, tere, silo, molino;
};

TEST_F(AWorkingDay, empties_the_queue_and_leaves_nothing_unwritten)
{
    itIs("2026-03-14 09:00:00");
    opensTheQueue();
    itIs("2026-03-14 09:10:00");
    losesMaria();
    itIs("2026-03-14 09:15:00");
    makesAProjectOfNora();
    itIs("2026-03-14 09:20:00");
    promotesLuz();
    itIs("2026-03-14 09:30:00");
    doesTheActivityOfSilo();
    itIs("2026-03-14 09:40:00");
    plansAnActivityOfMolino();
    itIs("2026-03-14 09:50:00");
    discardsPedro();

    EXPECT_THAT(seesQueue(), IsEmpty());
    EXPECT_FALSE(canUse("cmdEditHoy"));
    EXPECT_FALSE(canUse("geProyFromContacto"));
    EXPECT_EQ(sees("lblcuenta2"), "Hoy: 0 actividades | Proyectos: 2 Contactos: 1");
    const std::string prospectNote = "INSERT INTO xt_biticontact (uf_Tiempo, uf_Mensaje, uf_Usuario, "
                                     "uf_Iicontact) VALUES (CURRENT_TIMESTAMP, '";
    const std::string projectNote = "INSERT INTO xt_biticontact (uf_Tiempo, uf_Mensaje, uf_Usuario, uf_Iicontact, "
                                    "uf_IProy) VALUES (CURRENT_TIMESTAMP, '";
    EXPECT_THAT(
        changesSent(),
        ElementsAreArray(
            {prospectNote + "ya compró en otro lado','ana'," + maria + ")",
             "UPDATE ut_icontact SET uf_Status = 2, uf_NotaStatus = 'compró', uf_FechaStatus = CURRENT_TIMESTAMP "
             "WHERE Sys_PK = " +
                 maria,
             prospectNote + ">> Sin interés: compró','ana'," + maria + ")",
             "UPDATE ut_icontact SET uf_Status=1, uf_NotaStatus='Actualizado por creación de proyecto', "
             "uf_FechaStatus = CURRENT_TIMESTAMP WHERE Sys_PK=" +
                 nora,
             prospectNote + ">> Descartado: ','ana'," + nora + ")",
             "UPDATE ut_icontact set uf_Nombre='Luz',uf_EMail='x@x.mx',uf_Telefono='961 "
             "555',uf_Empresa='Acme',uf_Puesto='Compras' WHERE Sys_PK=" +
                 luz,
             "UPDATE ut_icontact SET uf_Status = 3, uf_NotaStatus = '', uf_FechaStatus = CURRENT_TIMESTAMP WHERE "
             "Sys_PK = " +
                 luz,
             prospectNote + ">> Oportunidad: ','ana'," + luz + ")",
             projectNote + "planos recibidos','ana',0," + silo + ")",
             "UPDATE ut_icontact SET uf_Status = 1, uf_NotaStatus = 'teléfono equivocado', uf_FechaStatus = "
             "CURRENT_TIMESTAMP WHERE Sys_PK = " +
                 pedro,
             prospectNote + ">> Descartado: teléfono equivocado','ana'," + pedro + ")"}));
    EXPECT_THAT(
        inTheDatabase(
            "SELECT uf_Nombre, uf_Telefono, uf_Status, uf_NotaStatus, uf_FechaStatus, uf_proxcontac FROM "
            "ut_icontact ORDER BY Sys_PK"),
        ElementsAre("María|961|2|compró|2026-03-14 09:10:00|2026-03-13 10:00:00",
                    "Luz|961 555|3||2026-03-14 09:20:00|2026-03-14 12:00:00",
                    "Nora|961|1|Actualizado por creación de proyecto|2026-03-14 09:15:00|2026-03-14 11:00:00",
                    "Pedro|961|1|teléfono equivocado|2026-03-14 09:50:00|NULL",
                    "Tere|961|0|NULL|NULL|2026-03-15 09:00:00"));
    EXPECT_THAT(log(),
                ElementsAre("prospecto " + maria + " ana 2026-03-14 09:10:00 ya compró en otro lado",
                            "prospecto " + maria + " ana 2026-03-14 09:10:00 >> Sin interés: compró",
                            "prospecto " + nora + " ana 2026-03-14 09:15:00 >> Descartado: ",
                            "prospecto " + luz + " ana 2026-03-14 09:20:00 >> Oportunidad: ",
                            "proyecto " + silo + " ana 2026-03-14 09:30:00 planos recibidos",
                            "prospecto " + pedro + " ana 2026-03-14 09:50:00 >> Descartado: teléfono equivocado"));
    EXPECT_THAT(inTheDatabase("SELECT IProyecto, FInicio, Hecho FROM actividad ORDER BY Sys_PK"),
                ElementsAre(silo + "|2026-03-14 08:00:00|1", silo + "|2026-03-20 10:00:00|0",
                            molino + "|2026-03-20 10:00:00|0"));
    const std::vector<std::string> asked{"CrearPersona Nora|Internal|Internal|1|961||x@x.mx||7",
                                         "CrearProyecto 0 501", "CrearProyecto 2 0", "EditarProyecto " + silo,
                                         "EditarProyecto " + molino};
    EXPECT_THAT(host.log.calls, testing::IsSupersetOf(asked));

    itIs("2026-03-15 08:00:00");
    opensTab(desk::hoy);
    EXPECT_THAT(seesQueue(), ElementsAre("Contacto 09:00:00 Tere")) << "the next day has its own";
}

} // namespace
} // namespace dn::tests
