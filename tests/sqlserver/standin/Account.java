// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

package standin;

/** The one account that may enter, and the database that it enters. */
record Account(String user, String password, String database) {
    boolean opens(Login login) {
        return user.equals(login.user()) && password.equals(login.password());
    }
}
