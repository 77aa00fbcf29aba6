// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

package standin;

import java.nio.charset.StandardCharsets;
import java.sql.Connection;
import java.sql.PreparedStatement;
import java.sql.ResultSet;
import java.sql.SQLException;
import java.sql.Statement;
import java.util.ArrayList;
import java.util.HashSet;
import java.util.List;
import java.util.Locale;
import java.util.Set;

/** Runs the batches of one session on the engine and writes what they give. */
final class Executor implements Runner {
    private static final int DEEPEST_CALL = 32;

    private Database database;
    private Connection engine;
    private Reply reply;

    private int calls;
    private List<String> arguments = List.of();
    private boolean noCount;
    /** Year, month and day of a login in Spanish stand in this order. */
    private String dateFormat = "dmy";
    private String identityInsert = "";
    private final Set<String> toRenumber = new HashSet<>();
    private Long identity;
    private long rowCount;

    Executor(String databaseName) throws SQLException {
        open(databaseName);
    }

    String database() {
        return database.name;
    }

    private void open(String name) throws SQLException {
        Database found = Database.find(name);
        if (found == null)
            throw new SqlError(4060, 11,
                    "Cannot open database \"" + name + "\" requested by the login. The login failed.");
        close();
        database = found;
        engine = found.connect();
    }

    void close() {
        if (database != null) database.applicationLock.compareAndSet(this, null);
        try {
            if (engine != null) engine.close();
        } catch (SQLException ignored) {
            // nothing is left to do for it
        }
    }

    /** @throws SqlError what SQL Server would have said; the statements ahead of the failing one have run. */
    void run(String batch, Reply to) {
        reply = to;
        try {
            for (Step step : Batch.read(batch, database.codePage)) step.run(this);
        } catch (SQLException failure) {
            throw SqlError.of(failure);
        } finally {
            calls = 0;
            arguments = List.of();
        }
    }

    // ---- Statements

    private PreparedStatement prepare(String words, int keys) throws SQLException {
        PreparedStatement statement = engine.prepareStatement(filled(words), keys);
        int wanted = words.contains("?") ? statement.getParameterMetaData().getParameterCount() : 0;
        for (int i = 0; i < wanted; i++) statement.setString(i + 1, i < arguments.size() ? arguments.get(i) : null);
        return statement;
    }

    /** What only the session knows goes in at the last moment. */
    private String filled(String words) throws SQLException {
        if (words.indexOf('\u0001') < 0) return words;
        return words.replace("\u0001IDENTITY\u0001", "CAST(" + identity + " AS NUMERIC(38,0))")
                .replace("\u0001DATEFORMAT\u0001", dateFormat)
                .replace("\u0001DATABASE\u0001", "'" + database.name + "'")
                .replace("\u0001LOCK\u0001", database.applicationLock.get() == this ? "'Exclusive'" : "'NoLock'")
                .replace("\u0001ROWCOUNT\u0001", String.valueOf(rowCount))
                .replace("\u0001TRANCOUNT\u0001", engine.getAutoCommit() ? "0" : "1")
                .replace("\u0001VERSION\u0001", "'Stand-in for Microsoft SQL Server'")
                .replace("\u0001SPID\u0001", "CAST(" + (50 + Thread.currentThread().getId()) + " AS SMALLINT)");
    }

    @Override
    public void query(String words) throws SQLException {
        try (PreparedStatement statement = prepare(words, Statement.NO_GENERATED_KEYS);
                ResultSet rows = statement.executeQuery()) {
            List<Column> columns = new ArrayList<>();
            boolean plainTexts = database.codePage != StandardCharsets.UTF_8;
            for (int i = 1; i <= rows.getMetaData().getColumnCount(); i++)
                columns.add(new Column(rows.getMetaData(), i, plainTexts));
            reply.columns(columns, columns.size());
            rowCount = 0;
            for (; rows.next(); rowCount++) {
                reply.row();
                for (int i = 0; i < columns.size(); i++)
                    columns.get(i).write(reply, rows.getObject(i + 1, columns.get(i).javaType));
            }
            reply.statementDone(calls > 0, rowCount);
        }
    }

