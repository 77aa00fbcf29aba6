// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

package standin;

import java.util.Locale;

/** A word of a batch. The text is as it was written, the value that of a literal or of a name without its quotes. */
record Token(Kind kind, String text, String value) {
    enum Kind { WORD, NAME, NUMBER, TEXT, NATIONAL_TEXT, BYTES, VARIABLE, SYMBOL, END }

    String upper() {
        return text.toUpperCase(Locale.ROOT);
    }

    boolean is(String word) {
        return (kind == Kind.WORD || kind == Kind.SYMBOL) && text.equalsIgnoreCase(word);
    }

    /** Whether it names something: in quotes anything does, bare only what is not reserved. */
    boolean isName() {
        return kind == Kind.NAME || (kind == Kind.WORD && !Words.RESERVED.contains(upper()));
    }
}
