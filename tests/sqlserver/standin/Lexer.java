// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

package standin;

import java.util.ArrayList;
import java.util.List;

/** Cuts a batch into its words, as SQL Server does: [names] and "names", N'texts', nested comments. */
final class Lexer {
    private static final String[] LONG_SYMBOLS = {"<>", "!=", "<=", ">=", "!<", "!>", "+=", "-=", "*=", "/="};
    private static final String SYMBOLS = "+-*/%=<>(),.;&|^~:";

    private static final int UNCLOSED = 105;

    private final String text;
    private final List<Token> tokens = new ArrayList<>();
    private int at;

    private Lexer(String text) {
        this.text = text;
    }

    /** @param unclosed what is wrong where the last quotation mark has no end; null elsewhere. */
    record Cut(List<Token> tokens, SqlError unclosed) {}

    static Cut cut(String text) {
        Lexer lexer = new Lexer(text);
        SqlError unclosed = null;
        try {
            while (lexer.skipBlanks()) lexer.next();
        } catch (SqlError refusal) {
            if (refusal.number != UNCLOSED) throw refusal;
            unclosed = refusal;
        }
        String last = lexer.tokens.isEmpty() ? "" : lexer.tokens.get(lexer.tokens.size() - 1).text();
        lexer.tokens.add(new Token(Token.Kind.END, last, ""));
        return new Cut(lexer.tokens, unclosed);
    }

    private boolean starts(String prefix) {
        return text.startsWith(prefix, at);
    }

    private boolean skipBlanks() {
        while (at < text.length()) {
            if (Character.isWhitespace(text.charAt(at))) at++;
            else if (starts("--")) at = text.indexOf('\n', at) < 0 ? text.length() : text.indexOf('\n', at);
            else if (starts("/*")) skipComment();
            else return true;
        }
        return false;
    }

    private void skipComment() {
        int depth = 0;
        do {
            if (at >= text.length()) throw new SqlError(113, 15, "Missing end comment mark '*/'.");
            int step = starts("/*") || starts("*/") ? 2 : 1;
            depth += starts("/*") ? 1 : starts("*/") ? -1 : 0;
            at += step;
        } while (depth > 0);
    }

    private void next() {
        char c = text.charAt(at);
        if (c == '\'') quoted(at, '\'', Token.Kind.TEXT);
        else if ((c == 'N' || c == 'n') && starts("'", 1)) {
            at++;
            quoted(at - 1, '\'', Token.Kind.NATIONAL_TEXT);
        } else if (c == '"') quoted(at, '"', Token.Kind.NAME);
        else if (c == '[') quoted(at, ']', Token.Kind.NAME);
        else if (starts("0x") || starts("0X")) run(Token.Kind.BYTES, 2, "0123456789abcdefABCDEF");
        else if (Character.isDigit(c) || (c == '.' && at + 1 < text.length() && Character.isDigit(text.charAt(at + 1))))
            number();
        else if (c == '@') word(Token.Kind.VARIABLE);
        else if (Character.isLetter(c) || c == '_' || c == '#') word(Token.Kind.WORD);
        else symbol(c);
    }

    private boolean starts(String prefix, int ahead) {
        return text.startsWith(prefix, at + ahead);
    }

    private void add(Token.Kind kind, int from, String value) {
        tokens.add(new Token(kind, text.substring(from, at), value));
    }

    /** A text or a name in quotes; the closing one doubled stands for itself. */
    private void quoted(int from, char close, Token.Kind kind) {
        StringBuilder value = new StringBuilder();
        for (at++; ; at++) {
            if (at >= text.length())
                throw new SqlError(UNCLOSED, 15, "Unclosed quotation mark after the character string '" + value + "'.");
            char c = text.charAt(at);
            if (c == close && !(at + 1 < text.length() && text.charAt(at + 1) == close)) break;
            if (c == close) at++;
            value.append(c);
        }
        at++;
        // A backslash at the end of a line joins it to the next one.
        add(kind, from, close == '\'' ? value.toString().replace("\\\r\n", "").replace("\\\n", "") : value.toString());
    }

    private void run(Token.Kind kind, int skip, String characters) {
        int from = at;
        at += skip;
        while (at < text.length() && characters.indexOf(text.charAt(at)) >= 0) at++;
        add(kind, from, text.substring(from, at));
    }

    private void number() {
        int from = at;
        while (at < text.length() && Character.isDigit(text.charAt(at))) at++;
        if (starts(".")) at++;
        while (at < text.length() && Character.isDigit(text.charAt(at))) at++;
        if (text.substring(at).matches("(?s)[eE][+-]?\\d.*")) {
            at += 2;
            while (at < text.length() && Character.isDigit(text.charAt(at))) at++;
        }
        add(Token.Kind.NUMBER, from, text.substring(from, at));
    }

    private void word(Token.Kind kind) {
        int from = at++;
        while (at < text.length() && isOfWord(text.charAt(at))) at++;
        add(kind, from, text.substring(from, at));
    }

    private static boolean isOfWord(char c) {
        return Character.isLetterOrDigit(c) || "_@#$".indexOf(c) >= 0;
    }

    private void symbol(char c) {
        int from = at;
        for (String symbol : LONG_SYMBOLS)
            if (starts(symbol)) {
                at += symbol.length();
                add(Token.Kind.SYMBOL, from, symbol);
                return;
            }
        if (SYMBOLS.indexOf(c) < 0) throw new SqlError(102, 15, "Incorrect syntax near '" + c + "'.");
        at++;
        add(Token.Kind.SYMBOL, from, String.valueOf(c));
    }
}
