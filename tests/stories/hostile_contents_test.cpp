// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// A database that holds what nobody expected: other types, texts of megabytes, bytes that are no text, dates of no
// calendar, keys twice, below zero and beyond 32 bits. The rest of a list still shows, and each row stays itself.

#include "screen/data_grid.h"
#include "screen/option_list_field.h"
#include "tests/stories/hostile_rows.h"
#include "tests/stories/project_operator.h"
#include "tests/stories/replaced_table.h"
#include "tests/support/element_tree.h"
#include "tests/support/table_files.h"

namespace dn::tests {
namespace {

using testing::Contains;
using testing::Each;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;
using testing::StartsWith;

class HostileContents : public ProjectOperator {
protected:
    HostileContents() { database("SET sql_mode = 'ALLOW_INVALID_DATES'"); }

    static std::vector<std::string> keysOf(screen::ListView& list)
    {
        std::vector<std::string> keys;
        for (int row = 1; row <= list.ListItems().Count(); ++row)
            keys.emplace_back(list.ListItems()(row).Key());
        return keys;
    }
    static std::vector<std::string> cellsOf(screen::ListView& list, int column)
    {
        std::vector<std::string> cells;
        for (int row = 1; row <= list.ListItems().Count(); ++row) {
            const screen::ListItem item = list.ListItems()(row);
            cells.emplace_back(column == 0 ? item.Text() : item.ListSubItems()(column).Text());
        }
        return cells;
    }

    /// Each row, clicked, is the selected one, its key leads the detail, and its log is asked for.
    void eachRowIsItself()
    {
        screen::ListView& lvw = control.elements().prospects.lvw;
        const std::vector<std::string> keys = keysOf(lvw);
        for (std::size_t row = 0; row < keys.size(); ++row) {
            lvw.clickRow(row);
            EXPECT_EQ(lvw.SelectedItem()->Key(), keys[row]);
            EXPECT_THAT(sees("txtInfo"), StartsWith(keys[row] + " | "));
            EXPECT_EQ(cnn->statements.back(), "SELECT * FROM xt_biticontact WHERE uf_Iicontact = " +
                                                  keys[row].substr(1) + " ORDER BY uf_Tiempo");
        }
    }

