// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

package standin;

import java.nio.charset.Charset;
import java.nio.charset.StandardCharsets;
import java.sql.Connection;
import java.sql.DriverManager;
import java.sql.SQLException;
import java.util.Locale;
import java.util.Map;
import java.util.concurrent.ConcurrentHashMap;
import java.util.concurrent.atomic.AtomicReference;

/** A database in memory with its stored procedures; all sessions share it. */
final class Database {
    private static final Map<String, Database> ALL = new ConcurrentHashMap<>();

    final String name;
    /** To which a text without an N ahead of it is cut. */
    final Charset codePage;
    final Map<String, Procedure> procedures = new ConcurrentHashMap<>();
    /** Who holds the lock of applications; one is modelled, whatever its name. */
    final AtomicReference<Object> applicationLock = new AtomicReference<>();
    private final Connection first; // keeps it alive

    private Database(String name, String collation) throws SQLException {
        this.name = name;
        codePage = collation.toUpperCase(Locale.ROOT).endsWith("_UTF8") ? StandardCharsets.UTF_8
                : Charset.forName("windows-1252");
        first = connect();
        first.createStatement().execute("CREATE SCHEMA IF NOT EXISTS \"dbo\"");
        first.createStatement().execute("SET SCHEMA \"dbo\"");
        first.createStatement().execute("CREATE ALIAS sysnow FOR 'standin.Clock.now'");
        first.createStatement().execute("CREATE ALIAS sysguid FOR 'standin.Clock.guid'");
        first.createStatement().execute("CREATE ALIAS sysmoment DETERMINISTIC FOR 'standin.Clock.date'");
    }

    static void create(String name, String collation) throws SQLException {
        String key = name.toLowerCase(Locale.ROOT);
        if (ALL.containsKey(key))
            throw new SqlError(1801, 16, "Database '" + name + "' already exists. Choose a different database name.");
        ALL.put(key, new Database(name, collation));
    }

    static Database find(String name) {
        return ALL.get(name.toLowerCase(Locale.ROOT));
    }

    Connection connect() throws SQLException {
        Connection connection = DriverManager.getConnection("jdbc:h2:mem:" + name.toLowerCase(Locale.ROOT)
                + ";MODE=MSSQLServer;DATABASE_TO_UPPER=FALSE;CASE_INSENSITIVE_IDENTIFIERS=TRUE;LOCK_TIMEOUT=5000");
        if (first != null) connection.createStatement().execute("SET SCHEMA \"dbo\"");
        return connection;
    }
}