    @Override
    public void insert(String table, List<String> columns, String words) throws SQLException {
        String key = identityColumn(table);
        boolean told = columns.stream().anyMatch(column -> column.equalsIgnoreCase(key));
        boolean may = identityInsert.equalsIgnoreCase(table);
        if (key != null && columns.isEmpty() && !words.contains("DEFAULT VALUES"))
            throw new SqlError(8101, 16, "An explicit value for the identity column in table '" + table
                    + "' can only be specified when a column list is used and IDENTITY_INSERT is ON.");
        if (told && !may)
            throw new SqlError(544, 16, "Cannot insert explicit value for identity column in table '" + table
                    + "' when IDENTITY_INSERT is set to OFF.");
        if (key != null && !told && may)
            throw new SqlError(545, 16, "Explicit value must be specified for identity column in table '" + table
                    + "' either when IDENTITY_INSERT is set to ON or when a replication user is inserting.");
        try (PreparedStatement statement = prepare(words, Statement.RETURN_GENERATED_KEYS)) {
            rowCount = statement.executeUpdate();
            ResultSet keys = statement.getGeneratedKeys();
            while (key != null && keys.next()) identity = keys.getLong(key);
        }
        reply.statementDone(calls > 0, noCount ? null : rowCount);
    }

    private String identityColumn(String table) throws SQLException {
        try (PreparedStatement statement = engine.prepareStatement("SELECT COLUMN_NAME FROM INFORMATION_SCHEMA.COLUMNS "
                + "WHERE LOWER(TABLE_NAME) = ? AND TABLE_SCHEMA = 'dbo' AND IS_IDENTITY = 'YES'")) {
            statement.setString(1, table.toLowerCase(Locale.ROOT));
            ResultSet found = statement.executeQuery();
            return found.next() ? found.getString(1) : null;
        }
    }

    @Override
    public void change(String words) throws SQLException {
        try (PreparedStatement statement = prepare(words, Statement.NO_GENERATED_KEYS)) {
            rowCount = statement.executeUpdate();
        }
        reply.statementDone(calls > 0, noCount ? null : rowCount);
    }

    @Override
    public void define(String words) throws SQLException {
        try (Statement statement = engine.createStatement()) {
            statement.execute(filled(words));
        }
        reply.statementDone(calls > 0, null);
    }

    // ---- Procedures

    @Override
    public void call(String name, List<String> values) throws SQLException {
        if (systemProcedure(name.toLowerCase(Locale.ROOT), values)) return;
        Procedure procedure = database.procedures.get(name.toLowerCase(Locale.ROOT));
        if (procedure == null) throw new SqlError(2812, 16, "Could not find stored procedure '" + name + "'.");
        if (values.size() > procedure.parameters().size())
            throw new SqlError(8144, 16, "Procedure or function " + name + " has too many arguments specified.");
        if (values.size() < procedure.parameters().size())
            throw new SqlError(201, 16, "Procedure or function '" + name + "' expects parameter '"
                    + procedure.parameters().get(values.size()) + "', which was not supplied.");
        if (calls == DEEPEST_CALL)
            throw new SqlError(217, 16,
                    "Maximum stored procedure, function, trigger, or view nesting level exceeded (limit 32).");
        List<String> outer = arguments;
        boolean outerNoCount = noCount;
        calls++;
        arguments = values;
        for (Step step : Batch.body(procedure, database.codePage)) step.run(this);
        arguments = outer;
        noCount = outerNoCount; // a SET of a procedure ends with it
        calls--;
        reply.procedureDone();
    }

