// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// A real connection that writes down what is sent through it, and fails on demand as if the server had.
#pragma once

#include "data/connection.h"
#include "data/error.h"

#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace dn::tests {

class RecordingConnection final : public data::Connection {
public:
    explicit RecordingConnection(std::unique_ptr<data::Connection> real) : real_(std::move(real)) {}

    int State() const override { return real_->State(); }

    std::unique_ptr<data::Recordset> execute(std::string_view statement) override
    {
        statements.emplace_back(statement);
        if (refuses && refuses(statement)) throw data::Error("HY000", 1205, "Lock wait timeout exceeded");
        return real_->execute(statement);
    }

    /// Every statement asked for, in order.
    std::vector<std::string> statements;
    /// Tells which statements fail ahead of the server.
    std::function<bool(std::string_view)> refuses;

private:
    std::unique_ptr<data::Connection> real_;
};

} // namespace dn::tests
