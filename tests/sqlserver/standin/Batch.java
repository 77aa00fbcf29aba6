// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

package standin;

import java.nio.charset.Charset;
import java.util.ArrayList;
import java.util.List;
import java.util.Locale;
import java.util.Set;

/**
 * The gate: reads a batch by the grammar of Transact-SQL, as far as it is modelled, and refuses whatever else comes.
 * What it lets through it turns into the engine's words; every name goes on in quotes, so that no word of the engine's
 * own (TRUE, ROWNUM, LIMIT) means anything.
 */
final class Batch extends Queries {
    private static final Set<String> SWITCHES = Set.of("NOCOUNT", "XACT_ABORT", "QUOTED_IDENTIFIER", "ANSI_NULLS",
            "ANSI_PADDING", "ANSI_WARNINGS", "ANSI_NULL_DFLT_ON", "CONCAT_NULL_YIELDS_NULL", "ARITHABORT",
            "IMPLICIT_TRANSACTIONS", "CURSOR_CLOSE_ON_COMMIT");

    private final List<Step> steps = new ArrayList<>();

    private Batch(List<Token> tokens, Charset codePage, List<String> parameters) {
        super(tokens, codePage);
        this.parameters = parameters;
    }

    /** @throws SqlError where SQL Server would not compile the batch; nothing of it runs then. */
    static List<Step> read(String text, Charset codePage) {
        return new Batch(Lexer.cut(text), codePage, List.of()).statements(false);
    }

    static List<Step> body(Procedure procedure, Charset codePage) {
        return new Batch(procedure.body(), codePage, procedure.parameters()).statements(true);
    }

    private List<Step> statements(boolean body) {
        while (skip(";")) {}
        if (!body && peek().isName() && !next("WITH")) call(); // the first word may name a procedure without EXEC
        while (!atEnd()) {
            if (!skip(";")) statement();
        }
        return steps;
    }

    private void statement() {
        out.setLength(0);
        switch (peek().kind() == Token.Kind.WORD || next("(") ? peek().upper() : "") {
            case "SELECT", "(" -> select();
            case "INSERT" -> insert();
            case "UPDATE" -> update();
            case "DELETE" -> delete();
            case "EXEC", "EXECUTE" -> {
                take();
                call();
            }
            case "CREATE" -> create();
            case "ALTER" -> alter();
            case "DROP" -> drop();
            case "TRUNCATE" -> truncate();
            case "SET" -> set();
            case "BEGIN", "COMMIT", "ROLLBACK" -> transaction();
            case "USE" -> use();
            default -> throw wrong();
        }
    }

    private void add(Step step) {
        steps.add(step);
    }

    private String words() {
        return out.toString().strip();
    }

    // ---- Rows

    private void select() {
        statementQuery();
        String words = words();
        add(runner -> runner.query(words));
    }

    private void insert() {
        expect("INSERT");
        skip("INTO");
        write("INTO");
        String table = objectName();
        write(quote(table));
        List<String> columns = new ArrayList<>();
        if (next("(") && !peek(1).is("SELECT")) {
            expect("(");
            list(() -> {
                columns.add(name());
                write(quote(columns.get(columns.size() - 1)));
            });
            expect(")");
        }
        if (next("DEFAULT")) defaults();
        else if (next("VALUES")) values(columns.size());
        else if (next("SELECT") || next("(")) statementQuery();
        else throw wrong();
        String words = words();
        add(runner -> runner.insert(table, columns, words));
    }

    private void defaults() {
        expect("DEFAULT");
        expect("VALUES");
    }

    private void values(int columns) {
        expect("VALUES");
        int rows = list(() -> {
            expect("(");
            int count = list(() -> {
                if (!accept("DEFAULT")) value();
            });
            expect(")");
            if (columns > 0 && count != columns) throw differentCount(count < columns);
        });
        if (rows > 1000)
            throw new SqlError(10738, 15, "The number of row value expressions in the INSERT statement exceeds the "
                    + "maximum allowed number of 1000 row values.");
    }

    private static SqlError differentCount(boolean fewerValues) {
        String words = fewerValues ? "more columns in the INSERT statement than values specified in the VALUES clause"
                : "fewer columns in the INSERT statement than values specified in the VALUES clause";
        return new SqlError(fewerValues ? 109 : 110, 15, "There are " + words + ". The number of values in the VALUES "
                + "clause must match the number of columns specified in the INSERT statement.");
    }

    private void update() {
        expect("UPDATE");
        write(quote(objectName()));
        expect("SET");
        list(() -> {
            column();
            expect("=");
            if (!accept("DEFAULT")) value();
        });
        if (next("FROM")) throw new SqlError(50000, 16, "Stand-in: UPDATE FROM is not modelled.");
        change();
    }

