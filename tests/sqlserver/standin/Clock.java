// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

package standin;

import java.time.LocalDateTime;
import java.time.format.DateTimeFormatter;
import java.util.Locale;
import java.util.UUID;

/** The server's clock, which a test may set, and what else the engine calls back for. */
public final class Clock {
    private static final int WHOLE_SECONDS = 19; // characters

    private static volatile LocalDateTime set;

    private Clock() {}

    /** @param moment from then on the clock stands; null lets it run. */
    static void set(LocalDateTime moment) {
        set = moment;
    }

    public static LocalDateTime now() {
        return set != null ? set : LocalDateTime.now();
    }

    public static String guid() {
        return UUID.randomUUID().toString().toUpperCase(Locale.ROOT);
    }

    /** A text as a moment: "yyyy-mm-dd hh:nn:ss" reads as year, day, month where the session's order is dmy. */
    public static LocalDateTime date(String text, String order) {
        if (text == null) return null;
        String time = text.strip().length() == 10 ? text.strip() + " 00:00:00" : text.strip();
        String pattern = time.contains("T") ? "uuuu-MM-dd'T'HH:mm:ss"
                : order.equals("dmy") ? "uuuu-dd-MM HH:mm:ss" : "uuuu-MM-dd HH:mm:ss";
        String seconds = time.length() > WHOLE_SECONDS ? time.substring(0, WHOLE_SECONDS) : time;
        return LocalDateTime.parse(seconds, DateTimeFormatter.ofPattern(pattern));
    }
}
