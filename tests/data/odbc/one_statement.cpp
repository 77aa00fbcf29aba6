// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "data/odbc/one_statement.h"

#include <gtest/gtest.h>

namespace dn::data::odbc {
namespace {

TEST(OneStatement, StaysOneWithASemicolonAtItsEnd)
{
    for (const char* text : {"SELECT 1", "SELECT 1;", "SELECT 1 ; ;\r\n -- ; SELECT 2\n /* ; /* UPDATE */ x */",
                             "", ";", "EXEC AddOrigenContacto 'uno; DELETE dos';"})
        EXPECT_FALSE(isStacked(text)) << text;
}

TEST(OneStatement, KeepsWhatBelongsToItInside)
{
    for (const char* text :
         {"UPDATE t SET a = 'x; UPDATE t SET a = 1', [update; set] = \"; delete\", b = t.[drop] WHERE k = 1",
          "INSERT INTO t (a) SELECT 'x' WHERE NOT EXISTS (SELECT 1 FROM t)",
          "INSERT INTO t (a) VALUES ((SELECT 1))",
          "SELECT a FROM t UNION ALL SELECT b FROM u EXCEPT (SELECT c FROM v)",
          "select (select 1), 'it''s; select'",
          "SELECT updated, [exec], setting, a.[select] FROM deletes ORDER BY a OFFSET 0 ROWS FETCH NEXT 5 ROWS "
          "ONLY",
          "CREATE PROCEDURE p @a INT AS SET NOCOUNT ON; INSERT INTO t VALUES (@a); SELECT 1",
          "SET DATEFORMAT ymd",
          "BEGIN TRANSACTION",
          "(SELECT 1) UNION (SELECT 2)",
          "SELECT enable, disable FROM trigger_table",
          "WITH c AS (SELECT 1 AS a) SELECT a FROM c UNION SELECT 2",
          "WITH c (a) AS (SELECT 1) UPDATE t SET b = 1",
          "WITH c AS (SELECT 1 AS a), d AS (SELECT 2 AS a) INSERT INTO t SELECT a FROM c",
          "DISABLE TRIGGER t ON u",
          "DROP TABLE t",
          "DECLARE @a INT = (SELECT 1)",
          "IF 1 = 1 UPDATE t SET a = 1",
          "MERGE t USING u ON t.a = u.a WHEN MATCHED THEN UPDATE SET b = 1 WHEN NOT MATCHED THEN INSERT VALUES "
          "(1);",
          "GRANT SELECT, UPDATE ON t TO u"})
        EXPECT_FALSE(isStacked(text)) << text;
}

TEST(OneStatement, IsNoLongerOneBehindASemicolon)
{
    for (const char* text :
         {"SELECT 1; SELECT 2", "SELECT 'a''b'; DROP TABLE t", "COMMIT; BEGIN TRANSACTION",
          "UPDATE t SET a = 'x'; UPDATE t SET b = 1; -- '", "; ; SELECT 1; EXEC p", "SELECT 1 /* ; */ ; x"})
        EXPECT_TRUE(isStacked(text)) << text;
}

// Transact-SQL needs no semicolon.
TEST(OneStatement, IsNoLongerOneWithAnotherThatFollowsBare)
{
    for (const char* text : {"UPDATE t SET a='x' UPDATE t SET b = 1 --'",
                             "UPDATE t SET a = 1 SET NOCOUNT ON",
                             "SELECT 1 SELECT 2",
                             "SELECT 1 DROP TABLE t",
                             "INSERT INTO t VALUES (1) SELECT 2",
                             "INSERT INTO t SELECT 1 SELECT 2",
                             "EXEC p 'x' exec q",
                             "DELETE FROM t WHERE a = 'x' waitfor delay '1:00'",
                             "SELECT (1) IF 1 = 1 PRINT 'x'",
                             "(SELECT 1) DROP TABLE t",
                             "(SELECT 1) SELECT 2",
                             "WITH c AS (SELECT 1 AS a) SELECT a FROM c DELETE FROM t",
                             "WITH c AS (SELECT 1 AS a) SELECT a FROM c SELECT 2",
                             "DROP TABLE t DROP TABLE u",
                             "SET NOCOUNT ON SET NOCOUNT OFF",
                             "USE otra DELETE FROM t",
                             "COMMIT BEGIN TRANSACTION",
                             "SELECT a FROM t DISABLE TRIGGER x ON t",
                             "SELECT a FROM t enable trigger x ON t",
                             "SELECT a FROM t FETCH NEXT FROM c",
                             "SELECT 1 ADD SIGNATURE TO p BY CERTIFICATE c",
                             "DROP TABLE t; SELECT 1",
                             "DECLARE @a INT; SELECT @a"})
        EXPECT_TRUE(isStacked(text)) << text;
}

TEST(OneStatement, HidesNothingBehindANumber)
{
    for (const char* text :
         {"UPDATE t SET a='x' WHERE 1=12DELETE FROM t--'", "UPDATE t SET a='x' WHERE 1=1.DELETE FROM t--'",
          "SELECT 1.DROP TABLE t", "SELECT 1.5DROP TABLE t", "SELECT .5DROP TABLE t", "SELECT .5 DROP TABLE t",
          "SELECT $DROP TABLE t", "SELECT $.DROP TABLE t", "SELECT \u20AC.DROP TABLE t",
          "UPDATE t SET a='x' WHERE 1>$.DELETE FROM t--'", "SELECT $1DROP TABLE t", "SELECT 1eDROP TABLE t",
          "SELECT 0x1FDROP TABLE t"})
        EXPECT_TRUE(isStacked(text)) << text;
    for (const char* text : {"SELECT 12, 1.5, .5, -3, $2.50 FROM t1 WHERE a2 = 0 AND b IN (1,2)",
                             "UPDATE t SET a=1,b=2.0 WHERE k=12", "SELECT TOP(1)a FROM t"})
        EXPECT_FALSE(isStacked(text)) << text;
}

TEST(OneStatement, HidesNothingBehindAStrangeBlankOrTheEndOfAComment)
{
    for (const char* text : {"UPDATE t SET a='x'\u00A0UPDATE t SET b = 1", "SELECT 1\u3000DROP TABLE t",
                             "SELECT 1 -- a\rDROP TABLE t", "SELECT 1 -- a\r'\nDROP TABLE t --'",
                             "SELECT 1 /* /* */ DROP TABLE t */ DROP TABLE t"})
        EXPECT_TRUE(isStacked(text)) << text;
    EXPECT_FALSE(isStacked("SELECT 'ñ' AS año, número -- ñ\r\n FROM añejo"));
}

} // namespace
} // namespace dn::data::odbc
