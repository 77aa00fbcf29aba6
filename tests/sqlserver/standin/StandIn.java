// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

package standin;

import java.io.BufferedReader;
import java.io.IOException;
import java.io.InputStreamReader;
import java.net.InetAddress;
import java.net.ServerSocket;
import java.net.Socket;
import java.nio.charset.StandardCharsets;
import java.nio.file.Path;
import java.sql.SQLException;
import java.time.LocalDateTime;

/**
 * A stand-in for SQL Server, for tests: speaks its protocol on a free port of 127.0.0.1 and ends when its standard
 * input is closed. Its first line of output is the port.
 *
 * <pre>
 *   StandIn USER PASSWORD DATABASE [LOG]
 *   clock 2026-03-14T09:30:00    on its input: the clock stands there; answered by "ok"
 *   clock run                    it runs again
 * </pre>
 */
public final class StandIn {
    private StandIn() {}

    public static void main(String[] arguments) throws IOException, SQLException {
        Account account = new Account(arguments[0], arguments[1], arguments[2]);
        BatchLog log = new BatchLog(arguments.length > 3 ? Path.of(arguments[3]) : null);
        Database.create(account.database(), "Modern_Spanish_100_CI_AS_SC_UTF8");
        ServerSocket server = new ServerSocket(0, 50, InetAddress.getByName("127.0.0.1"));
        start(() -> accept(server, account, log));
        System.out.println(server.getLocalPort());
        obey();
        Runtime.getRuntime().halt(0);
    }

    private static void start(Runnable work) {
        Thread thread = new Thread(work);
        thread.setDaemon(true);
        thread.start();
    }

    private static void accept(ServerSocket server, Account account, BatchLog log) {
        while (true) {
            try {
                Socket socket = server.accept();
                socket.setTcpNoDelay(true);
                Session session = new Session(socket, account, log);
                start(session::serve);
            } catch (IOException refused) {
                // the next one may do better
            }
        }
    }

    private static void obey() throws IOException {
        BufferedReader input = new BufferedReader(new InputStreamReader(System.in, StandardCharsets.UTF_8));
        for (String line = input.readLine(); line != null; line = input.readLine()) {
            if (!line.startsWith("clock ")) continue;
            String moment = line.substring("clock ".length());
            Clock.set(moment.equals("run") ? null : LocalDateTime.parse(moment));
            System.out.println("ok");
        }
    }
}
