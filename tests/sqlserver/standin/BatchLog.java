// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

package standin;

import java.io.IOException;
import java.io.UncheckedIOException;
import java.nio.file.Files;
import java.nio.file.Path;
import java.nio.file.StandardOpenOption;

/** Writes down every batch in one line: who sent it, the number of its refusal or 0, its text with \n, \r, \t, \\. */
final class BatchLog {
    private final Path file;

    /** @param file where to, from its beginning; null writes nothing. */
    BatchLog(Path file) throws IOException {
        this.file = file;
        if (file != null) Files.writeString(file, "");
    }

    synchronized void write(String application, int refused, String text) {
        if (file == null) return;
        String line = text.replace("\\", "\\\\").replace("\n", "\\n").replace("\r", "\\r").replace("\t", "\\t");
        try {
            Files.writeString(file, application + "\t" + refused + "\t" + line + "\n", StandardOpenOption.CREATE,
                    StandardOpenOption.APPEND);
        } catch (IOException failure) {
            throw new UncheckedIOException(failure);
        }
    }
}
