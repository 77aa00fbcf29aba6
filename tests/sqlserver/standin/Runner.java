// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

package standin;

import java.sql.SQLException;
import java.util.List;

/** What the statements of a batch ask of a session. */
interface Runner {
    void query(String words) throws SQLException;

    void insert(String table, List<String> columns, String words) throws SQLException;

    void change(String words) throws SQLException;

    void define(String words) throws SQLException;

    void call(String procedure, List<String> arguments) throws SQLException;

    void createProcedure(Procedure procedure, boolean orAlter) throws SQLException;

    void dropProcedure(String name, boolean ifExists) throws SQLException;

    void createDatabase(String name, String collation) throws SQLException;

    void use(String database) throws SQLException;

    void transaction(String verb) throws SQLException;

    void identityInsert(String table, boolean on) throws SQLException;

    void noCount(boolean on);

    void dateFormat(String format);

    void nothing();
}
