// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// A prospect becomes a project: what is sent and asked of the host, and what is left where a step fails.

#include "tests/support/control_fixture.h"

namespace dn::tests {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

constexpr const char* contactOfTwelve =
    "SELECT IFNULL(uf_Nombre, 'Nombre') AS uf_Nombre, IFNULL(uf_telefono, 'Teléfono') AS uf_telefono, "
    "IFNULL(uf_EMail, 'EMail') AS uf_EMail, IFNULL(uf_ciudad, 'Tuxtla') AS uf_ciudad, "
    "IFNULL(UF_IEjecutivo, 1) AS UF_IEjecutivo FROM UT_IContact WHERE Sys_PK = 12;";
constexpr const char* cityLikeMerida = "SELECT Sys_PK FROM Ciudad WHERE Nombre LIKE '%Mérida%';";
constexpr const char* closesTwelve =
    "UPDATE ut_icontact SET uf_Status=1, uf_NotaStatus='Actualizado por creación de proyecto', "
    "uf_FechaStatus = CURRENT_TIMESTAMP WHERE Sys_PK=12";
constexpr const char* logsTwelve =
    "INSERT INTO xt_biticontact (uf_Tiempo, uf_Mensaje, uf_Usuario, uf_Iicontact) VALUES (CURRENT_TIMESTAMP, "
    "'>> Descartado: ','ana',12)";
constexpr const char* reload = "FROM ut_icontact WHERE uf_IEjecutivo = 7";

class ProspectConversion : public ControlTest {
protected:
    /// Starts, shows prospects and forgets all that was sent and asked.
    void show(std::vector<std::vector<Cell>> rows)
    {
        prospects(std::move(rows));
        contact({text("María"), text("5512345678"), text("m@x.mx"), text("Mérida"), whole(7)});
        cities({whole(31), whole(32)});
        host.projects->newPerson = 501;
        host.projects->newProject = 601;
        start(7, true);
        openProspects();
        host.log.calls.clear();
    }
    void showOneTypedByHand() { show({prospect(12, {{"uf_Tipo", whole(1)}})}); }

    void contact(std::vector<Cell> row)
    {
        cnn.onContaining("FROM UT_IContact WHERE Sys_PK =")
            .gives({"uf_Nombre", "uf_telefono", "uf_EMail", "uf_ciudad", "UF_IEjecutivo"}, {std::move(row)});
    }
    void cities(const std::vector<Cell>& keys)
    {
        std::vector<std::vector<Cell>> rows;
        for (const Cell& key : keys)
            rows.push_back({key});
        cnn.onContaining("FROM Ciudad").gives({"Sys_PK"}, std::move(rows));
    }

