// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// One prospect as one row of the list: cells, icons, colours, tool tip.

#include "tests/support/control_fixture.h"

namespace dn::tests {
namespace {

using testing::ElementsAre;

class ProspectRow : public ControlTest {
protected:
    /// The row of a prospect with these columns.
    screen::ListItem row(std::map<std::string, Cell> columns)
    {
        start(7, false);
        prospects({prospect(123, std::move(columns))});
        openProspects();
        return lvw().ListItems()("K123");
    }

    std::vector<std::string> cells(const screen::ListItem& item)
    {
        std::vector<std::string> result{std::string(item.Text())};
        for (int i = 1; i <= item.ListSubItems().Count(); ++i)
            result.emplace_back(item.ListSubItems()(i).Text());
        return result;
    }
};

TEST_F(ProspectRow, has_seventeen_cells_in_the_order_of_the_columns)
{
    const auto item = row({{"uf_Tipo", whole(1)},
                           {"uf_Interes", text("descargas.example.com/download/tallyra")},
                           {"uf_proxcontac", date("2026-03-15 08:05:09")},
                           {"uf_Nombre", text("María Ñúñez")},
                           {"uf_EMail", text("maria@example.com")},
                           {"uf_Telefono", text("5512345678")},
                           {"uf_Empresa", text("O'Higgins y Cía.")},
                           {"uf_Puesto", text("Compras")},
                           {"uf_Ciudad", text("Mérida")},
                           {"uf_Estado", text("Yucatán")},
                           {"uf_Pais", text("MX")},
                           {"uf_Fecha", date("2026-03-01")},
                           {"e_dias", whole(13)},
                           {"e_ultimocontacto", date("2026-03-02 10:00:00")},
                           {"e_duc", whole(12)},
                           {"e_ultimointento", date("2026-03-04 23:59:59")},
                           {"e_dui", whole(-1)}});
    EXPECT_THAT(cells(item),
                ElementsAre("Contacto", "Tallyra", "2026-03-15 08:05:09", "María Ñúñez", "maria@example.com",
                            "5512345678", "O'Higgins y Cía.", "Compras", "Mérida", "Yucatán", "MX", "2026-03-01",
                            "013", "2026-03-02", "12", "2026-03-04", "-1"));
}

// Columns of other types than the contract's.
TEST_F(ProspectRow, shows_the_date_of_a_time_alone_as_none)
{
    const auto item = row({{"uf_Fecha", date("05:06:07")},
                           {"e_ultimocontacto", date("05:06:07.25")},
                           {"e_ultimointento", text("ayer")}});
    EXPECT_EQ(item.ListSubItems()(11).Text(), "0000-00-00");
    EXPECT_EQ(item.ListSubItems()(13).Text(), "0000-00-00");
    EXPECT_EQ(item.ListSubItems()(15).Text(), "ayer");
}

TEST_F(ProspectRow, has_empty_cells_for_nulls)
{
    EXPECT_THAT(cells(row({})),
                ElementsAre("Descarga", "", "Agendar", "", "", "", "", "", "", "", "", "", "", "", "", "", ""));
}

TEST_F(ProspectRow, keeps_an_empty_cell_where_a_field_cannot_be_read)
{
    const auto item = row({{"uf_Nombre", failing("fallo al leer")},
                           {"uf_EMail", text("a@b.mx")},
                           {"e_dias", failing("fallo al leer")},
                           {"e_duc", whole(4)},
                           {"uf_Tipo", failing("fallo al leer")},
                           {"uf_color", failing("fallo al leer")}});
    EXPECT_EQ(item.Text(), "Descarga");
    EXPECT_EQ(item.ListSubItems()(3).Text(), "");
    EXPECT_EQ(item.ListSubItems()(4).Text(), "a@b.mx");
    EXPECT_EQ(item.ListSubItems()(12).Text(), "");
    EXPECT_EQ(item.ListSubItems()(14).Text(), "4");
    EXPECT_EQ(item.ListSubItems().Count(), 16);
    EXPECT_EQ(item.ForeColor(), 0U);
}

TEST_F(ProspectRow, has_an_empty_cell_where_the_next_contact_cannot_be_read)
{
    const auto item = row({{"uf_proxcontac", failing("fallo al leer")}});
    EXPECT_EQ(item.ListSubItems()(2).Text(), "");
    EXPECT_EQ(item.ListSubItems()(2).ReportIcon(), 0);
    EXPECT_EQ(item.ListSubItems().Count(), 16);
}

struct DaysCase {
    Cell days;
    const char* shown;
};

TEST_F(ProspectRow, pads_the_days_to_three_digits_and_leaves_the_other_counters_as_they_are)
{
    const DaysCase cases[]{{whole(0), "000"},     {whole(7), "007"},   {whole(45), "045"}, {whole(999), "999"},
                           {whole(1234), "1234"}, {whole(-5), "-005"}, {null, ""}};
    start(7, false);
    for (const DaysCase& c : cases) {
        prospects({prospect(1, {{"e_dias", c.days}, {"e_duc", c.days}})});
        openProspects();
        EXPECT_EQ(lvw().ListItems()("K1").ListSubItems()(12).Text(), c.shown);
        EXPECT_EQ(lvw().ListItems()("K1").ListSubItems()(14).Text(), c.days.text);
    }
}

struct NextContactCase {
    const char* moment;
    int icon;
};

TEST_F(ProspectRow, marks_an_overdue_next_contact_apart_from_one_ahead)
{
    const NextContactCase cases[]{{"2026-03-14 09:29:59", 5},
                                  {"2026-03-14 09:30:00", 6}, // exactly now is not overdue
                                  {"2026-03-14 09:30:01", 6},
                                  {"2025-12-31 23:59:59", 5},
                                  {"2027-01-01", 6}};
    start(7, false);
    for (const NextContactCase& c : cases) {
        prospects({prospect(1, {{"uf_proxcontac", date(c.moment)}})});
        openProspects();
        EXPECT_EQ(lvw().ListItems()("K1").ListSubItems()(2).ReportIcon(), c.icon) << c.moment;
    }
}

TEST_F(ProspectRow, writes_a_next_contact_at_midnight_with_its_time)
{
    EXPECT_EQ(row({{"uf_proxcontac", date("2026-05-01")}}).ListSubItems()(2).Text(), "2026-05-01 00:00:00");
}

TEST_F(ProspectRow, has_no_report_icon_when_no_contact_is_scheduled)
{
    EXPECT_EQ(row({}).ListSubItems()(2).ReportIcon(), 0);
}

struct FlagsCase {
    Cell verified;
    Cell contacted;
    int icon;
};

TEST_F(ProspectRow, has_a_small_icon_by_what_is_known_of_the_contact)
{
    const FlagsCase cases[]{{whole(0), whole(0), 1},
                            {whole(1), whole(0), 2},
                            {whole(0), whole(1), 3},
                            {whole(1), whole(1), 4},
                            {null, null, 1},
                            {whole(1), null, 2},
                            {null, whole(1), 3},
                            {boolean(true), boolean(true), 4},
                            {failing("x"), whole(1), 3}};
    start(7, false);
    for (const FlagsCase& c : cases) {
        prospects({prospect(1, {{"uf_correoverif", c.verified}, {"uf_contactado", c.contacted}})});
        openProspects();
        EXPECT_EQ(lvw().ListItems()("K1").SmallIcon(), c.icon);
    }
}

struct ColourCase {
    Cell code;
    screen::Colour colour;
};

TEST_F(ProspectRow, is_painted_and_bold_by_its_colour_mark)
{
    const ColourCase cases[]{{null, 0x000000},     {whole(0), 0x000000}, {whole(1), 0x0000FF},
                             {whole(2), 0x004000}, {whole(3), 0xFF0000}, {whole(4), 0x800080},
                             {whole(5), 0x000000}, {whole(-1), 0x000000}};
    start(7, false);
    for (const ColourCase& c : cases) {
        prospects({prospect(1, {{"uf_color", c.code}, {"uf_proxcontac", date("2026-05-01 10:00:00")}})});
        openProspects();
        const auto item = lvw().ListItems()("K1");
        EXPECT_EQ(item.ForeColor(), c.colour);
        EXPECT_EQ(item.Bold(), c.colour != 0);
        EXPECT_EQ(item.ListSubItems()(16).ForeColor(), c.colour);
        EXPECT_EQ(item.ListSubItems()(16).Bold(), c.colour != 0);
        EXPECT_EQ(item.ListSubItems()(2).ForeColor(), 0xFF8080U);
        EXPECT_EQ(item.ListSubItems()(2).Bold(), c.colour != 0);
    }
}

TEST_F(ProspectRow, keeps_the_colour_of_the_row_in_the_cell_of_a_contact_not_scheduled)
{
    EXPECT_EQ(row({{"uf_color", whole(1)}}).ListSubItems()(2).ForeColor(), 0x0000FFU);
}

TEST_F(ProspectRow, has_a_tool_tip_of_comments_and_link)
{
    EXPECT_EQ(row({{"uf_Comentarios", text("Llamar\r\npor la tarde")}, {"uf_Redirect", text("URL_Directo")}})
                  .ToolTipText(),
              "Llamar\r\npor la tarde\r\nURL_Directo");
}

TEST_F(ProspectRow, has_a_tool_tip_of_a_line_end_alone_for_nulls) { EXPECT_EQ(row({}).ToolTipText(), "\r\n"); }

TEST_F(ProspectRow, stays_out_when_its_key_cannot_be_read)
{
    start(7, false);
    prospects({prospect(1), prospect(2, {{"Sys_PK", failing("fallo al leer")}}), prospect(3)});
    openProspects();
    EXPECT_THAT(keys(lvw()), ElementsAre("K1", "K3"));
}

} // namespace
} // namespace dn::tests
