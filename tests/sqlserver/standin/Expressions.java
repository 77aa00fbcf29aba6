// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

package standin;

import java.nio.charset.Charset;
import java.util.ArrayList;
import java.util.List;
import java.util.Locale;
import java.util.Map;
import java.util.Set;

/** Values, conditions and types. */
abstract class Expressions extends Cursor {
    private static final Set<String> COMPARISONS = Set.of("=", "<>", "!=", "<", "<=", ">", ">=", "!<", "!>");
    /** Types, and what the engine calls them; the second map has those with a length, of which MAX is none there. */
    private static final Map<String, String> PLAIN_TYPES = Map.ofEntries(Map.entry("INT", "INTEGER"),
            Map.entry("INTEGER", "INTEGER"), Map.entry("BIGINT", "BIGINT"), Map.entry("SMALLINT", "SMALLINT"),
            Map.entry("TINYINT", "TINYINT"), Map.entry("BIT", "BOOLEAN"), Map.entry("REAL", "REAL"),
            Map.entry("MONEY", "NUMERIC(19,4)"), Map.entry("DATETIME", "TIMESTAMP(3)"),
            Map.entry("SMALLDATETIME", "TIMESTAMP(1)"), Map.entry("DATE", "DATE"), Map.entry("TEXT", "VARCHAR"),
            Map.entry("NTEXT", "VARCHAR_IGNORECASE"), Map.entry("UNIQUEIDENTIFIER", "UUID"));
    private static final Map<String, String> TEXT_TYPES = Map.of("CHAR", "CHAR", "VARCHAR", "VARCHAR", "NCHAR", "CHAR",
            "NVARCHAR", "VARCHAR_IGNORECASE", "BINARY", "VARBINARY", "VARBINARY", "VARBINARY");

    /** The parameters of the procedure whose text this is, in their order. */
    protected List<String> parameters = List.of();

    Expressions(List<Token> tokens, Charset codePage) {
        super(tokens, codePage);
    }

    protected abstract void query();

    // ---- Conditions, which SQL Server keeps apart from values

    protected void condition() {
        do conjunction(); while (accept("OR"));
    }

    private void conjunction() {
        do negation(); while (accept("AND"));
    }

    private void negation() {
        while (accept("NOT")) {}
        if (accept("EXISTS")) {
            expect("(");
            query();
            expect(")");
        } else if (!next("(") || !conditionInParentheses()) {
            comparison();
        }
    }

    /** "(" opens a condition or a value; which of them, only the end tells. */
    private boolean conditionInParentheses() {
        int from = at;
        int length = out.length();
        try {
            expect("(");
            condition();
            expect(")");
            return !COMPARISONS.contains(peek().text());
        } catch (SqlError noCondition) {
            if (noCondition.number != 102 && noCondition.number != 156 && noCondition.number != 4145) throw noCondition;
        }
        at = from;
        out.setLength(length);
        return false;
    }

    private void comparison() {
        value();
        if (COMPARISONS.contains(peek().text())) {
            String operator = take().text();
            write(operator.equals("!<") ? ">=" : operator.equals("!>") ? "<=" : operator);
            if (next("ALL") || next("ANY") || next("SOME")) throw wrong();
            value();
        } else if (accept("IS")) {
            accept("NOT");
            expect("NULL");
        } else {
            boolean not = accept("NOT");
            if (accept("IN")) among();
            else if (accept("LIKE")) pattern();
            else if (accept("BETWEEN")) between();
            else if (not) throw wrong();
            else throw new SqlError(4145, 15, "An expression of non-boolean type specified in a context where a "
                        + "condition is expected, near '" + peek().text() + "'.");
        }
    }

    private void among() {
        expect("(");
        if (next("SELECT")) query();
        else list(this::value);
        expect(")");
    }

    private void pattern() {
        value();
        if (accept("ESCAPE")) value();
        else write("ESCAPE ''");
    }

    private void between() {
        value();
        expect("AND");
        value();
    }

    // ---- Values

