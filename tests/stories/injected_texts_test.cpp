// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// Texts that go into a statement as they were typed, written to do harm. Each is sent to the byte, and the account
// that docs/database.md asks for keeps it to the columns that it may write: nothing is dropped, no other table is
// read or written, and no secret comes into a column or onto the screen.

#include "screen/combo_box.h"
#include "screen/list_box.h"
#include "tests/stories/documented_grants.h"
#include "tests/stories/project_operator.h"
#include "tests/support/element_tree.h"

#include <filesystem>
#include <functional>
#include <map>

namespace dn::tests {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

const std::string secret = "CLAVE-9381";
const std::string fileOfTheServer = "/tmp/dn_robado";

/// Each breaks out of a literal in quotes.
const std::vector<std::string> harm{
    "x'; DROP TABLE ut_icontact; -- ",
    "x'; DELETE FROM xt_biticontact; -- ",
    "x'; UPDATE ut_icontact SET uf_Redirect = 'robado'; -- ",
    "x'; GRANT ALL ON *.* TO 'fuerza'@'%'; -- ",
    "x'); DROP TABLE xt_biticontact; -- ",
    "x', uf_Redirect = 'robado",
    "x', (SELECT MAX(Notas) FROM Organizacion)); -- ",
    "x' || (SELECT MAX(Notas) FROM Organizacion) || '",
    "' + (SELECT COUNT(*) FROM mysql.global_priv) + '",
    "' + (SELECT COUNT(secreto) FROM otra.cofre) + '",
    "' + LENGTH(LOAD_FILE('/etc/passwd')) + '",
    "x%' UNION SELECT LENGTH(Notas) FROM Organizacion; -- ",
    "x%' UNION SELECT Sys_PK FROM correo_historial; -- ",
    "x%' INTO OUTFILE '" + fileOfTheServer + "'; -- ",
    "x'; SET GLOBAL general_log = 1; -- ",
    "x\\",
    "'",
};

class RightsAndInjectedTexts : public ProjectOperator {
protected:
    RightsAndInjectedTexts()
    {
        database("CREATE DATABASE IF NOT EXISTS otra");
        database("CREATE OR REPLACE TABLE otra.cofre (secreto VARCHAR(100))");
        database("INSERT INTO otra.cofre VALUES ('" + secret + "')");
        database("UPDATE Organizacion SET Notas = '" + secret + "'");
        database("INSERT INTO xt_biticontact (uf_Mensaje, uf_Usuario) VALUES ('lo de ayer', 'beto')");
        for (const char* table : {"ut_InteresContacto", "ut_OrigenContacto", "ut_ReferenciaContacto"})
            database(std::string("DELETE FROM ") + table);
        host.projects->newPerson = 501;
        host.projects->newProject = 601;
    }
    ~RightsAndInjectedTexts() override { database("DROP DATABASE otra"); }

    /// A prospect and one of another agent, as each text finds them.
    void layOut(const std::string& city = "San Juan")
    {
        database("DELETE FROM ut_icontact");
        const std::string literal = "'" + mysqlEscaped(city) + "'";
        key_ = std::to_string(
            prospect("María", {{"uf_Tipo", "1"}, {"uf_Redirect", "'m.x.mx'"}, {"uf_Ciudad", literal}}));
        prospect("De Beto", {{"uf_IEjecutivo", "9"}, {"uf_Redirect", "'b.x.mx'"}});
        before_ = beyondTheAccount();
    }

    /// Whatever the account may not change, and what it may do at all.
    std::vector<std::string> beyondTheAccount()
    {
        std::vector<std::string> all;
        for (const char* statement :
             {"SHOW TABLES", "SHOW GRANTS FOR 'fuerza'@'%'", "SELECT @@GLOBAL.general_log",
              "SELECT Sys_PK, Sys_GUID, Sys_DTCreated, uf_Pais, uf_Ciudad, uf_Interes, uf_Comentarios, uf_Tipo, "
              "uf_Redirect FROM ut_icontact WHERE uf_Redirect IN ('m.x.mx', 'b.x.mx', 'robado')",
              "SELECT * FROM xt_biticontact WHERE uf_Usuario = 'beto'", "SELECT * FROM Persona",
              "SELECT * FROM Organizacion", "SELECT * FROM Proyecto", "SELECT * FROM actividad",
              "SELECT * FROM Agente", "SELECT * FROM otra.cofre"})
            for (std::string& row : inTheDatabase(statement))
                all.push_back(std::move(row));
        return all;
    }

