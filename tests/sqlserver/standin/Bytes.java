// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

package standin;

import java.io.ByteArrayOutputStream;
import java.nio.charset.StandardCharsets;

/** Bytes in the order of the protocol: the lowest first, texts in UTF-16. */
class Bytes {
    private final ByteArrayOutputStream bytes = new ByteArrayOutputStream();

    Bytes u8(int value) {
        bytes.write(value);
        return this;
    }

    Bytes number(long value, int size) {
        for (int i = 0; i < size; i++) u8((int) (value >> 8 * i) & 0xFF);
        return this;
    }

    Bytes u16(int value) {
        return number(value, 2);
    }

    Bytes u32(long value) {
        return number(value, 4);
    }

    Bytes u64(long value) {
        return number(value, 8);
    }

    Bytes raw(byte... value) {
        bytes.writeBytes(value);
        return this;
    }

    /** A text behind its length in characters, told in one byte or in two. */
    Bytes text(String value, int lengthSize) {
        return number(value.length(), lengthSize).raw(value.getBytes(StandardCharsets.UTF_16LE));
    }

    byte[] take() {
        byte[] taken = bytes.toByteArray();
        bytes.reset();
        return taken;
    }
}