    protected void value() {
        do product(); while (accept("+") || accept("-"));
    }

    private void product() {
        do signed(); while (accept("*") || accept("/") || accept("%"));
    }

    private void signed() {
        while (accept("-") || accept("+")) {}
        primary();
        if (skip("COLLATE")) name();
    }

    private void primary() {
        Token token = peek();
        switch (token.kind()) {
            case NUMBER -> write(take().text());
            case TEXT, NATIONAL_TEXT -> writeText(take());
            case BYTES -> write("X'" + take().text().substring(2) + "'");
            case VARIABLE -> variable(take());
            case SYMBOL -> parenthesis();
            case WORD -> word();
            case NAME -> column();
            default -> throw wrong();
        }
    }

    private void parenthesis() {
        expect("(");
        if (next("SELECT")) query();
        else value();
        expect(")");
    }

    private void word() {
        if (accept("NULL")) return;
        if (skip("CURRENT_TIMESTAMP")) write("CAST(sysnow() AS TIMESTAMP(3))");
        else if (next("CASE")) choice();
        else if (next("CAST") && peek(1).is("(")) cast();
        else if (next("CONVERT")) convert();
        else if (next("COALESCE") || next("NULLIF")) standardFunction();
        else if (peek(1).is("(")) call();
        else column();
    }

    protected void column() {
        List<String> parts = new ArrayList<>();
        do parts.add(name()); while (skip("."));
        if (parts.size() > 2) parts = parts.subList(parts.size() - 2, parts.size());
        write(String.join(".", parts.stream().map(Cursor::quote).toList()));
    }

    private void variable(Token token) {
        String name = token.upper();
        int parameter = parameters.indexOf(name);
        if (parameter >= 0) write("?" + (parameter + 1));
        else if (Set.of("@@IDENTITY", "@@SPID", "@@ROWCOUNT", "@@TRANCOUNT", "@@VERSION").contains(name))
            write("\u0001" + name.substring(2) + "\u0001");
        else throw new SqlError(137, 15, "Must declare the scalar variable \"" + token.text() + "\".");
    }

    private void choice() {
        expect("CASE");
        boolean searched = next("WHEN");
        if (!searched) value();
        if (!next("WHEN")) throw wrong();
        while (accept("WHEN")) {
            if (searched) condition();
            else value();
            expect("THEN");
            value();
        }
        if (accept("ELSE")) value();
        expect("END");
    }

    private void cast() {
        take();
        mustSkip("(");
        String value = written(this::value);
        mustSkip("AS");
        String engineType = written(this::type);
        mustSkip(")");
        writeCast(value, engineType);
    }

    private void convert() {
        take();
        mustSkip("(");
        String engineType = written(this::type);
        mustSkip(",");
        String value = written(this::value);
        if (!skip(",")) writeCast(value, engineType);
        else if (peek().kind() == Token.Kind.NUMBER && take().text().equals("120"))
            write("FORMATDATETIME(" + value + ", 'yyyy-MM-dd HH:mm:ss')");
        else throw new SqlError(50000, 16, "Stand-in: this style of CONVERT is not modelled.");
        mustSkip(")");
    }

    /** A text becomes a date by the order of year, month and day that the session has. */
    private void writeCast(String value, String engineType) {
        boolean moment = value.startsWith("'") && engineType.startsWith("TIMESTAMP(3)");
        String from = moment ? "sysmoment(" + value + ", '\u0001DATEFORMAT\u0001')" : value;
        write("CAST(" + from + " AS " + engineType + ")");
    }

    private void standardFunction() {
        String name = take().upper();
        write(name + "(");
        mustSkip("(");
        int count = list(this::value);
        if (name.equals("NULLIF") ? count != 2 : count < 2) throw arguments(name, 2);
        expect(")");
    }

    private static SqlError arguments(String name, int count) {
        return new SqlError(174, 15,
                "The " + name.toLowerCase(Locale.ROOT) + " function requires " + count + " argument(s).");
    }