    screen::ListView& lvw() { return control.elements().prospects.lvw; }
};

/// Sub-items of the prospects.
namespace column {
constexpr int nextContact = 2;
constexpr int name = 3;
constexpr int received = 11;
constexpr int days = 12;
} // namespace column

TEST_F(HostileContents, every_type_in_every_column_of_the_prospects)
{
    for (const HostileType& one : hostileTypes) {
        const ReplacedTable other(*beside, "ut_icontact", prospectColumnsOf(one.type));
        database(prospectRowOf(1, one.literal));
        database(prospectRowOf(2, "NULL"));
        database(prospectRowOf(3, one.literal));
        enters(ana);
        std::vector<std::string> keys = keysOf(lvw());
        ASSERT_THAT(keys, testing::UnorderedElementsAre("K1", "K2", "K3")) << one.type;
        for (int row = 1; row <= 3; ++row) {
            const screen::ListItem item = lvw().ListItems()(row);
            const bool null = item.Key() == "K2";
            EXPECT_EQ(item.ListSubItems()(column::name).Text(), null ? "" : one.shown) << one.type;
            EXPECT_EQ(item.ListSubItems().Count(), 16) << one.type;
            if (null) {
                EXPECT_EQ(item.ListSubItems()(column::nextContact).Text(), "Agendar") << one.type;
            }
        }
        eachRowIsItself();
        clicksHeader(column::name + 1);
        eachRowIsItself();
    }
}

TEST_F(HostileContents, keys_twice_below_zero_and_beyond_32_bits)
{
    const ReplacedTable other(*beside, "ut_icontact", prospectColumnsOf("VARCHAR(50)", "BIGINT NULL"));
    int place = 0;
    for (const char* key : {"-1", "0", "2147483647", "2147483648", "9223372036854775807", "-9223372036854775808",
                            "5", "5", "NULL", "6"})
        database("INSERT INTO ut_icontact (Sys_PK, uf_IEjecutivo, uf_Status, uf_Tipo, uf_proxcontac, uf_Nombre) "
                 "VALUES (" +
                 std::string(key) + ", 7, 0, 1, '2026-03-" + std::to_string(10 + place++) + "', '" + key + "')");
    enters(ana);
    EXPECT_THAT(keysOf(lvw()), ElementsAre("K-1", "K0", "K2147483647", "K2147483648", "K9223372036854775807",
                                           "K-9223372036854775808", "K5", "K6"))
        << "a key that is there already and a null leave their rows out, and the list goes on";
    eachRowIsItself();
    clicksRow("9223372036854775807");
    answers("Motivo del cambio de estado:", "x");
    isTold("Out of range value for column 'uf_Iicontact' at row 1"); // of the log, whose keys have 32 bits
    picks("Combo1", "Sin interés");
    EXPECT_THAT(inTheDatabase("SELECT Sys_PK FROM ut_icontact WHERE uf_Status = 2"),
                ElementsAre("9223372036854775807"));
    clicksRow("2147483648");
    cnn->statements.clear();
    EXPECT_THROW(presses("cmdCall"), std::exception) << "a call takes keys of 32 bits";
    EXPECT_THROW(presses("cmdProsNewProj"), std::exception);
    EXPECT_THAT(changesSent(), IsEmpty());
    EXPECT_FALSE(control.elements().call.picLlamada.Visible()) << "nobody else is called in its place";
    clicksRow("-1");
    presses("cmdCall");
    EXPECT_EQ(control.Call_PK(), -1);
}

TEST_F(HostileContents, texts_of_ten_megabytes)
{
    constexpr std::size_t size = 10'000'000;
    const ReplacedTable other(*beside, "ut_icontact", prospectColumnsOf("LONGTEXT"));
    database(prospectRowOf(1, "'corto'"));
    database(longProspectRowOf(2, "REPEAT('ñ', 5000000)"));
    database(
        "INSERT INTO xt_biticontact (uf_Mensaje, uf_Usuario, uf_Iicontact) VALUES (REPEAT('x', 10000000), 'ana', "
        "2), ('fin', 'ana', 2)");
    enters(ana);
    ASSERT_THAT(keysOf(lvw()), SizeIs(2));
    lvw().clickRow(keysOf(lvw())[0] == "K2" ? 0 : 1);
    EXPECT_EQ(lvw().SelectedItem()->ListSubItems()(column::name).Text().size(), size);
    EXPECT_GT(sees("txtInfo").size(), 3 * size) << "name, mail and comments";
    EXPECT_GT(sees("txtBit").size(), size);
    EXPECT_THAT(sees("txtBit").substr(0, 200), HasSubstr("fin"));
    eachRowIsItself();
}

TEST_F(HostileContents, bytes_that_are_no_text)
{
    const ReplacedTable other(*beside, "ut_icontact", prospectColumnsOf("VARBINARY(100)"));
    database(prospectRowOf(1, "x'FFC328EDA080F4908080'"));
    database(prospectRowOf(2, "x'00410D0A'"));
    enters(ana);
    EXPECT_THAT(
        cellsOf(lvw(), column::name),
        testing::UnorderedElementsAre("\xFF\xC3\x28\xED\xA0\x80\xF4\x90\x80\x80", std::string("\0A\r\n", 4)));
    eachRowIsItself();
    clicksHeader(column::name + 1);
    eachRowIsItself();
}

TEST_F(HostileContents, dates_of_no_calendar)
{
    const ReplacedTable other(*beside, "ut_icontact", prospectColumnsOf("DATETIME(6)"));
    int key = 0;
    for (const char* date :
         {"'0000-00-00'", "'9999-12-31 23:59:59.999999'", "'2026-00-00'", "'2026-02-31 10:00:00'", "'0001-01-01'"})
        database(prospectRowOf(++key, date));
    enters(ana);
    ASSERT_THAT(keysOf(lvw()), SizeIs(5));
    std::map<std::string, std::string> shown;
    for (int row = 1; row <= 5; ++row) {
        const screen::ListItem item = lvw().ListItems()(row);
        shown[std::string(item.Key())] = std::string(item.ListSubItems()(column::nextContact).Text()) + "|" +
                                         std::string(item.ListSubItems()(column::received).Text());
    }
    EXPECT_EQ(shown["K1"], "Agendar|") << "the zero date is a null";
    EXPECT_EQ(shown["K2"], "9999-12-31 23:59:59|9999-12-31");
    EXPECT_EQ(shown["K3"], "|2026-00-00 00:00:00.000000") << "what is no date shows as the server wrote it";
    EXPECT_EQ(shown["K4"], "|2026-02-31 10:00:00.000000");
    EXPECT_EQ(shown["K5"], "0001-01-01 00:00:00|0001-01-01");
    eachRowIsItself();
}

TEST_F(HostileContents, two_hundred_columns_more)
{
    std::string columns = prospectColumnsOf("VARCHAR(50)");
    for (int i = 1; i <= 200; ++i)
        columns += ", extra" + std::to_string(i) + " INT DEFAULT 1";
    const ReplacedTable other(*beside, "ut_icontact", columns);
    database(prospectRowOf(1, "'a'"));
    enters(ana);
    EXPECT_THAT(cellsOf(lvw(), column::name), ElementsAre("a"));
    eachRowIsItself();
}

TEST_F(HostileContents, a_table_without_the_columns)
{
    const ReplacedTable other(
        *beside, "ut_icontact",
        "Sys_PK INT, uf_IEjecutivo INT, uf_Status INT, Sys_DTCreated DATETIME, uf_ultimocontac "
        "DATETIME, uf_ultimointento DATETIME, uf_proxcontac DATETIME, uf_Fecha DATE");
    database("INSERT INTO ut_icontact (Sys_PK, uf_IEjecutivo, uf_Status) VALUES (4, 7, 0)");
    enters(ana);
    EXPECT_THAT(keysOf(lvw()), ElementsAre("K4"));
    EXPECT_THAT(cellsOf(lvw(), column::name), ElementsAre(""));
    EXPECT_THAT(cellsOf(lvw(), column::days), ElementsAre(""));
    eachRowIsItself();
}

TEST_F(HostileContents, every_type_in_the_log)
{
    prospect("María");
    const std::string key = std::to_string(lastKey());
    for (const HostileType& one : hostileTypes) {
        const ReplacedTable other(*beside, "xt_biticontact",
                                  "uf_Iicontact INT, uf_Tiempo " + one.type + ", uf_Mensaje " + one.type +
                                      ", uf_Usuario " + one.type);
        for (const std::string& value : {one.literal, std::string("NULL"), one.literal})
            database("INSERT INTO xt_biticontact VALUES (" + key + ", " + value + ", " + value + ", " + value +
                     ")");
        enters(ana);
        clicksRow("María");
        const std::string entry = one.shown + " [" + one.shown + "]\r\n" + one.shown + "\r\n\r\n";
        EXPECT_EQ(sees("txtBit"), entry + entry + " []\r\n\r\n\r\n") << one.type;
    }
}

TEST_F(HostileContents, projects_of_nulls_twins_and_keys_beyond_32_bits)
{
    const ReplacedTable other(*beside, "Proyecto", projectColumns);
    for (const char* key : {"-7", "9223372036854775807", "8", "8", "NULL"})
        database(
            "INSERT INTO Proyecto (Sys_PK, IEjecutivo, UF_Status1, IMeta, IOrganizacion, IContacto) VALUES (" +
            std::string(key) + ", 7, 1, 1, 1, 1)");
    database("INSERT INTO Proyecto (Sys_PK, IEjecutivo, UF_Status1, IMeta, IOrganizacion, IContacto, Descripcion, "
             "UF_monto, UF_Color) VALUES (9, 7, 1, 1, 1, 1, REPEAT('x', 10000000), 1e60, 99)");
    for (const char* project : {"-7", "9", "9223372036854775807"})
        database("INSERT INTO actividad (IProyecto, ITpActividad, FInicio) VALUES (" +
                 std::string(project).substr(0, 9) + ", 1, '9999-12-31')");
    enters(ana);
    opensProjects();
    screen::ListView& lvwProy = control.elements().projects.lvwProy;
    EXPECT_THAT(keysOf(lvwProy), testing::UnorderedElementsAre("K-7", "K9223372036854775807", "K8", "K9"));
    const std::vector<std::string> keys = keysOf(lvwProy);
    for (std::size_t row = 0; row < keys.size(); ++row) {
        lvwProy.clickRow(row);
        EXPECT_EQ(lvwProy.SelectedItem()->Key(), keys[row]);
        EXPECT_THAT(cnn->statements, Contains("SELECT * FROM xt_biticontact WHERE uf_IProy = " +
                                              keys[row].substr(1) + " ORDER BY uf_Tiempo"));
    }
}

TEST_F(HostileContents, every_type_in_the_queue)
{
    for (const HostileType& one : hostileTypes) {
        const ReplacedTable other(*beside, "qhoy",
                                  "ejecutivo INT, Tipo VARCHAR(20), Sys_PK BIGINT, cita " + one.type +
                                      ", Contacto " + one.type + ", empresa " + one.type + ", telefono " +
                                      one.type + ", email " + one.type);
        const std::string values = ", " + one.literal + ", " + one.literal + ", " + one.literal + ", " +
                                   one.literal + ", " + one.literal + ")";
        for (const char* head : {"'Contacto', -1", "'Contacto', 9223372036854775807", "'Contacto', -1", "NULL, 3",
                                 "'', 4", "'Contacto', NULL"})
            database("INSERT INTO qhoy VALUES (7, " + std::string(head) + values);
        database("INSERT INTO qhoy (ejecutivo, Tipo, Sys_PK) VALUES (7, 'Proyecto', 5)");
        enters(ana);
        opensTab(desk::hoy);
        screen::ListView& lvwHoy = control.elements().today.lvwHoy;
        EXPECT_THAT(keysOf(lvwHoy), testing::UnorderedElementsAre("K-1", "K9223372036854775807", "P3", "P4", "P5"))
            << one.type;
        for (int row = 1; row <= lvwHoy.ListItems().Count(); ++row) {
            const screen::ListItem item = lvwHoy.ListItems()(row);
            EXPECT_EQ(item.ListSubItems()(2).Text(), item.Key() == "P5" ? "" : one.shown) << one.type;
            if (item.Key() == "P5") {
                EXPECT_EQ(item.ListSubItems()(1).Text(), "URGENTE");
            }
            lvwHoy.clickRow(static_cast<std::size_t>(row) - 1);
            EXPECT_EQ(lvwHoy.SelectedItem()->Key(), item.Key());
        }
    }
}

TEST_F(HostileContents, every_type_in_the_directories)
{
    for (const HostileType& one : hostileTypes) {
        const ReplacedTable others(*beside, "Persona", personColumnsOf(one.type));
        database("INSERT INTO Persona (Sys_PK, IEjecutivo, Nombre, Tel_Casa) VALUES (9223372036854775807, 7, " +
                 one.literal + ", " + one.literal + "), (-1, 7, NULL, NULL)");
        enters(ana);
        if (one.refusedByIfNull) {
            ports.dialogs.expectAnyBox();
            opensTab(desk::contactos);
            EXPECT_THAT(keysOf(control.elements().persons.lvwContactos), IsEmpty()) << one.type;
            opensTab(desk::prospectos);
            continue;
        }
        opensTab(desk::contactos);
        EXPECT_THAT(keysOf(control.elements().persons.lvwContactos),
                    testing::UnorderedElementsAre("PK9223372036854775807", "PK-1"))
            << one.type;
        EXPECT_EQ(sees("lblInfoContacto"), "Contactos: 2.");
        opensTab(desk::prospectos);
    }
}

TEST_F(HostileContents, a_directory_with_a_key_twice_tells_it_and_shows_the_rows_ahead)
{
    const ReplacedTable others(*beside, "Persona", personColumnsOf("VARCHAR(50)"));
    database("INSERT INTO Persona (Sys_PK, IEjecutivo, Nombre) VALUES (1, 7, 'a'), (2, 7, 'b'), (2, 7, 'c'), (3, "
             "7, 'd')");
    enters(ana);
    ports.dialogs.expectAnyBox();
    opensTab(desk::contactos);
    EXPECT_THAT(keysOf(control.elements().persons.lvwContactos), ElementsAre("PK1", "PK2"));
}

TEST_F(HostileContents, what_is_exported)
{
    OutputFolder folder;
    const ReplacedTable other(*beside, "ut_icontact", prospectColumnsOf("LONGBLOB"));
    database(prospectRowOf(1, "x'FF3C623E410D0A00C3B1'"));
    database(longProspectRowOf(2, "REPEAT('x', 10000000)"));
    database(prospectRowOf(3, "NULL"));
    entersAsAdministrator();
    ports.events.expectModal("dlgFiltro", [&](screen::Form& form) {
        elementNamed<screen::CheckBox>(form, "chkContactos").toggle();
        ports.events.expectModal("dlgShow", [&](screen::Form& lists) {
            EXPECT_EQ(elementNamed<screen::Label>(lists, "lblTotal").Caption(), "Total de Registros: 3");
            ports.dialogs.expectSave(screen::SaveChoice{folder.file("a.html"), 2});
            elementNamed<screen::Button>(lists, "cmdExport").press();
            ports.dialogs.expectSave(screen::SaveChoice{folder.file("a.xls"), 1});
            elementNamed<screen::Button>(lists, "cmdExport").press();
            lists.closeWindow();
        });
        elementNamed<screen::Button>(form, "cmdExportar").press();
        form.closeWindow();
    });
    control.ExportarListas();
    const std::string html = contentsOf(folder.file("a.html"));
    EXPECT_THAT(html.size(), testing::Gt(20'000'000U));
    EXPECT_NE(html.find("<td>\xEF\xBF\xBD&lt;b&gt;A\n\xEF\xBF\xBDñ</td>"), std::string::npos);
    EXPECT_THAT(folder.names(), ElementsAre("a.html", "a.xls"));
}

} // namespace
} // namespace dn::tests
