// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// One working day from the first queue to the empty one: calls of every outcome, notes, a correction, a
// conversion, changes of status, an appointment, searches. The end looks at every statement that was sent and at
// every row that is left.

#include "tests/stories/working_day.h"

namespace dn::tests {
namespace {

using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::IsEmpty;

class AWorkingDay : public WorkingDay {};

TEST_F(AWorkingDay, empties_the_queue_and_leaves_nothing_unwritten)
{
    for (const auto& [hour, work] : pieces()) {
        itIsAt(hour);
        work();
    }

    EXPECT_THAT(seesQueue(), IsEmpty());
    EXPECT_FALSE(canUse("cmdEditHoy"));
    EXPECT_FALSE(canUse("geProyFromContacto"));
    EXPECT_TRUE(canUse("cmdCall"));
    EXPECT_THAT(readsSent(), testing::UnorderedElementsAreArray(readsToBeSent()));
    EXPECT_THAT(changesSent(), ElementsAreArray(changesToBeSent()));
    EXPECT_THAT(screensAsked(),
                ElementsAre("CrearPersona Nora|Internal|Internal|1|961||x@x.mx||7", "CrearProyecto 0 501",
                            "CrearProyecto 2 0", "EditarProyecto " + silo, "EditarProyecto " + molino));
    leftItsRows();

    itIs("2026-03-15 08:00:00");
    opensTab(desk::hoy);
    EXPECT_THAT(seesQueue(), ElementsAre("Contacto 09:00:00 Tere", "Contacto 10:00:00 Rita"))
        << "the next day has its own";
}

} // namespace
} // namespace dn::tests
