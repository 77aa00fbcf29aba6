// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// What nobody expected in the other lists: the projects with the tables that they are joined to, the queue, and
// the two directories.

#include "tests/stories/hostile_contents.h"
#include "tests/stories/hostile_rows.h"
#include "tests/stories/replaced_table.h"

namespace dn::tests {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;

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

TEST_F(HostileContents, every_type_in_the_projects_and_in_what_they_are_joined_to)
{
    for (const HostileType& one : hostileTypes) {
        const std::string two = ", " + one.literal + ", " + one.literal;
        const std::string& type = one.type;
        const ReplacedTable projects(*beside, "Proyecto",
                                     "Sys_PK BIGINT, IEjecutivo INT, IMeta INT, IOrganizacion INT, IContacto INT, "
                                     "UF_Status1 SMALLINT, Sys_DTCreated DATETIME, uf_ultimocontac DATETIME, "
                                     "uf_ultimointento DATETIME, FInicio " +
                                         type + ", Descripcion " + type + ", UF_Color " + type + ", UF_monto " +
                                         type);
        const ReplacedTable activities(*beside, "actividad",
                                       "IProyecto BIGINT, ITpActividad INT, Hecho INT DEFAULT 0, FInicio " + type +
                                           ", Asunto " + type);
        const ReplacedTable kinds(*beside, "mdtpactividad", "Sys_PK INT, Nombre " + type);
        const ReplacedTable goals(*beside, "Meta", "Sys_PK INT, Descripcion " + type);
        const ReplacedTable organisations(*beside, "Organizacion",
                                          "Sys_PK INT, Nombre " + type + ", Tel1 " + type + ", EMail " + type);
        const ReplacedTable persons(*beside, "Persona",
                                    "Sys_PK INT, Nombre VARCHAR(50), Apellido1 VARCHAR(50), Apellido2 "
                                    "VARCHAR(50), EMail " +
                                        type + ", EMail2 " + type);
        for (const char* key : {"-7", "3"})
            database("INSERT INTO Proyecto VALUES (" + std::string(key) + ", 7, 1, 1, 1, 2, NULL, NULL, NULL" +
                     two + two + ")");
        database(
            "INSERT INTO Proyecto (Sys_PK, IEjecutivo, UF_Status1, IMeta, IOrganizacion, IContacto) VALUES (4, 7, "
            "1, 1, 1, 1)");
        database("INSERT INTO actividad VALUES (-7, 1, 0" + two + ")");
        database("INSERT INTO mdtpactividad VALUES (1, " + one.literal + ")");
        database("INSERT INTO Meta VALUES (1, " + one.literal + ")");
        database("INSERT INTO Organizacion VALUES (1, " + one.literal + two + ")");
        database("INSERT INTO Persona VALUES (1, 'Eva', 'Luna', NULL" + two + ")");
        enters(ana);
        opensProjects();
        screen::ListView& lvwProy = control.elements().projects.lvwProy;
        EXPECT_THAT(keysOf(lvwProy), testing::UnorderedElementsAre("K-7", "K3", "K4")) << type;
        for (int row = 1; row <= lvwProy.ListItems().Count(); ++row) {
            const screen::ListItem item = lvwProy.ListItems()(row);
            SCOPED_TRACE(type + " " + std::string(item.Key()));
            const bool due = item.Key() == "K-7";
            EXPECT_EQ(item.Text(), due ? one.shown : "");
            EXPECT_EQ(item.ListSubItems()(1).Text(), due ? one.shown : "< Ninguna >");
            EXPECT_EQ(item.ListSubItems()(2).Text(), due ? one.shown : "Revise el estado del proyecto");
            EXPECT_EQ(item.ListSubItems()(3).Text(), one.shown);
            EXPECT_EQ(item.ListSubItems()(4).Text(), one.shown);
            EXPECT_EQ(item.ListSubItems()(5).Text(), item.Key() == "K4" ? "" : one.shown);
            lvwProy.clickRow(static_cast<std::size_t>(row) - 1);
            EXPECT_EQ(lvwProy.SelectedItem()->Key(), item.Key());
            EXPECT_THAT(cnn->statements, Contains("SELECT * FROM xt_biticontact WHERE uf_IProy = " +
                                                  std::string(item.Key()).substr(1) + " ORDER BY uf_Tiempo"));
        }
    }
}

/// The projects with other types in the columns that the server reckons days with, or filters by.
class HostileProjects : public HostileContents {
protected:
    static constexpr const char* dates[] = {"Días", "Últ. Contacto", "D.U.C.", "Últ. intento", "D.U.I."};

