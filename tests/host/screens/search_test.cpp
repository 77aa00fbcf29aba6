// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The search over persons and organisations: what it finds, and its window.

#include "host/screens/entity_search.h"
#include "tests/host/screens/fixture.h"

#include <QApplication>
#include <QPushButton>
#include <QTest>
#include <QTreeWidget>

namespace dn::host::tests {
namespace {

using dn::tests::pressButton;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

class Search : public Screens {
protected:
    std::vector<std::string> names(const std::string& text, SearchScope scope = {})
    {
        OwnConnection database([] { return open(); });
        std::vector<std::string> result;
        for (const Entity& entity : searchEntities(database, text, scope))
            result.push_back(entity.name);
        return result;
    }

    std::string search(const std::string& text, bool persons = true, bool organisations = true)
    {
        std::string result = "unset";
        crm->BuscarEntidad(text, persons, organisations, result);
        return result;
    }

    static QTreeWidget& list(QWidget& window) { return *window.findChild<QTreeWidget*>("lstEntidades"); }
    static bool waitsFor(QWidget& window, int count)
    {
        return QTest::qWaitFor([&] { return list(window).topLevelItemCount() == count; });
    }
};

TEST_F(Search, finds_by_the_first_letters_without_regard_to_case_and_accents)
{
    EXPECT_THAT(names("ac"), ElementsAre("Acero y Forja", "Acme del Sureste"));
    EXPECT_THAT(names("AN"), ElementsAre("Ana López"));
    EXPECT_THAT(names("án"), ElementsAre("Ana López"));
    EXPECT_THAT(names("xyz"), IsEmpty());
    EXPECT_THAT(names(""), ElementsAre("Acero y Forja", "Acme del Sureste", "Ana López", "Bruno Díaz"));
}

TEST_F(Search, finds_by_surname_and_by_trade_name_from_the_first_letter_on)
{
    server().execute("UPDATE Organizacion SET NomComercial = 'La Fragua' WHERE Sys_PK = 12");
    EXPECT_THAT(names("l"), ElementsAre("Acero y Forja", "Ana López"));
    EXPECT_THAT(names("lopez"), ElementsAre("Ana López"));
    server().execute("INSERT INTO Persona (Nombre) VALUES ('Lorena')");
    EXPECT_THAT(names("lo"), ElementsAre("Lorena", "Ana López"));
}

TEST_F(Search, finds_a_full_name_word_by_word)
{
    EXPECT_THAT(names("ana lo"), ElementsAre("Ana López"));
    EXPECT_THAT(names("bruno d"), ElementsAre("Bruno Díaz"));
    EXPECT_THAT(names("ana d"), IsEmpty());
    server().execute("INSERT INTO Persona (Nombre, Apellido1) VALUES ('Ana María', 'López')");
    EXPECT_THAT(names("ana lop"), ElementsAre("Ana López", "Ana María López"));
    EXPECT_THAT(names("acme ureste"), IsEmpty()); // a word is known by its beginning
    server().execute("INSERT INTO Organizacion (Nombre) VALUES ('Acme y Asociados del Golfo')");
    EXPECT_THAT(names("acme golf"), ElementsAre("Acme y Asociados del Golfo"));
}

TEST_F(Search, finds_in_the_middle_from_three_letters_on_behind_the_first_letters)
{
    EXPECT_THAT(names("óp"), IsEmpty());
    EXPECT_THAT(names("ópe"), ElementsAre("Ana López"));
    EXPECT_THAT(names("ana lópez"), ElementsAre("Ana López"));
    EXPECT_THAT(names("9612222"), ElementsAre("Ana López"));
    server().execute("INSERT INTO Persona (Nombre) VALUES ('Sureña')");
    EXPECT_THAT(names("sur"), ElementsAre("Sureña", "Acme del Sureste"));
}

TEST_F(Search, nothing_in_the_text_is_a_wildcard_or_ends_the_statement)
{
    server().execute("INSERT INTO Organizacion (Nombre) VALUES ('100% Natural'), ('snake_case'), ('O''Higgins'), "
                     "('¡Hola! [uno]'), ('C:\\\\datos')");
    EXPECT_THAT(names("%"), IsEmpty());
    EXPECT_THAT(names("_"), IsEmpty());
    EXPECT_THAT(names("%%%%"), IsEmpty());
    EXPECT_THAT(names("100%"), ElementsAre("100% Natural"));
    EXPECT_THAT(names("0% n"), ElementsAre("100% Natural"));
    EXPECT_THAT(names("snake_"), ElementsAre("snake_case"));
    EXPECT_THAT(names("snake!"), IsEmpty());
    EXPECT_THAT(names("o'h"), ElementsAre("O'Higgins"));
    EXPECT_THAT(names("¡hola! [u"), ElementsAre("¡Hola! [uno]"));
    EXPECT_THAT(names("c:\\d"), ElementsAre("C:\\datos"));
    EXPECT_THAT(names("'; DROP TABLE Persona; -- "), IsEmpty());
    EXPECT_EQ(value("SELECT COUNT(*) FROM Persona"), "2");
}

TEST_F(Search, gives_two_hundred_and_no_more)
{
    server().execute("INSERT INTO Persona (Nombre) SELECT CONCAT('Zoe ', seq) FROM seq_1_to_300");
    EXPECT_THAT(names("zoe"), SizeIs(200));
    EXPECT_THAT(names("Zoe 300"), ElementsAre("Zoe 300"));
}

TEST_F(Search, looks_only_where_it_is_told)
{
    EXPECT_THAT(names("a", {.persons = true, .organisations = false}), ElementsAre("Ana López"));
    EXPECT_THAT(names("a", {.persons = false, .organisations = true}),
                ElementsAre("Acero y Forja", "Acme del Sureste"));
}

TEST_F(Search, the_names_are_found_by_their_index)
{
    server().execute("INSERT INTO Persona (Nombre) SELECT CONCAT('Zoe ', seq) FROM seq_1_to_3000");
    const auto plan =
        rows("EXPLAIN SELECT Sys_PK FROM Persona WHERE Nombre LIKE 'bru%' ESCAPE '!' ORDER BY Nombre, "
             "Apellido1 LIMIT 200");
    EXPECT_EQ(plan.at(0).at(3), "range");
    EXPECT_EQ(plan.at(0).at(5), "por_nombre");
    EXPECT_EQ(rows("EXPLAIN SELECT Sys_PK FROM Persona WHERE Apellido1 LIKE 'bru%' ESCAPE '!' ORDER BY Apellido1, "
                   "Nombre LIMIT 200")
                  .at(0)
                  .at(5),
              "por_apellido");
}

TEST_F(Search, the_pass_over_the_tables_goes_in_slices_whatever_the_keys)
{
    server().execute(
        "INSERT INTO Persona (Sys_PK, Nombre, EMail) VALUES (2147483647, 'Última', 'u@lejos.example'), "
        "(-5, 'Primera', 'p@lejos.example')");
    OwnConnection database([] { return open(); });
    EntitySearch search(database, {});
    search.begin("lejos");
    EXPECT_THAT(search.found(), IsEmpty());
    int slices = 1;
    while (search.goOn())
        ++slices;
    EXPECT_THAT(slices, testing::AllOf(testing::Ge(30), testing::Le(140)));
    EXPECT_THAT(names("lejos"), ElementsAre("Primera", "Última"));
    EXPECT_TRUE(search.isDone());
    EXPECT_FALSE(search.goOn());
}

TEST_F(Search, the_window_takes_letters_and_arrows_in_one_field)
{
    operatorAt.expect("BuscarEntidad", [](QWidget& window) {
        EXPECT_EQ(focus(), "txtBuscar");
        EXPECT_EQ(list(window).topLevelItemCount(), 4);
        QTest::keyClicks(QApplication::focusWidget(), "ac");
        ASSERT_TRUE(waitsFor(window, 2));
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down);
        EXPECT_EQ(focus(), "txtBuscar");
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    });
    EXPECT_EQ(search(""), "O11");
}

TEST_F(Search, a_person_comes_with_another_letter)
{
    operatorAt.expect("BuscarEntidad", [](QWidget& window) { pressButton(window, "Aceptar"); });
    EXPECT_EQ(search("bruno"), "P22");
}

TEST_F(Search, enter_ahead_of_the_results_shows_them_first)
{
    operatorAt.expect("BuscarEntidad", [](QWidget& window) {
        QTest::keyClicks(QApplication::focusWidget(), "bru");
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        EXPECT_TRUE(window.isVisible());
        EXPECT_EQ(list(window).topLevelItemCount(), 1);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    });
    EXPECT_EQ(search(""), "P22");
}

TEST_F(Search, giving_up_gives_an_empty_text)
{
    operatorAt.expect("BuscarEntidad",
                      [](QWidget&) { QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape); });
    EXPECT_EQ(search(""), "");
}

TEST_F(Search, nothing_found_cannot_be_accepted)
{
    operatorAt.expect("BuscarEntidad", [](QWidget& window) {
        EXPECT_FALSE(window.findChild<QPushButton*>("cmdAceptar")->isEnabled());
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        EXPECT_TRUE(window.isVisible());
        pressButton(window, "Cancelar");
    });
    EXPECT_EQ(search("nadie"), "");
}

TEST_F(Search, a_failing_search_keeps_the_window)
{
    operatorAt.expect("BuscarEntidad", [](QWidget& window) {
        server().execute("RENAME TABLE Persona TO Persona_aparte");
        QTest::keyClicks(QApplication::focusWidget(), "bru");
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        server().execute("RENAME TABLE Persona_aparte TO Persona");
        EXPECT_TRUE(window.isVisible());
        pressButton(window, "Cancelar");
    });
    operatorAt.expect("Aviso", [](QWidget& box) { pressButton(box, "Aceptar"); });
    EXPECT_EQ(search(""), "");
}

} // namespace
} // namespace dn::host::tests
