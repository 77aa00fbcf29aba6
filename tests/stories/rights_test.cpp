// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The rights that docs/database.md asks for are enough for a day's work (the control has no others in any story),
// and for nothing more.

#include "base/no_case_pattern.h"
#include "base/text.h"
#include "screen/list_box.h"
#include "tests/stories/documented_grants.h"
#include "tests/stories/project_operator.h"
#include "tests/support/element_tree.h"

#include <map>
#include <regex>
#include <set>
#include <sstream>

namespace dn::tests {
namespace {

using testing::ElementsAre;
using testing::SizeIs;

class Rights : public ProjectOperator {
protected:
    /// Whether the account is kept from a statement by its rights.
    bool isDenied(const std::string& statement)
    {
        try {
            cnn->execute(statement);
            return false;
        } catch (const data::Error& refusal) {
            return refusal.nativeCode() == 1142 || refusal.nativeCode() == 1143 || refusal.nativeCode() == 1044 ||
                   refusal.nativeCode() == 1045 || refusal.nativeCode() == 1227 || refusal.nativeCode() == 1370 ||
                   refusal.nativeCode() == 1410;
        }
    }

    /// The first column of what a statement gives the account.
    std::vector<std::string> namesFrom(const std::string& statement)
    {
        std::vector<std::string> names;
        for (const auto rows = cnn->execute(statement); !rows->Eof(); rows->MoveNext())
            names.push_back(rows->value(0).toText());
        return names;
    }
};

TEST_F(Rights, are_nineteen_grants) { EXPECT_THAT(documentedGrants(), SizeIs(19)); }

TEST_F(Rights, suffice_for_calls)
{
    prospect("María", {{"uf_Telefono", "'1'"}});
    enters(ana);
    for (int call = 0; call < 2; ++call)
        ports.events.expectModal("dlgQueH", [](screen::Form& form) { form.closeWindow(); });
    control.IniciarLlamada("ut_icontact", 1, "1");
    presses("cmdCancelCall");
    presses("cmdCall");
    control.Call_Resumen("todo bien");
    EXPECT_THAT(inTheDatabase("SELECT uf_res_ultimointento + uf_contactado FROM ut_icontact WHERE uf_primercontac "
                              "IS NOT NULL AND uf_ultimocontac IS NOT NULL AND uf_ultimointento IS NOT NULL"),
                ElementsAre("51"));
    cnn->execute("UPDATE ut_icontact SET uf_proxcontac = NULL");
    for (const char* statement :
         {"UPDATE Proyecto SET uf_contactado = 1, uf_primercontac = CURRENT_TIMESTAMP Where Sys_PK=1 and "
          "isnull(uf_contactado)",
          "UPDATE Proyecto SET uf_ultimointento = CURRENT_TIMESTAMP, uf_res_ultimointento = 50, uf_ultimocontac = "
          "CURRENT_TIMESTAMP Where Sys_PK = 1"})
        cnn->execute(statement);
}

TEST_F(Rights, suffice_for_reading_notes_and_changes_of_status)
{
    prospect("María");
    prospect("Luz");
    enters(ana);
    EXPECT_THAT(seesProspects(), ElementsAre("María", "Luz"));
    types("txtText", "pide precios\n");
    answers("Motivo del cambio de estado:", "ya compró");
    picks("Combo1", "Sin interés");
    EXPECT_THAT(seesProspects(), ElementsAre("Luz"));
    entersAsAdministrator(ana);
    checksRow("Luz");
    answers("Motivo:", "x");
    agreesTo("¿Seguro desea descartar estos contactos?");
    presses("cmdProsDiscart");
    EXPECT_THAT(inTheDatabase("SELECT uf_Mensaje FROM xt_biticontact ORDER BY Sys_PK"),
                ElementsAre("pide precios", ">> Sin interés: ya compró", ">> Descartado: x"));
}

TEST_F(Rights, suffice_for_entering_correcting_and_assigning)
{
    const auto press = [](screen::Form& form, const char* button) {
        elementNamed<screen::Button>(form, button).press();
    };
    enters(ana);
    ports.events.expectModal("dlgNuevoPros", [&](screen::Form& form) {
        for (const char* box : {"txtNombre", "txtTelefono", "txtCorreo", "cCiudad"})
            elementNamed<screen::TextBox>(form, box).edit("María @ Ñúñez");
        for (const char* combo : {"cInteres", "cObtencion", "cReferencia"})
            elementNamed<screen::ComboBox>(form, combo).edit("algo nuevo");
        elementNamed<screen::ComboBox>(form, "cEdo").pick(0);
        press(form, "cmdOk"); // a refusal to learn would be a box
    });
    presses("cmdProsNewPros");
    ports.events.expectModal("dlgCorregir", [&](screen::Form& form) {
        elementNamed<screen::TextBox>(form, "txtNombre").edit("María");
        press(form, "cmdOk");
    });
    presses("cmdEditC");
    EXPECT_THAT(seesProspects(), ElementsAre("María"));
    ports.events.expectModal("dlgSelAgente", [](screen::Form& form) {
        elementNamed<screen::ListBox>(form, "cbAgente").doubleClick(1);
    });
    presses("cmdProsAsignPros");
    EXPECT_THAT(inTheDatabase("SELECT uf_IEjecutivo FROM ut_icontact"), ElementsAre("9"));
    EXPECT_THAT(inTheDatabase("SELECT uf_Origen FROM ut_OrigenContacto WHERE uf_Origen = 'algo nuevo'"),
                SizeIs(1));
}

TEST_F(Rights, suffice_for_the_mail_lists_and_the_group_tool)
{
    database("INSERT IGNORE INTO Ejecutivo (Sys_PK, Nombre) VALUES (7, 'Ana')");
    prospect("María");
    project("Nave");
    entersAsAdministrator();
    ports.events.expectModal("dlgFiltro", [&](screen::Form& form) {
        EXPECT_GT(elementNamed<screen::ComboBox>(form, "dxEjecutivo.InnerList").ListCount(), 1);
        EXPECT_GT(elementNamed<screen::ComboBox>(form, "dxMeta.InnerList").ListCount(), 1);
        elementNamed<screen::CheckBox>(form, "chkContactos").toggle();
        elementNamed<screen::CheckBox>(form, "chkProyectos").toggle();
        ports.events.expectModal("dlgShow", [](screen::Form& lists) {
            EXPECT_EQ(elementNamed<screen::Label>(lists, "lblTotal").Caption(), "Total de Registros: 2");
            lists.closeWindow();
        });
        elementNamed<screen::Button>(form, "cmdExportar").press();
        form.closeWindow();
    });
    control.ExportarListas();
    cnn->execute(
        "UPDATE Proyecto SET IEjecutivo = 9  WHERE  uf_Color<> 1  AND uf_Status1 = 1 AND IEjecutivo = 7 ");
}

TEST_F(Rights, suffice_for_the_queue_of_the_day)
{
    prospect("María");
    project("Sin citas");
    enters(ana);
    opensTab(desk::hoy);
    EXPECT_EQ(sees("lblcuenta2"), "Hoy: 2 actividades | Proyectos: 1 Contactos: 1");
}

TEST_F(Rights, suffice_for_projects_conversions_and_colours)
{
    prospect("María", {{"uf_Tipo", "1"}});
    activity(project("Veinte puestos"), "visita");
    project("Sin citas");
    enters(ana);
    presses("bColor(1)");
    presses("cmdProsNewProj");
    EXPECT_THAT(inTheDatabase("SELECT CONCAT(uf_color, uf_Status) FROM ut_icontact"), ElementsAre("11"));
    opensTab(desk::proyectos);
    EXPECT_THAT(seesProjects(), ElementsAre("Veinte puestos", "Sin citas"));
    EXPECT_THAT(sees("txtInfo"), testing::HasSubstr("Tel_Movil: 55 2222"));
    presses("bColor(3)");
    EXPECT_THAT(inTheDatabase("SELECT UF_Color FROM Proyecto WHERE UF_Color IS NOT NULL"), ElementsAre("3"));
}

TEST_F(Rights, suffice_for_the_directories)
{
    database("INSERT INTO Persona (Nombre, IEjecutivo) VALUES ('Luz', 7)");
    database("INSERT INTO Organizacion (Nombre, IEjecutivo) VALUES ('Aceros', 7)");
    enters(ana);
    opensTab(desk::contactos);
    EXPECT_EQ(sees("lblInfoContacto"), "Contactos: 1.");
    opensTab(desk::organizaciones);
    EXPECT_EQ(sees("lblinfoOrganizacion"), "Organizaciones: 1.");
}

TEST_F(Rights, suffice_for_mails)
{
    for (const char* table : {"Proyecto", "actividad", "Persona", "Organizacion", "xt_biticontact"})
        database(std::string("DELETE FROM ") + table);
    prospect("María");
    database("INSERT IGNORE INTO Meta (Sys_PK, Descripcion) VALUES (1, 'Venta')");
    database("INSERT INTO Organizacion (Sys_PK, Nombre) VALUES (1, 'Aceros')");
    database("INSERT INTO Persona (Sys_PK, Nombre, MSN) VALUES (1, 'Luz', 'luz@x.mx')");
    database(
        "INSERT INTO Proyecto (IEjecutivo, IMeta, IOrganizacion, IContacto, UF_Status1) VALUES (7, 1, 1, 1, 1)");
    enters(ana);
    presses("cmdSend");
    opensTab(desk::proyectos);
    presses("cmdSend");
    EXPECT_THAT(inTheDatabase("SELECT uf_Mensaje FROM xt_biticontact"), SizeIs(2));
}

/// The columns that a documented grant names behind a right, and "*" where it names the right alone.
std::set<std::string> granted(const std::string& table, const std::string& right)
{
    std::set<std::string> columns;
    for (const std::string& grant : documentedGrants()) {
        if (!containsNoCase(grant, "." + table + " TO ")) continue;
        std::smatch list;
        if (std::regex_search(grant, list, std::regex("\\b" + right + " \\(([^)]*)\\)"))) {
            std::istringstream names(toLower(list[1].str()));
            for (std::string name; std::getline(names >> std::ws, name, ',');)
                columns.insert(name);
        } else if (std::regex_search(grant, std::regex("\\b" + right + "\\b"))) {
            columns.insert("*");
        }
    }
    return columns;
}

TEST_F(Rights, reach_the_documented_columns_of_every_table_and_no_others)
{
    const std::vector<std::string> all =
        inTheDatabase("SELECT LOWER(table_name), LOWER(column_name) FROM information_schema.columns WHERE "
                      "table_schema = DATABASE()");
    ASSERT_GT(all.size(), 150U);
    std::map<std::pair<std::string, std::string>, std::set<std::string>> known;
    for (const std::string& one : all) {
        const std::string table = one.substr(0, one.find('|'));
        const std::string column = one.substr(one.find('|') + 1);
        const auto expect = [&](const std::string& right, const std::string& statement) {
            const std::pair key(right, table);
            if (!known.contains(key)) known[key] = granted(table, right);
            const std::set<std::string>& columns = known[key];
            const bool may = columns.count("*") + columns.count(column) > 0;
            EXPECT_EQ(isDenied(statement), !may) << statement;
        };
        expect("SELECT", "SELECT " + column + " FROM " + table + " LIMIT 0");
        expect("INSERT", "INSERT INTO " + table + " (" + column + ") SELECT NULL FROM ut_icontact WHERE 1 = 0");
        expect("UPDATE", "UPDATE " + table + " SET " + column + " = NULL WHERE 1 = 0");
        EXPECT_TRUE(isDenied("DELETE FROM " + table + " WHERE 1 = 0")) << table;
    }
}

TEST_F(Rights, allow_nothing_else)
{
    prospect("María");
    database("CREATE DATABASE IF NOT EXISTS otra");
    database("CREATE OR REPLACE TABLE otra.cofre (secreto VARCHAR(100))");
    for (const char* statement : {"DROP TABLE ut_icontact",
                                  "DROP VIEW qhoy",
                                  "DROP PROCEDURE AddInteresContacto",
                                  "DROP DATABASE otra",
                                  "CREATE DATABASE nueva",
                                  "RENAME TABLE ut_icontact TO x",
                                  "DELETE FROM ut_icontact",
                                  "DELETE FROM xt_biticontact",
                                  "UPDATE xt_biticontact SET uf_Mensaje = 'otra cosa'",
                                  "REPLACE INTO xt_biticontact (uf_Mensaje) VALUES ('x')",
                                  "INSERT INTO ut_icontact (uf_contactado) VALUES (1)",
                                  "SELECT * FROM Persona",
                                  "SELECT * FROM Proyecto",
                                  "SELECT * FROM Ciudad",
                                  "SELECT Notas FROM Organizacion",
                                  "CREATE TABLE x (y INT)",
                                  "CREATE TEMPORARY TABLE x (y INT)",
                                  "CREATE VIEW x AS SELECT Sys_PK FROM ut_icontact",
                                  "CREATE TRIGGER x BEFORE INSERT ON xt_biticontact FOR EACH ROW SET @a = 1",
                                  "CREATE PROCEDURE x() SELECT 1",
                                  "CREATE EVENT x ON SCHEDULE EVERY 1 DAY DO SELECT 1",
                                  "ALTER TABLE ut_icontact ADD x INT",
                                  "CREATE INDEX x ON ut_icontact (uf_Nombre)",
                                  "TRUNCATE xt_biticontact",
                                  "LOCK TABLES ut_icontact WRITE",
                                  "SELECT * FROM mysql.user",
                                  "SELECT * FROM otra.cofre",
                                  "INSERT INTO otra.cofre VALUES ('x')",
                                  "USE otra",
                                  "SELECT uf_Nombre INTO OUTFILE '/tmp/dn_robado' FROM ut_icontact",
                                  "LOAD DATA INFILE '/etc/passwd' INTO TABLE xt_biticontact (uf_Mensaje)",
                                  "SET GLOBAL max_connections = 1",
                                  "SET GLOBAL general_log_file = '/tmp/dn_robado'",
                                  "FLUSH PRIVILEGES",
                                  "SHUTDOWN",
                                  "INSTALL SONAME 'x'",
                                  "CREATE USER intruso",
                                  "GRANT ALL ON *.* TO 'fuerza'@'%'",
                                  "GRANT SELECT ON Organizacion TO 'fuerza'@'%'"})
        EXPECT_TRUE(isDenied(statement)) << statement;
    EXPECT_TRUE(cnn->execute("SELECT LOAD_FILE('/etc/passwd')")->value(0).isNull()) << "a file of the server";
    EXPECT_THAT(namesFrom("SHOW DATABASES"), testing::Not(testing::Contains("otra")));
    EXPECT_THAT(namesFrom("SHOW TABLES"), testing::Not(testing::Contains("correo_historial")));
    EXPECT_THAT(namesFrom("SELECT DISTINCT user FROM information_schema.processlist"), ElementsAre("fuerza"));
    database("DROP DATABASE otra");
}

} // namespace
} // namespace dn::tests
