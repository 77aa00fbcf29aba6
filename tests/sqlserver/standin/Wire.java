// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

package standin;

import java.io.ByteArrayOutputStream;
import java.io.DataInputStream;
import java.io.IOException;
import java.io.InputStream;
import java.io.OutputStream;
import java.util.Arrays;

/** Messages in packets, each with a head of eight bytes: type, status, length (big end first), four that are idle. */
final class Wire {
    static final int BATCH = 1;
    static final int REPLY = 4;
    static final int ATTENTION = 6;
    static final int LOGIN = 16;
    static final int PRELOGIN = 18;

    private static final int HEAD = 8;
    private static final int LAST = 1;

    record Message(int type, byte[] body) {}

    private final DataInputStream in;
    private final OutputStream out;
    private int packetSize = 4096;

    Wire(InputStream in, OutputStream out) {
        this.in = new DataInputStream(in);
        this.out = out;
    }

    void packetSize(int size) {
        packetSize = size;
    }

    /** @return null when the client is gone. */
    Message read() throws IOException {
        ByteArrayOutputStream body = new ByteArrayOutputStream();
        while (true) {
            int type = in.read();
            if (type < 0) return null;
            int status = in.readUnsignedByte();
            int length = in.readUnsignedShort();
            in.readInt();
            body.write(in.readNBytes(length - HEAD));
            if ((status & LAST) != 0) return new Message(type, body.toByteArray());
        }
    }

    void write(byte[] body) throws IOException {
        int room = packetSize - HEAD;
        int number = 1;
        for (int from = 0; from == 0 || from < body.length; from += room) {
            byte[] piece = Arrays.copyOfRange(body, from, Math.min(body.length, from + room));
            int length = piece.length + HEAD;
            out.write(new byte[] {REPLY, (byte) (from + room >= body.length ? LAST : 0), (byte) (length >> 8),
                    (byte) length, 0, 0, (byte) number++, 0});
            out.write(piece);
        }
        out.flush();
    }
}
