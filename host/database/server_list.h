// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The servers of one database, in the order in which the operator named them. A connection goes to the one that
// served last, and where that does not work to the next one.
#pragma once

#include "host/database/database_choice.h"

#include <atomic>
#include <cstddef>
#include <memory>
#include <string>
#include <vector>

namespace dn::host {

/// Whether it serves: false for a node of a cluster that lies outside of its main part.
/// @throws data::Error
bool isReady(data::Connection& connection);

class ServerList {
public:
    /// @param choices at least one.
    explicit ServerList(std::vector<DatabaseChoice> choices) : choices_(std::move(choices)) {}

    /// A connection to the first server that takes it and is ready, from the present one on, which it then is. A
    /// node of a cluster that does not belong to its main part takes connections and is not ready. May be called
    /// on any thread.
    /// @throws HostError what each of them said.
    std::unique_ptr<data::Connection> connect();

    /// The server that served last; at first the first one.
    const DatabaseChoice& present() const { return choices_[present_]; }
    std::size_t count() const { return choices_.size(); }
    /// For an operator to read, without passwords.
    std::string description() const;

private:
    std::vector<DatabaseChoice> choices_;
    std::atomic<std::size_t> present_ = 0;
};

} // namespace dn::host
