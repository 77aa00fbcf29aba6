// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The connection through which every statement of the control runs. The host opens it, lends it and keeps it.
#pragma once

#include "base/export.h"
#include "data/recordset.h"

#include <memory>
#include <string_view>

namespace dn::data {

/// A connection to the host's database: over one of the drivers, or of the host's own.
class DN_EXPORT Connection {
public:
    /// The value of `State` for an open connection.
    static constexpr int open = 1;
    static constexpr int closed = 0; ///< any other value of `State`, this one most often

    Connection() = default;
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;
    virtual ~Connection() = default;

    /// `open` while statements can run; `closed` before the connection stands and once it is known to be lost.
    virtual int State() const = 0;

    /// Sends the text as it stands, to the byte: nothing is prepared, translated or escaped. One statement a call;
    /// a text with several is refused.
    /// @return the rows, or nothing for a statement that gives none. Further results (of a procedure) are drained.
    /// @throws Error what the server said, or that it does not answer within the time-outs.
    /// A recordset may be dropped half-read, and may be left open while further statements run.
    virtual std::unique_ptr<Recordset> execute(std::string_view statement) = 0;
};

} // namespace dn::data
