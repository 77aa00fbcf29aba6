// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// Projects as other programs leave them: without a person, a status or an amount, closed, with two activities at
// once. Each has its row in the list, or none.

#include "tests/stories/project_operator.h"

namespace dn::tests {
namespace {

using testing::ElementsAre;

class OddProjects : public ProjectOperator {
protected:
    /// Every row: description, date, activity, amount, image, colour, and how many cells it has.
    std::vector<std::string> board()
    {
        std::vector<std::string> rows;
        for (const std::string& name : seesProjects()) {
            const screen::ListItem row = projectRow(name);
            std::string line = name;
            for (const char* header : {"Fecha y hora", "Actividad", "Monto"})
                line += "|" + seesProjectCell(name, header);
            line += "|image " + std::to_string(row.SmallIcon()) + "|colour " + std::to_string(row.ForeColor()) +
                    (row.Bold() ? " bold|" : "|");
            rows.push_back(line + std::to_string(row.ListSubItems().Count() + 1) + " cells");
        }
        return rows;
    }
};

TEST_F(OddProjects, a_contact_who_is_not_in_the_directory_takes_the_activities_out_of_sight)
{
    due("Sin persona", 1, {{"IContacto", "999"}, {"UF_monto", "500"}});
    due("Con persona", 2);
    due("Sin organización", 3, {{"IOrganizacion", "999"}});
    due("Sin meta", 4, {{"IMeta", "NULL"}});
    enters(ana);
    opensProjects();
    EXPECT_THAT(seesProjects(), ElementsAre("Con persona", "Sin persona"));
    EXPECT_EQ(seesProjectCell("Sin persona", "Actividad"), "< Ninguna >");
    EXPECT_EQ(seesProjectCell("Sin persona", "Monto"), "<Definir>") << "even though it has one";
}

TEST_F(OddProjects, the_filter_shows_one_status_or_what_is_open)
{
    for (const int status : {1, 2, 3, 4, 5, 6})
        for (const bool planned : {true, false}) {
            const std::string name = std::to_string(status) + (planned ? " con cita" : " sin cita");
            const Columns columns{{"UF_Status1", std::to_string(status)},
                                  {"FInicio", "'2026-01-0" + std::to_string(status) + "'"}};
            if (planned)
                due(name, status, columns);
            else
                project(name, columns);
        }
    due("Nulo", 9, {{"UF_Status1", "NULL"}});
    project("Nulo sin cita", {{"UF_Status1", "NULL"}});
    enters(ana);
    opensProjects();
    EXPECT_EQ(sees("cbProjStatusProj"), "<Todos los proyectos>");
    EXPECT_THAT(seesProjects(), ElementsAre("1 con cita", "2 con cita", "3 con cita", "4 con cita", "5 con cita",
                                            "6 con cita", "1 sin cita", "2 sin cita", "3 sin cita", "4 sin cita"))
        << "a closed one shows as long as something is planned for it";
    const std::pair<const char*, const char*> entries[]{
        {"Congelados", "1"}, {"Fríos", "2"}, {"Tibios", "3"}, {"Calientes", "4"}, {"Perdidos", "6"}};
    for (const auto& [entry, status] : entries) {
        picks("cbProjStatusProj", entry);
        EXPECT_THAT(seesProjects(),
                    ElementsAre(std::string(status) + " con cita", std::string(status) + " sin cita"));
    }
    EXPECT_EQ(projectRow("6 con cita").SmallIcon(), 5);
}

TEST_F(OddProjects, every_oddity_has_its_row_or_none)
{
    const auto three = due("Tres citas", 12, {{"UF_Status1", "2"}, {"UF_Color", "7"}, {"UF_monto", "0"}});
    activity(three, "antes", {{"FInicio", "'2026-03-11 09:00:00'"}});
    activity(three, "después", {{"FInicio", "'2026-03-13'"}});
    const auto twice = due("Dos a la vez", 14, {{"UF_Status1", "3"}, {"UF_monto", "NULL"}});
    activity(twice, "cita", {{"FInicio", "'2026-03-14 09:00:00'"}});
    due("Sin persona", 15, {{"IContacto", "NULL"}, {"UF_Status1", "4"}, {"UF_Color", "1"}, {"UF_monto", "500"}});
    due("Cerrado", 16, {{"UF_Status1", "5"}, {"UF_Color", "2"}, {"UF_monto", "1234.5"}});
    project("Cerrado sin cita", {{"UF_Status1", "5"}});
    due("Perdido", 17, {{"UF_Status1", "6"}, {"UF_Color", "NULL"}});
    project("Perdido sin cita", {{"UF_Status1", "6"}, {"FInicio", "'2026-01-01'"}});
    due("Sin estado", 18, {{"UF_Status1", "NULL"}});
    project("Sin estado ni cita", {{"UF_Status1", "NULL"}});
    project("Sin cita", {{"UF_Status1", "1"}, {"UF_Color", "4"}, {"UF_monto", "9"}, {"FInicio", "'2026-01-02'"}});
    enters(ana);
    opensProjects();
    const std::string threeRow = "Tres citas|11/03/2026 09:00:00|Visita|.00|image 2|colour 0|15 cells";
    const std::string twiceRow = "Dos a la vez|14/03/2026 09:00:00|Visita|<Definir>|image 3|colour 0|15 cells";
    const std::string lostRow = "Perdido|17/03/2026 09:00:00|Visita|<Definir>|image 5|colour 0|15 cells";
    const std::string aloneRow = "Sin persona||< Ninguna >|<Definir>|image 4|colour 255 bold|7 cells";
    const std::string plainRow = "Sin cita||< Ninguna >|<Definir>|image 1|colour 8388736 bold|7 cells";
    EXPECT_THAT(board(),
                ElementsAre(threeRow, twiceRow,
                            "Cerrado|16/03/2026 09:00:00|Visita|1,234.50|image 0|colour 16384 bold|15 cells",
                            lostRow, aloneRow, plainRow));
    const std::vector<std::pair<const char*, std::vector<std::string>>> filtered{
        {"Congelados", {plainRow}},
        {"Fríos", {threeRow}},
        {"Tibios", {twiceRow}},
        {"Calientes", {aloneRow}},
        {"Perdidos", {lostRow, "Perdido sin cita||< Ninguna >|<Definir>|image 5|colour 0|7 cells"}}};
    for (const auto& [entry, rows] : filtered) {
        picks("cbProjStatusProj", entry);
        EXPECT_EQ(board(), rows) << entry;
    }
}

TEST_F(OddProjects, the_amount_has_thousands_and_cents)
{
    due("Nada", 1, {{"UF_monto", "0"}});
    due("Nulo", 2, {{"UF_monto", "NULL"}});
    due("Mucho", 3, {{"UF_monto", "1234567.8"}});
    due("Centavos", 4, {{"UF_monto", "0.05"}});
    enters(ana);
    opensProjects();
    EXPECT_EQ(seesProjectCell("Nada", "Monto"), ".00");
    EXPECT_EQ(seesProjectCell("Nulo", "Monto"), "<Definir>");
    EXPECT_EQ(seesProjectCell("Mucho", "Monto"), "1,234,567.80");
    EXPECT_EQ(seesProjectCell("Centavos", "Monto"), ".05");
}

TEST_F(OddProjects, a_mark_beyond_the_table_is_no_mark)
{
    due("Siete", 1, {{"UF_Color", "7"}});
    due("Rojo", 2, {{"UF_Color", "1"}});
    enters(ana);
    opensProjects();
    EXPECT_EQ(projectRow("Siete").ForeColor(), 0U);
    EXPECT_FALSE(projectRow("Siete").Bold());
    EXPECT_EQ(projectRow("Rojo").ForeColor(), 0x0000FFU);
    EXPECT_TRUE(projectRow("Rojo").Bold());
}

} // namespace
} // namespace dn::tests