    private void delete() {
        expect("DELETE");
        skip("FROM");
        write("FROM");
        write(quote(objectName()));
        change();
    }

    private void change() {
        if (accept("WHERE")) condition();
        String words = words();
        add(runner -> runner.change(words));
    }

    private void truncate() {
        expect("TRUNCATE");
        expect("TABLE");
        write(quote(objectName()));
        define();
    }

    // ---- Procedures

    private void call() {
        String name = objectName();
        List<String> arguments = new ArrayList<>();
        if (argumentAhead()) do arguments.add(argument()); while (skip(","));
        if (!atEnd() && !next(";") && peek().kind() != Token.Kind.WORD) throw wrong();
        List<String> values = List.copyOf(arguments);
        add(runner -> runner.call(name, values));
    }

    /** Behind a procedure's name stands a value, or the next statement begins. */
    private boolean argumentAhead() {
        return switch (peek().kind()) {
            case NUMBER, TEXT, NATIONAL_TEXT, VARIABLE, NAME, BYTES -> true;
            case WORD -> peek().isName() || next("NULL") || next("DEFAULT");
            default -> next("-");
        };
    }

    /** A constant, never an expression; a bare word is a text. */
    private String argument() {
        if (peek().kind() == Token.Kind.VARIABLE && peek(1).is("=")) {
            take();
            take();
        }
        String sign = skip("-") ? "-" : "";
        Token token = take();
        return switch (token.kind()) {
            case NUMBER -> sign + token.text();
            case TEXT -> new String(token.value().getBytes(codePage), codePage);
            case NATIONAL_TEXT -> token.value();
            case WORD -> token.is("NULL") ? null : name(token);
            case NAME -> token.value();
            default -> throw SqlError.syntax(token);
        };
    }

    private static String name(Token token) {
        if (!token.isName()) throw SqlError.syntax(token);
        return token.value();
    }

    private void createProcedure() {
        if (steps.size() > 0)
            throw new SqlError(111, 15, "'CREATE/ALTER PROCEDURE' must be the first statement in a query batch.");
        take();
        String name = objectName();
        List<String> names = new ArrayList<>();
        boolean parentheses = skip("(");
        if (peek().kind() == Token.Kind.VARIABLE) do names.add(parameter()); while (skip(","));
        if (parentheses) mustSkip(")");
        mustSkip("AS");
        List<Token> body = new ArrayList<>();
        while (!atEnd()) body.add(take());
        if (body.isEmpty()) throw wrong();
        body.add(peek());
        Procedure procedure = new Procedure(name, names, body);
        Batch.body(procedure, codePage); // a wrong one is not stored
        add(runner -> runner.createProcedure(procedure));
    }

    private String parameter() {
        if (peek().kind() != Token.Kind.VARIABLE) throw wrong();
        String name = take().upper();
        written(this::type);
        return name;
    }

    // ---- Tables, views, indexes

    private void create() {
        take();
        boolean orAlter = skip("OR");
        if (orAlter) mustSkip("ALTER");
        if (next("PROCEDURE") || next("PROC")) createProcedure();
        else if (next("VIEW")) createView(orAlter);
        else if (orAlter) throw wrong();
        else if (next("TABLE")) createTable();
        else if (next("UNIQUE") || next("CLUSTERED") || next("NONCLUSTERED") || next("INDEX")) createIndex();
        else if (skip("DATABASE")) createDatabase();
        else throw wrong();
    }

    private void createDatabase() {
        String name = name();
        String collation = skip("COLLATE") ? name() : "Modern_Spanish_100_CI_AS_SC_UTF8";
        add(runner -> runner.createDatabase(name, collation));
    }

    private void createView(boolean orAlter) {
        if (steps.size() > 0) throw new SqlError(111, 15, "'CREATE VIEW' must be the first statement in a query batch.");
        write(orAlter ? "CREATE OR REPLACE" : "CREATE");
        expect("VIEW");
        write(quote(objectName()));
        if (accept("(")) {
            list(() -> write(quote(name())));
            expect(")");
        }
        expect("AS");
        query();
        define();
        if (!atEnd()) throw wrong();
    }

    private void createTable() {
        take();
        String table = objectName();
        write(table.startsWith("#") ? "CREATE LOCAL TEMPORARY TABLE" : "CREATE TABLE");
        write(quote(table));
        expect("(");
        list(() -> {
            if (next("CONSTRAINT") || next("PRIMARY") || next("UNIQUE") || next("CHECK")) constraint(table);
            else columnDefinition();
        });
        expect(")");
        define();
    }