    /// The columns of the projects but the given ones, whose type is another.
    static std::string columnsBut(const std::vector<std::string>& others, const std::string& type)
    {
        std::string columns = projectColumns;
        for (const std::string& other : others) {
            const std::size_t at = columns.find(other + " ") + other.size() + 1;
            columns.replace(at, std::min(columns.find(',', at), columns.size()) - at, type);
        }
        return columns;
    }
    std::vector<std::string> days(const std::string& column)
    {
        return inTheDatabase("SELECT IFNULL(datediff(NOW()," + column + "), '') FROM Proyecto WHERE Sys_PK = 1");
    }
};

TEST_F(HostileProjects, every_type_in_the_columns_that_projects_are_reckoned_by)
{
    for (const HostileType& one : hostileTypes) {
        SCOPED_TRACE(one.type);
        const ReplacedTable other(*beside, "Proyecto",
                                  columnsBut({"Sys_DTCreated", "uf_ultimocontac", "uf_ultimointento"}, one.type));
        const std::string row = "INSERT INTO Proyecto (IEjecutivo, UF_Status1, IMeta, IOrganizacion, IContacto, "
                                "Sys_PK, Descripcion, Sys_DTCreated, uf_ultimocontac, uf_ultimointento) VALUES "
                                "(7, 1, 1, 1, 1, ";
        const std::string values = ", " + one.literal + ", " + one.literal + ", " + one.literal + ")";
        database(row + "1, 'a'" + values);
        database(row + "2, 'b', NULL, NULL, NULL)");
        database(row + "3, 'c'" + values);
        for (const int due : {1, 2})
            activity(due, "cita");
        enters(ana);
        opensProjects();
        screen::ListView& lvwProy = control.elements().projects.lvwProy;
        EXPECT_THAT(keysOf(lvwProy), testing::UnorderedElementsAre("K1", "K2", "K3"));
        for (const char* header : dates)
            EXPECT_EQ(seesProjectCell("c", header), "-") << "it has no activity, and no such cells";
        if (one.refusedByIfNull) { // the server reckons no days with it: the activities stay out, and no message
            for (const char* project : {"a", "b"})
                EXPECT_EQ(seesProjectCell(project, "Actividad"), "< Ninguna >");
            continue;
        }
        EXPECT_EQ(seesProjectCell("a", "Últ. Contacto"), one.shown);
        EXPECT_EQ(seesProjectCell("a", "Últ. intento"), one.shown);
        EXPECT_EQ(seesProjectCell("a", "Días"), days("Sys_DTCreated").at(0));
        EXPECT_EQ(seesProjectCell("a", "D.U.C."), days("uf_ultimocontac").at(0));
        EXPECT_EQ(seesProjectCell("a", "D.U.I."), days("uf_ultimointento").at(0));
        for (const char* header : dates)
            EXPECT_EQ(seesProjectCell("b", header), "") << header;
    }
}

TEST_F(HostileProjects, texts_in_the_columns_that_projects_are_filtered_by)
{
    const ReplacedTable other(*beside, "Proyecto", columnsBut({"IEjecutivo", "UF_Status1"}, "VARCHAR(50)"));
    const std::string row =
        "INSERT INTO Proyecto (IMeta, IOrganizacion, IContacto, Sys_PK, Descripcion, IEjecutivo, UF_Status1) "
        "VALUES (1, 1, 1, ";
    database(row + "1, 'a', '7', '1')");
    database(row + "2, 'b', '9 OR 7', '1')");
    database(row + "3, 'c', '7', 'uno')");
    database(row + "4, 'd', '7.0', '2.0')");
    database(row + "5, 'e', '7', '5 OR 1=1')");
    for (int project = 1; project <= 3; ++project)
        activity(project, "cita");
    enters(ana);
    opensProjects();
    EXPECT_THAT(seesProjects(), ElementsAre("a", "d"))
        << "as the server compares them; a status that is no number "
           "has no image, and no row";
    picks("cbProjStatusProj", "Fríos");
    EXPECT_THAT(seesProjects(), ElementsAre("d"));
}

TEST_F(HostileContents, two_hundred_columns_more_in_the_queue_and_in_the_log)
{
    const std::int64_t key = prospect("María");
    std::string more;
    for (int i = 1; i <= 200; ++i)
        more += ", extra" + std::to_string(i) + " INT DEFAULT 1";
    const ReplacedTable queue(*beside, "qhoy",
                              "ejecutivo INT, Tipo VARCHAR(20), Sys_PK INT, cita DATETIME, Contacto VARCHAR(50)" +
                                  more);
    const ReplacedTable log(
        *beside, "xt_biticontact",
        "uf_Iicontact INT, uf_Tiempo VARCHAR(50), uf_Mensaje VARCHAR(50), uf_Usuario VARCHAR(50)" + more);
    database("INSERT INTO qhoy (ejecutivo, Tipo, Sys_PK, Contacto) VALUES (7, 'Contacto', " + std::to_string(key) +
             ", 'María')");
    database("INSERT INTO xt_biticontact (uf_Iicontact, uf_Tiempo, uf_Mensaje, uf_Usuario) VALUES (" +
             std::to_string(key) + ", 'hoy', 'pide precios', 'ana')");
    enters(ana);
    opensTab(desk::hoy);
    screen::ListView& lvwHoy = control.elements().today.lvwHoy;
    EXPECT_THAT(cellsOf(lvwHoy, 2), ElementsAre("María"));
    lvwHoy.clickRow(0);
    EXPECT_EQ(sees("txtBit"), "ana [hoy]\r\npide precios\r\n\r\n");
}

/// One of the two lists, and where its rows come from.
struct Directory {
    int tab;
    std::string table;
    std::string label;
    std::string counted; ///< ahead of the number in the label

