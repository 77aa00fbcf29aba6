// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// What an operator types into the control, on its way into a statement.

#include "dialogs/prospect_insert.h"
#include "tests/fuzz/targets.h"
#include "tests/fuzz/workbench.h"
#include "tests/support/element_tree.h"

#include <algorithm>
#include <array>

namespace dn::fuzz {
namespace {

constexpr std::array textColumns{"uf_Nombre", "uf_EMail",  "uf_Telefono", "uf_Empresa", "uf_Puesto",
                                 "uf_Pais",   "uf_Estado", "uf_Ciudad",   "uf_Interes", "uf_Comentarios"};

/// As a text stands in the statement of a new prospect, without its quotes.
std::string asParameter(std::string_view typed)
{
    std::string inside;
    for (; !typed.empty(); typed.remove_prefix(1)) {
        if (typed.starts_with("\r\n")) {
            inside += "\\r\\n";
            typed.remove_prefix(1);
        } else if (typed.front() != '\'') {
            inside += typed.front();
        }
    }
    return inside;
}

/// The statement with each mark of a column, wherever it stands by now, as its value.
std::string marked(const std::string& statement, const std::string& mark, const std::string& value)
{
    std::string result;
    std::string_view rest = statement;
    while (!rest.empty()) {
        const bool here = rest.starts_with(mark);
        result += here ? value : std::string(rest.substr(0, 1));
        rest.remove_prefix(here ? mark.size() : 1);
    }
    return result;
}

/// What stands between quotes, one after the other.
std::vector<std::string> literalsOf(std::string_view statement)
{
    std::vector<std::string> literals;
    for (bool inside = false; !statement.empty(); inside = !inside) {
        const std::size_t end = std::min(statement.find('\''), statement.size());
        if (inside) literals.emplace_back(statement.substr(0, end));
        statement.remove_prefix(std::min(end + 1, statement.size()));
    }
    return literals;
}

/// A window that is closed as soon as it comes.
void closeEach(Workbench& bench)
{
    bench.ports.events.onModal = [](screen::Form& form) { form.closeWindow(); };
}

bool isBlank(std::string_view text) { return text.find_first_not_of(' ') == std::string_view::npos; }

} // namespace

void parameters(Input& input)
{
    const bool mySql = input.flag();
    const std::string typed = input.text();
    std::string literal = "@uf_Nombre";
    dialogs::SetParam(literal, "uf_Nombre", typed);
    require(literal == "'" + asParameter(typed) + "'", "a text comes in quotes, and without one of its own");
    std::string statement = dialogs::prospectInsert(mySql);
    std::string wanted = statement;
    std::vector<std::string> literals = literalsOf(statement);
    require(literals == std::vector<std::string>({"-", "", "@", "@", "@"}), "a statement has its own literals");
    bool named = false; // a text names a column that comes later
    for (const char* column : textColumns) {
        const std::string text = input.text();
        literals.push_back(asParameter(text)); // without its quotes it may name a column that it did not before
        named = named || literals.back().find("@uf_") != std::string::npos;
        dialogs::SetParam(statement, column, text);
        wanted = marked(wanted, "@" + std::string(column), "'" + literals.back() + "'");
    }
    const std::int32_t key = static_cast<std::int32_t>(input.number());
    dialogs::SetParam(statement, "uf_iejecutivo", key, key == 0);
    wanted = marked(wanted, "@uf_iejecutivo", key == 0 ? "NULL" : std::to_string(key));
    for (const auto& [column, number] : {std::pair("uf_status", 0), {"uf_tipo", 1}, {"uf_color", 0}}) {
        dialogs::SetParam(statement, column, number);
        wanted = marked(wanted, "@" + std::string(column), std::to_string(number));
    }
    dialogs::SetParam(statement, "uf_redirect", std::string("URL_Directo"));
    wanted = marked(wanted, "@uf_redirect", "'URL_Directo'");
    require(statement == wanted, "each mark stands for its value, those that a text brings among them");
    literals.emplace_back("URL_Directo");
    require(named || literalsOf(statement) == literals, "a statement has the literals of its texts and no others");
}

void notes(Input& input)
{
    const std::string typed = input.rest();
    const std::string stored = storedNote(typed);
    Workbench bench(prospectTwelve());
    bench.lvw().clickRow(0);
    bench.cnn.forgetStatements();
    if (stored.empty()) bench.ports.dialogs.expectBox("Debe escribir un mensaje");
    bench.control.elements().detail.txtText.Text(typed);
    bench.control.elements().detail.cmdIntro.press();
    if (stored.empty()) {
        require(bench.cnn.statements().empty(), "nothing is written without a text");
        return;
    }
    require(bench.cnn.statements() == std::vector<std::string>{noteOfTwelve(stored)},
            "a note is written as it was cleaned");
    require(std::count(stored.begin(), stored.end(), '\'') == 0, "no apostrophe is left in a note");
    require(bench.control.elements().detail.txtText.Text().empty(), "the box is empty after the note");
    require(bench.control.elements().detail.txtBit.Text() == "ana [14/03/2026 09:30:00]\r\n" + stored + "\r\n\r\n",
            "the note stands on top of the log");
}

void calls(Input& input)
{
    const std::size_t end = input.choice(3);
    const std::string telephone = input.text();
    const std::string text = input.rest();
    Workbench bench(prospectTwelve());
    closeEach(bench);
    bench.lvw().clickRow(0);
    bench.control.IniciarLlamada("ut_icontact", 12, telephone);
    bench.cnn.forgetStatements();
    std::vector<std::string> wanted;
    const std::string where = " Where Sys_PK = 12";
    if (end == 0) {
        bench.control.Call_Resumen(text);
        wanted = {
            noteOfTwelve(storedNote("Se estableció llamada al " + telephone + " Con éxito. Resumen: \r\n" + text)),
            "UPDATE ut_icontact SET uf_contactado = 1, uf_primercontac = CURRENT_TIMESTAMP Where Sys_PK=12 and "
            "isnull(uf_contactado)",
            "UPDATE ut_icontact SET uf_ultimointento = CURRENT_TIMESTAMP, uf_res_ultimointento = 50, "
            "uf_ultimocontac = CURRENT_TIMESTAMP" +
                where};
    } else if (end == 1) {
        const std::string reason = text.empty() ? "x" : text;
        for (const std::string& answer : {std::string(), reason})
            bench.ports.dialogs.expectInput("Motivo para no comunicarme:", answer);
        bench.control.Call_Connect(5);
        wanted = {noteOfTwelve(storedNote("Se estableció llamada al: " + telephone +
                                          " pero no se pudo contactar al prospecto. \r\n<" + reason + ">")),
                  "UPDATE ut_icontact SET uf_ultimointento= CURRENT_TIMESTAMP, uf_res_ultimointento =  16" +
                      where};
    } else {
        bench.control.Call_NoConnect(2);
        wanted = {
            "UPDATE ut_icontact SET uf_ultimointento=CURRENT_TIMESTAMP, uf_res_ultimointento=2 Where Sys_PK=12",
            noteOfTwelve(storedNote("No se pudo establecer llamada al: " + telephone + " No contestan"))};
    }
    require(bench.changes() == wanted, "a call stores its end and its note, and nothing else");
    require(!bench.control.Call_Progress() && bench.lvw().Enabled(), "a call that ended locks nothing");
}

void reasons(Input& input)
{
    const bool discards = input.flag();
    const std::string reason = input.rest();
    Workbench bench(prospectTwelve(), true); // who discards is an administrator
    bench.lvw().clickRow(0);
    bench.cnn.forgetStatements();
    const bool given = discards ? !isBlank(reason) : !reason.empty();
    std::vector<std::string> wanted;
    if (discards) {
        bench.lvw().toggleCheck(0);
        bench.ports.dialogs.expectInput("Motivo:", reason);
        if (given) bench.ports.dialogs.expectBox("¿Seguro desea descartar estos contactos?", screen::Answer::yes);
        tests::elementNamed<screen::Button>(bench.control.root(), "cmdProsDiscart").press();
        wanted = {"UPDATE ut_icontact SET uf_Status=1, uf_NotaStatus='" + reason +
                      "', uf_FechaStatus = CURRENT_TIMESTAMP WHERE Sys_PK=12",
                  noteOfTwelve(">> Descartado: " + reason)};
    } else {
        bench.ports.dialogs.expectInput("Motivo del cambio de estado:", reason);
        bench.control.elements().detail.Combo1.pick("Sin interés");
        wanted = {"UPDATE ut_icontact SET uf_Status = 2, uf_NotaStatus = '" + reason +
                      "', uf_FechaStatus = CURRENT_TIMESTAMP WHERE Sys_PK = 12",
                  noteOfTwelve(">> Sin interés: " + reason)};
    }
    if (!given) wanted.clear();
    require(bench.changes() == wanted, "a reason goes to the byte into its two statements, and into no other");
}

void corrections(Input& input)
{
    constexpr std::array boxes{"txtNombre", "txtCorreo", "txtTelefono", "txtEmpresa", "txtPuesto"};
    Record record{tests::whole(12)};
    while (record.size() <= boxes.size())
        record.push_back(someCell(input));
    Workbench bench(prospectTwelve());
    bench.cnn.onContaining("Select Sys_PK, uf_Nombre").gives(tests::correctionColumns(), {record});
    bench.lvw().clickRow(0);
    bench.cnn.forgetStatements();
    std::array<std::string, boxes.size()> texts;
    bench.ports.events.expectModal("dlgCorregir", [&](screen::Form& form) {
        for (std::size_t i = 0; i < boxes.size(); ++i) {
            auto& box = tests::elementNamed<screen::TextBox>(form, boxes.at(i));
            texts.at(i) = keyText(record.at(i + 1)).value_or("");
            require(box.Text() == texts.at(i), "a box shows its own column, or nothing");
            if (!input.flag()) continue;
            texts.at(i) = input.text();
            box.edit(texts.at(i));
        }
        tests::elementNamed<screen::Button>(form, "cmdOk").press();
    });
    tests::elementNamed<screen::Button>(bench.control.root(), "cmdEditC").press();
    require(bench.changes() ==
                std::vector<std::string>{"UPDATE ut_icontact set uf_Nombre='" + texts[0] + "',uf_EMail='" +
                                         texts[1] + "',uf_Telefono='" + texts[2] + "',uf_Empresa='" + texts[3] +
                                         "',uf_Puesto='" + texts[4] + "' WHERE Sys_PK=12"},
            "a correction writes its five texts to the byte, those that nobody touched as they were read");
}

} // namespace dn::fuzz
