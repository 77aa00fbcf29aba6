// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// A database that holds what nobody expected: other types, texts of megabytes, bytes that are no text, dates of no
// calendar, keys twice, below zero and beyond 32 bits. The rest of a list still shows, and each row stays itself.
// Here the prospects, their log and the export.

#include "screen/data_grid.h"
#include "screen/option_list_field.h"
#include "tests/stories/hostile_contents.h"
#include "tests/stories/hostile_rows.h"
#include "tests/stories/replaced_table.h"
#include "tests/support/element_tree.h"
#include "tests/support/table_files.h"

namespace dn::tests {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

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
        clicksHeader(column::name);
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
    clicksHeader(column::name);
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
