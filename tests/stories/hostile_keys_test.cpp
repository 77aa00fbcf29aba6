// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// Keys that are no whole numbers, and other types in what the lists are filtered and reckoned by, and in the
// tables that fill the combos. A key goes into the statements as it stands; whatever it is, they stay what the
// account may do, and what works with numbers alone refuses it.

#include "base/runtime_error.h"
#include "screen/list_box.h"
#include "screen/option_list_field.h"
#include "tests/stories/hostile_contents.h"
#include "tests/stories/hostile_rows.h"
#include "tests/stories/replaced_table.h"
#include "tests/support/element_tree.h"

namespace dn::tests {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

const std::string condition = "1 OR 1=1";

class HostileKeys : public HostileContents {
protected:
    std::vector<std::string> agents()
    {
        std::vector<std::string> names;
        for (int i = 0; i < control.elements().top.cbAgente.ListCount(); ++i)
            names.push_back(control.elements().top.cbAgente.List(i));
        return names;
    }

    /// The entries of a field of the export's filter.
    std::vector<std::string> filterOf(const std::string& field)
    {
        std::vector<std::string> texts;
        ports.events.expectModal("dlgFiltro", [&](screen::Form& form) {
            auto& list = elementNamed<screen::eOptionLstField>(form, field);
            for (int i = 0; i < list.OptionCount(); ++i)
                texts.push_back(list.InnerList().List(i));
            form.closeWindow();
        });
        control.ExportarListas();
        return texts;
    }

    void prospectsWithKeys(const std::string& type, const std::vector<std::string>& literals)
    {
        int day = 10;
        for (const std::string& key : literals)
            database(
                "INSERT INTO ut_icontact (Sys_PK, uf_IEjecutivo, uf_Status, uf_Tipo, uf_proxcontac, uf_Nombre) "
                "VALUES (" +
                key + ", 7, 0, 1, '2026-03-" + std::to_string(day++) + "', '" + type + "')");
    }