    /// Nothing of that changed, and the secret stands in no place that it was not in.
    void expectConfined(const std::string& text)
    {
        EXPECT_EQ(beyondTheAccount(), before_) << text;
        EXPECT_FALSE(std::filesystem::exists(fileOfTheServer)) << text;
        for (const char* statement :
             {"SELECT CONCAT_WS(' ', uf_Nombre, uf_EMail, uf_Telefono, uf_Empresa, uf_Puesto, uf_NotaStatus) FROM "
              "ut_icontact",
              "SELECT CONCAT_WS(' ', uf_Mensaje, uf_Usuario) FROM xt_biticontact",
              "SELECT uf_Interes FROM ut_InteresContacto", "SELECT uf_Origen FROM ut_OrigenContacto",
              "SELECT uf_Referencia FROM ut_ReferenciaContacto"})
            EXPECT_THAT(inTheDatabase(statement), Not(Contains(HasSubstr(secret)))) << text;
        for (const screen::MessageBox& box : ports.dialogs.boxes())
            EXPECT_THAT(box.prompt, Not(HasSubstr(secret))) << text;
    }

    void expectSent(const std::string& statement) { EXPECT_THAT(cnn->statements, Contains(statement)); }

    /// Does what may or may not end in a message of the server.
    void doesWhatMayBeRefused(const std::function<void()>& action)
    {
        ports.dialogs.expectAnyBox();
        action();
        if (!ports.dialogs.done()) ports.dialogs.MsgBox({}); // nobody asked
    }

    static void fill(screen::Form& form, const std::string& box, const std::string& text)
    {
        elementNamed<screen::TextBox>(form, box).edit(text);
    }
    static void press(screen::Form& form, const std::string& button)
    {
        elementNamed<screen::Button>(form, button).press();
    }

    std::string logRow(const std::string& message, const std::string& user = "ana") const
    {
        return "INSERT INTO xt_biticontact (uf_Tiempo, uf_Mensaje, uf_Usuario, uf_Iicontact) VALUES "
               "(CURRENT_TIMESTAMP, '" +
               message + "','" + user + "'," + key_ + ")";
    }

    static std::string mysqlEscaped(const std::string& text)
    {
        std::string result;
        for (const char c : text)
            result.append(c == '\'' || c == '\\' ? "\\" : "") += c;
        return result;
    }

