// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// Texts go out and come back to the byte: the control joins whatever an operator types into its statements.
#include "tests/data/contract/contract.h"

namespace dn::tests::contract {
namespace {

// The server itself tells what it received. (It drops blanks and semicolons at the end.)
TEST_F(Contract, TheStatementGoesOutToTheByte)
{
    const std::string statement = "SELECT  INFO /* ¿qué? :x ?1 {d '2026-01-01'} {fn now()} %s \\ $1 */\r\n"
                                  "\tFROM information_schema.PROCESSLIST -- :comentario ? ñ\n"
                                  " WHERE ID = CONNECTION_ID() # {call x(?)}\n AND '?' <> ':y' AND \"{}\" <> ''";
    expectRows(statement, single("INFO", text(statement)));
}

TEST_F(Contract, LiteralsComeBackAsTheyWereSent)
{
    Rows rows;
    rows.names = {"a", "b", "c", "d", "e", "f", "g"};
    rows.rows = {{text("?"), text(":x"), text("{d '2026-01-01'}"), text("ñÑáÜ¿¡€"), text("😀🇲🇽"), text("it's"),
                  text("uno\r\ndos\ttres")}};
    expectRows("SELECT '?' AS a, ':x' AS b, '{d ''2026-01-01''}' AS c, 'ñÑáÜ¿¡€' AS d, '😀🇲🇽' AS e, 'it''s' AS f, "
               "'uno\r\ndos\ttres' AS g",
               rows);
}

TEST_F(Contract, TextsAreStoredAndReadInUtf8)
{
    run("CREATE TEMPORARY TABLE textos (a VARCHAR(40), b TEXT)");
    run("INSERT INTO textos VALUES ('Muñoz Ávila 😀', 'Peña «Ü» 😀'), ('', NULL)");
    Rows rows;
    rows.names = {"a", "b", "caracteres", "octetos"};
    rows.rows = {{text("Muñoz Ávila 😀"), text("Peña «Ü» 😀"), whole(13), whole(18)},
                 {text(""), null, whole(0), whole(0)}};
    expectRows("SELECT a, b, CHAR_LENGTH(a) AS caracteres, LENGTH(a) AS octetos FROM textos", rows);
}

TEST_F(Contract, AnEmptyTextIsNoNull)
{
    Rows rows;
    rows.names = {"vacio", "nulo", "blanco"};
    rows.rows = {{text(""), null, text(" ")}};
    expectRows("SELECT '' AS vacio, NULL AS nulo, ' ' AS blanco", rows);
}

TEST_F(Contract, LongTextsAreNotCutOff)
{
    std::string megabyte;
    for (int i = 0; i < 100'000; ++i)
        megabyte += "ñ€😀x"; // characters of two, three, four bytes and one
    run("CREATE TEMPORARY TABLE largos (id INT, nota LONGTEXT, nombre VARCHAR(20), extra TEXT)");
    run("INSERT INTO largos VALUES (1, REPEAT('ñ€😀x', 100000), 'uno', 'x'), (2, NULL, 'dos', NULL),"
        " (3, 'corta', 'tres', REPEAT('y', 20000)), (4, '', 'cuatro', REPEAT('ñ', 8192))");
    std::string enyes;
    for (int i = 0; i < 8192; ++i)
        enyes += "ñ";
    Rows rows;
    rows.names = {"id", "nota", "nombre", "extra"};
    rows.rows = {{whole(1), text(megabyte), text("uno"), text("x")},
                 {whole(2), null, text("dos"), null},
                 {whole(3), text("corta"), text("tres"), text(std::string(20'000, 'y'))},
                 {whole(4), text(""), text("cuatro"), text(enyes)}};
    expectRows("SELECT * FROM largos ORDER BY id", rows);
}

TEST_F(Contract, EveryLengthAroundTheBuffersComesWhole)
{
    run("CREATE TEMPORARY TABLE bordes (id INT, nota MEDIUMTEXT)");
    Rows rows;
    rows.names = {"id", "nota"};
    for (const int size :
         {0, 1, 255, 256, 1023, 4095, 4096, 4097, 16'382, 16'383, 16'384, 16'385, 32'768, 65'536}) {
        run("INSERT INTO bordes VALUES (" + std::to_string(size) + ", REPEAT('z', " + std::to_string(size) + "))");
        rows.rows.push_back({whole(size), text(std::string(static_cast<std::size_t>(size), 'z'))});
    }
    expectRows("SELECT id, nota FROM bordes ORDER BY id", rows);
}

TEST_F(Contract, BytesStayBytes)
{
    using namespace std::string_literals;
    run("CREATE TEMPORARY TABLE octetos (a BLOB, b VARBINARY(8), c BINARY(3))");
    run("INSERT INTO octetos VALUES (x'00FF4100', x'0080', x'414243'), (NULL, '', NULL)");
    Rows rows;
    rows.names = {"a", "b", "c"};
    rows.rows = {{text("\x00\xFF\x41\x00"s), text("\x00\x80"s), text("ABC")}, {null, text(""), null}};
    expectRows("SELECT a, b, c FROM octetos", rows);
}

} // namespace
} // namespace dn::tests::contract