    private void columnDefinition() {
        write(quote(name()));
        type();
        while (!next(",") && !next(")")) {
            if (skip("IDENTITY")) identity();
            else if (skip("COLLATE")) name();
            else if (accept("NOT")) expect("NULL");
            else if (accept("NULL")) continue;
            else if (accept("DEFAULT")) value();
            else if (accept("PRIMARY")) expect("KEY");
            else if (!accept("UNIQUE")) throw wrong();
        }
    }

    private void identity() {
        if (skip("(")) {
            take();
            mustSkip(",");
            take();
            mustSkip(")");
        }
        write("GENERATED BY DEFAULT AS IDENTITY");
    }

    private void constraint(String table) {
        if (accept("CONSTRAINT")) write(quote(table + "." + name()));
        if (accept("CHECK")) {
            expect("(");
            condition();
            expect(")");
            return;
        }
        if (accept("PRIMARY")) expect("KEY");
        else expect("UNIQUE");
        if (!skip("CLUSTERED")) skip("NONCLUSTERED");
        keyColumns();
    }

    private void keyColumns() {
        expect("(");
        list(() -> {
            write(quote(name()));
            if (!accept("ASC")) accept("DESC");
        });
        expect(")");
    }

    private void createIndex() {
        write("CREATE");
        accept("UNIQUE");
        if (!skip("CLUSTERED")) skip("NONCLUSTERED");
        expect("INDEX");
        String index = name();
        mustSkip("ON");
        String table = objectName();
        write(quote(table + "." + index) + " ON " + quote(table)); // its name is the table's own
        keyColumns();
        if (skip("INCLUDE")) written(this::keyColumns);
        define();
    }

    private void alter() {
        take();
        write("ALTER");
        expect("TABLE");
        String table = objectName();
        write(quote(table));
        if (accept("ADD")) {
            if (next("CONSTRAINT")) constraint(table);
            else columnDefinitionBehindAdd();
        } else {
            expect("DROP");
            expect("CONSTRAINT");
            if (skip("IF")) {
                mustSkip("EXISTS");
                write("IF EXISTS");
            }
            write(quote(table + "." + name()));
        }
        define();
    }

    private void columnDefinitionBehindAdd() {
        write(quote(name()));
        type();
        if (accept("NOT")) expect("NULL");
        else accept("NULL");
    }

    private void drop() {
        take();
        String kind = take().upper();
        boolean ifExists = skip("IF");
        if (ifExists) mustSkip("EXISTS");
        switch (kind) {
            case "PROCEDURE", "PROC" -> {
                String name = objectName();
                add(runner -> runner.dropProcedure(name, ifExists));
            }
            case "TABLE", "VIEW" -> {
                write("DROP " + kind + (ifExists ? " IF EXISTS" : ""));
                write(quote(objectName()));
                define();
            }
            default -> throw wrong();
        }
    }

    private void define() {
        String words = words();
        add(runner -> runner.define(words));
    }

    // ---- The session

    private void set() {
        take();
        Token option = take();
        if (SWITCHES.contains(option.upper())) {
            boolean on = onOrOff();
            if (option.is("NOCOUNT")) add(runner -> runner.noCount(on));
            else add(runner -> runner.nothing());
        } else if (option.is("IDENTITY_INSERT")) {
            String table = objectName();
            boolean on = onOrOff();
            add(runner -> runner.identityInsert(table, on));
        } else if (option.is("DATEFORMAT")) {
            String format = name().toLowerCase(Locale.ROOT);
            if (!Set.of("ymd", "dmy", "mdy").contains(format))
                throw new SqlError(2741, 16, "SET DATEFORMAT date order '" + format + "' is invalid.");
            add(runner -> runner.dateFormat(format));
        } else if (option.is("TEXTSIZE") || option.is("LOCK_TIMEOUT")) {
            take();
            add(runner -> runner.nothing());
        } else {
            throw option.isName() ? new SqlError(195, 15, "'" + option.text() + "' is not a recognized SET option.")
                    : SqlError.syntax(option);
        }
    }

    private boolean onOrOff() {
        boolean on = skip("ON");
        if (!on) mustSkip("OFF");
        return on;
    }

    private void transaction() {
        String verb = take().upper();
        if (verb.equals("BEGIN") && !next("TRAN") && !next("TRANSACTION")) throw wrong();
        if (!skip("TRAN")) skip("TRANSACTION");
        if (!verb.equals("BEGIN")) skip("WORK");
        add(runner -> runner.transaction(verb));
    }

    private void use() {
        take();
        String name = name();
        add(runner -> runner.use(name));
    }
}
