// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The connection that the control and its windows hold for as long as the program runs, whichever connection to
// whichever server stands behind it. A window that is open when the server goes away keeps its pointer, and its
// next statement reaches the server that was found meanwhile.
#pragma once

#include "data/connection.h"

#include <memory>

namespace dn::host {

class LastingConnection final : public data::Connection {
public:
    explicit LastingConnection(std::unique_ptr<data::Connection> present) : present_(std::move(present)) {}

    /// Closed as well once a node of a cluster has refused to serve: it lives, but its cluster has left it.
    int State() const override { return left_ ? closed : present_->State(); }
    std::unique_ptr<data::Recordset> execute(std::string_view statement) override;

    /// From here on statements go to this one. A recordset of the former one keeps the rows that it holds.
    void renew(std::unique_ptr<data::Connection> fresh);

private:
    std::unique_ptr<data::Connection> present_;
    bool left_ = false;
};

} // namespace dn::host
