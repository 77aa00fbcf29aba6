// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The servers of one database, in the order in which the operator named them. A connection goes to the one that
// served last, and where that does not work to the next one.
#pragma once

#include "host/database/database_choice.h"

#include <atomic>
#include <cstddef>
#include <functional>
#include <memory>
#include <optional>
#include <stop_token>
#include <string>
#include <vector>

namespace dn::host {

/// Whether it serves: false for a node of a cluster that lies outside of its main part.
/// @throws data::Error
bool isReady(data::Connection& connection);

/// A connection to a server that is ready. A node of a cluster that does not belong to its main part takes
/// connections and is not ready.
/// @throws HostError with what the server said, without the password.
std::unique_ptr<data::Connection> connectReady(const DatabaseChoice& choice);

/// What a connection is wanted for.
struct ConnectionWish {
    std::optional<unsigned> readTimeout = {}; ///< in seconds, whatever the server's own text says
    std::stop_token givenUp = {};             ///< no further server is asked once nobody wants it any more
};

class ServerList {
public:
    using Opener = std::function<std::unique_ptr<data::Connection>(const DatabaseChoice&)>;

    /// @param choices at least one.
    explicit ServerList(std::vector<DatabaseChoice> choices, Opener open = connectReady)
        : choices_(std::move(choices)), open_(std::move(open))
    {
    }

    /// A connection to the first server that takes it and is ready, from the present one on, which it then is. May
    /// be called on any thread.
    /// @throws HostError what each of them said.
    std::unique_ptr<data::Connection> connect(const ConnectionWish& wish = {});

    /// The server that served last; at first the first one.
    const DatabaseChoice& present() const { return choices_[present_]; }
    std::size_t count() const { return choices_.size(); }
    /// For an operator to read, without passwords.
    std::string description() const;

private:
    std::vector<DatabaseChoice> choices_;
    Opener open_;
    std::atomic<std::size_t> present_ = 0;
};

} // namespace dn::host
