// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

package standin;

import java.sql.SQLException;

/** One statement of a batch, read and ready to run. */
interface Step {
    void run(Runner runner) throws SQLException;
}
