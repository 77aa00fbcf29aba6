// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

package standin;

import java.io.IOException;
import java.net.Socket;
import java.nio.charset.StandardCharsets;
import java.sql.SQLException;

/** One client, from its greeting to its end. */
final class Session {
    private static final int PACKET_SIZE = 4096;

    private final Socket socket;
    private final Account account;
    private final BatchLog log;
    private final Wire wire;
    private String application = "";
    private Reply reply;
    private Executor executor; // from the login on

    Session(Socket socket, Account account, BatchLog log) throws IOException {
        this.socket = socket;
        this.account = account;
        this.log = log;
        wire = new Wire(socket.getInputStream(), socket.getOutputStream());
    }

    void serve() {
        try (socket) {
            for (Wire.Message message = wire.read(); message != null; message = wire.read()) answer(message);
        } catch (IOException gone) {
            // as good as an end
        } finally {
            if (executor != null) executor.close();
        }
    }

    private void answer(Wire.Message message) throws IOException {
        reply = new Reply();
        switch (message.type()) {
            case Wire.PRELOGIN -> {
                wire.write(greeting());
                return;
            }
            case Wire.LOGIN -> login(Login.read(message.body()));
            case Wire.BATCH -> batch(textOf(message.body()));
            case Wire.ATTENTION -> reply.stopped();
            default -> reply.error(new SqlError(50000, 16,
                    "Stand-in: messages of type " + message.type() + " are not modelled."));
        }
        wire.write(reply.finish());
    }

    /** Two options, a version and "no encryption", told by their places; 255 ends the list. */
    private static byte[] greeting() {
        return new Bytes().raw((byte) 0, (byte) 0, (byte) 11, (byte) 0, (byte) 6)
                .raw((byte) 1, (byte) 0, (byte) 17, (byte) 0, (byte) 1).u8(255)
                .raw((byte) 15, (byte) 0, (byte) 0x10, (byte) 0, (byte) 0, (byte) 0).u8(2).take();
    }

    private void login(Login login) {
        application = login.application();
        try {
            if (!account.opens(login))
                throw new SqlError(18456, 14, "Login failed for user '" + login.user() + "'.");
            executor = new Executor(login.database().isEmpty() ? account.database() : login.database());
            reply.loginAccepted(login.version(), PACKET_SIZE, executor.database());
            wire.packetSize(PACKET_SIZE);
        } catch (SqlError refusal) {
            reply.error(refusal);
        } catch (SQLException failure) {
            reply.error(SqlError.of(failure));
        }
    }

    /** Behind the headers, which begin with their whole length. */
    private static String textOf(byte[] body) {
        int headers = body[0] & 0xFF | (body[1] & 0xFF) << 8;
        return new String(body, headers, body.length - headers, StandardCharsets.UTF_16LE);
    }

    private void batch(String text) {
        int refused = 0;
        try {
            executor.run(text, reply);
        } catch (SqlError refusal) {
            refused = refusal.number;
            reply.error(refusal);
        }
        log.write(application, refused, text);
    }
}
