// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// A real connection that writes down what is sent through it, and fails on demand as if the server had.
#pragma once

#include "data/connection.h"
#include "data/error.h"

#include <functional>
#include <map>
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
        if (passesOver && passesOver(statement)) return nullptr;
        try {
            return real_->execute(statement);
        } catch (const data::Error& error) {
            codes[std::string(statement)] = error.nativeCode();
            throw;
        }
    }

    /// Every statement asked for, in order.
    std::vector<std::string> statements;
    /// What the server said to the statements that it refused.
    std::map<std::string, int> codes;
    /// Tells which statements fail ahead of the server.
    std::function<bool(std::string_view)> refuses;
    /// Tells which statements never reach the server, as if it had carried them out.
    std::function<bool(std::string_view)> passesOver;

private:
    std::unique_ptr<data::Connection> real_;
};

} // namespace dn::tests
