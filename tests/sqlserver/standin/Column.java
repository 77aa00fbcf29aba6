// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

package standin;

import java.math.BigDecimal;
import java.math.BigInteger;
import java.math.RoundingMode;
import java.nio.charset.Charset;
import java.nio.charset.StandardCharsets;
import java.sql.ResultSetMetaData;
import java.sql.SQLException;
import java.sql.Types;
import java.time.LocalDate;
import java.time.LocalDateTime;
import java.time.LocalTime;
import java.time.OffsetDateTime;
import java.time.ZoneOffset;
import java.time.temporal.ChronoUnit;
import java.util.UUID;

/** A column of a result: its type on the wire, and its values. */
final class Column {
    private enum Form {
        INT, BIT, FLOAT, DECIMAL, MONEY, DATETIME, SMALLDATETIME, DATETIME2, DATETIMEOFFSET, DATE, TIME,
        UNIQUEIDENTIFIER, NVARCHAR, NVARCHAR_MAX, VARCHAR, VARBINARY
    }

    private static final Charset WESTERN = Charset.forName("windows-1252");
    private static final int UNBOUNDED = 0xFFFF;
    private static final int LONGEST = 4000; // characters of a column that is not of MAX length
    private static final LocalDate FIRST_DATE = LocalDate.of(1, 1, 1);
    private static final LocalDateTime FIRST_MOMENT = LocalDateTime.of(1900, 1, 1, 0, 0);
    private static final int GUIDN = 0x24;
    private static final int INTN = 0x26;
    private static final int DATEN = 0x28;
    private static final int TIMEN = 0x29;
    private static final int DATETIME2N = 0x2A;
    private static final int DATETIMEOFFSETN = 0x2B;
    private static final int BITN = 0x68;
    private static final int DECIMALN = 0x6A;
    private static final int FLTN = 0x6D;
    private static final int MONEYN = 0x6E;
    private static final int DATETIMN = 0x6F;
    private static final int BIGVARBINARY = 0xA5;
    private static final int BIGVARCHAR = 0xA7;
    private static final int NVARCHAR = 0xE7;

    final Class<?> javaType;
    private final String name;
    private final Form form;
    private final int size; // bytes of a number, characters or bytes of a text
    private final int precision;
    private final int scale;

    /** @param plainTexts whether the database's texts without an N go by its own code page and not by UTF-16. */
    Column(ResultSetMetaData from, int number, boolean plainTexts) throws SQLException {
        String label = from.getColumnLabel(number);
        name = label.matches("(?s).*[( '].*") && label.equals(from.getColumnName(number)) ? "" : label;
        int type = from.getColumnType(number);
        int length = from.getPrecision(number);
        form = formOf(type, from.getColumnTypeName(number), from.getScale(number), length, plainTexts);
        size = switch (type) {
            case Types.BIGINT -> 8;
            case Types.SMALLINT -> 2;
            case Types.TINYINT -> 1;
            case Types.REAL -> 4;
            case Types.DOUBLE, Types.FLOAT -> 8;
            case Types.INTEGER -> 4;
            default -> Math.max(1, Math.min(length, LONGEST));
        };
        precision = Math.min(38, Math.max(1, length));
        scale = Math.min(form == Form.DECIMAL ? precision : 7, Math.max(0, from.getScale(number)));
        javaType = switch (form) {
            case DATETIME, SMALLDATETIME, DATETIME2 -> LocalDateTime.class;
            case DATETIMEOFFSET -> OffsetDateTime.class;
            case DATE -> LocalDate.class;
            case TIME -> LocalTime.class;
            case VARBINARY -> byte[].class;
            case NVARCHAR, NVARCHAR_MAX, VARCHAR -> String.class;
            case DECIMAL, MONEY -> BigDecimal.class;
            case UNIQUEIDENTIFIER -> UUID.class;
            case BIT -> Boolean.class;
            case FLOAT -> Double.class;
            case INT -> Long.class;
        };
    }

