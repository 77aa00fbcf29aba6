// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The views of the day's work, at the edges of their definitions.

#include "tests/host/database/fixtures.h"

#include <gmock/gmock.h>

namespace dn::host::tests {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class Queues : public testing::Test {
protected:
    static void SetUpTestSuite() { connection_ = freshDatabase(SharedServer::get(), "colas"); }
    static void TearDownTestSuite() { connection_.reset(); }
    void SetUp() override
    {
        for (const char* table : {"ut_icontact", "Proyecto", "actividad", "Organizacion", "Persona"})
            run(std::string("DELETE FROM ") + table);
    }

    data::Connection& connection() { return *connection_; }
    void run(const std::string& statement) { connection().execute(statement); }

    void prospect(int key, const std::string& status, const std::string& next, const std::string& agent = "1")
    {
        run("INSERT INTO ut_icontact (Sys_PK, uf_Nombre, uf_Empresa, uf_Telefono, uf_EMail, uf_Status, "
            "uf_proxcontac, "
            "uf_IEjecutivo) VALUES (" +
            std::to_string(key) + ", 'Ana', 'La Ceiba', '961', 'a@b', " + status + ", " + next + ", " + agent +
            ")");
    }
    void project(int key, const std::string& status, const std::string& agent = "1")
    {
        run("INSERT INTO Proyecto (Sys_PK, UF_Status1, IEjecutivo, IOrganizacion, IContacto) VALUES (" +
            std::to_string(key) + ", " + status + ", " + agent + ", 1, 1)");
    }
    void activity(int project, const std::string& due, const std::string& done = "0")
    {
        run("INSERT INTO actividad (IProyecto, FInicio, Hecho) VALUES (" + std::to_string(project) + ", " + due +
            ", " + done + ")");
    }
    /// The rows of a queue of agent 1, as the control asks for them.
    std::vector<std::string> keys(const std::string& view)
    {
        std::vector<std::string> all;
        const auto rows =
            connection().execute("select * from " + view + " where ejecutivo=1 order by cita, tipo, sys_pk");
        for (; !rows->Eof(); rows->MoveNext())
            all.push_back(rows->Fields()("Tipo").Value().toText() + " " +
                          rows->Fields()("Sys_PK").Value().toText());
        return all;
    }

private:
    inline static std::unique_ptr<data::Connection> connection_;
};

TEST_F(Queues, a_prospect_is_due_until_the_day_ends)
{
    prospect(1, "0", "CURRENT_DATE - INTERVAL 1 YEAR");
    prospect(2, "0", "CURRENT_DATE");
    prospect(3, "0", "CURRENT_DATE + INTERVAL 1 DAY - INTERVAL 1 SECOND");
    prospect(4, "0", "CURRENT_DATE + INTERVAL 1 DAY");
    prospect(5, "0", "NULL");
    EXPECT_THAT(keys("qhoy"), ElementsAre("Contacto 1", "Contacto 2", "Contacto 3"));
    EXPECT_THAT(keys("qatascados"), ElementsAre("Contacto 5"));
}

TEST_F(Queues, a_prospect_counts_in_status_0_and_for_its_agent_only)
{
    for (const char* status : {"1", "2", "3", "4"}) {
        prospect(10 + *status, status, "CURRENT_DATE");
        prospect(80 + *status, status, "NULL");
    }
    prospect(1, "0", "CURRENT_DATE", "2");
    prospect(2, "0", "NULL", "NULL");
    prospect(3, "0", "NULL", "0");
    EXPECT_THAT(keys("qhoy"), IsEmpty());
    EXPECT_THAT(keys("qatascados"), IsEmpty());
}

TEST_F(Queues, a_project_is_due_by_its_pending_activities)
{
    for (int key = 1; key <= 6; ++key)
        project(key, "3");
    activity(1, "CURRENT_DATE + INTERVAL 1 DAY - INTERVAL 1 SECOND");
    activity(2, "CURRENT_DATE + INTERVAL 1 DAY");
    activity(3, "CURRENT_DATE", "1");
    activity(4, "NULL");
    activity(5, "CURRENT_DATE - INTERVAL 3 DAY", "1");
    activity(5, "CURRENT_DATE + INTERVAL 3 DAY");
    EXPECT_THAT(keys("qhoy"), ElementsAre("Proyecto 1"));
    EXPECT_THAT(keys("qatascados"), ElementsAre("Proyecto 3", "Proyecto 6"))
        << "3 has done activities only, 6 none; 4 has a pending one without a date";
}

TEST_F(Queues, a_project_stands_once_with_its_earliest_pending_activity)
{
    project(1, "3");
    activity(1, "CURRENT_DATE - INTERVAL 2 DAY", "1");
    activity(1, "CURRENT_DATE - INTERVAL 1 DAY");
    activity(1, "CURRENT_DATE - INTERVAL 1 DAY");
    activity(1, "CURRENT_DATE");
    EXPECT_THAT(keys("qhoy"), ElementsAre("Proyecto 1"));
    EXPECT_EQ(valueOf(connection(), "SELECT DATEDIFF(CURRENT_DATE, cita) FROM qhoy WHERE ejecutivo=1"), "1");
}

TEST_F(Queues, closed_and_lost_projects_are_not_stalled_but_may_be_due)
{
    for (const char* status : {"1", "2", "3", "4", "5", "6", "NULL"})
        project(*status == 'N' ? 9 : *status - '0', status);
    EXPECT_THAT(keys("qatascados"), ElementsAre("Proyecto 1", "Proyecto 2", "Proyecto 3", "Proyecto 4"));
    activity(5, "CURRENT_DATE");
    EXPECT_THAT(keys("qhoy"), ElementsAre("Proyecto 5"));
}

TEST_F(Queues, nulls_come_first_then_dates_then_kinds_then_keys)
{
    prospect(8, "0", "CURRENT_DATE");
    prospect(7, "0", "CURRENT_DATE");
    project(1, "3");
    activity(1, "CURRENT_DATE");
    prospect(9, "0", "CURRENT_DATE - INTERVAL 1 DAY");
    EXPECT_THAT(keys("qhoy"), ElementsAre("Contacto 9", "Contacto 7", "Contacto 8", "Proyecto 1"));
}

TEST_F(Queues, rows_carry_what_the_list_shows)
{
    run("INSERT INTO Organizacion (Sys_PK, Nombre, Tel1, Tel2, EMail) VALUES (1, 'Montebello', NULL, '22', "
        "'o@m')");
    run("INSERT INTO Persona (Sys_PK, Nombre, Apellido1, Apellido2, Tel_Movil) VALUES (1, 'Inés', 'Peña', NULL, "
        "'55')");
    prospect(4, "0", "NULL");
    project(5, "1");
    EXPECT_THAT(rowsOf(connection(), "select * from qatascados where ejecutivo=1 order by cita, tipo, sys_pk"),
                ElementsAre(Row{"1", "Contacto", "4", "NULL", "Ana", "La Ceiba", "961", "a@b"},
                            Row{"1", "Proyecto", "5", "NULL", "Inés Peña", "Montebello", "22", "o@m"}));
    const auto rows = connection().execute("select * from qhoy where ejecutivo=1");
    EXPECT_THAT(rows->names(),
                ElementsAre("ejecutivo", "Tipo", "Sys_PK", "cita", "Contacto", "empresa", "telefono", "email"));
}

TEST_F(Queues, a_project_without_organisation_or_person_stays_in_the_queue)
{
    project(5, "1");
    EXPECT_THAT(keys("qatascados"), ElementsAre("Proyecto 5"));
}

TEST_F(Queues, each_agent_is_found_by_an_index)
{
    for (int key = 1; key <= 400; ++key)
        prospect(key, "0", key % 2 == 0 ? "NULL" : "CURRENT_DATE", std::to_string(key % 20));
    for (int key = 1; key <= 400; ++key) {
        project(key, "3", std::to_string(key % 20));
        activity(key, "CURRENT_DATE", key % 2 == 0 ? "1" : "0");
    }
    run("ANALYZE TABLE ut_icontact, Proyecto, actividad");
    for (const std::string view : {"qhoy", "qatascados"}) {
        const auto plan = rowsOf(connection(), "EXPLAIN select * from " + view +
                                                   " where ejecutivo=1 order by cita, tipo, sys_pk");
        const auto keyOf = [&](const std::string& table) {
            const auto row = std::find_if(plan.begin(), plan.end(), [&](const Row& it) { return it[2] == table; });
            return row == plan.end() ? "not in the plan" : (*row)[5];
        };
        EXPECT_EQ(keyOf("c"), "por_ejecutivo") << view;
        EXPECT_EQ(keyOf("p"), "por_ejecutivo") << view;
        EXPECT_EQ(keyOf("v"), "por_proyecto") << view;
        for (const Row& row : plan)
            EXPECT_TRUE(row[3] != "ALL" || row[2].starts_with("<")) << view << " reads the whole of " << row[2];
    }
}

} // namespace
} // namespace dn::host::tests
