// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// Stands between clients and a server's Unix socket, and loses what a network may lose: the way to the server, or
// an answer that the server has given already.
#pragma once

#include "host/database/unique_fd.h"

#include <atomic>
#include <cstddef>
#include <limits>
#include <string>
#include <thread>
#include <utility>
#include <vector>

namespace dn::tests {

class Relay {
public:
    /// @param server the path of its socket; the relay's own lies beside it.
    /// @param connections that it takes; then it refuses further ones.
    explicit Relay(std::string server, int connections = std::numeric_limits<int>::max());
    Relay(const Relay&) = delete;
    Relay& operator=(const Relay&) = delete;
    ~Relay();

    const std::string& socket() const { return path_; }

    /// Of the next answer only so many bytes come through; then the connection ends on both sides.
    void cutNextAnswer(std::size_t bytes) { loss_ = static_cast<long>(bytes); }
    /// The next request still goes to the server; then the connection ends on both sides.
    void cutBehindNextRequest() { loss_ = behindRequest; }

private:
    using Pair = std::pair<host::UniqueFd, host::UniqueFd>; // client, server

    static constexpr long none = -1;
    static constexpr long behindRequest = -2;

    void serve();
    void take();
    bool passRequest(const Pair& pair);
    bool passAnswer(const Pair& pair);

    std::string server_;
    std::string path_;
    int connections_;
    host::UniqueFd listener_;
    host::UniqueFd ended_; // the thread's end of a pipe that closes with the relay
    host::UniqueFd ending_;
    std::vector<Pair> pairs_;
    std::atomic<long> loss_ = none; // bytes of an answer, or one of the above
    std::thread thread_;            // last: it uses the others
};

} // namespace dn::tests
