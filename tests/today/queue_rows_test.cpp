// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The cells of a row of the queue, the column "Hora" above all.

#include "tests/support/time_zone.h"
#include "tests/today/fixture.h"

namespace dn::tests {
namespace {

using testing::ElementsAre;

class QueueRows : public TodayTest {
protected:
    void SetUp() override { start(7, false); }

    std::vector<std::string> headers()
    {
        std::vector<std::string> texts;
        for (const screen::ColumnHeader& header : lvwHoy().ColumnHeaders())
            texts.push_back(header.Text);
        return texts;
    }

    /// What "Hora" shows of an appointment at a moment of the machine's clock.
    std::string hora(const Cell& cita, const DateTime& now = {2026, 3, 14, 9, 30, 0})
    {
        ports.clock.now = now;
        due({queuedProspect(1, cita)});
        openToday();
        return std::string(lvwHoy().ListItems()(1).ListSubItems()(1).Text());
    }
};

TEST_F(QueueRows, show_the_columns_of_the_view_under_their_headers)
{
    due({queuedProspect(4, date("2026-03-14 10:00:00")), queuedProject(5)});
    openToday();
    EXPECT_EQ(headers(),
              (std::vector<std::string>{"Tipo", "Hora", "Contacto", "Empresa", "Teléfono", "Correo electrónico"}));
    EXPECT_THAT(cells(lvwHoy().ListItems()("K4")),
                ElementsAre("Contacto", "10:00:00", "Nombre4", "Empresa4", "9614", "correo4"));
    EXPECT_THAT(cells(lvwHoy().ListItems()("P5")),
                ElementsAre("Proyecto", "URGENTE", "Nombre5", "Empresa5", "9615", "correo5"));
}

TEST_F(QueueRows, are_found_by_the_letter_of_their_kind_and_the_key)
{
    due({queuedProspect(4), queuedProject(4), queued("contacto", 5), queued("Reunión", 6), queued("", 7)});
    openToday();
    EXPECT_THAT(keys(lvwHoy()), ElementsAre("K4", "P4", "P5", "P6", "P7"))
        << "whatever is not exactly a prospect is a project, and the same key may be both";
}

struct Hora {
    const char* cita;
    const char* shown;
};

TEST_F(QueueRows, tell_the_whole_appointment_of_a_past_day_and_the_hour_of_any_other)
{
    for (const Hora& h : {Hora{"2026-03-13 10:00:00", "13/03/2026 10:00:00"},
                          {"2026-03-14 10:00:00", "10:00:00"},
                          {"2026-03-15 10:00:00", "10:00:00"},
                          {"2027-01-01 08:15:30", "08:15:30"},
                          {"2026-03-14 00:00:00", "00:00:00"},
                          {"2026-03-14", "00:00:00"},
                          {"2026-03-13", "13/03/2026"},
                          {"2025-03-14 23:59:59", "14/03/2025 23:59:59"}})
        EXPECT_EQ(hora(date(h.cita)), h.shown) << h.cita;
}

TEST_F(QueueRows, compare_days_and_not_hours)
{
    EXPECT_EQ(hora(date("2026-03-14 08:00:00"), {2026, 3, 14, 23, 59, 59}), "08:00:00") << "gone by, but today";
    EXPECT_EQ(hora(date("2026-03-14 23:59:59"), {2026, 3, 15, 0, 0, 0}), "14/03/2026 23:59:59") << "midnight";
    EXPECT_EQ(hora(date("2026-03-15 00:00:00"), {2026, 3, 14, 23, 59, 59}), "00:00:00");
    EXPECT_EQ(hora(date("2026-03-14 00:00:00"), {2026, 3, 14, 0, 0, 0}), "00:00:00");
}

TEST_F(QueueRows, know_the_end_of_the_year_and_the_29th_of_february)
{
    EXPECT_EQ(hora(date("2025-12-31 23:30:00"), {2026, 1, 1, 0, 10, 0}), "31/12/2025 23:30:00");
    EXPECT_EQ(hora(date("2026-01-01 00:10:00"), {2025, 12, 31, 23, 30, 0}), "00:10:00");
    EXPECT_EQ(hora(date("2028-02-29 12:00:00"), {2028, 2, 29, 9, 0, 0}), "12:00:00");
    EXPECT_EQ(hora(date("2028-02-29 12:00:00"), {2028, 3, 1, 9, 0, 0}), "29/02/2028 12:00:00");
    EXPECT_EQ(hora(date("2028-02-28 12:00:00"), {2028, 2, 29, 0, 0, 1}), "28/02/2028 12:00:00");
}

// Hours that the night of a change skips or has twice are plain times here, wherever the machine stands.
TEST_F(QueueRows, show_the_hour_of_a_night_when_the_clocks_change_as_it_is_stored)
{
    for (const char* zone : {InTimeZone::madrid, InTimeZone::newYork, InTimeZone::lordHowe, "UTC0"}) {
        const InTimeZone living(zone);
        EXPECT_EQ(hora(date("2026-03-29 02:30:00"), {2026, 3, 29, 3, 5, 0}), "02:30:00") << zone;
        EXPECT_EQ(hora(date("2026-03-28 23:30:00"), {2026, 3, 29, 0, 0, 0}), "28/03/2026 23:30:00") << zone;
        EXPECT_EQ(hora(date("2026-03-29 00:00:00"), {2026, 3, 29, 23, 59, 59}), "00:00:00") << zone;
        EXPECT_EQ(hora(date("2026-03-29 00:00:00"), {2026, 3, 30, 0, 0, 0}), "29/03/2026") << zone;
        EXPECT_EQ(hora(date("2026-10-25 02:30:00"), {2026, 10, 25, 2, 10, 0}), "02:30:00") << zone;
        EXPECT_EQ(hora(date("2026-10-24 23:30:00"), {2026, 10, 25, 0, 0, 0}), "24/10/2026 23:30:00") << zone;
        EXPECT_EQ(hora(date("2026-10-25 23:30:00"), {2026, 10, 26, 0, 0, 0}), "25/10/2026 23:30:00") << zone;
        EXPECT_EQ(hora(date("2026-03-08 02:30:00"), {2026, 3, 8, 1, 59, 59}), "02:30:00") << zone;
        EXPECT_EQ(hora(date("2026-11-01 01:30:00"), {2026, 11, 1, 1, 30, 0}), "01:30:00") << zone;
        EXPECT_EQ(hora(date("2026-04-05 01:45:00"), {2026, 4, 4, 23, 59, 59}), "01:45:00") << zone;
    }
}

TEST_F(QueueRows, read_an_appointment_that_a_view_gives_as_text)
{
    EXPECT_EQ(hora(text("2026-03-14 10:00:00")), "10:00:00");
    EXPECT_EQ(hora(text("2026-03-13 10:00:00")), "2026-03-13 10:00:00");
    EXPECT_EQ(hora(text("mañana")), "mañana") << "no date: as it stands";
    EXPECT_EQ(hora(date("0000-00-00")), "0000-00-00") << "a day that no calendar has";
    EXPECT_EQ(hora(text("")), "") << "empty, which is not null";
}

TEST_F(QueueRows, show_an_hour_without_a_day_and_parts_of_a_second)
{
    EXPECT_EQ(hora(date("10:00:00")), "10:00:00");
    EXPECT_EQ(hora(date("2026-03-14 10:00:00.999999")), "10:00:00");
    EXPECT_EQ(hora(date("2026-03-13 10:00:00.999999")), "13/03/2026 10:00:00");
    EXPECT_EQ(hora(date("2026-03-13 23:59:59.999999"), {2026, 3, 14, 0, 0, 0}), "13/03/2026 23:59:59");
}

TEST_F(QueueRows, show_an_empty_cell_for_a_null)
{
    due({{whole(7), text("Contacto"), whole(1), null, null, null, null, null}});
    openToday();
    EXPECT_THAT(cells(lvwHoy().ListItems()("K1")), ElementsAre("Contacto", "URGENTE", "", "", "", ""));
    for (std::size_t column = 4; column < columns().size(); ++column) {
        auto row = queuedProspect(1);
        row[column] = null;
        due({row});
        openToday();
        std::vector<std::string> shown{"Contacto", "URGENTE", "Nombre1", "Empresa1", "9611", "correo1"};
        shown[column - 2] = ""; // and the others stay in their places
        EXPECT_EQ(cells(lvwHoy().ListItems()("K1")), shown);
    }
}

TEST_F(QueueRows, without_a_kind_are_projects_without_a_word)
{
    auto row = queued("", 4);
    row[1] = null;
    due({row});
    openToday();
    EXPECT_THAT(cells(lvwHoy().ListItems()("P4")),
                ElementsAre("", "URGENTE", "Nombre4", "Empresa4", "9614", "correo4"));
}

TEST_F(QueueRows, move_the_cells_behind_one_that_cannot_be_read_to_the_left)
{
    const std::vector<std::string> complete{"Contacto", "URGENTE", "Nombre1", "Empresa1", "9611", "correo1"};
    for (std::size_t column = 3; column < columns().size(); ++column) {
        auto row = queuedProspect(1);
        row[column] = failing("la celda no llegó");
        due({row, queuedProspect(2)});
        openToday();
        auto shown = complete;
        shown.erase(shown.begin() + static_cast<std::ptrdiff_t>(column) - 2);
        EXPECT_EQ(cells(lvwHoy().ListItems()("K1")), shown) << columns()[column];
        EXPECT_EQ(cells(lvwHoy().ListItems()("K2")).size(), 6U) << "the next row is whole";
    }
}

TEST_F(QueueRows, that_repeat_a_key_stand_once_and_add_no_cells)
{
    due({queuedProject(4, date("2026-03-14 10:00:00")), queuedProject(4, date("2026-03-14 11:00:00")),
         queued("Visita", 4), queuedProspect(4), queuedProject(5)});
    openToday();
    EXPECT_THAT(keys(lvwHoy()), ElementsAre("P4", "K4", "P5"));
    EXPECT_THAT(cells(lvwHoy().ListItems()("P4")),
                ElementsAre("Proyecto", "10:00:00", "Nombre4", "Empresa4", "9614", "correo4"));
    EXPECT_EQ(cells(lvwHoy().ListItems()("K4")).size(), 6U);
}

TEST_F(QueueRows, take_the_columns_by_their_names_wherever_they_stand)
{
    cnn.onContaining("from qatascados")
        .gives({"email", "CITA", "extra", "TELEFONO", "sys_pk", "empresa", "contacto", "tipo"},
               {{text("e"), null, text("?"), text("t"), whole(3), text("em"), text("c"), text("Contacto")}});
    openToday();
    EXPECT_THAT(cells(lvwHoy().ListItems()("K3")), ElementsAre("Contacto", "URGENTE", "c", "em", "t", "e"));
}

TEST_F(QueueRows, stay_out_without_a_key_or_a_kind_that_can_be_read)
{
    auto noKey = queuedProspect(1);
    noKey[2] = null;
    auto noKind = queuedProspect(2);
    noKind[1] = failing("la celda no llegó");
    due({noKey, noKind, queuedProspect(3)});
    openToday();
    EXPECT_THAT(keys(lvwHoy()), ElementsAre("K3"));
}

TEST_F(QueueRows, of_a_view_without_a_column_lack_its_cell)
{
    cnn.onContaining("from qhoy")
        .gives({"tipo", "SYS_PK", "Contacto", "empresa", "telefono", "email"},
               {{text("Contacto"), whole(3), text("a"), text("b"), text("c"), text("d")}});
    openToday();
    EXPECT_THAT(cells(lvwHoy().ListItems()("K3")), ElementsAre("Contacto", "a", "b", "c", "d"));
}

} // namespace
} // namespace dn::tests
