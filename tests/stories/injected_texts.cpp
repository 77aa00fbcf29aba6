// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/stories/injected_texts.h"

#include "screen/combo_box.h"
#include "tests/support/element_tree.h"

#include <filesystem>

namespace dn::tests {
namespace {

using testing::AnyOf;
using testing::Contains;
using testing::HasSubstr;
using testing::Not;

const std::string secret = "CLAVE-9381";
const std::string fileOfTheServer = "/tmp/dn_robado";

std::string mysqlEscaped(const std::string& text)
{
    std::string result;
    for (const char c : text)
        result.append(c == '\'' || c == '\\' ? "\\" : "") += c;
    return result;
}

void fill(screen::Form& form, const std::string& box, const std::string& text)
{
    elementNamed<screen::TextBox>(form, box).edit(text);
}

void press(screen::Form& form, const std::string& button) { elementNamed<screen::Button>(form, button).press(); }

} // namespace

const std::vector<Harm> harms = [] {
    std::vector<Harm> all;
    // What ends the statement and begins another.
    for (const char* text :
         {"x'; DROP TABLE ut_icontact; -- ", "x'; DELETE FROM xt_biticontact; -- ",
          "x'; UPDATE ut_icontact SET uf_Redirect = 'robado'; -- ", "x'; GRANT ALL ON *.* TO 'fuerza'@'%'; -- ",
          "x'; SET GLOBAL general_log = 1; -- ", "x'); DROP TABLE xt_biticontact; -- ",
          "x%'; DROP TABLE Ciudad; -- ", "x'); INSERT INTO xt_biticontact (uf_Usuario) VALUES ('beto'); -- ", "'"})
        all.push_back({text, refused::syntax, refused::syntax, refused::syntax, refused::syntax, refused::syntax});
    // What reads another table wherever an expression may stand.
    for (const char* table : {"otra.cofre", "mysql.global_priv", "correo_historial", "dn_esquema"})
        all.push_back({"' + (SELECT COUNT(*) FROM " + std::string(table) + ") + '", refused::table, refused::table,
                       refused::table, refused::table, refused::table});
    all.push_back({"' OR (SELECT MAX(Notas) FROM Organizacion) LIKE 'C%", refused::column, refused::column,
                   refused::column, refused::column, refused::column});
    // What writes another column of the row, or copies into one that may be written.
    const std::string copies = "x', uf_Nombre = (SELECT MAX(";
    all.push_back({"x', uf_Redirect = 'robado", refused::column, refused::column, refused::column, refused::syntax,
                   refused::unknown});
    all.push_back({copies + "Notas) FROM Organizacion), uf_Nombre = 'x", refused::column, refused::column,
                   refused::column, refused::syntax, refused::unknown});
    all.push_back({copies + "secreto) FROM otra.cofre), uf_Nombre = 'x", refused::table, refused::table,
                   refused::table, refused::syntax, refused::unknown});
    all.push_back({"x', uf_Empresa = LOAD_FILE('/etc/passwd'), uf_Nombre = 'x", taken, refused::column,
                   refused::column, refused::syntax, refused::unknown});
    all.push_back({"x' WHERE Sys_PK = (SELECT COUNT(secreto) FROM otra.cofre) -- ", refused::table,
                   refused::syntax, refused::syntax, refused::syntax, refused::syntax});
    // What goes on with the values of a row.
    all.push_back({"x', (SELECT MAX(Notas) FROM Organizacion), 12) -- ", refused::syntax, refused::column,
                   refused::column, refused::syntax, refused::arguments});
    all.push_back({"x', (SELECT MAX(secreto) FROM otra.cofre), 12) -- ", refused::syntax, refused::table,
                   refused::table, refused::syntax, refused::table});
    all.push_back({"x', (SELECT MAX(LENGTH(secreto)) FROM otra.cofre)) -- ", refused::syntax, refused::table,
                   refused::table, refused::syntax, refused::table});
    all.push_back({"x', LOAD_FILE('/etc/passwd'), 12) -- ", refused::syntax, taken, refused::count,
                   refused::syntax, refused::arguments});
    // What goes on with a search.
    all.push_back({"x%' UNION SELECT secreto FROM otra.cofre; -- ", refused::syntax, refused::syntax,
                   refused::syntax, refused::table, refused::syntax});
    all.push_back({"x%' UNION SELECT MAX(Notas) FROM Organizacion; -- ", refused::syntax, refused::syntax,
                   refused::syntax, refused::column, refused::syntax});
    all.push_back({"x%' INTO OUTFILE '" + fileOfTheServer + "'; -- ", refused::syntax, refused::syntax,
                   refused::syntax, refused::file, refused::syntax});
    // Ahead of a percent sign a backslash ends no literal.
    all.push_back({"x\\", refused::syntax, refused::syntax, refused::syntax, taken, refused::syntax});
    return all;
}();

RightsAndInjectedTexts::RightsAndInjectedTexts()
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

void RightsAndInjectedTexts::layOut(const std::string& city)
{
    database("DELETE FROM ut_icontact");
    const std::string literal = "'" + mysqlEscaped(city) + "'";
    key_ =
        std::to_string(prospect("María", {{"uf_Tipo", "1"}, {"uf_Redirect", "'m.x.mx'"}, {"uf_Ciudad", literal}}));
    prospect("De Beto", {{"uf_IEjecutivo", "9"}, {"uf_Redirect", "'b.x.mx'"}});
    before_ = beyondTheAccount();
    cnn->codes.clear();
}

std::vector<std::string> RightsAndInjectedTexts::beyondTheAccount()
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

void RightsAndInjectedTexts::expectConfined(const std::string& text)
{
    EXPECT_EQ(beyondTheAccount(), before_) << text;
    EXPECT_FALSE(std::filesystem::exists(fileOfTheServer)) << text;
    for (const char* statement :
         {"SELECT CONCAT_WS(' ', uf_Nombre, uf_EMail, uf_Telefono, uf_Empresa, uf_Puesto, uf_NotaStatus) FROM "
          "ut_icontact",
          "SELECT CONCAT_WS(' ', uf_Mensaje, uf_Usuario) FROM xt_biticontact",
          "SELECT uf_Interes FROM ut_InteresContacto", "SELECT uf_Origen FROM ut_OrigenContacto",
          "SELECT uf_Referencia FROM ut_ReferenciaContacto"})
        EXPECT_THAT(inTheDatabase(statement), Not(Contains(AnyOf(HasSubstr(secret), HasSubstr("root:"))))) << text;
    for (const screen::MessageBox& box : ports.dialogs.boxes())
        EXPECT_THAT(box.prompt, Not(HasSubstr(secret))) << text;
}

void RightsAndInjectedTexts::expectSent(const std::string& statement, int code)
{
    EXPECT_THAT(cnn->statements, Contains(statement));
    const auto refusal = cnn->codes.find(statement);
    EXPECT_EQ(refusal == cnn->codes.end() ? taken : refusal->second, code) << statement;
}

void RightsAndInjectedTexts::discards(const std::string& reason, const std::string& user)
{
    entersAsAdministrator(ana);
    control.SetObjects(cnn.get(), ana, true, user);
    checksRow("María");
    answers("Motivo:", reason);
    agreesTo("¿Seguro desea descartar estos contactos?");
    presses("cmdProsDiscart");
}

void RightsAndInjectedTexts::corrects(const std::array<std::string, 5>& texts)
{
    enters(ana);
    ports.events.expectModal("dlgCorregir", [&](screen::Form& form) {
        std::size_t box = 0;
        for (const char* name : {"txtNombre", "txtCorreo", "txtTelefono", "txtEmpresa", "txtPuesto"})
            fill(form, name, texts.at(box++));
        doesWhatMayBeRefused([&] { press(form, "cmdOk"); });
        form.closeWindow();
    });
    presses("cmdEditC");
}

void RightsAndInjectedTexts::addsProspect(const std::map<std::string, std::string>& texts)
{
    enters(ana);
    ports.events.expectModal("dlgNuevoPros", [&](screen::Form& form) {
        const auto textOf = [&](const char* name, const char* harmless) {
            const auto given = texts.find(name);
            return given == texts.end() ? std::string(harmless) : given->second;
        };
        fill(form, "txtNombre", textOf("txtNombre", "María Ñúñez"));
        fill(form, "txtTelefono", "961 111 1111");
        fill(form, "txtCorreo", textOf("txtCorreo", "maria@example.com"));
        fill(form, "cCiudad", "Morelia");
        elementNamed<screen::ComboBox>(form, "cEdo").pick(0);
        for (const char* combo : {"cInteres", "cObtencion", "cReferencia"})
            elementNamed<screen::ComboBox>(form, combo).edit(textOf(combo, "algo"));
        doesWhatMayBeRefused([&] { press(form, "cmdOk"); });
        form.closeWindow();
    });
    presses("cmdProsNewPros");
}

} // namespace dn::tests