    /// The columns that its statement reads, with one type for all of them.
    std::string columnsOf(const std::string& type) const
    {
        return tab == desk::contactos ? personColumnsOf(type) : organisationColumnsOf(type);
    }
};

const std::vector<Directory> bothDirectories{
    {desk::contactos, "Persona", "lblInfoContacto", "Contactos: "},
    {desk::organizaciones, "Organizacion", "lblinfoOrganizacion", "Organizaciones: "}};

class HostileDirectories : public HostileContents {
protected:
    screen::ListView& listOf(const Directory& directory)
    {
        if (directory.tab == desk::contactos) return control.elements().persons.lvwContactos;
        return control.elements().organisations.lvwOrganizaciones;
    }
    /// What the server makes of a column where it stands in the place of a null.
    std::vector<std::string> namesIn(const Directory& directory)
    {
        return inTheDatabase("SELECT IFNULL(Nombre, '') FROM " + directory.table + " ORDER BY 1");
    }
    void eachRowIsSelected(const Directory& directory)
    {
        screen::ListView& list = listOf(directory);
        const std::vector<std::string> keys = keysOf(list);
        for (std::size_t row = 0; row < keys.size(); ++row) {
            list.clickRow(row);
            EXPECT_EQ(list.SelectedItem()->Key(), keys[row]);
        }
    }
};

TEST_F(HostileDirectories, every_type_in_every_column)
{
    for (const Directory& directory : bothDirectories)
        for (const HostileType& one : hostileTypes) {
            SCOPED_TRACE(directory.table + " " + one.type);
            const ReplacedTable other(*beside, directory.table, directory.columnsOf(one.type));
            std::string row;
            for (const std::string& column : inTheDatabase("SHOW COLUMNS FROM " + directory.table))
                row += column.starts_with("Sys_PK|")       ? "9223372036854775807"
                       : column.starts_with("IEjecutivo|") ? ", 7"
                                                           : ", " + one.literal;
            database("INSERT INTO " + directory.table + " VALUES (" + row + ")");
            database("INSERT INTO " + directory.table + " (Sys_PK, IEjecutivo) VALUES (-1, 7)");
            enters(ana);
            if (one.refusedByIfNull) ports.dialogs.expectAnyBox();
            opensTab(directory.tab);
            if (one.refusedByIfNull) {
                EXPECT_THAT(keysOf(listOf(directory)), IsEmpty());
            } else {
                EXPECT_THAT(keysOf(listOf(directory)),
                            testing::UnorderedElementsAre("PK9223372036854775807", "PK-1"));
                EXPECT_THAT(cellsOf(listOf(directory), 1), testing::UnorderedElementsAreArray(namesIn(directory)));
                EXPECT_EQ(sees(directory.label), directory.counted + "2.");
                eachRowIsSelected(directory);
            }
            opensTab(desk::prospectos);
        }
}

TEST_F(HostileDirectories, a_key_twice_is_told_and_the_rows_ahead_show)
{
    for (const Directory& directory : bothDirectories) {
        SCOPED_TRACE(directory.table);
        const ReplacedTable other(*beside, directory.table, directory.columnsOf("VARCHAR(50)"));
        database("INSERT INTO " + directory.table +
                 " (Sys_PK, IEjecutivo, Nombre) VALUES (1, 7, 'a'), (2, 7, 'b'), (2, 7, 'c'), (3, 7, 'd')");
        enters(ana);
        ports.dialogs.expectAnyBox();
        opensTab(directory.tab);
        EXPECT_THAT(keysOf(listOf(directory)), ElementsAre("PK1", "PK2"));
        opensTab(desk::prospectos);
    }
}

TEST_F(HostileDirectories, texts_of_ten_megabytes_and_bytes_that_are_no_text)
{
    for (const Directory& directory : bothDirectories) {
        SCOPED_TRACE(directory.table);
        const ReplacedTable other(*beside, directory.table, directory.columnsOf("LONGBLOB"));
        database(
            "INSERT INTO " + directory.table +
            " (Sys_PK, IEjecutivo, Nombre) VALUES (1, 7, REPEAT('x', 10000000)), (2, 7, x'FFC328EDA080'), (3, 7, "
            "x'00410D0A')");
        enters(ana);
        opensTab(directory.tab);
        EXPECT_EQ(cellsOf(listOf(directory), 1), namesIn(directory)) << "in the order of the bytes";
        EXPECT_THAT(keysOf(listOf(directory)), ElementsAre("PK3", "PK1", "PK2"));
        eachRowIsSelected(directory);
        opensTab(desk::prospectos);
    }
}

TEST_F(HostileDirectories, dates_of_no_calendar)
{
    for (const Directory& directory : bothDirectories) {
        SCOPED_TRACE(directory.table);
        const ReplacedTable other(*beside, directory.table, directory.columnsOf("DATETIME(6)"));
        database(
            "INSERT INTO " + directory.table +
            " (Sys_PK, IEjecutivo, Nombre) VALUES (1, 7, '0000-00-00'), (2, 7, '2026-02-31 10:00:00'), (3, 7, "
            "'9999-12-31 23:59:59.999999')");
        enters(ana);
        opensTab(directory.tab);
        EXPECT_THAT(keysOf(listOf(directory)), ElementsAre("PK1", "PK2", "PK3"));
        EXPECT_EQ(cellsOf(listOf(directory), 1), namesIn(directory)) << "texts, as the server wrote them";
        opensTab(desk::prospectos);
    }
}

} // namespace
} // namespace dn::tests
