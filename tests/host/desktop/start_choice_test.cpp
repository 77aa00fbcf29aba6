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
    return {.server = "db.example.com", .port = 3307, .name = "ventas año", .text = {}, .user = "ana@casa"};
}

OwnDatabase odbc(const char* text)
{
    return {.odbc = true, .server = {}, .name = {}, .text = text, .user = "ana"};
}

TEST(StartChoice, a_database_needs_what_leads_to_it)
{
    EXPECT_EQ(problemOf(mariadb()), "");
    for (QString OwnDatabase::*field : {&OwnDatabase::server, &OwnDatabase::name, &OwnDatabase::user}) {
        OwnDatabase database = mariadb();
        database.*field = "  ";
        EXPECT_NE(problemOf(database), "");
    }
    EXPECT_EQ(problemOf(odbc("DRIVER=FreeTDS;SERVER=x")), "");
    EXPECT_EQ(problemOf(odbc("SERVER=x; dsn=ventas")), "");
    EXPECT_EQ(problemOf(odbc("SERVER=x")), "La cadena de conexión debe llevar DRIVER= o DSN=.");
    for (const char* text :
         {"DSN=v;PWD=x", "DSN=v; pwd =x", "password=x;DSN=v", "DSN=v;Passwd=x", "DSN=v;PASSPHRASE=x",
          "DSN=v;User Id=ana", "DSN=v; UserName =ana", "DSN=v;UID=ana", "DSN=v;user=ana"})
        EXPECT_EQ(problemOf(odbc(text)),
                  "Escriba el usuario y la clave en sus propios campos, no en la cadena de conexión.")
            << text;
}

TEST(StartChoice, reaches_the_drivers_to_the_letter)
{
    const auto target = std::get<MariadbTarget>(parseDatabaseChoice(connectText(mariadb(), "p:@/?%&ñ")));
    EXPECT_EQ(target.host, "db.example.com");
    EXPECT_EQ(target.port, 3307U);
    EXPECT_EQ(target.database, "ventas año");
    EXPECT_EQ(target.user, "ana@casa");
    EXPECT_EQ(target.password, "p:@/?%&ñ");
    OwnDatabase sixth = mariadb();
    sixth.server = "::1";
    EXPECT_EQ(std::get<MariadbTarget>(parseDatabaseChoice(connectText(sixth, ""))).host, "::1");
    EXPECT_EQ(connectText(odbc("DSN=v"), "a}b;c"), "DSN=v;UID={ana};PWD={a}}b;c};");
    EXPECT_EQ(odbcPassword(connectText(odbc("DSN=v;"), "simple")), "simple");
    EXPECT_EQ(connectText(odbc("DSN=v;"), ""), "DSN=v;UID={ana};");
}

TEST(StartChoice, comes_back_from_its_file)
{
    const QTemporaryDir folder;
    const QString file = folder.filePath("a/inicio.ini");
    EXPECT_EQ(readStartChoice(file), std::nullopt);
    for (const StartChoice& choice : {StartChoice{}, StartChoice{true, mariadb()},
                                      StartChoice{true, odbc("DRIVER={Uno; dos};SERVER=ñ")}, StartChoice{}}) {
        EXPECT_TRUE(writeStartChoice(file, choice));
        EXPECT_EQ(readStartChoice(file), choice);
    }
    EXPECT_FALSE(writeStartChoice("/proc/no/existe.ini", {}));
}

TEST(StartChoice, that_a_file_does_not_tell_is_asked_for_again)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath("inicio.ini");
    for (const char* text : {"", "[base]\n", "[base]\ntipo=otra\n", "[base]\ntipo=mariadb\n",
                             "[base]\ntipo=mariadb\nservidor=a\nnombre=b\nusuario=c\npuerto=0\n",
                             "[base]\ntipo=mariadb\nservidor=a\nnombre=b\nusuario=c\npuerto=70000\n",
                             "[base]\ntipo=odbc\npuerto=1\ncadena=nada\n", "\x01\xff\xfe[[["}) {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
        file.write(text);
        file.close();
        EXPECT_EQ(readStartChoice(path), std::nullopt) << text;
    }
}

} // namespace
} // namespace dn::host