    /** The two of the server's own that are modelled. A lock that another session holds is not waited for. */
    private boolean systemProcedure(String name, List<String> values) throws SQLException {
        switch (name) {
            case "sp_getapplock" -> {
                database.applicationLock.compareAndSet(null, this);
                reply.procedureDone();
            }
            case "sp_rename" -> {
                try (Statement statement = engine.createStatement()) {
                    statement.execute("ALTER TABLE " + Cursor.quote(values.get(0)) + " RENAME TO "
                            + Cursor.quote(values.get(1)));
                }
                reply.procedureDone();
            }
            default -> {
                return false;
            }
        }
        return true;
    }

    @Override
    public void createProcedure(Procedure procedure, boolean orAlter) {
        if (database.procedures.put(procedure.name().toLowerCase(Locale.ROOT), procedure) != null && !orAlter)
            throw new SqlError(2714, 16,
                    "There is already an object named '" + procedure.name() + "' in the database.");
        reply.statementDone(false, null);
    }

    @Override
    public void dropProcedure(String name, boolean ifExists) {
        if (database.procedures.remove(name.toLowerCase(Locale.ROOT)) == null && !ifExists)
            throw new SqlError(3701, 11, "Cannot drop the procedure '" + name
                    + "', because it does not exist or you do not have permission.");
        reply.statementDone(false, null);
    }

    // ---- The session

    @Override
    public void createDatabase(String name, String collation) throws SQLException {
        Database.create(name, collation);
        reply.statementDone(false, null);
    }

    @Override
    public void use(String name) throws SQLException {
        if (Database.find(name) == null)
            throw new SqlError(911, 16,
                    "Database '" + name + "' does not exist. Make sure that the name is entered correctly.");
        String before = database.name;
        open(name);
        reply.environment(1, database.name, before);
        reply.statementDone(false, null);
    }

    @Override
    public void transaction(String verb) throws SQLException {
        if (!verb.equals("BEGIN") && engine.getAutoCommit())
            throw new SqlError(verb.equals("COMMIT") ? 3902 : 3903, 16,
                    "The " + verb + " TRANSACTION request has no corresponding BEGIN TRANSACTION.");
        if (verb.equals("ROLLBACK")) engine.rollback();
        engine.setAutoCommit(!verb.equals("BEGIN"));
        if (verb.equals("COMMIT")) for (String table : toRenumber) renumber(table, identityColumn(table));
        if (!verb.equals("BEGIN")) toRenumber.clear();
        reply.statementDone(false, null);
    }

    /** On ends what was on before; off, the numbers go on behind the highest one. */
    @Override
    public void identityInsert(String table, boolean on) throws SQLException {
        String key = identityColumn(table);
        if (key == null)
            throw new SqlError(8106, 16,
                    "Table '" + table + "' does not have the identity property. Cannot perform SET operation.");
        if (on && !identityInsert.isEmpty() && !identityInsert.equalsIgnoreCase(table))
            throw new SqlError(8107, 16, "IDENTITY_INSERT is already ON for table '" + identityInsert
                    + "'. Cannot perform SET operation for table '" + table + "'.");
        identityInsert = on ? table : "";
        if (!on && engine.getAutoCommit()) renumber(table, key);
        else if (!on) toRenumber.add(table); // the engine would end the transaction
        reply.statementDone(false, null);
    }

    private void renumber(String table, String key) throws SQLException {
        try (Statement statement = engine.createStatement()) {
            statement.execute("ALTER TABLE " + Cursor.quote(table) + " ALTER COLUMN " + Cursor.quote(key)
                    + " RESTART WITH (SELECT GREATEST(COALESCE(MAX(" + Cursor.quote(key) + "), 0) + 1, 1) FROM "
                    + Cursor.quote(table) + ")");
        }
    }

    @Override
    public void noCount(boolean on) {
        noCount = on;
        if (calls == 0) reply.statementDone(false, null);
    }

    @Override
    public void dateFormat(String format) {
        dateFormat = format;
        reply.statementDone(false, null);
    }

    @Override
    public void nothing() {
        reply.statementDone(calls > 0, null);
    }
}