    private void call() {
        if (!peek().isName() && !next("LEFT") && !next("RIGHT")) throw wrong();
        Token name = take();
        mustSkip("(");
        if (name.is("DATEDIFF") || name.is("DATEADD")) dateFunction(name);
        else known(name);
        mustSkip(")");
    }

    private void known(Token name) {
        Words.Function function = Words.FUNCTIONS.get(name.upper());
        List<String> arguments = new ArrayList<>();
        boolean all = name.is("COUNT") && skip("*");
        if (all) arguments.add("*");
        else if (!next(")")) do arguments.add(written(() -> argument(name))); while (skip(","));
        if (!next(")")) throw wrong();
        if (function == null)
            throw new SqlError(195, 15, "'" + name.text() + "' is not a recognized built-in function name.");
        if (arguments.size() < function.least() || arguments.size() > function.most())
            throw arguments(name.text(), function.least());
        String form = function.form().replace("$*", String.join(", ", arguments));
        for (int i = arguments.size(); i > 0; i--) form = form.replace("$" + i, arguments.get(i - 1));
        write(form);
    }

    private void argument(Token function) {
        if (Set.of("COUNT", "SUM", "AVG", "MIN", "MAX").contains(function.upper())) accept("DISTINCT");
        value();
    }

    private void dateFunction(Token name) {
        Token part = take();
        String datePart = part.upper();
        List<String> arguments = new ArrayList<>();
        while (skip(",")) arguments.add(written(this::value));
        if (arguments.size() != 2) throw arguments(name.text(), 3);
        if (!Words.DATE_PARTS.contains(datePart))
            throw new SqlError(155, 15, "'" + part.text() + "' is not a recognized " + name.text() + " option.");
        String engine = switch (datePart) {
            case "DD", "D" -> "DAY";
            case "YY", "YYYY" -> "YEAR";
            case "MM", "M" -> "MONTH";
            case "HH" -> "HOUR";
            case "MI", "N" -> "MINUTE";
            case "SS", "S" -> "SECOND";
            default -> datePart;
        };
        write(name.upper() + "(" + engine + ", " + String.join(", ", arguments) + ")");
    }

    // ---- Types

    protected void type() {
        if (!peek().isName()) throw wrong();
        Token token = take();
        String name = token.kind() == Token.Kind.NAME ? token.value().toUpperCase(Locale.ROOT) : token.upper();
        if (PLAIN_TYPES.containsKey(name)) write(PLAIN_TYPES.get(name));
        else if (TEXT_TYPES.containsKey(name)) write(TEXT_TYPES.get(name) + textLength(name));
        else if (name.equals("DECIMAL") || name.equals("NUMERIC")) write("NUMERIC" + digits("(18,0)"));
        else if (name.equals("DATETIME2")) write("TIMESTAMP" + digits("(7)"));
        else if (name.equals("DATETIMEOFFSET")) write("TIMESTAMP" + digits("(7)") + " WITH TIME ZONE");
        else if (name.equals("TIME")) write("TIME" + digits("(7)"));
        else if (name.equals("FLOAT")) {
            digits("");
            write("DOUBLE PRECISION");
        }
        else throw new SqlError(243, 16, "Type " + token.text() + " is not a defined system type.");
    }

    private String textLength(String name) {
        if (!skip("(")) return name.endsWith("VARCHAR") ? "(30)" : "(1)";
        boolean unbounded = skip("MAX");
        if (!unbounded && peek().kind() != Token.Kind.NUMBER) throw wrong();
        String length = unbounded ? "" : "(" + take().text() + ")";
        mustSkip(")");
        return length;
    }

    private String digits(String otherwise) {
        if (!skip("(")) return otherwise;
        StringBuilder digits = new StringBuilder("(");
        do {
            if (peek().kind() != Token.Kind.NUMBER) throw wrong();
            digits.append(digits.length() > 1 ? "," : "").append(take().text());
        } while (skip(","));
        mustSkip(")");
        return digits.append(")").toString();
    }
}
