// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The choice of a database: what is asked for, what is remembered, and what is handed to the drivers.

#include "host/database/database_choice.h"
#include "host/database/odbc_text.h"
#include "host/desktop/start_choice.h"

#include <QFile>
#include <QTemporaryDir>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace dn::host {
namespace {

OwnDatabase mariadb()
{
    return {.servers = {{"db.example.com", 3307}}, .name = "ventas año", .text = {}, .user = "ana@casa"};
}

OwnDatabase odbc(const char* text)
{
    return {.odbc = true, .servers = {}, .name = {}, .text = text, .user = "ana"};
}

/// The connection text of a database with one server.
std::string connectText(const OwnDatabase& database, const std::string& password)
{
    return connectTexts(database, password).at(0);
}

MariadbTarget targetOf(const std::string& text) { return std::get<MariadbTarget>(parseDatabaseChoice(text)); }

void writeText(const QString& path, const char* text)
{
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
    file.write(text);
}

const std::vector<ServerAddress> ofAllKinds{{"nodo1", 3306},    {"nodo2.example.com", 3307},
                                            {"10.0.0.3", 3306}, {"fe80::1", 3306},
                                            {"::1", 3308},      {.host = {}, .socket = "/run/mysqld/mysqld.sock"}};

TEST(Servers, are_read_however_they_are_set_apart)
{
    for (const char* typed :
         {"nodo1, nodo2.example.com:3307, 10.0.0.3, fe80::1, [::1]:3308, /run/mysqld/mysqld.sock",
          "nodo1 nodo2.example.com:3307 10.0.0.3 [fe80::1] [::1]:3308 /run/mysqld/mysqld.sock",
          " nodo1;nodo2.example.com:3307\n10.0.0.3\r\nfe80::1\u2028[::1]:3308,,/run/mysqld/mysqld.sock,nodo1 "})
        EXPECT_EQ(readServers(typed), ofAllKinds) << typed;
    EXPECT_EQ(readServers("a b:1", 77), (std::vector<ServerAddress>{{"a", 77}, {"b", 1}}));
    EXPECT_TRUE(readServers(" ,; ").empty());
}

TEST(Servers, that_make_no_sense_are_refused_by_their_text)
{
    for (const char* typed : {"a:", ":3306", "a:b", "a:0", "a:70000", "a:-1", "[::1", "[::1]x", "[::1]:", "[]",
                              "[a]", "[a:b]", "[/run/s]", "[::1/x]", "::1@otro", "::1@otro/x", "nodo:1:2"}) {
        const std::vector<ServerAddress> read = readServers(typed);
        ASSERT_EQ(read.size(), 1U) << typed;
        EXPECT_FALSE(isValid(read.front())) << typed;
        EXPECT_EQ(written(read.front()), typed);
        OwnDatabase database = mariadb();
        database.servers.push_back(read.front());
        EXPECT_EQ(problemOf(database),
                  QString("No se entiende «%1». Escriba cada servidor como nombre, nombre:puerto "
                          "o la ruta de un socket.")
                      .arg(typed));
    }
}

TEST(Servers, are_written_as_they_are_read)
{
    const QString text = "nodo1, nodo2.example.com:3307, 10.0.0.3, [fe80::1], [::1]:3308, /run/mysqld/mysqld.sock";
    EXPECT_EQ(written(ofAllKinds, 3306), text);
    EXPECT_EQ(readServers(text), ofAllKinds);
    EXPECT_EQ(written(ofAllKinds[0]), "nodo1:3306");
    EXPECT_EQ(written(ofAllKinds[3]), "[fe80::1]:3306");
}

TEST(Servers, of_one_database_are_each_reached)
{
    OwnDatabase database = mariadb();
    database.servers = ofAllKinds;
    database.servers.push_back({"a/b@c", 3306});
    std::vector<std::string> reached;
    for (const std::string& text : connectTexts(database, "p:@/?%&ñ")) {
        const MariadbTarget target = targetOf(text);
        reached.push_back(target.socket.empty() ? target.host + " " + std::to_string(target.port) : target.socket);
        EXPECT_EQ(target.password, "p:@/?%&ñ");
        EXPECT_EQ(target.database, "ventas año");
        EXPECT_EQ(target.user, "ana@casa");
    }
    EXPECT_THAT(reached,
                testing::ElementsAre("nodo1 3306", "nodo2.example.com 3307", "10.0.0.3 3306", "fe80::1 3306",
                                     "::1 3308", "/run/mysqld/mysqld.sock", "a/b@c 3306"));
    EXPECT_EQ(accountOf(database), "ana@casa@nodo1:3306/ventas año") << "the preferred one's";
}

TEST(StartChoice, a_database_needs_what_leads_to_it)
{
    EXPECT_EQ(problemOf(mariadb()), "");
    for (QString OwnDatabase::*field : {&OwnDatabase::name, &OwnDatabase::user}) {
        OwnDatabase database = mariadb();
        database.*field = "  ";
        EXPECT_NE(problemOf(database), "");
    }
    OwnDatabase nowhere = mariadb();
    nowhere.servers.clear();
    EXPECT_EQ(problemOf(nowhere), "Escriba el nombre o la dirección del servidor.");
    EXPECT_EQ(problemOf(odbc("DRIVER=FreeTDS;SERVER=x")), "");
    EXPECT_EQ(problemOf(odbc("SERVER=x; dsn=ventas")), "");
    EXPECT_EQ(problemOf(odbc("SERVER=x")), "La cadena de conexión debe llevar DRIVER= o DSN=.");
    for (const char* text : {"DSN=v;PWD=x", "DSN=v; pwd =x", "password=x;DSN=v", "DSN=v;Passwd=x",
                             "DSN=v;PASSPHRASE=x", "DSN=v;User Id=ana", "DSN=v; UserName =ana", "DSN=v;UID=ana",
                             "DSN=v;user=ana", "\u00A0PWD=x;DSN=v", "DSN=v;\u00A0PWD\u00A0=x"})
        EXPECT_EQ(problemOf(odbc(text)),
                  "Escriba el usuario y la clave en sus propios campos, no en la cadena de conexión.")
            << text;
}

// What comes behind it, the password too, would be a part of that value, and be shown with it.
TEST(StartChoice, a_brace_that_nothing_closes_is_refused)
{
    for (const char* text : {"DSN={v", "DRIVER={a}};SERVER=x", "DSN=v;SERVER={", "DSN={}}"})
        EXPECT_EQ(problemOf(odbc(text)), "En la cadena de conexión falta la llave «}» que cierra un valor.")
            << text;
    for (const char* text : {"DSN={v}", "DRIVER={a}};b};SERVER=x", "DSN=v;SERVER={}", "DSN=v{"})
        EXPECT_EQ(problemOf(odbc(text)), "") << text;
}

TEST(StartChoice, reaches_the_drivers_to_the_letter)
{
    EXPECT_EQ(targetOf(connectText(mariadb(), "")).host, "db.example.com");
    EXPECT_EQ(connectText(odbc("DSN=v"), "a}b;c"), "DSN=v;UID={ana};PWD={a}}b;c};");
    EXPECT_EQ(odbcPassword(connectText(odbc("DSN=v;"), "simple")), "simple");
    EXPECT_EQ(connectText(odbc("DSN=v;"), ""), "DSN=v;UID={ana};");
}

TEST(StartChoice, comes_back_from_its_file)
{
    const QTemporaryDir folder;
    const QString file = folder.filePath("a/inicio.ini");
    EXPECT_EQ(readStartChoice(file), std::nullopt);
    OwnDatabase several = mariadb();
    several.servers = ofAllKinds;
    for (const StartChoice& choice :
         {StartChoice{}, StartChoice{true, mariadb()}, StartChoice{true, several, true},
          StartChoice{true, mariadb()}, StartChoice{true, odbc("DRIVER={Uno; dos};SERVER=ñ")},
          StartChoice{true, odbc("DSN=a"), true}, StartChoice{true, mariadb(), false, true}, StartChoice{}}) {
        EXPECT_TRUE(writeStartChoice(file, choice));
        EXPECT_EQ(readStartChoice(file), choice);
    }
    EXPECT_FALSE(writeStartChoice("/proc/no/existe.ini", {}));
}

TEST(StartChoice, of_an_earlier_release_is_read_on)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath("inicio.ini");
    writeText(path, "[base]\ntipo=mariadb\nservidor=db.example.com\nnombre=ventas\nusuario=ana\npuerto=3307\n");
    EXPECT_EQ(readStartChoice(path)->database.servers, (std::vector<ServerAddress>{{"db.example.com", 3307}}));
}

