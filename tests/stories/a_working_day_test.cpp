// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// One working day from the first queue to the empty one: calls of every outcome, notes, a correction, a
// conversion, changes of status, an appointment, searches. The end looks at every statement that was sent and at
// every row that is left.

#include "tests/stories/working_day.h"

#include <functional>
#include <utility>

namespace dn::tests {
namespace {

using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::IsEmpty;

class AWorkingDay : public WorkingDay {};

TEST_F(AWorkingDay, empties_the_queue_and_leaves_nothing_unwritten)
{
    const std::vector<std::pair<const char*, std::function<void()>>> day{{"09:00:00", [this] { opensTheQueue(); }},
                                                                         {"09:10:00", [this] { losesMaria(); }},
                                                                         {"09:15:00", [this] { makesAProjectOfNora(); }},
                                                                         {"09:20:00", [this] { promotesLuz(); }},
                                                                         {"09:30:00", [this] { reachesNobodyAtRitas(); }},
                                                                         {"09:40:00", [this] { reachesSomebodyElseAtRitas(); }},
                                                                         {"10:00:00", [this] { agreesWithRita(); }},
                                                                         {"10:10:00", [this] { callsAboutSilo(); }},
                                                                         {"10:20:00", [this] { plansAnActivityOfMolino(); }},
                                                                         {"10:30:00", [this] { discardsPedro(); }}};
    for (const auto& [hour, step] : day) {
        itIs(std::string("2026-03-14 ") + hour);
        step();
    }

    // The form of the statement that stores the first contact is one that SQL Server refuses.
    const std::string firstContactOfRita = onSqlServer() ? "NULL|NULL" : "1|2026-03-14 10:00:00";
    EXPECT_THAT(seesQueue(), IsEmpty());
    EXPECT_FALSE(canUse("cmdEditHoy"));
    EXPECT_FALSE(canUse("geProyFromContacto"));
    EXPECT_TRUE(canUse("cmdCall"));
    EXPECT_THAT(readsSent(), testing::UnorderedElementsAreArray(readsToBeSent()));
    EXPECT_THAT(changesSent(), ElementsAreArray(changesToBeSent()));
    EXPECT_THAT(screensAsked(),
                ElementsAre("CrearPersona Nora|Internal|Internal|1|961||x@x.mx||7", "CrearProyecto 0 501",
                            "CrearProyecto 2 0", "EditarProyecto " + silo, "EditarProyecto " + molino));
    EXPECT_THAT(
        inTheDatabase(
            "SELECT uf_Nombre, uf_Telefono, uf_Status, uf_NotaStatus, uf_FechaStatus, uf_proxcontac, "
            "uf_ultimointento, uf_res_ultimointento, uf_contactado, uf_primercontac, uf_ultimocontac FROM "
            "ut_icontact ORDER BY Sys_PK"),
        ElementsAre("María|961|2|compró|2026-03-14 09:10:00|2026-03-13 10:00:00|NULL|NULL|NULL|NULL|NULL",
                    "Luz|961 555|3||2026-03-14 09:20:00|2026-03-14 12:00:00|NULL|NULL|NULL|NULL|NULL",
                    "Nora|961|1|Actualizado por creación de proyecto|2026-03-14 09:15:00|2026-03-14 11:00:00|"
                    "NULL|NULL|NULL|NULL|NULL",
                    "Rita|961|0|NULL|NULL|2026-03-15 10:00:00|2026-03-14 10:00:00|50|" + firstContactOfRita +
                        "|2026-03-14 10:00:00",
                    "Pedro|961|1|teléfono equivocado|2026-03-14 10:30:00|NULL|2026-03-14 10:30:00|13|NULL|NULL|"
                    "NULL",
                    "Tere|961|0|NULL|NULL|2026-03-15 09:00:00|NULL|NULL|NULL|NULL|NULL"));
    EXPECT_THAT(log(), ElementsAreArray(logToBeWritten()));
    EXPECT_THAT(inTheDatabase("SELECT Sys_PK, UF_Status1, uf_ultimointento, uf_res_ultimointento FROM Proyecto "
                              "ORDER BY Sys_PK"),
                ElementsAre(silo + "|1|2026-03-14 10:10:00|2", molino + "|1|NULL|NULL"));
    EXPECT_THAT(inTheDatabase("SELECT IProyecto, FInicio, Hecho FROM actividad ORDER BY Sys_PK"),
                ElementsAre(silo + "|2026-03-14 08:00:00|1", silo + "|2026-03-20 10:00:00|0",
                            molino + "|2026-03-20 10:00:00|0"));

    itIs("2026-03-15 08:00:00");
    opensTab(desk::hoy);
    EXPECT_THAT(seesQueue(), ElementsAre("Contacto 09:00:00 Tere", "Contacto 10:00:00 Rita"))
        << "the next day has its own";
}

} // namespace
} // namespace dn::tests
