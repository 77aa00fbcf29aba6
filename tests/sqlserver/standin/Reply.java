// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

package standin;

/** The answer to a message: a stream of tokens. */
final class Reply extends Bytes {
    /** Modern Spanish, no matter of case but of accents. */
    static final byte[] COLLATION = {0x0A, 0x0C, (byte) 0xD0, 0, 0};

    private static final int MORE = 1;
    private static final int ERROR = 2;
    private static final int COUNT = 16;
    private static final int ATTENTION = 32;

    private Bytes held; // the last "done", which goes out with what follows it

    Reply() {}

    private Reply flush(int more) {
        if (held != null) {
            byte[] done = held.take();
            done[1] |= more;
            raw(done);
        }
        held = null;
        return this;
    }

    private Reply token(int type) {
        flush(MORE).u8(type);
        return this;
    }

    void loginAccepted(int version, int packetSize, String database) {
        environment(1, database, "master");
        Bytes collation = new Bytes().u8(7).u8(COLLATION.length).raw(COLLATION).u8(0);
        sized(0xE3, collation);
        environment(4, String.valueOf(packetSize), "4096");
        Bytes accepted = new Bytes().u8(1);
        for (int shift = 24; shift >= 0; shift -= 8) accepted.u8(version >> shift & 0xFF);
        sized(0xAD, accepted.text("Microsoft SQL Server", 1).raw((byte) 15, (byte) 0, (byte) 0x10, (byte) 0));
    }

    void environment(int what, String now, String before) {
        sized(0xE3, new Bytes().u8(what).text(now, 1).text(before, 1));
    }

    private void sized(int type, Bytes body) {
        byte[] bytes = body.take();
        token(type).u16(bytes.length).raw(bytes);
    }

    void error(SqlError first) {
        for (SqlError error = first; error != null; error = error.next)
            sized(0xAA, new Bytes().u32(error.number).u8(1).u8(error.severity).text(error.getMessage(), 2)
                    .text("standin", 1).text("", 1).u32(1));
        done(0xFD, ERROR, 0);
    }

    void columns(Iterable<Column> columns, int count) {
        token(0x81).u16(count);
        for (Column column : columns) column.describe(this);
    }

    void row() {
        token(0xD1);
    }

    void statementDone(boolean inProcedure, Long count) {
        done(inProcedure ? 0xFF : 0xFD, count == null ? 0 : COUNT, count == null ? 0 : count);
    }

    void procedureDone() {
        token(0x79).u32(0);
        done(0xFE, 0, 0);
    }

    void stopped() {
        done(0xFD, ATTENTION, 0);
    }

    private void done(int type, int status, long count) {
        flush(MORE);
        held = new Bytes().u8(type).u16(status).u16(0).u64(count);
    }

    byte[] finish() {
        if (held == null) statementDone(false, null);
        return flush(0).take();
    }
}
