// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// What a database gives, on its way into the lists, the queue, the directories and the log.

#include "base/date_time.h"
#include "base/format.h"
#include "base/runtime_error.h"
#include "base/text.h"
#include "tests/fuzz/targets.h"
#include "tests/fuzz/workbench.h"
#include "tests/support/project_fixture.h"

#include <algorithm>
#include <array>
#include <set>

namespace dn::fuzz {
namespace {

/// A row as a list must show it.
struct Shown {
    std::string key;
    std::vector<std::string> cells;

    bool operator==(const Shown&) const = default;
};

std::vector<Shown> rowsOf(screen::ListView& list)
{
    std::vector<Shown> rows;
    for (int row = 1; row <= list.ListItems().Count(); ++row) {
        const screen::ListItem item = list.ListItems()(row);
        rows.push_back({std::string(item.Key()), cellsOf(item)});
    }
    return rows;
}

/// The cell of a name in a record of these columns.
const tests::Cell& cellOf(const Record& record, const std::vector<std::string>& columns, std::string_view name)
{
    return record.at(static_cast<std::size_t>(std::find(columns.begin(), columns.end(), name) - columns.begin()));
}

/// Whether a cell can be read as a whole number.
bool isWhole(const tests::Cell& cell)
{
    if (cell.failing) return false;
    try {
        static_cast<void>(data::Value(cell.kind, cell.text).toWhole());
        return true;
    } catch (const RuntimeError&) {
        return false;
    }
}

/// A row gets the cells that can be read, one behind the other.
void addReadable(Shown& row, const Record& record, const std::vector<std::string>& columns,
                 std::initializer_list<const char*> names)
{
    for (const char* name : names)
        if (auto text = shownText(cellOf(record, columns, name))) row.cells.push_back(std::move(*text));
}

std::string amountOf(const tests::Cell& cell)
{
    return cell.failing || cell.kind == data::Value::Kind::null ? "<Definir>" : formatAmount(cell.text);
}

/// The list of the projects: those with an activity at their first one, then the others.
class ProjectBoard {
public:
    void addActivity(const Record& record)
    {
        const auto& columns = tests::activityColumns();
        const auto key = keyText(cellOf(record, columns, "Sys_PK"));
        const auto moment = shownText(cellOf(record, columns, "FInicio"));
        if (!key || keys_.contains(*key) || !moment || !isWhole(cellOf(record, columns, "UF_Status1"))) return;
        Shown& row = add(*key, *moment);
        addReadable(row, record, columns, {"Actividad", "Asunto", "Meta", "Organizacion", "Descripcion"});
        row.cells.push_back(amountOf(cellOf(record, columns, "UF_monto")));
        addReadable(
            row, record, columns,
            {"contacto", "EMail1", "Tel1", "e_dias", "e_ultimocontacto", "e_duc", "e_ultimointento", "e_dui"});
    }
    void addProject(const Record& record)
    {
        const auto& columns = tests::projectColumns();
        const auto key = keyText(cellOf(record, columns, "Sys_PK"));
        if (!key || keys_.contains(*key) || !isWhole(cellOf(record, columns, "UF_Status1"))) return;
        Shown& row = add(*key, "");
        row.cells.insert(row.cells.end(), {"< Ninguna >", "Revise el estado del proyecto"});
        addReadable(row, record, columns, {"Meta", "Organizacion", "Descripcion"});
        row.cells.emplace_back("<Definir>");
    }

    const std::vector<Shown>& rows() const { return rows_; }

private:
    Shown& add(const std::string& key, const std::string& text)
    {
        keys_.insert(key);
        return rows_.emplace_back(Shown{"K" + key, {text}});
    }

