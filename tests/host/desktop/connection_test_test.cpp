// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// Trying out a connection: what the operator is told, over a real server and where there is none.

#include "host/database/host_error.h"
#include "host/database/schema.h"
#include "host/desktop/connection_test.h"
#include "host/desktop/start_choice.h"
#include "tests/support/maria_server.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace dn::host {
namespace {

using testing::HasSubstr;
using testing::Not;

OwnDatabase at(const char* server, unsigned port)
{
    return {.servers = {{server, static_cast<int>(port)}}, .name = "pruebas", .text = {}, .user = "prueba"};
}

OwnDatabase byOdbc(const char* server, unsigned port)
{
    return {.odbc = true,
            .servers = {},
            .name = {},
            .text = QString("DRIVER={MariaDB Unicode};SERVER=%1;PORT=%2;DATABASE=pruebas").arg(server).arg(port),
            .user = "prueba"};
}

std::string told(const OwnDatabase& database, std::string_view password)
try {
    return testServers(connectTexts(database, std::string(password))).toStdString();
} catch (const std::exception& failure) {
    return failure.what();
}

class SeveralServersTest : public testing::Test {
protected:
    static constexpr const char* works = "usuario prueba: La conexión funciona y la base tiene todas sus tablas.";

    void SetUp() override
    {
        const auto connection = connect(parseDatabaseChoice(connectTexts(at("127.0.0.1", port), password).at(0)));
        connection->execute("CREATE OR REPLACE DATABASE pruebas CHARACTER SET utf8mb4");
        connection->execute("USE pruebas");
        createSchema(*connection, engineOf(*connection));
    }
    void TearDown() override
    {
        connect(parseDatabaseChoice(connectTexts(at("127.0.0.1", port), password).at(0)))
            ->execute("CREATE OR REPLACE DATABASE pruebas CHARACTER SET utf8mb4");
    }
    static std::string line(const std::string& text, int number)
    {
        return QString::fromStdString(text).section(u'\n', number, number).toStdString();
    }

    const unsigned port = dn::tests::sharedServer().port();
    const std::string password{dn::tests::MariaServer::password};
    OwnDatabase database = at("127.0.0.1", port);
    const ServerAddress socket{.host = {}, .socket = QString::fromStdString(dn::tests::sharedServer().socket())};
    const ServerAddress nobody{"127.0.0.1", static_cast<int>(dn::tests::freePort())};
};

TEST_F(SeveralServersTest, that_all_answer_are_told_one_by_one)
{
    database.servers.push_back(socket);
    const std::string text = told(database, password);
    EXPECT_EQ(line(text, 0), "Contestan los 2 servidores.");
    EXPECT_EQ(line(text, 1), "«pruebas» en 127.0.0.1:" + std::to_string(port) + ", " + works);
    EXPECT_EQ(line(text, 2), "«pruebas» en " + socket.socket.toStdString() + ", " + works);
}

TEST_F(SeveralServersTest, of_which_one_answers_are_told_too)
{
    database.servers.insert(database.servers.begin(), nobody);
    const std::string text = told(database, password);
    EXPECT_EQ(line(text, 0), "Contesta 1 de 2 servidores.");
    EXPECT_THAT(line(text, 1), testing::StartsWith("⚠ No se pudo abrir la base de datos «pruebas» en 127.0.0.1:" +
                                                   std::to_string(nobody.port)));
    EXPECT_THAT(text, testing::EndsWith("\n«pruebas» en 127.0.0.1:" + std::to_string(port) + ", " + works));
    database.servers.push_back(socket);
    EXPECT_EQ(line(told(database, password), 0), "Contestan 2 de 3 servidores.");
}

TEST_F(SeveralServersTest, of_which_none_answers_are_a_failure)
{
    database.servers = {nobody, {"127.0.0.1", static_cast<int>(dn::tests::freePort())}};
    EXPECT_THROW(testServers(connectTexts(database, password)), HostError);
    EXPECT_THAT(told(database, "muysecreta"),
                testing::AllOf(HasSubstr(":" + std::to_string(nobody.port)), Not(HasSubstr("Contesta")),
                               HasSubstr(":" + std::to_string(database.servers[1].port)),
                               Not(HasSubstr("muysecreta"))));
}

TEST(ConnectionTest, tells_what_a_real_server_has)
{
    const dn::tests::MariaServer& server = dn::tests::sharedServer();
    const std::string password(dn::tests::MariaServer::password);
    const auto connection =
        connect(parseDatabaseChoice(connectTexts(at("127.0.0.1", server.port()), password).at(0)));
    const std::vector<OwnDatabase> ways{at("127.0.0.1", server.port()), byOdbc("127.0.0.1", server.port())};
    for (const OwnDatabase& way : ways) {
        EXPECT_THAT(told(way, password),
                    testing::AllOf(testing::StartsWith("La conexión funciona, pero a la base le falta: "),
                                   HasSubstr("ut_icontact"), HasSubstr("qhoy"),
                                   testing::EndsWith(". Si está vacía, marque «Crear las tablas».")));
        EXPECT_TRUE(connection->execute("SHOW TABLES")->Eof()) << "everything is as it was";
    }
    createSchema(*connection, engineOf(*connection));
    for (const OwnDatabase& way : ways)
        EXPECT_EQ(told(way, password), "La conexión funciona y la base tiene todas sus tablas.");
}

TEST(ConnectionTest, tells_that_the_password_is_wrong_and_not_which)
{
    const unsigned port = dn::tests::sharedServer().port();
    for (const OwnDatabase& way : {at("127.0.0.1", port), byOdbc("127.0.0.1", port)})
        EXPECT_THAT(told(way, "muysecreta"),
                    testing::AllOf(HasSubstr("No se pudo abrir la base de datos"), HasSubstr("Access denied"),
                                   Not(HasSubstr("muysecreta"))));
}

TEST(ConnectionTest, tells_that_nobody_is_there_and_no_password)
{
    for (const OwnDatabase& way :
         {at("127.0.0.1", dn::tests::freePort()), byOdbc("127.0.0.1", dn::tests::freePort())})
        EXPECT_THAT(told(way, "muysecreta"),
                    testing::AllOf(HasSubstr("No se pudo abrir la base de datos"), Not(HasSubstr("muysecreta"))));
}

TEST(ConnectionTest, waits_for_no_server_longer_than_an_operator_does)
{
    const auto maria = std::get<MariadbTarget>(impatient(parseDatabaseChoice("mariadb://ana:x@db/ventas")));
    EXPECT_EQ(maria.connectTimeout, 5U);
    EXPECT_EQ(maria.readTimeout, 5U);
    EXPECT_EQ(maria.host, "db");
    const auto odbc = std::get<OdbcTarget>(impatient(parseDatabaseChoice("DSN=ventas")));
    EXPECT_EQ(odbc.connectTimeout, 5U);
    EXPECT_EQ(odbc.readTimeout, 5U);
    EXPECT_EQ(odbc.text, "DSN=ventas");
}

} // namespace
} // namespace dn::host
