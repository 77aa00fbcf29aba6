// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The control's real connection, with somebody who does something to the server around each of its statements.
#pragma once

#include "data/connection.h"
#include "data/error.h"

#include <cstddef>
#include <exception>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace dn::tests {

/// A statement, and what the server said to it.
struct Sent {
    std::string text;
    bool acknowledged = false;
    std::string failure = {};
    int code = 0; ///< of that failure
};

class WatchedConnection final : public data::Connection {
public:
    explicit WatchedConnection(std::unique_ptr<data::Connection> real) : real_(std::move(real)) {}

    int State() const override { return real_->State(); }

    std::unique_ptr<data::Recordset> execute(std::string_view statement) override
    {
        const std::size_t number = sent.size();
        sent.push_back({std::string(statement)});
        if (around) around(number, sent[number].text, false);
        std::unique_ptr<data::Recordset> rows;
        std::exception_ptr failure;
        try {
            rows = real_->execute(statement);
            sent[number].acknowledged = true;
        } catch (const data::Error& error) {
            sent[number].failure = error.what();
            sent[number].code = error.nativeCode();
            failure = std::current_exception();
        }
        if (around) around(number, sent[number].text, true);
        if (failure) std::rethrow_exception(failure);
        return rows;
    }

    data::Connection& real() { return *real_; }

    std::vector<Sent> sent;
    /// Called ahead of each statement, and with true behind it.
    std::function<void(std::size_t number, const std::string& statement, bool behind)> around;

private:
    std::unique_ptr<data::Connection> real_;
};

} // namespace dn::tests
