// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The host opens on SQL Server as on its own: tables and sample data where they are asked for, and what it sets on
// each connection.

#include "data/odbc/connection.h"
#include "host/database/database.h"
#include "host/database/database_choice.h"
#include "host/database/host_error.h"
#include "host/database/own_connection.h"
#include "host/database/sample_data.h"
#include "host/database/schema.h"
#include "tests/sqlserver/fixture.h"
#include "tests/support/sql_server_stand_in.h"

namespace dn::tests {
namespace {

using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class HostOnSqlServer : public OnStandIn {
protected:
    static host::DatabaseOptions newDatabase(const std::string& name)
    {
        connect()->execute("CREATE DATABASE " + name);
        host::DatabaseOptions options;
        options.connect = sharedStandIn().connectionString(name);
        return options;
    }
    static std::string count(data::Connection& connection, const std::string& from)
    {
        return rowsOf(connection, "SELECT COUNT(*) FROM " + from).at(0).at(0);
    }
};

TEST_F(HostOnSqlServer, makes_nothing_unasked_and_tells_what_is_missing)
{
    const host::Database database = host::openDatabase(newDatabase("ajena"));
    EXPECT_FALSE(database.created());
    EXPECT_THAT(database.warnings(),
                ElementsAre(AllOf(HasSubstr("le falta: ut_icontact"), HasSubstr("--create-schema"))));
}

TEST_F(HostOnSqlServer, makes_the_tables_and_the_sample_data_when_asked_and_only_once)
{
    host::DatabaseOptions options = newDatabase("nueva");
    options.createSchema = true;
    options.demoRows = 200;
    host::Database database = host::openDatabase(options);
    EXPECT_TRUE(database.created());
    EXPECT_THAT(database.warnings(), IsEmpty());
    data::Connection& connection = database.connection();
    EXPECT_EQ(count(connection, "ut_icontact"), "200");
    EXPECT_EQ(count(connection, "Agente"), "12");
    EXPECT_EQ(count(connection, "Persona"), "700");
    EXPECT_NE(count(connection, "qhoy"), "0");
    EXPECT_NE(count(connection, "qatascados"), "0");
    EXPECT_NE(count(connection, "ut_icontact WHERE uf_Nombre LIKE '%ñ%'"), "0");
    connection.execute("INSERT INTO ut_icontact (uf_Nombre) VALUES ('de la web')");
    EXPECT_THAT(rowsOf(connection, "SELECT @@IDENTITY"), ElementsAre(Row{"201"}))
        << "keys go on behind the highest";
    EXPECT_FALSE(host::openDatabase(options).created());
    EXPECT_EQ(count(connection, "ut_icontact"), "201");
}

TEST_F(HostOnSqlServer, makes_nothing_while_another_program_makes_the_tables)
{
    host::DatabaseOptions options = newDatabase("disputada");
    options.createSchema = true;
    auto other = host::connect(host::OdbcTarget{options.connect});
    other->execute("EXEC sp_getapplock @Resource = 'dncontacts.esquema', @LockMode = 'Exclusive', @LockOwner = "
                   "'Session', @LockTimeout = 0");
    try {
        host::openDatabase(options);
        ADD_FAILURE() << "no error";
    } catch (const host::HostError& refusal) {
        EXPECT_THAT(refusal.what(), HasSubstr("Otro programa está creando las tablas"));
    }
    EXPECT_EQ(refusalOf(*other, "SELECT * FROM ut_icontact"), 208) << "there is no table yet";
    other.reset();
    EXPECT_TRUE(host::openDatabase(options).created());
}

TEST_F(HostOnSqlServer, what_is_left_out_has_the_same_defaults_as_elsewhere)
{
    const auto connection = freshDatabase("omisiones");
    connection->execute("INSERT INTO ut_icontact (uf_Nombre) VALUES ('de la web')");
    EXPECT_THAT(rowsOf(*connection, "SELECT uf_Status, uf_Tipo, uf_color, uf_contactado, uf_IEjecutivo, "
                                    "LEN(Sys_GUID), DATEDIFF(DAY, Sys_DTCreated, GETDATE()) FROM ut_icontact"),
                ElementsAre(Row{"0", "NULL", "NULL", "NULL", "NULL", "32", "0"}));
    connection->execute("INSERT INTO Proyecto (Descripcion) VALUES ('x')");
    EXPECT_THAT(rowsOf(*connection, "SELECT UF_Status1 FROM Proyecto"), ElementsAre(Row{"1"}));
    connection->execute("INSERT INTO xt_biticontact (uf_Tiempo, uf_Mensaje, uf_Usuario, uf_Iicontact) VALUES "
                        "(CURRENT_TIMESTAMP, 'uno','ana',7)");
    EXPECT_THAT(rowsOf(*connection, "SELECT uf_IProy FROM xt_biticontact"), ElementsAre(Row{"NULL"}));
}

TEST_F(HostOnSqlServer, a_procedure_stores_a_text_once_and_accepts_known_ones)
{
    const auto connection = freshDatabase("aprendidos");
    for (const char* text : {"Página web", "Radio", "Página web", "RADIO", "Año nuevo"})
        EXPECT_FALSE(connection->execute(std::string("EXEC AddOrigenContacto '") + text + "';"));
    EXPECT_THAT(rowsOf(*connection, "SELECT uf_Origen FROM ut_OrigenContacto ORDER BY uf_Origen"),
                ElementsAre(Row{"Año nuevo"}, Row{"Página web"}, Row{"Radio"}));
    EXPECT_EQ(refusalOf(*connection, "EXEC AddOrigenContacto 'con ' comilla';"), 102);
    EXPECT_EQ(refusalOf(*connection, "EXEC AddOrigenContacto '" + std::string(501, 'x') + "';"), 2628);
}

// The stand-in's logins are Spanish, as half of the real ones.
TEST_F(HostOnSqlServer, a_login_in_spanish_does_not_swap_day_and_month)
{
    const std::string ask = "SELECT CAST('2026-03-11 10:30:00' AS DATETIME)";
    data::odbc::Connection bare(sharedStandIn().connectionString());
    EXPECT_THAT(rowsOf(bare, ask), ElementsAre(Row{"2026-11-03 10:30:00"}));
    EXPECT_EQ(refusalOf(bare, "SELECT CAST('2026-03-14 10:30:00' AS DATETIME)"), 242);
    EXPECT_THAT(rowsOf(*connect(), ask), ElementsAre(Row{"2026-03-11 10:30:00"}));
}

TEST_F(HostOnSqlServer, its_own_statements_and_transactions_hold_there)
{
    freshDatabase("propia");
    host::OwnConnection own(
        [] { return host::connect(host::OdbcTarget{sharedStandIn().connectionString("propia")}); });
    const std::string hostile = "O'Higgins \\\r\nñ 😀 -- ; ?";
    std::int32_t key = 0;
    {
        host::Transaction transaction(own);
        key = own.insert(
            host::Statement("INSERT INTO Persona (Nombre, IEjecutivo) VALUES (?, ?)").bind(hostile).bind(7));
        transaction.commit();
    }
    {
        const host::Transaction given_up(own);
        own.run(host::Statement("UPDATE Persona SET Nombre = ?").bind("otra"));
    }
    const auto rows =
        own.run(host::Statement("SELECT Sys_PK, Nombre FROM Persona WHERE IEjecutivo = ? ORDER BY Sys_PK")
                    .bind(7)
                    .limit(5));
    EXPECT_EQ(rows->value(0).toInt32(), key);
    EXPECT_EQ(rows->value(1).raw(), hostile);
}

} // namespace
} // namespace dn::tests