    screen::Button& button() { return elements().prospects.cmdProsNewProj; }
    std::vector<std::string> sent(std::size_t first) const
    {
        return {cnn.statements().begin(), cnn.statements().begin() + static_cast<std::ptrdiff_t>(first)};
    }
};

TEST_F(ProspectConversion, needs_a_row_and_says_nothing_without_one)
{
    show({});
    button().press();
    EXPECT_THAT(cnn.statements(), IsEmpty());
    EXPECT_THAT(host.log.calls, IsEmpty());
}

TEST_F(ProspectConversion, is_for_prospects_that_were_typed_in)
{
    const std::map<std::string, Cell> origins[]{
        {},
        {{"uf_Tipo", whole(2)}, {"uf_Redirect", text("descargas.example.com/tallyra?Demostracion_en_linea")}},
        {{"uf_Tipo", whole(2)}, {"uf_Redirect", text("x?Curso_Gratis")}}};
    for (const auto& origin : origins) {
        show({prospect(12, origin)});
        ports.dialogs.expectBox("Seleccione un contacto para convertir en proyecto.");
        button().press();
        EXPECT_EQ(ports.dialogs.boxes().back().title, "");
        EXPECT_EQ(ports.dialogs.boxes().back().icon, screen::MessageBox::Icon::none);
        EXPECT_EQ(ports.dialogs.boxes().back().buttons, screen::MessageBox::Buttons::ok);
        EXPECT_THAT(cnn.statements(), IsEmpty());
        EXPECT_THAT(host.log.calls, IsEmpty());
    }
}

TEST_F(ProspectConversion, makes_a_person_and_a_project_closes_the_prospect_and_reloads)
{
    showOneTypedByHand();
    prospects({});
    button().press();
    EXPECT_THAT(cnn.statements(),
                ElementsAre(contactOfTwelve, cityLikeMerida, closesTwelve, logsTwelve, HasSubstr(reload)));
    EXPECT_THAT(host.log.calls, ElementsAre("CrearPersona María|Internal|Internal|31|5512345678||m@x.mx||7",
                                            "CrearProyecto 0 501"));
    EXPECT_EQ(lvw().ListItems().Count(), 0);
}

TEST_F(ProspectConversion, asks_by_the_sql_server_forms_for_every_other_engine)
{
    cnn.on("SELECT NOW()").fails("'NOW' is not a recognized built-in function name.", "42000", 195);
    showOneTypedByHand();
    button().press();
    ASSERT_FALSE(cnn.statements().empty());
    EXPECT_EQ(cnn.statements()[0],
              "SELECT ISNULL(uf_Nombre, 'Nombre') AS uf_Nombre, ISNULL(uf_telefono, 'Teléfono') AS uf_telefono, "
              "ISNULL(uf_EMail, 'EMail') AS uf_EMail, ISNULL(uf_ciudad, 'Tuxtla') AS uf_ciudad, "
              "ISNULL(UF_IEjecutivo, 1) AS UF_IEjecutivo FROM UT_IContact WHERE Sys_PK = 12;");
    EXPECT_THAT(sent(4), ElementsAre(testing::_, cityLikeMerida, closesTwelve, logsTwelve));
    EXPECT_THAT(host.log.calls, testing::SizeIs(2));
}

TEST_F(ProspectConversion, takes_the_first_city_that_is_alike_and_else_the_first_of_all)
{
    showOneTypedByHand();
    cities({});
    button().press();
    EXPECT_THAT(host.log.calls[0], HasSubstr("|Internal|1|"));
}

TEST_F(ProspectConversion, joins_the_city_as_it_stands)
{
    showOneTypedByHand();
    contact({text("María"), text("1"), text("2"), text("San Juan d'Arc"), whole(7)});
    button().press();
    EXPECT_EQ(cnn.statements()[1], "SELECT Sys_PK FROM Ciudad WHERE Nombre LIKE '%San Juan d'Arc%';");
    contact({text("María"), text("1"), text("2"), text(""), whole(7)});
    cnn.forgetStatements();
    button().press();
    EXPECT_EQ(cnn.statements()[1], "SELECT Sys_PK FROM Ciudad WHERE Nombre LIKE '%%';") << "the first city of all";
}

TEST_F(ProspectConversion, ends_where_the_host_makes_no_person)
{
    showOneTypedByHand();
    host.projects->newPerson = 0;
    button().press();
    EXPECT_THAT(host.log.calls, ElementsAre(HasSubstr("CrearPersona")));
    EXPECT_THAT(cnn.statements(), ElementsAre(contactOfTwelve, cityLikeMerida, HasSubstr(reload), testing::_))
        << "the list is loaded all the same";
}

TEST_F(ProspectConversion, leaves_the_prospect_where_the_operator_gives_up_and_makes_another_person_next_time)
{
    showOneTypedByHand();
    for (const int result : {0, -1}) {
        host.projects->newProject = result;
        cnn.forgetStatements();
        button().press();
        EXPECT_THAT(cnn.statements(), ElementsAre(contactOfTwelve, cityLikeMerida, HasSubstr(reload), testing::_));
    }
    EXPECT_THAT(host.log.calls, ElementsAre(HasSubstr("CrearPersona"), HasSubstr("CrearProyecto"),
                                            HasSubstr("CrearPersona"), HasSubstr("CrearProyecto")));
}

TEST_F(ProspectConversion, stops_at_each_statement_that_fails_and_hands_the_failure_on)
{
    const std::vector<std::string> statements{contactOfTwelve, cityLikeMerida, closesTwelve, logsTwelve};
    const std::size_t asked[]{0, 0, 2, 2};
    showOneTypedByHand();
    for (std::size_t failing = 1; failing <= statements.size(); ++failing) {
        host.log.calls.clear();
        failAt(failing);
        EXPECT_THROW(button().press(), data::Error);
        EXPECT_EQ(cnn.statements(),
                  std::vector(statements.begin(), statements.begin() + static_cast<std::ptrdiff_t>(failing)))
            << "nothing behind it is sent, and the list is not loaded";
        EXPECT_EQ(host.log.calls.size(), asked[failing - 1]);
    }
}

TEST_F(ProspectConversion, stops_at_each_operation_of_the_host_that_fails)
{
    showOneTypedByHand();
    for (const char* operation : {"CrearPersona", "CrearProyecto"}) {
        host.log.failing = {operation};
        cnn.forgetStatements();
        EXPECT_THROW(button().press(), std::runtime_error);
        EXPECT_THAT(cnn.statements(), ElementsAre(contactOfTwelve, cityLikeMerida));
    }
    host.log.failing.clear();
    host.projects->failsWithResult = true;
    cnn.forgetStatements();
    EXPECT_THROW(button().press(), std::runtime_error);
    EXPECT_THAT(cnn.statements(), ElementsAre(contactOfTwelve, cityLikeMerida));
}

TEST_F(ProspectConversion, fails_on_a_prospect_that_is_gone)
{
    showOneTypedByHand();
    cnn.onContaining("FROM UT_IContact WHERE Sys_PK =")
        .gives({"uf_Nombre", "uf_telefono", "uf_EMail", "uf_ciudad", "UF_IEjecutivo"}, {});
    EXPECT_THROW(button().press(), data::Error);
    EXPECT_THAT(cnn.statements(), ElementsAre(contactOfTwelve));
    EXPECT_THAT(host.log.calls, IsEmpty());
}

TEST_F(ProspectConversion, fails_where_a_statement_gives_no_rows_to_read)
{
    showOneTypedByHand();
    cnn.onContaining("FROM Ciudad").givesNothing();
    EXPECT_THROW(button().press(), RuntimeError);
    EXPECT_THAT(host.log.calls, IsEmpty());
    cnn.onContaining("FROM UT_IContact WHERE Sys_PK =").givesNothing();
    cnn.forgetStatements();
    EXPECT_THROW(button().press(), RuntimeError);
    EXPECT_THAT(cnn.statements(), ElementsAre(contactOfTwelve));
}

TEST_F(ProspectConversion, fails_on_a_city_key_or_an_agent_that_is_no_key)
{
    showOneTypedByHand();
    cities({null});
    EXPECT_THROW(button().press(), RuntimeError);
    cities({whole(31)});
    contact({text("María"), text("1"), text("2"), text("Mérida"), whole(99'999'999'999)});
    EXPECT_THROW(button().press(), RuntimeError);
    EXPECT_THAT(host.log.calls, IsEmpty());
}

} // namespace
} // namespace dn::tests