    /// What needs a number sends no change, and asks for nobody.
    void refusesCallsAndConversions()
    {
        cnn->statements.clear();
        EXPECT_THROW(presses("cmdCall"), RuntimeError);
        EXPECT_THROW(presses("cmdProsNewProj"), RuntimeError);
        EXPECT_THAT(changesSent(), IsEmpty());
        EXPECT_FALSE(control.elements().call.picLlamada.Visible());
        EXPECT_THAT(host.log.calls, Not(Contains(HasSubstr("Crear"))));
    }
};

TEST_F(HostileKeys, every_type_in_the_names_of_agents_and_executives)
{
    for (const HostileType& one : hostileTypes) {
        SCOPED_TRACE(one.type);
        const ReplacedTable agentes(*beside, "Agente", "Sys_PK INT, Nombre " + one.type);
        const ReplacedTable ejecutivos(*beside, "Ejecutivo", "Sys_PK INT, Nombre " + one.type);
        database("INSERT INTO Agente VALUES (7, " + one.literal + ")");
        database("INSERT INTO Ejecutivo VALUES (7, " + one.literal + "), (8, NULL), (9, " + one.literal + ")");
        entersAsAdministrator(ana);
        EXPECT_THAT(agents(), ElementsAre("< Sin asignar >", one.shown));
        EXPECT_EQ(sees("cbAgente"), one.shown);
        EXPECT_THAT(filterOf("dxEjecutivo"), ElementsAre("Todas los ejecutivos", one.shown, one.shown))
            << "a row that cannot be read gives no entry";
    }
}

TEST_F(HostileKeys, an_agent_who_cannot_be_read_is_told_to_the_host_and_leaves_those_ahead)
{
    for (const auto& [type, literals] :
         std::map<std::string, std::vector<std::string>>{{"VARCHAR(50)", {"'7'", "'" + condition + "'"}},
                                                         {"DECIMAL(30,2)", {"7.00", "2147483648"}},
                                                         {"BIGINT", {"7", "-2147483649"}},
                                                         {"INT", {"7", "NULL"}}}) {
        SCOPED_TRACE(type);
        const ReplacedTable agentes(*beside, "Agente", "Sys_PK " + type + ", Nombre VARCHAR(50)");
        database("INSERT INTO Agente VALUES (" + literals[0] + ", 'Ana'), (" + literals[1] + ", 'Beto')");
        EXPECT_THROW(enters(ana), RuntimeError);
        EXPECT_THAT(agents(), ElementsAre("< Sin asignar >", "Ana", "Beto"));
        EXPECT_EQ(control.elements().top.cbAgente.ItemData(1), 7);
        EXPECT_EQ(control.elements().top.cbAgente.ItemData(2), 0) << "nobody's key";
    }
    const ReplacedTable agentes(*beside, "Agente", "Sys_PK DATE, Nombre VARCHAR(50)");
    database("INSERT INTO Agente VALUES ('2026-03-14', 'Ana')");
    EXPECT_THROW(enters(ana), RuntimeError);
}

TEST_F(HostileKeys, every_type_in_the_cities)
{
    prospect("María", {{"uf_Tipo", "1"}, {"uf_Ciudad", "'dos'"}});
    host.projects->newProject = 0; // the operator gives up
    for (const HostileType& one : hostileTypes) {
        SCOPED_TRACE(one.type);
        const ReplacedTable cities(*beside, "Ciudad", "Sys_PK INT, Nombre " + one.type);
        database("INSERT INTO Ciudad VALUES (5, " + one.literal + ")");
        const bool found = !inTheDatabase("SELECT 1 FROM Ciudad WHERE Nombre LIKE '%dos%'").empty();
        EXPECT_EQ(found, one.shown.find("dos") != std::string::npos);
        enters(ana);
        host.log.calls.clear();
        presses("cmdProsNewProj");
        EXPECT_THAT(host.log.calls,
                    Contains(HasSubstr(found ? "|Internal|Internal|5|" : "|Internal|Internal|1|")));
    }
}

TEST_F(HostileKeys, a_city_whose_key_is_no_number_makes_nobody)
{
    prospect("María", {{"uf_Tipo", "1"}, {"uf_Ciudad", "'Morelia'"}});
    for (const auto& [type, literal] : std::map<std::string, std::string>{{"VARCHAR(50)", "'" + condition + "'"},
                                                                          {"BIGINT", "2147483648"},
                                                                          {"DATE", "'2026-03-14'"},
                                                                          {"INT", "NULL"}}) {
        const ReplacedTable cities(*beside, "Ciudad", "Sys_PK " + type + ", Nombre VARCHAR(50)");
        database("INSERT INTO Ciudad VALUES (" + literal + ", 'Morelia')");
        enters(ana);
        host.log.calls.clear();
        EXPECT_THROW(presses("cmdProsNewProj"), RuntimeError) << type;
        EXPECT_THAT(host.log.calls, Not(Contains(HasSubstr("Crear")))) << type;
        EXPECT_THAT(changesSent(), IsEmpty()) << type;
    }
}

TEST_F(HostileKeys, every_type_in_the_columns_that_prospects_are_reckoned_by)
{
    for (const HostileType& one : hostileTypes) {
        SCOPED_TRACE(one.type);
        const ReplacedTable other(
            *beside, "ut_icontact",
            "Sys_PK INT, uf_IEjecutivo INT, uf_Status INT, uf_Nombre VARCHAR(50), uf_Fecha DATE, "
            "uf_proxcontac DATETIME, Sys_DTCreated " +
                one.type + ", uf_ultimocontac " + one.type + ", uf_ultimointento " + one.type);
        database("INSERT INTO ut_icontact VALUES (1, 7, 0, 'a', NULL, NULL, " + one.literal + ", " + one.literal +
                 ", " + one.literal + ")");
        database("INSERT INTO ut_icontact (Sys_PK, uf_IEjecutivo, uf_Status, uf_Nombre) VALUES (2, 7, 0, 'b')");
        enters(ana);
        if (one.refusedByIfNull) { // the server reckons no days with it: an empty list, and no message
            EXPECT_THAT(keysOf(lvw()), IsEmpty());
            continue;
        }
        EXPECT_THAT(keysOf(lvw()), testing::UnorderedElementsAre("K1", "K2"));
        const auto days =
            inTheDatabase("SELECT IFNULL(datediff(NOW(),uf_ultimocontac), '') FROM ut_icontact WHERE "
                          "Sys_PK = 1");
        EXPECT_EQ(seesCell("a", "D.U.C."), days.at(0));
        EXPECT_EQ(seesCell("a", "D.U.I."), days.at(0));
        EXPECT_EQ(seesCell("a", "Días").empty(), days.at(0).empty());
        for (const char* header : {"Días", "Últ.Contacto", "D.U.C.", "Último intento", "D.U.I."})
            EXPECT_EQ(seesCell("b", header), "") << header;
        eachRowIsItself();
    }
}

TEST_F(HostileKeys, texts_in_the_columns_that_prospects_are_filtered_by)
{
    const ReplacedTable other(
        *beside, "ut_icontact",
        "Sys_PK INT, uf_IEjecutivo VARCHAR(50), uf_Status VARCHAR(50), uf_Nombre VARCHAR(50), "
        "uf_Fecha DATE, uf_proxcontac DATETIME, Sys_DTCreated DATETIME, uf_ultimocontac DATETIME, "
        "uf_ultimointento DATETIME");
    database(
        "INSERT INTO ut_icontact (Sys_PK, uf_IEjecutivo, uf_Status, uf_Nombre) VALUES (1, '7', '0', 'a'), (2, "
        "'9 OR 7', '0', 'b'), (3, '7', '1', 'c'), (4, 'siete', '0', 'd'), (5, '7.0', '0.0', 'e')");
    enters(ana);
    EXPECT_THAT(keysOf(lvw()), testing::UnorderedElementsAre("K1", "K5")) << "as the server compares them";
    eachRowIsItself();
}

TEST_F(HostileKeys, prospects_whose_keys_are_texts)
{
    const ReplacedTable other(*beside, "ut_icontact", prospectColumnsOf("VARCHAR(100)", "VARCHAR(100)"));
    prospectsWithKeys("x", {"'a'", "'" + condition + "'", "''", "'x''; DROP TABLE Ciudad; -- '", "'12'"});
    enters(ana);
    EXPECT_THAT(keysOf(lvw()), ElementsAre("Ka", "K" + condition, "K", "Kx'; DROP TABLE Ciudad; -- ", "K12"));
    eachRowIsItself();
    for (std::size_t row = 0; row < 4; ++row) {
        lvw().clickRow(row);
        refusesCallsAndConversions();
    }
    EXPECT_THAT(inTheDatabase("SHOW TABLES LIKE 'Ciudad'"), testing::SizeIs(1));
    lvw().clickRow(4);
    presses("cmdCall");
    EXPECT_EQ(control.Call_PK(), 12);
}

TEST_F(HostileKeys, a_key_that_is_a_condition_reaches_what_it_says_in_the_columns_of_the_account)
{
    const ReplacedTable other(*beside, "ut_icontact", prospectColumnsOf("VARCHAR(100)", "VARCHAR(100)"));
    prospectsWithKeys("x", {"'5'", "'" + condition + "'"});
    enters(ana);
    lvw().clickRow(1);
    presses("bColor(3)");
    EXPECT_THAT(changesSent(), ElementsAre("UPDATE ut_icontact SET uf_color = 3 WHERE Sys_PK = " + condition));
    EXPECT_THAT(inTheDatabase("SELECT DISTINCT uf_color FROM ut_icontact"), ElementsAre("3"))
        << "the documents tell of this: a key goes in as it stands";
    lvw().clickRow(1);
    isTold("You have an error in your SQL syntax; check the manual that corresponds to your MariaDB server "
           "version for "
           "the right syntax to use near 'DROP TABLE Ciudad' at line 1");
    database("UPDATE ut_icontact SET Sys_PK = '5; DROP TABLE Ciudad' WHERE Sys_PK <> '5'");
    opensTab(desk::prospectos);
    lvw().clickRow(1);
    presses("bColor(1)");
    EXPECT_THAT(inTheDatabase("SELECT DISTINCT uf_color FROM ut_icontact"), ElementsAre("3")) << "one statement";
    EXPECT_THAT(inTheDatabase("SHOW TABLES LIKE 'Ciudad'"), testing::SizeIs(1));
}

TEST_F(HostileKeys, prospects_whose_keys_are_decimals_and_dates)
{
    {
        const ReplacedTable other(*beside, "ut_icontact", prospectColumnsOf("VARCHAR(100)", "DECIMAL(40,20)"));
        prospectsWithKeys("x", {"7.5", "-0.25", "12345678901234567890.00000000000000000001"});
        enters(ana);
        EXPECT_THAT(keysOf(lvw()), ElementsAre("K7.50000000000000000000", "K-0.25000000000000000000",
                                               "K12345678901234567890.00000000000000000001"));
        eachRowIsItself();
        lvw().clickRow(2);
        presses("bColor(2)");
        EXPECT_THAT(inTheDatabase("SELECT Sys_PK FROM ut_icontact WHERE uf_color = 2"),
                    ElementsAre("12345678901234567890.00000000000000000001"))
            << "to the last figure";
        lvw().clickRow(2);
        refusesCallsAndConversions();
    }
    const ReplacedTable other(*beside, "ut_icontact", prospectColumnsOf("VARCHAR(100)", "DATE"));
    prospectsWithKeys("x", {"'2026-03-14'", "'9999-12-31'"});
    enters(ana);
    EXPECT_THAT(keysOf(lvw()), ElementsAre("K14/03/2026", "K31/12/9999"));
    eachRowIsItself();
    presses("bColor(2)");
    EXPECT_THAT(inTheDatabase("SELECT Sys_PK FROM ut_icontact WHERE uf_color IS NOT NULL"), IsEmpty())
        << "a day is no key: it reaches nobody";
    lvw().clickRow(0);
    refusesCallsAndConversions();
}

TEST_F(HostileKeys, a_queue_whose_keys_are_conditions_leads_nowhere)
{
    prospect("María");
    const std::string maria = std::to_string(lastKey());
    const ReplacedTable queue(
        *beside, "qhoy",
        "ejecutivo INT, Tipo VARCHAR(20), Sys_PK VARCHAR(100), cita DATETIME, Contacto VARCHAR(50), "
        "empresa INT, telefono INT, email INT");
    database("INSERT INTO qhoy (ejecutivo, Tipo, Sys_PK) VALUES (7, 'Contacto', '" + condition +
             "'), (7, 'Proyecto', '" + condition + "'), (7, 'Contacto', '1; DROP TABLE Ciudad')");
    enters(ana);
    opensTab(desk::hoy);
    screen::ListView& lvwHoy = control.elements().today.lvwHoy;
    EXPECT_THAT(keysOf(lvwHoy), testing::UnorderedElementsAre("K" + condition, "P" + condition,
                                                              "K1; DROP TABLE Ciudad", "K" + maria))
        << "and María, who is stuck";
    cnn->statements.clear();
    const std::vector<std::string> keys = keysOf(lvwHoy);
    for (std::size_t row = 0; row < keys.size(); ++row) {
        if (keys[row] == "K" + maria) continue;
        lvwHoy.clickRow(row);
        EXPECT_THROW(presses("cmdEditHoy"), RuntimeError);
        if (keys[row].starts_with('K')) {
            EXPECT_THROW(presses("geProyFromContacto"), RuntimeError);
        }
    }
    for (const std::string& statement : cnn->statements)
        EXPECT_THAT(statement, Not(testing::AnyOf(HasSubstr("OR 1=1"), HasSubstr("DROP"))));
    EXPECT_THAT(host.log.calls, Not(Contains(HasSubstr("Editar"))));
}

TEST_F(HostileKeys, projects_and_directories_whose_keys_are_conditions)
{
    const ReplacedTable projects(
        *beside, "Proyecto",
        "Sys_PK VARCHAR(100), Sys_DTCreated DATETIME, Descripcion VARCHAR(50), IEjecutivo INT, "
        "IMeta INT, IOrganizacion INT, IContacto INT, FInicio DATETIME, UF_Status1 INT, "
        "UF_Color INT, UF_monto INT, uf_ultimocontac DATETIME, uf_ultimointento DATETIME");
    database("INSERT INTO Proyecto (Sys_PK, IEjecutivo, IMeta, IOrganizacion, IContacto, UF_Status1) VALUES ('" +
             condition + "', 7, 1, 1, 1, 1)");
    enters(ana);
    opensProjects();
    EXPECT_THAT(keysOf(control.elements().projects.lvwProy), ElementsAre("K" + condition));
    control.elements().projects.lvwProy.clickRow(0);
    EXPECT_EQ(cnn->statements.back(),
              "SELECT * FROM xt_biticontact WHERE uf_IProy = " + condition + " ORDER BY uf_Tiempo");
    EXPECT_THROW(presses("cmdCall"), RuntimeError);
    presses("cmdNewProjEditProj");
    EXPECT_THAT(host.log.calls, Not(Contains(HasSubstr("EditarProyecto"))));

    const ReplacedTable persons(*beside, "Persona",
                                "Sys_PK VARCHAR(100), IEjecutivo INT, Codigo INT, Nombre VARCHAR(50), "
                                "Apellido1 INT, Apellido2 INT, EMail INT, EMail2 INT, Tel_Casa INT, "
                                "Tel_Trabajo INT, Tel_Movil INT, Domicilio INT, Colonia INT, "
                                "CodPostal INT");
    database("INSERT INTO Persona (Sys_PK, IEjecutivo, Nombre) VALUES ('" + condition + "', 7, 'Luz')");
    opensTab(desk::contactos);
    EXPECT_THAT(keysOf(control.elements().persons.lvwContactos), ElementsAre("PK" + condition));
    control.elements().persons.lvwContactos.clickRow(0);
    isTold("Debe seleccionar un elemento a eliminar.");
    presses("deleteContact");
    EXPECT_THAT(host.log.calls, Not(Contains(HasSubstr("Borrar"))));
}

} // namespace
} // namespace dn::tests