TEST(StartChoice, of_an_earlier_release_with_a_blank_names_two_servers)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath("inicio.ini");
    writeText(path, "[base]\ntipo=mariadb\nservidor=db otro:3308\nnombre=ventas\nusuario=ana\npuerto=3307\n");
    const auto read = readStartChoice(path);
    EXPECT_EQ(read->database.servers, (std::vector<ServerAddress>{{"db", 3307}, {"otro", 3308}}));
    EXPECT_TRUE(writeStartChoice(path, *read));
    EXPECT_EQ(readStartChoice(path), read);
}

TEST(StartChoice, is_written_over_a_file_that_nobody_can_read)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath("inicio.ini");
    writeText(path, "[base]\nclave=secreto\nesto no es nada\n");
    EXPECT_TRUE(writeStartChoice(path, {true, mariadb()}));
    EXPECT_EQ(readStartChoice(path), (StartChoice{true, mariadb()}));
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_FALSE(file.readAll().contains("secreto"));
}

TEST(StartChoice, of_several_servers_can_be_written_by_hand)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath("inicio.ini");
    const std::vector<ServerAddress> both{{"nodo1", 3306}, {"nodo2", 3307}};
    for (const char* servers : {"nodo1, nodo2:3307", "nodo1 nodo2:3307", "\"nodo1, nodo2:3307\""}) {
        writeText(
            path,
            ("[base]\ntipo=mariadb\nnombre=ventas\nusuario=ana\nservidores=" + std::string(servers)).c_str());
        ASSERT_TRUE(readStartChoice(path)) << servers;
        EXPECT_EQ(readStartChoice(path)->database.servers, both) << servers;
    }
}

TEST(StartChoice, that_a_file_does_not_tell_is_asked_for_again)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath("inicio.ini");
    for (const char* text : {"", "[base]\n", "[base]\ntipo=otra\n", "[base]\ntipo=mariadb\n",
                             "[base]\ntipo=mariadb\nservidor=a\nnombre=b\nusuario=c\npuerto=0\n",
                             "[base]\ntipo=mariadb\nservidor=a\nnombre=b\nusuario=c\npuerto=70000\n",
                             "[base]\ntipo=mariadb\nservidores=a:b\nnombre=b\nusuario=c\n",
                             "[base]\ntipo=mariadb\nservidores=\nnombre=b\nusuario=c\n",
                             "[base]\ntipo=odbc\npuerto=1\ncadena=nada\n", "\x01\xff\xfe[[["}) {
        writeText(path, text);
        EXPECT_EQ(readStartChoice(path), std::nullopt) << text;
    }
}

} // namespace
} // namespace dn::host
