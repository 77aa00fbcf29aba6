// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The sample data: every case that the lists tell apart occurs in them.

#include "host/database/bulk_insert.h"
#include "host/database/sample/people.h"
#include "host/database/sample_data.h"
#include "tests/host/database/fixtures.h"

#include <gmock/gmock.h>

namespace dn::host::tests {
namespace {

using testing::SizeIs;

class SampleData : public testing::Test {
protected:
    static void SetUpTestSuite()
    {
        connection_ = freshDatabase(SharedServer::get(), "muestra");
        writeSampleData(*connection_, Engine::mariadb, {});
    }
    static void TearDownTestSuite() { connection_.reset(); }

    data::Connection& connection() { return *connection_; }
    int count(const std::string& from) { return std::stoi(valueOf(connection(), "SELECT COUNT(*) FROM " + from)); }
    /// How many different values.
    int kinds(const std::string& of, const std::string& from = "ut_icontact")
    {
        return count("(SELECT DISTINCT " + of + " FROM " + from + ") x");
    }

private:
    inline static std::unique_ptr<data::Connection> connection_;
};

TEST_F(SampleData, has_the_sizes_that_were_asked_for)
{
    EXPECT_EQ(count("ut_icontact"), 3000);
    EXPECT_EQ(count("Agente"), 12);
    EXPECT_EQ(count("Ejecutivo e JOIN Agente a ON a.Sys_PK = e.Sys_PK AND a.Nombre = e.Nombre"), 12);
    EXPECT_EQ(count("Organizacion"), 400);
    EXPECT_EQ(count("Persona"), 700);
    EXPECT_EQ(count("Proyecto"), 500);
    EXPECT_GE(count("Ciudad"), 60);
    EXPECT_GT(count("xt_biticontact"), 3000);
}

TEST_F(SampleData, every_status_colour_agent_and_kind_of_prospect_occurs)
{
    EXPECT_EQ(kinds("uf_Status"), 4);
    EXPECT_EQ(kinds("uf_color"), 6) << "0 to 4 and null";
    EXPECT_EQ(kinds("uf_IEjecutivo"), 14) << "12 agents, 0 and null";
    EXPECT_EQ(kinds("uf_Tipo"), 4) << "1, 0, 2 and null";
    EXPECT_EQ(kinds("uf_correoverif, uf_contactado"), 9) << "each of them null, 0 and 1";
    EXPECT_EQ(kinds("uf_res_ultimointento"), 11) << "1 to 3, 11 to 16, 50 and null";
}

TEST_F(SampleData, every_origin_occurs)
{
    for (const char* where :
         {"uf_Tipo = 1 AND uf_Redirect = 'URL_Directo'", "uf_Tipo IS NULL AND uf_Redirect LIKE '%?Demostracion%'",
          "uf_Tipo = 2 AND uf_Redirect IS NULL", "uf_Tipo = 1 AND uf_Redirect LIKE '%?Curso_Gratis%'",
          "uf_Tipo = 2 AND uf_Redirect LIKE '%descargas.example.com/tallyra?Demostracion_en_linea%'",
          "uf_Interes IS NULL", "uf_Interes = 'Tallyra'",
          "uf_Interes LIKE '%descargas.example.com/download/tallyra%'",
          "uf_Interes LIKE '%descargas.example.com/netoria/download%'"})
        EXPECT_GT(count(std::string("ut_icontact WHERE ") + where), 0) << where;
}

TEST_F(SampleData, dates_lie_about_today)
{
    for (const char* where :
         {"uf_proxcontac IS NULL AND uf_Status = 0", "uf_proxcontac < CURRENT_DATE",
          "DATE(uf_proxcontac) = CURRENT_DATE", "uf_proxcontac > CURRENT_DATE + INTERVAL 1 DAY",
          "uf_Fecha = CURRENT_DATE", "uf_Fecha < CURRENT_DATE - INTERVAL 600 DAY"})
        EXPECT_GT(count(std::string("ut_icontact WHERE ") + where), 0) << where;
    EXPECT_EQ(count("ut_icontact WHERE Sys_DTCreated > NOW()"), 0);
    EXPECT_EQ(count("ut_icontact WHERE uf_Fecha < CURRENT_DATE - INTERVAL 2 YEAR - INTERVAL 1 DAY"), 0);
}

TEST_F(SampleData, facts_of_a_prospect_hang_together)
{
    EXPECT_EQ(count("ut_icontact WHERE uf_contactado = 1 AND uf_primercontac IS NULL"), 0);
    EXPECT_EQ(count("ut_icontact WHERE uf_res_ultimointento = 50 AND uf_ultimocontac IS NULL"), 0);
    EXPECT_EQ(count("ut_icontact WHERE (uf_ultimointento IS NULL) <> (uf_res_ultimointento IS NULL)"), 0);
    EXPECT_EQ(count("ut_icontact WHERE uf_Status <> 0 AND uf_FechaStatus IS NULL"), 0);
    EXPECT_EQ(
        count("xt_biticontact b LEFT JOIN ut_icontact c ON c.Sys_PK = b.uf_Iicontact LEFT JOIN Proyecto p ON "
              "p.Sys_PK = b.uf_IProy WHERE c.Sys_PK IS NULL AND p.Sys_PK IS NULL"),
        0);
}

TEST_F(SampleData, projects_of_every_status_and_amount_occur)
{
    EXPECT_EQ(kinds("UF_Status1", "Proyecto"), 6);
    EXPECT_EQ(kinds("UF_Color", "Proyecto"), 6);
    EXPECT_GT(count("Proyecto WHERE UF_monto IS NULL"), 0);
    EXPECT_GT(count("Proyecto WHERE UF_monto = 0"), 0);
    EXPECT_GT(count("Proyecto WHERE UF_monto > 1000"), 0);
    EXPECT_EQ(rowsOf(connection(), "SELECT DISTINCT COUNT(a.Sys_PK) c FROM Proyecto p LEFT JOIN actividad a ON "
                                   "a.IProyecto = p.Sys_PK GROUP BY p.Sys_PK ORDER BY c"),
              (std::vector<Row>{{"0"}, {"1"}, {"2"}, {"3"}}));
    EXPECT_EQ(kinds("Hecho", "actividad"), 2);
    EXPECT_GT(count("Meta WHERE Descripcion LIKE '~%'"), 0);
    EXPECT_GT(count("Meta WHERE Descripcion LIKE 'Otro%'"), 0);
}

TEST_F(SampleData, every_agent_has_both_queues)
{
    for (int agent = 1; agent <= 12; ++agent)
        for (const std::string view : {"qhoy", "qatascados"})
            for (const std::string kind : {"Contacto", "Proyecto"})
                EXPECT_GT(
                    count(view + " WHERE ejecutivo = " + std::to_string(agent) + " AND Tipo = '" + kind + "'"), 0)
                    << view << kind << agent;
}

TEST_F(SampleData, texts_are_difficult_ones)
{
    for (const char* where :
         {"ut_icontact WHERE uf_Nombre LIKE '%O''Higgins%'", "Agente WHERE Nombre LIKE '%O''F%'",
          "ut_icontact WHERE uf_Empresa LIKE '%\"El Faro\"%'", "ut_icontact WHERE uf_Nombre LIKE BINARY '%Íñ%'",
          "ut_icontact WHERE uf_Comentarios LIKE BINARY '%👍%'"})
        EXPECT_GT(count(where), 0) << where;
    EXPECT_GT(count("Ciudad WHERE Nombre LIKE '%Tuxtla Gutiérrez%'"), 0);
}

TEST_F(SampleData, log_lines_have_the_forms_of_the_control)
{
    for (const char* form : {">> Descartado: _%", ">> Sin interés: _%", ">> Oportunidad: ", "Contacto transferido",
                             "Se estableció llamada al % Con éxito. Resumen: _%",
                             "No se pudo establecer llamada al: % No contestan", "% <No se encuentra>"})
        EXPECT_GT(count("xt_biticontact WHERE uf_Mensaje LIKE '" + std::string(form) + "'"), 0) << form;
}

TEST_F(SampleData, the_same_seed_and_moment_give_the_same_rows)
{
    const SampleOptions options{
        .prospects = 200,
        .now =
            DateTime{.year = 2025, .month = 3, .day = 4, .hour = 12, .minute = 0, .second = 0, .microsecond = 0}};
    std::vector<std::vector<Row>> sums;
    for (const std::string name : {"igual_a", "igual_b"}) {
        const auto twin = freshDatabase(SharedServer::get(), name);
        writeSampleData(*twin, Engine::mariadb, options);
        sums.emplace_back();
        for (const char* table : {"ut_icontact", "xt_biticontact", "Persona", "Organizacion"})
            for (const Row& row : rowsOf(*twin, std::string("SELECT * FROM ") + table + " ORDER BY Sys_PK"))
                sums.back().push_back(row);
    }
    EXPECT_THAT(sums.front(), SizeIs(testing::Gt(1000U)));
    EXPECT_EQ(sums.front(), sums.back());
}

TEST_F(SampleData, a_failure_writes_nothing)
{
    const auto twin = freshDatabase(SharedServer::get(), "a_medias");
    twin->execute("INSERT INTO ut_icontact (Sys_PK, uf_Nombre) VALUES (2500, 'ya estaba')");
    EXPECT_THROW(writeSampleData(*twin, Engine::mariadb, {}), data::Error);
    EXPECT_EQ(valueOf(*twin, "SELECT COUNT(*) FROM ut_icontact"), "1");
    EXPECT_EQ(valueOf(*twin, "SELECT COUNT(*) FROM Agente"), "0");
}

TEST(BulkInsert, texts_come_back_to_the_byte)
{
    const auto connection = connect(SharedServer::get().target(""));
    connection->execute("CREATE DATABASE textos");
    connection->execute("CREATE TABLE textos.t (n INT, v TEXT CHARACTER SET utf8mb4, m DATETIME)");
    const std::vector<std::string> texts{"O'Higgins", "a\\b", "\\'", "línea\r\notra", "👍 ñ", "\"", "%_;--", ""};
    BulkInsert rows(*connection, Engine::mariadb, "textos.t", "n, v, m");
    int n = 0;
    for (const std::string& text : texts)
        rows.row().number(++n).text(text).null();
    rows.finish();
    std::vector<std::string> back;
    for (const Row& row : rowsOf(*connection, "SELECT v FROM textos.t ORDER BY n"))
        back.push_back(row.front());
    EXPECT_EQ(back, texts);
}

TEST(BulkInsert, sends_every_row_across_many_statements)
{
    const auto connection = connect(SharedServer::get().target(""));
    connection->execute("CREATE DATABASE muchos");
    connection->execute("CREATE TABLE muchos.t (n INT PRIMARY KEY)");
    BulkInsert rows(*connection, Engine::mariadb, "muchos.t", "n");
    for (int n = 1; n <= 2500; ++n)
        rows.row().number(n);
    rows.finish();
    rows.finish();
    EXPECT_EQ(valueOf(*connection, "SELECT CONCAT(COUNT(*), ' ', SUM(n)) FROM muchos.t"), "2500 3126250");
}

TEST(SqlText, each_engine_reads_back_what_was_written)
{
    std::string text;
    appendText(text, "a'b\\", Engine::mariadb);
    appendText(text, "a'b\\", Engine::sqlServer);
    appendMoment(
        text, DateTime{.year = 2025, .month = 3, .day = 4, .hour = 5, .minute = 6, .second = 7, .microsecond = 0});
    appendDate(
        text, DateTime{.year = 2025, .month = 3, .day = 4, .hour = 5, .minute = 6, .second = 7, .microsecond = 0});
    EXPECT_EQ(text, "'a''b\\\\'N'a''b\\''2025-03-04T05:06:07''2025-03-04'");
}

TEST(SqlText, a_backslash_that_ends_a_line_is_kept_from_joining_it_to_the_next_on_sql_server)
{
    std::string text;
    appendText(text, "a\\\r\nb\\\nc\\", Engine::sqlServer);
    EXPECT_EQ(text, "N'a\\' + N'\r\nb\\' + N'\nc\\'");
}

TEST(People, names_become_plain_mail_names)
{
    EXPECT_EQ(sample::plainName("Íñigo O'Higgins Núñez"), "inigo.ohiggins.nunez");
}

} // namespace
} // namespace dn::host::tests
