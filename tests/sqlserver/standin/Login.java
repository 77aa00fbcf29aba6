// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

package standin;

import java.nio.ByteBuffer;
import java.nio.ByteOrder;
import java.nio.charset.StandardCharsets;

/** What a client says of itself. */
record Login(int version, int packetSize, String user, String password, String application, String database) {
    private static final int USER = 40;
    private static final int PASSWORD = 44;
    private static final int APPLICATION = 48;
    private static final int DATABASE = 68;

    static Login read(byte[] body) {
        ByteBuffer bytes = ByteBuffer.wrap(body).order(ByteOrder.LITTLE_ENDIAN);
        return new Login(bytes.getInt(4), bytes.getInt(8), text(bytes, USER, false), text(bytes, PASSWORD, true),
                text(bytes, APPLICATION, false), text(bytes, DATABASE, false));
    }

    /** A field is told by its place and its length in characters; a password has its bits mixed. */
    private static String text(ByteBuffer bytes, int field, boolean mixed) {
        byte[] text = new byte[2 * Short.toUnsignedInt(bytes.getShort(field + 2))];
        bytes.get(Short.toUnsignedInt(bytes.getShort(field)), text);
        for (int i = 0; mixed && i < text.length; i++) {
            int plain = (text[i] & 0xFF) ^ 0xA5;
            text[i] = (byte) (plain << 4 | plain >> 4);
        }
        return new String(text, StandardCharsets.UTF_16LE);
    }
}