    std::set<std::string> keys_;
    std::vector<Shown> rows_;
};

const std::vector<std::string>& queueColumns()
{
    static const std::vector<std::string> columns{"ejecutivo", "Tipo",    "Sys_PK",   "cita",
                                                  "Contacto",  "empresa", "telefono", "email"};
    return columns;
}

/// The hour of an appointment as the queue shows it on the 14th of March 2026.
std::optional<std::string> hourOf(const tests::Cell& cell)
{
    if (cell.failing) return std::nullopt;
    const data::Value cita(cell.kind, cell.text);
    if (cita.isNull()) return "URGENTE";
    try {
        const DateTime moment = cita.toDateTime();
        const DateTime today{2026, 3, 14};
        return moment.date() < today ? cita.toText() : defaultText(moment.timeOfDay());
    } catch (const RuntimeError&) {
        return cell.text;
    }
}

void addQueued(std::vector<Shown>& rows, const Record& record)
{
    const auto& columns = queueColumns();
    const auto tipo = shownText(cellOf(record, columns, "Tipo"));
    const auto sysPk = keyText(cellOf(record, columns, "Sys_PK"));
    if (!tipo || !sysPk) return;
    const std::string key = (*tipo == "Contacto" ? "K" : "P") + *sysPk;
    if (std::any_of(rows.begin(), rows.end(), [&](const Shown& row) { return row.key == key; })) return;
    Shown& row = rows.emplace_back(Shown{key, {*tipo}});
    if (auto hour = hourOf(cellOf(record, columns, "cita"))) row.cells.push_back(std::move(*hour));
    addReadable(row, record, columns, {"Contacto", "empresa", "telefono", "email"});
}

/// Each row, clicked, is the selected one.
void requireEachIsSelected(screen::ListView& list)
{
    const std::vector<std::string> keys = keysOf(list);
    for (std::size_t row = 0; row < keys.size(); ++row) {
        list.clickRow(row);
        require(list.SelectedItem() && list.SelectedItem()->Key() == keys[row],
                "the row that was clicked is selected");
    }
}

std::string logOf(const std::string& column, const std::string& key)
{
    return "SELECT * FROM xt_biticontact WHERE " + column + " = " + key.substr(1) + " ORDER BY uf_Tiempo";
}

/// The rows of a directory ahead of the first that cannot be shown. @return whether there is such a one.
bool untilTheFirstFailure(const Records& records, std::vector<Shown>& rows)
{
    for (const Record& record : records) {
        const auto key = keyText(record.front());
        Shown row{key ? "PK" + *key : "", {}};
        const auto isThere = [&](const Shown& other) { return other.key == row.key; };
        if (!key || std::any_of(rows.begin(), rows.end(), isThere)) return true;
        for (std::size_t cell = 1; cell < record.size(); ++cell) {
            auto text = keyText(record[cell]); // the statement leaves no nulls; one that came would be told
            if (!text) {
                if (!row.cells.empty()) rows.push_back(std::move(row));
                return true;
            }
            row.cells.push_back(std::move(*text));
        }
        rows.push_back(std::move(row));
    }
    return false;
}

/// A day as the prospects show it; nothing for what no driver delivers as a date.
std::optional<std::string> dayOf(const tests::Cell& cell)
{
    if (cell.failing || cell.kind != data::Value::Kind::dateTime) return shownText(cell).value_or("");
    const auto moment = parseIso(cell.text);
    return moment ? std::optional(formatDate(*moment, "yyyy-mm-dd")) : std::nullopt;
}

std::string threeDigitsOf(const tests::Cell& cell)
{
    const bool any = cell.kind != data::Value::Kind::null && isWhole(cell);
    return any ? formatThreeDigits(data::Value(cell.kind, cell.text).toWhole()) : "";
}

/// Each cell in its place, empty where it cannot be read. The second and the third are made of several.
void requireCells(const std::vector<std::string>& cells, const Record& record)
{
    constexpr std::array plain{"uf_Nombre", "uf_EMail",  "uf_Telefono", "uf_Empresa",
                               "uf_Puesto", "uf_Ciudad", "uf_Estado",   "uf_Pais"};
    const auto of = [&](const char* name) -> const tests::Cell& {
        return cellOf(record, tests::prospectColumns(), name);
    };
    std::vector<std::optional<std::string>> wanted;
    for (const char* name : plain)
        wanted.push_back(shownText(of(name)).value_or(""));
    wanted.insert(wanted.end(), {dayOf(of("uf_Fecha")), threeDigitsOf(of("e_dias")), dayOf(of("e_ultimocontacto")),
                                 shownText(of("e_duc")).value_or(""), dayOf(of("e_ultimointento")),
                                 shownText(of("e_dui")).value_or("")});
    for (std::size_t i = 0; i < wanted.size(); ++i)
        require(!wanted[i] || cells.at(i + 3) == *wanted[i], "a cell of a prospect is its column's");
}

/// As an operator types it: nobody types half a character, which is taken as one of the halves of pairs.
std::string inCharacters(std::string_view bytes)
{
    std::string text;
    while (!bytes.empty())
        if (const char32_t c = takeCharacter(bytes); c < 0xD800 || c > 0xDFFF) appendCharacter(text, c);
    return text;
}

struct DirectoryTab {
    int tab;
    const char* table;
    std::vector<std::string> columns;
};

const std::array<DirectoryTab, 2>& directoryTabs()
{
    static const std::array<DirectoryTab, 2> both{
        {{desk::contactos,
          "FROM Persona",
          {"Sys_PK", "Codigo", "Nombre", "Apellido1", "Apellido2", "EMail", "EMail2", "Tel_Casa", "Tel_Trabajo",
           "Tel_Movil", "Domicilio", "Colonia", "CodPostal"}},
         {desk::organizaciones,
          "FROM Organizacion",
          {"Sys_PK", "Codigo", "Nombre", "NombreComercial", "Tel1", "Tel2", "Tel3", "Fax", "EMail", "WebSite",
           "Domicilio", "Colonia", "CodPostal", "Nacionalidad"}}}};
    return both;
}

} // namespace

void prospects(Input& input)
{
    const std::size_t column = input.choice(17);
    const Records records = someRows(input, tests::prospectColumns().size());
    std::vector<std::string> wanted; // those that can be read, each once
    std::vector<const Record*> firsts;
    for (const Record& record : records)
        if (const auto key = keyText(record.front()))
            if (std::find(wanted.begin(), wanted.end(), "K" + *key) == wanted.end()) {
                wanted.push_back("K" + *key);
                firsts.push_back(&record);
            }
    Workbench bench(records);
    require(keysOf(bench.lvw()) == wanted, "a list shows each row whose key can be read, once");
    for (std::size_t row = 0; row < firsts.size(); ++row)
        requireCells(cellsOf(bench.lvw().ListItems()(static_cast<int>(row) + 1)), *firsts[row]);
    bench.lvw().clickHeader(static_cast<int>(column));
    std::vector<std::string> shown = keysOf(bench.lvw());
    require(std::is_permutation(shown.begin(), shown.end(), wanted.begin(), wanted.end()), "a sort loses no row");
    for (std::size_t row = 0; row < shown.size(); ++row) {
        bench.lvw().clickRow(row);
        const auto selected = bench.lvw().SelectedItem();
        require(selected && selected->Key() == shown[row], "the row that was clicked is selected");
        require(selected->ListSubItems().Count() == 16, "a row has all its cells");
        require(bench.control.elements().detail.txtInfo.Text().starts_with(shown[row] + " | "),
                "the detail is that of the selected row");
        require(bench.cnn.statements().back() == logOf("uf_Iicontact", shown[row]),
                "the log is that of the selected row");
    }
}

void projects(Input& input)
{
    const Records activities = someRows(input, tests::activityColumns().size(), 9, 4);
    const Records others = someRows(input, tests::projectColumns().size(), 6);
    ProjectBoard board;
    for (const Record& record : activities)
        board.addActivity(record);
    for (const Record& record : others)
        board.addProject(record);
    Workbench bench(desk::proyectos, [&](tests::FakeConnection& database) {
        database.onContaining(tests::readsActivities).gives(tests::activityColumns(), activities);
        database.onContaining(tests::readsProjects).gives(tests::projectColumns(), others);
    });
    screen::ListView& lvwProy = bench.control.elements().projects.lvwProy;
    require(rowsOf(lvwProy) == board.rows(), "a project shows once, with the cells that can be read");
    for (std::size_t row = 0; row < board.rows().size(); ++row) {
        lvwProy.clickRow(row);
        require(lvwProy.SelectedItem()->Key() == board.rows()[row].key, "the row that was clicked is selected");
        require(bench.cnn.statements().back() == logOf("uf_IProy", board.rows()[row].key),
                "the log is that of the selected project");
    }
}

void queue(Input& input)
{
    const Records due = someRows(input, queueColumns().size(), 2, 4);
    const Records stuck = someRows(input, queueColumns().size(), 2);
    std::vector<Shown> wanted;
    for (const Records* records : {&due, &stuck})
        for (const Record& record : *records)
            addQueued(wanted, record);
    Workbench bench(desk::hoy, [&](tests::FakeConnection& database) {
        database.onContaining("from qhoy").gives(queueColumns(), due);
        database.onContaining("from qatascados").gives(queueColumns(), stuck);
    });
    screen::ListView& lvwHoy = bench.control.elements().today.lvwHoy;
    require(rowsOf(lvwHoy) == wanted, "the queue shows each party once, with the cells that can be read");
    requireEachIsSelected(lvwHoy);
}

void directories(Input& input)
{
    const DirectoryTab& directory = directoryTabs().at(input.choice(2));
    Records records = someRows(input, directory.columns.size());
    for (Record& record : records) // as the statement gives them
        for (std::size_t cell = 1; cell < record.size(); ++cell)
            if (!record[cell].failing && record[cell].kind == data::Value::Kind::null)
                record[cell] = tests::text("");
    std::vector<Shown> wanted;
    const bool fails = untilTheFirstFailure(records, wanted);
    Workbench bench(desk::prospectos, [&](tests::FakeConnection& database) {
        database.onContaining(directory.table).gives(directory.columns, records);
    });
    if (fails) bench.ports.dialogs.expectAnyBox();
    bench.control.elements().top.lblItem(directory.tab).click();
    require(bench.ports.dialogs.done(), "a row that cannot be read is told");
    screen::ListView& list = directory.tab == desk::contactos
                                 ? bench.control.elements().persons.lvwContactos
                                 : bench.control.elements().organisations.lvwOrganizaciones;
    require(rowsOf(list) == wanted, "a directory shows its rows up to the first that cannot be read");
    requireEachIsSelected(list);
}

void timelines(Input& input)
{
    const std::vector<std::string> columns{"uf_Tiempo", "uf_Mensaje", "uf_Usuario"};
    const Records lines = someRows(input, columns.size(), 1);
    std::string wanted;
    for (const Record& line : lines) {
        const auto moment = shownText(line[0]);
        const auto message = shownText(line[1]);
        const auto user = shownText(line[2]);
        if (moment && message && user) wanted = *user + " [" + *moment + "]\r\n" + *message + "\r\n\r\n" + wanted;
    }
    Workbench bench(desk::prospectos, [&](tests::FakeConnection& database) {
        database.onContaining("FROM ut_icontact WHERE").gives(tests::prospectColumns(), prospectTwelve());
        database.onContaining("FROM xt_biticontact").gives(columns, lines);
    });
    bench.lvw().clickRow(0);
    require(bench.control.elements().detail.txtBit.Text() == wanted,
            "the log shows the lines that can be read, the latest on top");
}

void searches(Input& input)
{
    const std::string text = inCharacters(input.text());
    Workbench bench(someRows(input, tests::prospectColumns().size()));
    const std::string folded = toLower(text);
    const bool blank = trimmed(text).empty();
    std::string wanted;
    for (int row = bench.lvw().ListItems().Count(); row > 0 && !blank; --row) {
        const screen::ListItem item = bench.lvw().ListItems()(row);
        const std::vector<std::string> cells = cellsOf(item);
        const auto holds = [&](const std::string& cell) {
            return toLower(cell).find(folded) != std::string::npos;
        };
        if (std::any_of(cells.begin() + 1, cells.end(), holds)) wanted = item.Key();
    }
    if (wanted.empty())
        bench.ports.dialogs.expectBox(blank ? "Escriba un texto a buscar" : "No se encontró ninguna coincidencia");
    bench.control.elements().top.txtBuscar.edit(text);
    bench.control.elements().top.cmdOkBuscar.press();
    require(bench.ports.dialogs.done(), "who finds nothing is told");
    const auto selected = bench.lvw().SelectedItem();
    require(wanted.empty() || (selected && selected->Key() == wanted), "the first row that holds a text is found");
    require(bench.control.elements().detail.txtInfo.Text().starts_with(wanted), "its detail is shown");
}

} // namespace dn::fuzz
