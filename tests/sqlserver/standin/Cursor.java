// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

package standin;

import java.nio.charset.Charset;
import java.util.ArrayList;
import java.util.List;

/** Reads tokens one by one and writes the engine's words for them. */
abstract class Cursor {
    protected final List<Token> tokens;
    protected final Charset codePage;
    protected final StringBuilder out = new StringBuilder();
    protected int at;

    /** @param codePage of the database, to which a text without an N ahead of it is cut. */
    Cursor(List<Token> tokens, Charset codePage) {
        this.tokens = tokens;
        this.codePage = codePage;
    }

    protected Token peek() {
        return tokens.get(at);
    }

    protected Token peek(int ahead) {
        return tokens.get(Math.min(at + ahead, tokens.size() - 1));
    }

    protected Token take() {
        return peek().kind() == Token.Kind.END ? peek() : tokens.get(at++);
    }

    protected boolean next(String word) {
        return peek().is(word);
    }

    protected boolean atEnd() {
        return peek().kind() == Token.Kind.END;
    }

    protected SqlError wrong() {
        return SqlError.syntax(peek());
    }

    /** Takes a word and writes nothing for it. */
    protected boolean skip(String word) {
        if (!next(word)) return false;
        take();
        return true;
    }

    protected void mustSkip(String word) {
        if (!skip(word)) throw wrong();
    }

    /** Takes a word and writes it. */
    protected boolean accept(String word) {
        if (!skip(word)) return false;
        write(word);
        return true;
    }

    protected void expect(String word) {
        if (!accept(word)) throw wrong();
    }

    protected void write(String words) {
        out.append(words).append(' ');
    }

    /** What a rule writes, taken back from the rest. */
    protected String written(Runnable rule) {
        int from = out.length();
        rule.run();
        String words = out.substring(from).strip();
        out.setLength(from);
        return words;
    }

    /** One rule or more, with commas between. */
    protected int list(Runnable rule) {
        int count = 0;
        do {
            rule.run();
            count++;
        } while (accept(","));
        return count;
    }

    protected String name() {
        if (!peek().isName()) throw wrong();
        return take().value();
    }

    protected static String quote(String name) {
        return '"' + name.replace("\"", "\"\"") + '"';
    }

    /** The name of a table, view or procedure without its schema; "a.b.c" keeps its last part. */
    protected String objectName() {
        List<String> parts = new ArrayList<>();
        do parts.add(name()); while (skip("."));
        return parts.get(parts.size() - 1);
    }

    protected void writeText(Token text) {
        String value = text.value();
        if (text.kind() == Token.Kind.TEXT) value = new String(value.getBytes(codePage), codePage);
        String literal = "'" + value.replace("'", "''") + "'";
        write(text.kind() == Token.Kind.TEXT ? literal : "CAST(" + literal + " AS VARCHAR_IGNORECASE)");
    }
}
