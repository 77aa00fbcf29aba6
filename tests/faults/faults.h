// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// What happens to a server and to its connections, provoked around one statement.
#pragma once

#include "tests/faults/office.h"
#include "tests/faults/watched_connection.h"

#include <chrono>
#include <memory>
#include <string>
#include <vector>

namespace dn::tests {

/// What a fault takes hold of, where that makes a difference.
struct Target {
    std::string table = {};
    std::string column = {};
};

class Fault {
public:
    virtual ~Fault() = default;

    virtual std::string name() const = 0;
    /// Whose doing the error is, for the table of the document.
    virtual std::string origin() const { return "server"; }
    /// With what of the statement it can be provoked, the nearest first; nothing where the statement cannot meet
    /// with it.
    virtual std::vector<Target> targets(const std::string& statement) const;
    /// From here on it takes hold of this one.
    void aim(const Target& target) { target_ = target; }
    /// What the control's statement fails with, by the server's numbers and the client library's.
    virtual std::vector<int> codes() const = 0;
    /// The control's connection.
    virtual std::unique_ptr<data::Connection> connect() { return office().salesperson(); }
    /// Whether it costs more than a few milliseconds.
    virtual bool dear() const { return false; }
    /// Whether the statement may have run though nobody acknowledged it.
    virtual bool leavesOpen() const { return false; }
    /// Whether the statement has run though nobody acknowledged it.
    virtual bool carriesOut() const { return false; }
    /// Whether the statement fails; else it finds nothing.
    virtual bool fails() const { return true; }
    /// Whether only a statement meets with it that has a row to change.
    virtual bool needsRow() const { return false; }

    virtual void ahead(WatchedConnection& connection, const std::string& statement) = 0;
    /// The server is whole again for the next statement; not after what is beyond repair.
    virtual void behind(WatchedConnection& connection, const std::string& statement);
    /// After the operator's action: the server is whole again.
    virtual void over() {}
    /// What it changed in the rows by itself, for the copy.
    virtual std::string changed(const std::string& statement) const;

protected:
    const Target& target() const { return target_; }

private:
    Target target_;
};

std::vector<std::unique_ptr<Fault>> allFaults();

} // namespace dn::tests
