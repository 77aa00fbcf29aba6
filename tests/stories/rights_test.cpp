// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The rights that docs/database.md asks for are enough for a day's work, and for nothing more.

#include "data/mariadb/connection.h"
#include "screen/list_box.h"
#include "tests/stories/project_operator.h"
#include "tests/support/element_tree.h"
#include "tests/support/maria_server.h"

#include <fstream>
#include <regex>
#include <sstream>

namespace dn::tests {
namespace {

using testing::ElementsAre;
using testing::SizeIs;

/// The grants for MariaDB as the document writes them.
std::vector<std::string> documentedGrants()
{
    std::ostringstream text;
    text << std::ifstream(DN_SOURCE_DIR "/docs/database.md").rdbuf();
    const std::string page = text.str();
    const std::regex grant("`(GRANT [^`]* ON (?:PROCEDURE )?)ventas(\\.[^`]* TO 'fuerza'@'%')`");
    std::vector<std::string> grants;
    for (std::sregex_iterator it(page.begin(), page.end(), grant); it != std::sregex_iterator(); ++it)
        grants.push_back((*it)[1].str() + std::string(MariaServer::database) + (*it)[2].str());
    return grants;
}

class Rights : public ProjectOperator {
protected:
    Rights()
    {
        database("DROP USER IF EXISTS 'fuerza'@'%'");
        database("CREATE USER 'fuerza'@'%' IDENTIFIED BY 'secreta'");
        for (const std::string& grant : documentedGrants())
            database(grant);
        data::mariadb::Options options;
        options.socket = sharedServer().socket();
        options.user = "fuerza";
        options.password = "secreta";
        options.database = MariaServer::database;
        cnn = std::make_unique<RecordingConnection>(std::make_unique<data::mariadb::Connection>(options));
    }

    /// Whether the account is kept from a statement by its rights.
    bool isDenied(const std::string& statement)
    {
        try {
            cnn->execute(statement);
            return false;
        } catch (const data::Error& refusal) {
            return refusal.nativeCode() == 1142 || refusal.nativeCode() == 1143 || refusal.nativeCode() == 1044 ||
                   refusal.nativeCode() == 1045 || refusal.nativeCode() == 1227 || refusal.nativeCode() == 1370;
        }
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

TEST_F(Rights, allow_nothing_else)
{
    prospect("María");
    for (const char* statement : {"DROP TABLE ut_icontact",
                                  "DELETE FROM ut_icontact",
                                  "DELETE FROM xt_biticontact",
                                  "UPDATE xt_biticontact SET uf_Mensaje = 'otra cosa'",
                                  "UPDATE ut_icontact SET uf_Redirect = 'x'",
                                  "INSERT INTO ut_icontact (uf_contactado) VALUES (1)",
                                  "DELETE FROM ut_OrigenContacto",
                                  "UPDATE ut_InteresContacto SET uf_Interes = 'x'",
                                  "SELECT * FROM Persona",
                                  "UPDATE Persona SET Nombre = 'x'",
                                  "DELETE FROM Organizacion",
                                  "SELECT Notas FROM Organizacion",
                                  "SELECT * FROM Proyecto",
                                  "SELECT Notas FROM Proyecto",
                                  "UPDATE Proyecto SET UF_Status1 = 6",
                                  "SELECT * FROM Ciudad",
                                  "UPDATE actividad SET Hecho = 1",
                                  "DELETE FROM Proyecto",
                                  "UPDATE Agente SET Nombre = 'x'",
                                  "CREATE TABLE x (y INT)",
                                  "ALTER TABLE ut_icontact ADD x INT",
                                  "TRUNCATE xt_biticontact",
                                  "SELECT * FROM mysql.user",
                                  "CREATE USER intruso",
                                  "GRANT ALL ON *.* TO 'fuerza'@'%'"})
        EXPECT_TRUE(isDenied(statement)) << statement;
}

TEST_F(Rights, confine_a_reason_that_is_written_to_do_harm)
{
    prospect("María", {{"uf_Redirect", "'m.x.mx'"}});
    prospect("De Beto", {{"uf_IEjecutivo", "9"}});
    enters(ana);
    // Another column: refused. The operator is told, nothing changes.
    answers("Motivo del cambio de estado:", "x', uf_Redirect = 'robado");
    ports.dialogs.expectAnyBox();
    picks("Combo1", "Descartado");
    EXPECT_THAT(ports.dialogs.boxes().back().prompt, testing::HasSubstr("denied"));
    EXPECT_THAT(inTheDatabase("SELECT uf_Redirect FROM ut_icontact WHERE uf_Nombre = 'María'"),
                ElementsAre("m.x.mx"));
    // A second statement: refused by the connection.
    answers("Motivo del cambio de estado:", "x'; UPDATE ut_icontact SET uf_Status = 1; -- ");
    ports.dialogs.expectAnyBox();
    picks("Combo1", "Descartado");
    EXPECT_THAT(inTheDatabase("SELECT DISTINCT uf_Status FROM ut_icontact"), ElementsAre("0"));
    // The columns of the grant themselves are not protected: the statement's own end is cut off and every row is
    // reached.
    answers("Motivo del cambio de estado:", "x' -- ");
    ports.dialogs.expectAnyBox();
    picks("Combo1", "Descartado");
    EXPECT_THAT(inTheDatabase("SELECT DISTINCT uf_Status FROM ut_icontact"), ElementsAre("1"))
        << "the documents tell of this";
}

} // namespace
} // namespace dn::tests
