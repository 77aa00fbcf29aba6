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
final class Batch extends Definitions {
    private static final Set<String> SWITCHES = Set.of("NOCOUNT", "XACT_ABORT", "QUOTED_IDENTIFIER", "ANSI_NULLS",
            "ANSI_PADDING", "ANSI_WARNINGS", "ANSI_NULL_DFLT_ON", "CONCAT_NULL_YIELDS_NULL", "ARITHABORT",
            "IMPLICIT_TRANSACTIONS", "CURSOR_CLOSE_ON_COMMIT");

    private Batch(List<Token> tokens, Charset codePage, List<String> parameters) {
        super(tokens, codePage);
        this.parameters = parameters;
    }

    /** @throws SqlError where SQL Server would not compile the batch; nothing of it runs then. */
    static List<Step> read(String text, Charset codePage) {
        Lexer.Cut cut = Lexer.cut(text);
        Batch batch = new Batch(cut.tokens(), codePage, List.of());
        if (cut.unclosed() == null) return batch.statements(false);
        throw batch.unclosed(cut.unclosed());
    }

    static List<Step> body(Procedure procedure, Charset codePage) {
        return new Batch(procedure.body(), codePage, procedure.parameters()).statements(true);
    }

    /** A quotation mark without an end is told in its turn: behind what is wrong ahead of it. */
    private SqlError unclosed(SqlError refusal) {
        try {
            statements(false);
        } catch (SqlError ahead) {
            if (!atEnd()) return ahead.followedBy(refusal);
        }
        return refusal.followedBy(SqlError.syntax(peek()));
    }

    private List<Step> statements(boolean body) {
        while (skip(";")) {}
        if (!body && peek().isName() && !next("WITH")) call(); // the first word may name a procedure without EXEC
        while (!atEnd()) {
            if (!skip(";")) statement();
        }
        return steps();
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

    // ---- Calls

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
