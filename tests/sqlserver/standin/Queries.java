// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

package standin;

import java.nio.charset.Charset;
import java.util.List;
import java.util.Set;

/** SELECT and what it is made of. */
abstract class Queries extends Expressions {
    private static final Set<String> JOINS = Set.of("JOIN", "INNER", "LEFT", "RIGHT", "FULL", "CROSS");

    Queries(List<Token> tokens, Charset codePage) {
        super(tokens, codePage);
    }

    @Override
    protected void query() {
        union();
        if (next("ORDER")) sorted(true);
    }

    /** A whole statement: its order stands free. */
    protected void statementQuery() {
        union();
        if (next("ORDER")) sorted(false);
    }

    private void union() {
        core();
        while (next("UNION") || next("EXCEPT") || next("INTERSECT")) {
            if (accept("UNION")) accept("ALL");
            else write(take().upper());
            core();
        }
    }

    private boolean limited; // the last SELECT has a TOP
    private int unnamed; // the first column without a name of the last SELECT, from 1 on; 0 for none

    private void core() {
        if (accept("(")) {
            union();
            expect(")");
            return;
        }
        expect("SELECT");
        if (!accept("DISTINCT")) skip("ALL");
        limited = false;
        if (skip("TOP")) top();
        int firstUnnamed = items();
        if (skip("INTO")) throw new SqlError(50000, 16, "Stand-in: SELECT INTO is not modelled.");
        if (accept("FROM")) list(this::source);
        if (accept("WHERE")) condition();
        if (accept("GROUP")) {
            expect("BY");
            list(this::value);
        }
        if (accept("HAVING")) condition();
        unnamed = firstUnnamed; // sources and conditions have SELECTs of their own
    }

    private int items() {
        int[] seen = {0, 0};
        list(() -> {
            seen[0]++;
            if (!item() && seen[1] == 0) seen[1] = seen[0];
        });
        return seen[1];
    }

    private void top() {
        boolean parentheses = skip("(");
        if (peek().kind() != Token.Kind.NUMBER) throw wrong();
        write("TOP(" + take().text() + ")");
        if (parentheses) mustSkip(")");
        limited = true;
    }

    /** @return whether the column has a name. */
    private boolean item() {
        if (accept("*")) return true;
        if (peek().isName() && peek(1).is(".") && peek(2).is("*")) {
            write(quote(name()) + ".*");
            take();
            take();
        } else if (peek().isName() && peek(1).is("=")) { // alias = value
            String alias = name();
            take();
            value();
            write("AS " + quote(alias));
        } else {
            boolean column = peek().isName();
            value();
            Token last = peek(-1);
            return alias() || (column && last.isName());
        }
        return true;
    }

    private boolean alias() {
        boolean told = skip("AS");
        Token token = peek();
        boolean text = token.kind() == Token.Kind.TEXT;
        if (token.isName() || text) write("AS " + quote(take().value()));
        else if (told) throw wrong();
        return token.isName() || text;
    }

    // ---- Sources

    private void source() {
        primarySource();
        while (JOINS.contains(peek().upper()) && peek().kind() == Token.Kind.WORD) join();
    }

    private void join() {
        boolean crossed = accept("CROSS");
        if (!crossed && !accept("INNER") && (accept("LEFT") || accept("RIGHT") || accept("FULL"))) accept("OUTER");
        expect("JOIN");
        primarySource();
        // Joins may nest without parentheses: "a JOIN b JOIN c ON .. ON ..".
        while (!crossed && !next("ON") && JOINS.contains(peek().upper())) join();
        if (crossed) return;
        expect("ON");
        condition();
    }

    private void primarySource() {
        if (next("(")) {
            int ahead = 1;
            while (peek(ahead).is("(")) ahead++;
            if (peek(ahead).is("SELECT")) derived();
            else nested();
        } else if (next("GENERATE_SERIES") && peek(1).is("(")) {
            series();
        } else {
            table();
        }
    }

    private void derived() {
        expect("(");
        query();
        expect(")");
        int without = unnamed;
        skip("AS");
        String alias = name();
        write("AS " + quote(alias));
        if (accept("(")) {
            list(() -> write(quote(name())));
            expect(")");
        } else if (without > 0) {
            throw new SqlError(8155, 16, "No column name was specified for column " + without + " of '" + alias + "'.");
        }
    }

    private void nested() {
        expect("(");
        source();
        expect(")");
    }

    private void series() {
        take();
        mustSkip("(");
        String least = written(this::value);
        mustSkip(",");
        String most = written(this::value);
        mustSkip(")");
        boolean told = skip("AS");
        String alias = told || peek().isName() ? name() : "series";
        write("(SELECT X AS \"value\" FROM SYSTEM_RANGE(" + least + ", " + most + ")) AS " + quote(alias));
    }

    private void table() {
        Token token = peek();
        String table = objectName();
        // The engine has a table of one row that SQL Server does not know.
        if (table.equalsIgnoreCase("DUAL")) throw new SqlError(208, 16, "Invalid object name '" + token.text() + "'.");
        write(quote(table));
        boolean told = skip("AS");
        if (told || peek().isName()) write("AS " + quote(name()));
        if (next("WITH") && peek(1).is("(")) hints();
    }

    private void hints() {
        take();
        mustSkip("(");
        do {
            if (!Set.of("NOLOCK", "UPDLOCK", "HOLDLOCK", "ROWLOCK", "READPAST", "TABLOCK").contains(peek().upper()))
                throw new SqlError(321, 15, "\"" + peek().text() + "\" is not a recognized table hints option.");
            take();
        } while (skip(","));
        mustSkip(")");
    }

    // ---- Order

    private void sorted(boolean inner) {
        boolean top = limited;
        expect("ORDER");
        expect("BY");
        list(() -> {
            value();
            if (!accept("ASC")) accept("DESC");
        });
        boolean paged = accept("OFFSET");
        if (paged) page();
        if (inner && !paged && !top)
            throw new SqlError(1033, 15, "The ORDER BY clause is invalid in views, inline functions, derived tables, "
                    + "subqueries, and common table expressions, unless TOP, OFFSET or FOR XML is also specified.");
    }

    private void page() {
        number();
        if (!accept("ROWS")) expect("ROW");
        if (!accept("FETCH")) return;
        if (!accept("NEXT")) expect("FIRST");
        number();
        if (!accept("ROWS")) expect("ROW");
        expect("ONLY");
    }

    private void number() {
        if (peek().kind() != Token.Kind.NUMBER) throw wrong();
        write(take().text());
    }
}