    private static Form formOf(int type, String typeName, int scale, int length, boolean plainTexts) {
        if (typeName.equals("UUID")) return Form.UNIQUEIDENTIFIER;
        return switch (type) {
            case Types.TINYINT, Types.SMALLINT, Types.INTEGER, Types.BIGINT -> Form.INT;
            case Types.BIT, Types.BOOLEAN -> Form.BIT;
            case Types.REAL, Types.DOUBLE, Types.FLOAT -> Form.FLOAT;
            case Types.DECIMAL, Types.NUMERIC -> length == 19 && scale == 4 ? Form.MONEY : Form.DECIMAL;
            case Types.TIMESTAMP_WITH_TIMEZONE -> Form.DATETIMEOFFSET;
            case Types.TIMESTAMP -> switch (scale) {
                case 1 -> Form.SMALLDATETIME;
                case 3 -> Form.DATETIME;
                default -> Form.DATETIME2;
            };
            case Types.DATE -> Form.DATE;
            case Types.TIME -> Form.TIME;
            case Types.BINARY, Types.VARBINARY, Types.BLOB, Types.LONGVARBINARY -> Form.VARBINARY;
            default -> {
                boolean national = typeName.contains("IGNORECASE");
                if (length > LONGEST) yield Form.NVARCHAR_MAX;
                yield plainTexts && !national ? Form.VARCHAR : Form.NVARCHAR;
            }
        };
    }

    void describe(Bytes out) {
        out.u32(0).u16(9); // may be null, may be updated
        switch (form) {
            case INT -> out.u8(INTN).u8(size);
            case BIT -> out.u8(BITN).u8(1);
            case FLOAT -> out.u8(FLTN).u8(size);
            case DECIMAL -> out.u8(DECIMALN).u8(17).u8(precision).u8(scale);
            case MONEY -> out.u8(MONEYN).u8(8);
            case UNIQUEIDENTIFIER -> out.u8(GUIDN).u8(16);
            case DATETIME -> out.u8(DATETIMN).u8(8);
            case SMALLDATETIME -> out.u8(DATETIMN).u8(4);
            case DATETIME2 -> out.u8(DATETIME2N).u8(scale);
            case DATETIMEOFFSET -> out.u8(DATETIMEOFFSETN).u8(scale);
            case DATE -> out.u8(DATEN);
            case TIME -> out.u8(TIMEN).u8(scale);
            case NVARCHAR -> out.u8(NVARCHAR).u16(2 * size).raw(Reply.COLLATION);
            case NVARCHAR_MAX -> out.u8(NVARCHAR).u16(UNBOUNDED).raw(Reply.COLLATION);
            case VARCHAR -> out.u8(BIGVARCHAR).u16(size).raw(Reply.COLLATION);
            case VARBINARY -> out.u8(BIGVARBINARY).u16(2 * LONGEST);
        }
        out.text(name, 1);
    }

    /** @param value of `javaType`, or null. */
    void write(Bytes out, Object value) {
        switch (form) {
            case NVARCHAR -> sized(out, value == null ? null : ((String) value).getBytes(StandardCharsets.UTF_16LE));
            case VARCHAR -> sized(out, value == null ? null : ((String) value).getBytes(WESTERN));
            case VARBINARY -> sized(out, (byte[]) value);
            case NVARCHAR_MAX ->
                pieces(out, value == null ? null : ((String) value).getBytes(StandardCharsets.UTF_16LE));
            default -> {
                byte[] bytes = value == null ? new byte[0] : fixed(value);
                out.u8(bytes.length).raw(bytes);
            }
        }
    }

    private static void sized(Bytes out, byte[] bytes) {
        if (bytes == null) out.u16(0xFFFF);
        else out.u16(bytes.length).raw(bytes);
    }

    /** Of any length: the whole length, then pieces with theirs, then an empty one. */
    private static void pieces(Bytes out, byte[] bytes) {
        if (bytes == null) {
            out.u64(-1);
            return;
        }
        out.u64(bytes.length);
        if (bytes.length > 0) out.u32(bytes.length).raw(bytes);
        out.u32(0);
    }

