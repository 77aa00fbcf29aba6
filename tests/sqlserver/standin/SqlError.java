// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

package standin;

import java.sql.SQLException;
import java.util.Map;
import java.util.regex.Matcher;
import java.util.regex.Pattern;

/** A refusal in the words of SQL Server: its number, its severity, its text. */
final class SqlError extends RuntimeException {
    private static final long serialVersionUID = 1;
    private static final Pattern QUOTED = Pattern.compile("\"([^\"]*)\"");
    /** The engine's codes, and what SQL Server calls the same; %s is the name that the engine complains about. */
    private static final Map<Integer, SqlError> BY_ENGINE_CODE = Map.ofEntries(
            Map.entry(42102, new SqlError(208, 16, "Invalid object name '%s'.")),
            Map.entry(42103, new SqlError(208, 16, "Invalid object name '%s'.")),
            Map.entry(42104, new SqlError(208, 16, "Invalid object name '%s'.")),
            Map.entry(42122, new SqlError(207, 16, "Invalid column name '%s'.")),
            Map.entry(42101, new SqlError(2714, 16, "There is already an object named '%s' in the database.")),
            Map.entry(90038, new SqlError(2714, 16, "There is already an object named '%s' in the database.")),
            Map.entry(42111, new SqlError(1913, 16,
                    "The operation failed because an index named '%s' already exists.")),
            Map.entry(42121, new SqlError(2705, 16, "Column names in each table must be unique. '%s' stands twice.")),
            Map.entry(23502, new SqlError(515, 16,
                    "Cannot insert the value NULL into column '%s'; column does not allow nulls.")),
            Map.entry(23513, new SqlError(547, 16, "The statement conflicted with the CHECK constraint \"%s\".")),
            Map.entry(23514, new SqlError(547, 16, "The statement conflicted with the CHECK constraint \"%s\".")),
            Map.entry(22001, new SqlError(2628, 16, "String or binary data would be truncated in column '%s'.")),
            Map.entry(22003, new SqlError(8115, 16,
                    "Arithmetic overflow error converting expression to data type int.")),
            Map.entry(22004, new SqlError(8115, 16,
                    "Arithmetic overflow error converting expression to data type int.")),
            Map.entry(22012, new SqlError(8134, 16, "Divide by zero error encountered.")),
            Map.entry(22018, new SqlError(245, 16, "Conversion failed when converting the value '%s'.")),
            Map.entry(22007, new SqlError(241, 16,
                    "Conversion failed when converting date and/or time from character string.")),
            Map.entry(21002, new SqlError(110, 15,
                    "There are fewer columns in the INSERT statement than values specified in the VALUES "
                    + "clause.")),
            Map.entry(90053, new SqlError(512, 16,
                    "Subquery returned more than 1 value. This is not permitted when the subquery follows =, "
                    + "!=, <, <= , >, >= or when the subquery is used as an expression.")),
            Map.entry(90016, new SqlError(8120, 16,
                    "Column '%s' is invalid in the select list because it is not contained in either an "
                    + "aggregate function or the GROUP BY clause.")),
            Map.entry(90105, new SqlError(242, 16,
                    "The conversion of a varchar data type to a datetime data type resulted in an "
                    + "out-of-range value.")),
            Map.entry(90059, new SqlError(209, 16, "Ambiguous column name '%s'.")),
            Map.entry(50200, new SqlError(1222, 16, "Lock request time out period exceeded.")));

    final int number;
    final int severity;
    /** What is said behind it in the same answer; null for nothing. */
    final SqlError next;

    SqlError(int number, int severity, String message) {
        this(number, severity, message, null);
    }

    private SqlError(int number, int severity, String message, SqlError next) {
        super(message, null, false, false);
        this.number = number;
        this.severity = severity;
        this.next = next;
    }

    SqlError followedBy(SqlError other) {
        return new SqlError(number, severity, getMessage(), other);
    }

    /** Incorrect syntax, at a token or behind the last one. */
    static SqlError syntax(Token near) {
        if (near.kind() == Token.Kind.WORD && Words.RESERVED.contains(near.upper()))
            return new SqlError(156, 15, "Incorrect syntax near the keyword '" + near.text() + "'.");
        return new SqlError(102, 15, "Incorrect syntax near '" + near.text() + "'.");
    }

    /** A row that is there already. The engine makes up the name of the index behind a constraint. */
    private static SqlError repeated(String words) {
        if (words.contains("PRIMARY KEY"))
            return new SqlError(2627, 14, "Violation of PRIMARY KEY constraint. Cannot insert duplicate key in '%s'.");
        if (words.contains("CONSTRAINT_INDEX"))
            return new SqlError(2627, 14, "Violation of UNIQUE KEY constraint. Cannot insert duplicate key in '%s'.");
        return new SqlError(2601, 14, "Cannot insert duplicate key row in object with unique index '%s'.");
    }

    /** What SQL Server would have said where the engine refuses; its number is 50000 where that is not known. */
    static SqlError of(SQLException failure) {
        String words = String.valueOf(failure.getMessage());
        SqlError known = failure.getErrorCode() == 23505 ? repeated(words) : BY_ENGINE_CODE.get(failure.getErrorCode());
        if (known == null) {
            boolean syntax = failure.getErrorCode() == 42000 || failure.getErrorCode() == 42001;
            return new SqlError(syntax ? 102 : 50000, 16, (syntax ? "Incorrect syntax: " : "Stand-in: ") + words);
        }
        Matcher name = QUOTED.matcher(words);
        String found = name.find() ? name.group(1) : "";
        return new SqlError(known.number, known.severity, known.getMessage().replace("%s", found));
    }
}
