// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The database server that the program brings along: its files in the user's data folder, a socket that only the
// user reaches, no network, no service of the system. It starts with the program and ends with it.
#pragma once

#include "host/database/child_process.h"
#include "host/database/database_choice.h"
#include "host/database/host_error.h"
#include "host/database/lasting_thread.h"
#include "host/database/server_folder.h"

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <stop_token>
#include <string>
#include <vector>

namespace dn::host {

struct ServerOptions {
    std::filesystem::path folder;                  ///< empty: `defaultDataFolder()`
    std::vector<std::filesystem::path> searchPath; ///< where the programs lie; empty: `defaultSearchPath()`
    unsigned bufferPoolMegabytes = 0;              ///< 0: by the size of the data
    std::uintmax_t minimumFreeBytes = 128U << 20U; ///< asked for ahead of a first start
    std::chrono::milliseconds startPatience = std::chrono::minutes(2); ///< recovery after a kill included
    std::chrono::milliseconds joinPatience = std::chrono::seconds(10); ///< for another's server to answer or end
    std::chrono::milliseconds lockPatience = std::chrono::minutes(3);  ///< for another program's first start
    std::chrono::milliseconds stopPatience = std::chrono::seconds(30);
};

class PrivateServer {
public:
    /// Joins the server that already runs on the folder, or starts one, laying out its files at the first start.
    /// @throws HostError when it cannot, with what is wrong and what to do.
    explicit PrivateServer(ServerOptions options, const Progress& progress = {});
    PrivateServer(const PrivateServer&) = delete;
    PrivateServer& operator=(const PrivateServer&) = delete;
    /// Stops the server when this object started it; one that was joined goes on.
    ~PrivateServer();

    /// Starts the server again, or joins another's, where it has ended. May be called on any thread, one at a
    /// time, which is given up soon after nobody wants it any more.
    /// @throws HostError as the constructor, and when it was given up.
    void revive(const std::stop_token& givenUp = {});

    const ServerFolder& folder() const { return folder_; }
    /// Whether this object started the server.
    bool owned() const { return process_.pid() > 0; }
    /// Whether the files were laid out by this start.
    bool initialised() const { return initialised_; }
    /// The process of an owned server, else 0.
    pid_t pid() const { return process_.pid(); }
    /// A database of this server.
    MariadbTarget target(const std::string& database) const;

private:
    bool join(const std::stop_token& givenUp);
    void start(const Progress& progress, const std::stop_token& givenUp);
    void awaitAnswer(const std::stop_token& givenUp);

    ServerOptions options_;
    ServerFolder folder_;
    LastingThread starter_; // of the server, whose life hangs on it
    ChildProcess process_;
    bool initialised_ = false;
};

} // namespace dn::host