    private byte[] fixed(Object value) {
        Bytes out = new Bytes();
        switch (form) {
            case INT -> out.number((Long) value, size);
            case BIT -> out.u8((Boolean) value ? 1 : 0);
            case FLOAT -> {
                double number = (Double) value;
                out.number(size == 4 ? Float.floatToIntBits((float) number) : Double.doubleToLongBits(number), size);
            }
            case DECIMAL -> decimal(out, (BigDecimal) value);
            case MONEY -> money(out, (BigDecimal) value);
            case UNIQUEIDENTIFIER -> identifier(out, (UUID) value);
            case DATETIME -> moment(out, (LocalDateTime) value);
            case SMALLDATETIME -> minute(out, (LocalDateTime) value);
            case DATETIME2 -> {
                LocalDateTime moment = (LocalDateTime) value;
                time(out, moment.toLocalTime());
                days(out, moment.toLocalDate());
            }
            case DATETIMEOFFSET -> {
                OffsetDateTime moment = (OffsetDateTime) value;
                LocalDateTime universal = moment.withOffsetSameInstant(ZoneOffset.UTC).toLocalDateTime();
                time(out, universal.toLocalTime());
                days(out, universal.toLocalDate());
                out.u16(moment.getOffset().getTotalSeconds() / 60);
            }
            case DATE -> days(out, (LocalDate) value);
            case TIME -> time(out, (LocalTime) value);
            default -> throw new IllegalStateException();
        }
        return out.take();
    }

    private void decimal(Bytes out, BigDecimal number) {
        BigInteger digits = number.setScale(scale, RoundingMode.HALF_UP).unscaledValue();
        out.u8(digits.signum() < 0 ? 0 : 1);
        BigInteger rest = digits.abs();
        for (int i = 0; i < 16; i++, rest = rest.shiftRight(8)) out.u8(rest.intValue() & 0xFF);
    }

    /** Ten thousandths, the upper half ahead of the lower one. */
    private static void money(Bytes out, BigDecimal amount) {
        long units = amount.movePointRight(4).longValueExact();
        out.u32(units >> 32).u32(units);
    }

    /** The first three of its groups with the lowest byte first, the others as they are read. */
    private static void identifier(Bytes out, UUID value) {
        long high = value.getMostSignificantBits();
        out.u32(high >>> 32).u16((int) (high >>> 16) & 0xFFFF).u16((int) high & 0xFFFF);
        out.u64(Long.reverseBytes(value.getLeastSignificantBits()));
    }

    /** Days since 1900 and minutes; half a minute counts as a whole one. */
    private static void minute(Bytes out, LocalDateTime moment) {
        LocalDateTime whole = moment.plusSeconds(30).truncatedTo(ChronoUnit.MINUTES);
        out.u16((int) ChronoUnit.DAYS.between(FIRST_MOMENT.toLocalDate(), whole.toLocalDate()));
        out.u16(whole.toLocalTime().toSecondOfDay() / 60);
    }

    /** Days since 1900 and three hundredths of a second. */
    private static void moment(Bytes out, LocalDateTime moment) {
        long ticks = (moment.toLocalTime().toNanoOfDay() * 300 + 500_000_000) / 1_000_000_000;
        long days = ChronoUnit.DAYS.between(FIRST_MOMENT.toLocalDate(), moment.toLocalDate());
        out.u32(days).u32(ticks);
    }

    private static void days(Bytes out, LocalDate date) {
        out.number(ChronoUnit.DAYS.between(FIRST_DATE, date), 3);
    }

    private void time(Bytes out, LocalTime time) {
        long unit = (long) Math.pow(10, 9 - scale);
        out.number(time.toNanoOfDay() / unit, scale <= 2 ? 3 : scale <= 4 ? 4 : 5);
    }
}
