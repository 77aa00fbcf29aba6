// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// One project as one row of the list, with a pending activity and without: cells, icon, colour.

#include "projects/project_row.h"
#include "tests/support/project_fixture.h"

namespace dn::tests {
namespace {

using testing::ElementsAre;

class ProjectRow : public ProjectTest {
protected:
    /// The row of a project with an activity of these columns.
    screen::ListItem row(Columns columns)
    {
        show({activity(12, std::move(columns))}, {});
        return lvwProy().ListItems()("K12");
    }

    /// The row of a project of these columns, without an activity.
    screen::ListItem rowWithout(Columns columns)
    {
        show({}, {project(12, std::move(columns))});
        return lvwProy().ListItems()("K12");
    }

    void show(std::vector<std::vector<Cell>> withActivity, std::vector<std::vector<Cell>> without)
    {
        if (elements().top.cbAgente.ListCount() == 0) start(7, false);
        activities(std::move(withActivity));
        projects(std::move(without));
        openProjects();
    }
};

TEST_F(ProjectRow, has_fifteen_cells_by_its_activity)
{
    EXPECT_THAT(cells(row({{"FInicio", date("2026-03-15 08:05:09")},
                           {"Actividad", text("Visita")},
                           {"Asunto", text("Enseñar la versión nueva")},
                           {"Meta", text("Venta nueva")},
                           {"Organizacion", text("O'Higgins y Cía.")},
                           {"Descripcion", text("Veinte puestos")},
                           {"UF_monto", number("1234567.895")},
                           {"contacto", text("María Ñúñez ")},
                           {"EMail1", text("m@x.mx")},
                           {"EMail2", text("la.organización@x.mx")},
                           {"Email3", text("otra@x.mx")},
                           {"Tel1", text("5512345678")},
                           {"e_dias", whole(45)},
                           {"e_ultimocontacto", date("2026-03-02 10:00:00")},
                           {"e_duc", whole(12)},
                           {"e_ultimointento", date("2026-03-04")},
                           {"e_dui", whole(-1)}})),
                ElementsAre("15/03/2026 08:05:09", "Visita", "Enseñar la versión nueva", "Venta nueva",
                            "O'Higgins y Cía.", "Veinte puestos", "1,234,567.90", "María Ñúñez ", "m@x.mx",
                            "5512345678", "45", "02/03/2026 10:00:00", "12", "04/03/2026", "-1"));
}

TEST_F(ProjectRow, has_empty_cells_for_nulls_and_an_amount_to_define)
{
    EXPECT_THAT(cells(row({})), ElementsAre("", "", "", "", "", "", "<Definir>", "", "", "", "", "", "", "", ""));
}

TEST_F(ProjectRow, has_seven_cells_without_an_activity)
{
    EXPECT_THAT(cells(rowWithout({{"Meta", text("Venta nueva")},
                                  {"Organizacion", text("Acme")},
                                  {"Descripcion", text("Veinte puestos")}})),
                ElementsAre("", "< Ninguna >", "Revise el estado del proyecto", "Venta nueva", "Acme",
                            "Veinte puestos", "<Definir>"));
    EXPECT_THAT(cells(rowWithout({})),
                ElementsAre("", "< Ninguna >", "Revise el estado del proyecto", "", "", "", "<Definir>"));
}

TEST_F(ProjectRow, never_shows_an_amount_without_an_activity)
{
    start(7, false);
    activities({});
    cnn.onContaining(readsProjects)
        .gives({"Sys_PK", "UF_Status1", "Meta", "Organizacion", "Descripcion", "UF_monto", "contacto"},
               {{whole(12), whole(1), null, null, null, number("500"), text("María")}});
    openProjects();
    EXPECT_THAT(cells(lvwProy().ListItems()("K12")),
                ElementsAre("", "< Ninguna >", "Revise el estado del proyecto", "", "", "", "<Definir>"));
}

struct AmountCase {
    Cell amount;
    const char* shown;
};

TEST_F(ProjectRow, shows_the_amount_by_its_picture)
{
    const AmountCase cases[]{{number("0"), ".00"},
                             {number("0.00"), ".00"},
                             {whole(0), ".00"},
                             {number("0.5"), ".50"},
                             {number("999.99"), "999.99"},
                             {number("1000"), "1,000.00"},
                             {number("-1234.5"), "-1,234.50"},
                             {number("123456789012345.67"), "123,456,789,012,345.67"},
                             {null, "<Definir>"},
                             {failing("fallo al leer"), "<Definir>"}};
    for (const AmountCase& c : cases)
        EXPECT_EQ(row({{"UF_monto", c.amount}}).ListSubItems()(6).Text(), c.shown) << c.amount.text;
}

TEST_F(ProjectRow, leaves_out_a_cell_that_cannot_be_read_and_goes_on)
{
    const auto item = row({{"Actividad", text("Visita")},
                           {"Asunto", failing("fallo al leer")},
                           {"Meta", text("Venta nueva")},
                           {"UF_Color", failing("fallo al leer")},
                           {"e_dui", whole(3)}});
    EXPECT_EQ(item.ListSubItems().Count(), 13);
    EXPECT_EQ(item.ListSubItems()(2).Text(), "Venta nueva") << "the next one takes its place";
    EXPECT_EQ(item.ListSubItems()(13).Text(), "3");
    EXPECT_EQ(item.ForeColor(), 0U);
}

TEST_F(ProjectRow, stays_out_where_its_date_key_or_status_cannot_be_read)
{
    show({activity(1, {{"FInicio", failing("x")}}), activity(2, {{"Sys_PK", failing("x")}}),
          activity(3, {{"Sys_PK", null}}), activity(4, {{"UF_Status1", failing("x")}}),
          activity(5, {{"UF_Status1", text("nada")}}), activity(6)},
         {project(7, {{"Sys_PK", failing("x")}}), project(8, {{"UF_Status1", failing("x")}}), project(9)});
    EXPECT_THAT(keys(lvwProy()), ElementsAre("K6", "K9"));
}

TEST_F(ProjectRow, stays_out_where_its_status_is_null)
{
    show({activity(1, {{"UF_Status1", null}}), activity(2)}, {project(3, {{"UF_Status1", null}}), project(4)});
    EXPECT_THAT(keys(lvwProy()), ElementsAre("K2", "K4"));
}

struct IconCase {
    long long status;
    int icon;
};

TEST_F(ProjectRow, has_the_image_of_its_status)
{
    for (const IconCase& c :
         {IconCase{1, 1}, {2, 2}, {3, 3}, {4, 4}, {5, 0}, {6, 5}, {0, 0}, {7, 0}, {-1, 0}, {100'000, 0}}) {
        EXPECT_EQ(row({{"UF_Status1", whole(c.status)}}).SmallIcon(), c.icon) << c.status;
        EXPECT_EQ(rowWithout({{"UF_Status1", whole(c.status)}}).SmallIcon(), c.icon) << c.status;
    }
}

TEST(IconoStatus, takes_whatever_reads_as_a_number)
{
    EXPECT_EQ(projects::IconoStatus({data::Value::Kind::text, "4"}), 4);
    EXPECT_THROW(projects::IconoStatus({}), RuntimeError);
    EXPECT_THROW(projects::IconoStatus({data::Value::Kind::text, "x"}), RuntimeError);
}

struct MarkCase {
    Cell code;
    screen::Colour colour;
};

TEST_F(ProjectRow, has_the_colour_of_its_mark_in_every_cell_it_has)
{
    for (const MarkCase& c : {MarkCase{null, 0},
                              {whole(0), 0},
                              {whole(1), 0x0000FF},
                              {whole(2), 0x004000},
                              {whole(3), 0xFF0000},
                              {whole(4), 0x800080},
                              {whole(7), 0},
                              {whole(-1), 0}})
        for (const bool withActivity : {true, false}) {
            const auto item = withActivity ? row({{"UF_Color", c.code}}) : rowWithout({{"UF_Color", c.code}});
            EXPECT_EQ(item.ForeColor(), c.colour);
            EXPECT_EQ(item.Bold(), c.colour != 0);
            const int last = item.ListSubItems().Count();
            EXPECT_EQ(last, withActivity ? 14 : 6);
            EXPECT_EQ(item.ListSubItems()(last).ForeColor(), c.colour);
            EXPECT_EQ(item.ListSubItems()(last).Bold(), c.colour != 0);
        }
}

} // namespace
} // namespace dn::tests
