// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

package standin;

import java.util.List;

/** A stored procedure: the names of its parameters, "@A" in capitals, and its body as it was written. */
record Procedure(String name, List<String> parameters, List<Token> body) {}