    std::string key_; ///< of María

private:
    std::vector<std::string> before_;
};

TEST_F(RightsAndInjectedTexts, as_the_reason_of_a_change_of_status)
{
    for (const std::string& text : harm) {
        layOut();
        enters(ana);
        answers("Motivo del cambio de estado:", text);
        doesWhatMayBeRefused([&] { picks("Combo1", "Descartado"); });
        expectSent("UPDATE ut_icontact SET uf_Status = 1, uf_NotaStatus = '" + text +
                   "', uf_FechaStatus = CURRENT_TIMESTAMP WHERE Sys_PK = " + key_);
        expectConfined(text);
    }
}

TEST_F(RightsAndInjectedTexts, as_the_reason_in_the_log_of_a_change_of_status)
{
    // The update takes it: its end is a comment, and so every row is changed. The row of the log then breaks.
    const std::string text = "x' -- ";
    layOut();
    enters(ana);
    answers("Motivo del cambio de estado:", text);
    ports.dialogs.expectAnyBox();
    picks("Combo1", "Descartado");
    expectSent(logRow(">> Descartado: " + text));
    EXPECT_THAT(inTheDatabase("SELECT DISTINCT uf_Status FROM ut_icontact"), ElementsAre("1"))
        << "the documents tell of this: the rows of the columns that may be written are not protected";
    expectConfined(text);
}

TEST_F(RightsAndInjectedTexts, as_the_reason_of_a_discard)
{
    for (const std::string& text : harm) {
        layOut();
        entersAsAdministrator(ana);
        checksRow("María");
        answers("Motivo:", text);
        agreesTo("¿Seguro desea descartar estos contactos?");
        presses("cmdProsDiscart");
        expectSent("UPDATE ut_icontact SET uf_Status=1, uf_NotaStatus='" + text +
                   "', uf_FechaStatus = CURRENT_TIMESTAMP WHERE Sys_PK=" + key_);
        expectSent(logRow(">> Descartado: " + text));
        expectConfined(text);
    }
}

TEST_F(RightsAndInjectedTexts, as_the_city_of_a_prospect_that_becomes_a_project)
{
    for (const std::string& text : harm) {
        layOut(text);
        enters(ana);
        try {
            presses("cmdProsNewProj");
        } catch (const data::Error&) {
            EXPECT_EQ(cnn->statements.back(), "SELECT Sys_PK FROM Ciudad WHERE Nombre LIKE '%" + text + "%';");
        }
        expectSent("SELECT Sys_PK FROM Ciudad WHERE Nombre LIKE '%" + text + "%';");
        expectConfined(text);
    }
}

TEST_F(RightsAndInjectedTexts, as_each_field_of_a_correction)
{
    const std::vector<std::string> boxes{"txtNombre", "txtCorreo", "txtTelefono", "txtEmpresa", "txtPuesto"};
    for (std::size_t field = 0; field < boxes.size(); ++field)
        for (const std::string& text : harm) {
            layOut();
            enters(ana);
            ports.events.expectModal("dlgCorregir", [&](screen::Form& form) {
                for (std::size_t box = 0; box < boxes.size(); ++box)
                    fill(form, boxes[box], box == field ? text : "a");
                doesWhatMayBeRefused([&] { press(form, "cmdOk"); });
                form.closeWindow();
            });
            presses("cmdEditC");
            const auto value = [&](std::size_t box) { return "'" + (box == field ? text : "a") + "'"; };
            expectSent("UPDATE ut_icontact set uf_Nombre=" + value(0) + ",uf_EMail=" + value(1) + ",uf_Telefono=" +
                       value(2) + ",uf_Empresa=" + value(3) + ",uf_Puesto=" + value(4) + " WHERE Sys_PK=" + key_);
            expectConfined(boxes[field] + ": " + text);
        }
}

TEST_F(RightsAndInjectedTexts, as_what_a_new_prospect_teaches)
{
    const std::map<std::string, std::string> calls{{"cInteres", "CALL AddInteresContacto ('"},
                                                   {"cObtencion", "CALL AddOrigenContacto ('"},
                                                   {"cReferencia", "CALL AddReferenciaContacto ('"}};
    for (const auto& [combo, call] : calls)
        for (const std::string& text : harm) {
            layOut();
            enters(ana);
            ports.events.expectModal("dlgNuevoPros", [&, combo = combo](screen::Form& form) {
                fill(form, "txtNombre", "María Ñúñez");
                fill(form, "txtTelefono", "961 111 1111");
                fill(form, "txtCorreo", "maria@example.com");
                fill(form, "cCiudad", "Morelia");
                elementNamed<screen::ComboBox>(form, "cEdo").pick(0);
                for (const auto& [one, other] : calls)
                    elementNamed<screen::ComboBox>(form, one).edit(one == combo ? text : "algo");
                doesWhatMayBeRefused([&] { press(form, "cmdOk"); });
                form.closeWindow();
            });
            presses("cmdProsNewPros");
            if (!text.ends_with('\\'))
                expectSent(call + text + "');"); // a backslash breaks the INSERT ahead of it
            expectConfined(combo + ": " + text);
        }
}

TEST_F(RightsAndInjectedTexts, as_the_name_of_the_user_in_each_kind_of_row_of_the_log)
{
    const std::string nave = std::to_string(project("Nave"));
    for (const std::string& user : harm) {
        layOut();
        enters(ana);
        control.SetObjects(cnn.get(), ana, false, user);
        cnn->statements.clear();
        doesWhatMayBeRefused([&] { types("txtText", "hola\n"); });
        expectSent(logRow("hola", user));
        ports.events.expectModal("dlgSelAgente", [](screen::Form& form) {
            elementNamed<screen::ListBox>(form, "cbAgente").doubleClick(1);
        });
        presses("cmdProsAsignPros");
        expectSent(logRow("Contacto transferido", user));
        opensTab(desk::proyectos);
        doesWhatMayBeRefused([&] { types("txtText", "hola\n"); });
        expectSent("INSERT INTO xt_biticontact (uf_Tiempo, uf_Mensaje, uf_Usuario, uf_Iicontact, uf_IProy) VALUES "
                   "(CURRENT_TIMESTAMP, 'hola','" +
                   user + "',0," + nave + ")");
        expectConfined(user);
    }
}

TEST_F(RightsAndInjectedTexts, may_copy_what_the_account_reads_which_the_documents_tell)
{
    layOut();
    enters(ana);
    ports.events.expectModal("dlgCorregir", [&](screen::Form& form) {
        fill(form, "txtNombre", "María");
        fill(form, "txtPuesto", "', uf_Empresa = (SELECT MAX(EMail) FROM Persona), uf_Puesto = '");
        press(form, "cmdOk");
    });
    presses("cmdEditC");
    EXPECT_THAT(inTheDatabase("SELECT uf_Empresa FROM ut_icontact WHERE uf_Nombre = 'María'"),
                ElementsAre("m@acme.mx"));
}

} // namespace
} // namespace dn::tests
