// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The queue when one day becomes another: at midnight, at the end of the year and of February, and in the nights
// when the clocks change.

#include "tests/stories/day.h"
#include "tests/support/time_zone.h"

namespace dn::tests {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class TheQueueAtNight : public Day {
protected:
    std::vector<std::string> queueAt(const std::string& moment)
    {
        itIs(moment);
        opensTab(desk::hoy);
        return seesQueue();
    }
};

TEST_F(TheQueueAtNight, midnight_brings_the_next_day)
{
    prospect("Anoche", {{"uf_proxcontac", "'2026-12-31 23:59:59'"}});
    prospect("Año nuevo", {{"uf_proxcontac", "'2027-01-01 00:00:00'"}});
    itIs("2026-12-31 23:59:59");
    enters(ana);
    opensTab(desk::hoy);
    EXPECT_THAT(seesQueue(), ElementsAre("Contacto 23:59:59 Anoche"));
    itIs("2027-01-01 00:00:00");
    opensTab(desk::hoy);
    EXPECT_THAT(seesQueue(), ElementsAre("Contacto 31/12/2026 23:59:59 Anoche", "Contacto 00:00:00 Año nuevo"));
}

TEST_F(TheQueueAtNight, a_leap_year_has_its_29th_of_february)
{
    prospect("Bisiesta", {{"uf_proxcontac", "'2028-02-29 10:00:00'"}});
    for (const auto& [moment, shown] : std::map<std::string, std::vector<std::string>>{
             {"2028-02-28 23:59:59", {}},
             {"2028-02-29 00:00:00", {"Contacto 10:00:00 Bisiesta"}},
             {"2028-03-01 00:00:00", {"Contacto 29/02/2028 10:00:00 Bisiesta"}}}) {
        itIs(moment);
        enters(ana);
        opensTab(desk::hoy);
        EXPECT_EQ(seesQueue(), shown) << moment;
    }
}

TEST_F(TheQueueAtNight, a_common_year_goes_from_the_28th_of_february_to_march)
{
    prospect("De marzo", {{"uf_proxcontac", "'2027-03-01 10:00:00'"}});
    enters(ana);
    EXPECT_THAT(queueAt("2027-02-28 23:59:59"), IsEmpty());
    EXPECT_THAT(queueAt("2027-03-01 00:00:00"), ElementsAre("Contacto 10:00:00 De marzo"));
}

// An activity as much as a next contact.
TEST_F(TheQueueAtNight, a_project_is_due_from_the_midnight_of_its_activity)
{
    activity(project("Silo"), "2026-12-31 23:59:59");
    activity(project("Molino"), "2027-01-01 00:00:00");
    enters(ana);
    EXPECT_THAT(queueAt("2026-12-30 23:59:59"), IsEmpty());
    EXPECT_THAT(queueAt("2026-12-31 00:00:00"), ElementsAre("Proyecto 23:59:59 Silo"));
    EXPECT_THAT(queueAt("2027-01-01 00:00:00"),
                ElementsAre("Proyecto 31/12/2026 23:59:59 Silo", "Proyecto 00:00:00 Molino"));
}

class TheNightOfAChange : public TheQueueAtNight {
protected:
    TheNightOfAChange() { livesInMadrid(); }

private:
    InTimeZone machine_{InTimeZone::madrid};
};

TEST_F(TheNightOfAChange, to_summer_time_the_day_begins_and_ends_at_its_midnights)
{
    prospect("Noche", {{"uf_proxcontac", "'2026-03-28 23:59:59'"}});
    prospect("Hora que no hay", {{"uf_proxcontac", "'2026-03-29 02:30:00'"}});
    prospect("Tarde", {{"uf_proxcontac", "'2026-03-29 23:59:59'"}});
    prospect("Lunes", {{"uf_proxcontac", "'2026-03-30 00:00:00'"}});
    enters(ana);
    EXPECT_THAT(queueAt("2026-03-28 23:59:59"), ElementsAre("Contacto 23:59:59 Noche"));
    for (const char* moment : {"2026-03-29 00:00:00", "2026-03-29 01:59:59", "2026-03-29 03:00:00",
                               "2026-03-29 22:59:59", "2026-03-29 23:59:59"})
        EXPECT_THAT(queueAt(moment), ElementsAre("Contacto 28/03/2026 23:59:59 Noche",
                                                 "Contacto 02:30:00 Hora que no hay", "Contacto 23:59:59 Tarde"))
            << moment;
    EXPECT_THAT(queueAt("2026-03-30 00:00:00"),
                ElementsAre("Contacto 28/03/2026 23:59:59 Noche", "Contacto 29/03/2026 02:30:00 Hora que no hay",
                            "Contacto 29/03/2026 23:59:59 Tarde", "Contacto 00:00:00 Lunes"));
}

TEST_F(TheNightOfAChange, from_summer_time_the_hour_that_comes_twice_is_of_the_same_day)
{
    prospect("Hora doble", {{"uf_proxcontac", "'2026-10-25 02:30:00'"}});
    prospect("Tarde", {{"uf_proxcontac", "'2026-10-25 23:59:59'"}});
    prospect("Lunes", {{"uf_proxcontac", "'2026-10-26 00:00:00'"}});
    enters(ana);
    EXPECT_THAT(queueAt("2026-10-24 23:59:59"), IsEmpty());
    for (const char* moment : {"2026-10-25 00:00:00", "2026-10-25 02:30:00", "2026-10-25 03:00:00",
                               "2026-10-25 22:59:59", "2026-10-25 23:59:59"})
        EXPECT_THAT(queueAt(moment), ElementsAre("Contacto 02:30:00 Hora doble", "Contacto 23:59:59 Tarde"))
            << moment;
    EXPECT_THAT(queueAt("2026-10-26 00:00:00"),
                ElementsAre("Contacto 25/10/2026 02:30:00 Hora doble", "Contacto 25/10/2026 23:59:59 Tarde",
                            "Contacto 00:00:00 Lunes"));
}

} // namespace
} // namespace dn::tests
