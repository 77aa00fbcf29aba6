// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

package standin;

import java.util.Map;
import java.util.Set;

/** The words that SQL Server keeps for itself, and the functions that it knows. */
final class Words {
    static final Set<String> RESERVED = Set.of(("ADD ALL ALTER AND ANY AS ASC AUTHORIZATION BACKUP BEGIN BETWEEN BREAK "
            + "BROWSE BULK BY CASCADE CASE CHECK CHECKPOINT CLOSE CLUSTERED COALESCE COLLATE COLUMN COMMIT COMPUTE "
            + "CONSTRAINT CONTAINS CONTAINSTABLE CONTINUE CONVERT CREATE CROSS CURRENT CURRENT_DATE CURRENT_TIME "
            + "CURRENT_TIMESTAMP CURRENT_USER CURSOR DATABASE DBCC DEALLOCATE DECLARE DEFAULT DELETE DENY DESC DISK "
            + "DISTINCT DISTRIBUTED DOUBLE DROP DUMP ELSE END ERRLVL ESCAPE EXCEPT EXEC EXECUTE EXISTS EXIT EXTERNAL "
            + "FETCH FILE FILLFACTOR FOR FOREIGN FREETEXT FREETEXTTABLE FROM FULL FUNCTION GOTO GRANT GROUP HAVING "
            + "HOLDLOCK IDENTITY IDENTITY_INSERT IDENTITYCOL IF IN INDEX INNER INSERT INTERSECT INTO IS JOIN KEY KILL "
            + "LEFT LIKE LINENO LOAD MERGE NATIONAL NOCHECK NONCLUSTERED NOT NULL NULLIF OF OFF OFFSETS ON OPEN "
            + "OPENDATASOURCE OPENQUERY OPENROWSET OPENXML OPTION OR ORDER OUTER OVER PERCENT PIVOT PLAN PRECISION "
            + "PRIMARY PRINT PROC PROCEDURE PUBLIC RAISERROR READ READTEXT RECONFIGURE REFERENCES REPLICATION RESTORE "
            + "RESTRICT RETURN REVERT REVOKE RIGHT ROLLBACK ROWCOUNT ROWGUIDCOL RULE SAVE SCHEMA SECURITYAUDIT SELECT "
            + "SESSION_USER SET SETUSER SHUTDOWN SOME STATISTICS SYSTEM_USER TABLE TABLESAMPLE TEXTSIZE THEN TO TOP "
            + "TRAN TRANSACTION TRIGGER TRUNCATE TRY_CONVERT TSEQUAL UNION UNIQUE UNPIVOT UPDATE UPDATETEXT USE USER "
            + "VALUES VARYING VIEW WAITFOR WHEN WHERE WHILE WITH WITHIN WRITETEXT").split(" "));

    static final Set<String> DATE_PARTS = Set.of("YEAR", "YY", "YYYY", "QUARTER", "QQ", "Q", "MONTH", "MM", "M",
            "DAYOFYEAR", "DY", "Y", "DAY", "DD", "D", "WEEK", "WK", "WW", "HOUR", "HH", "MINUTE", "MI", "N", "SECOND",
            "SS", "S", "MILLISECOND", "MS");

    /** A function: how many arguments it takes, and the engine's words for it, with $1 for the first of them. */
    record Function(int least, int most, String form) {}

    static final Map<String, Function> FUNCTIONS = Map.ofEntries(
            function("ABS", 1, "ABS($1)"),
            function("APPLOCK_MODE", 3, "\u0001LOCK\u0001"),
            function("AVG", 1, "AVG($1)"),
            function("CONCAT", 2, 254, "CONCAT($*)"),
            function("CONCAT_WS", 3, 254, "CONCAT_WS($*)"),
            function("COUNT", 1, "COUNT($1)"),
            function("DAY", 1, "DAY($1)"),
            function("DATALENGTH", 1, "OCTET_LENGTH($1)"),
            function("DB_NAME", 0, "\u0001DATABASE\u0001"),
            function("GETDATE", 0, "CAST(sysnow() AS TIMESTAMP(3))"),
            function("ISNULL", 2, "COALESCE($1, $2)"),
            function("LEFT", 2, "LEFT($1, $2)"),
            function("LEN", 1, "CHAR_LENGTH(RTRIM($1))"),
            function("LOWER", 1, "LOWER($1)"),
            function("LTRIM", 1, "LTRIM($1)"),
            function("MAX", 1, "MAX($1)"),
            function("MIN", 1, "MIN($1)"),
            function("MONTH", 1, "MONTH($1)"),
            function("NCHAR", 1, "CHAR($1)"),
            function("NEWID", 0, "sysguid()"),
            function("REPLACE", 3, "REPLACE($1, $2, $3)"),
            function("REPLICATE", 2, "REPEAT($1, $2)"),
            function("RIGHT", 2, "RIGHT($1, $2)"),
            function("ROUND", 2, "ROUND($1, $2)"),
            function("RTRIM", 1, "RTRIM($1)"),
            function("SCOPE_IDENTITY", 0, "\u0001IDENTITY\u0001"),
            function("SUBSTRING", 3, "SUBSTRING($1, $2, $3)"),
            function("SUM", 1, "SUM($1)"),
            function("SYSDATETIME", 0, "CAST(sysnow() AS TIMESTAMP(7))"),
            function("UPPER", 1, "UPPER($1)"),
            function("YEAR", 1, "YEAR($1)"));

    private Words() {}

    private static Map.Entry<String, Function> function(String name, int arguments, String form) {
        return function(name, arguments, arguments, form);
    }

    private static Map.Entry<String, Function> function(String name, int least, int most, String form) {
        return Map.entry(name, new Function(least, most, form));
    }
}
