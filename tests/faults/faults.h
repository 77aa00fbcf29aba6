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

class Fault {
public:
    virtual ~Fault() = default;

    virtual std::string name() const = 0;
    /// Whose doing the error is, for the table of the document.
    virtual std::string origin() const { return "server"; }
    /// Whether the statement can meet with it at all.
    virtual bool meets(const std::string& statement) const { return !office().tableOf(statement).empty(); }
    /// How long the control's connection waits for an answer.
    virtual std::chrono::seconds patience() const { return std::chrono::seconds(30); }
    /// Whether it costs more than a few milliseconds.
    virtual bool dear() const { return false; }
    /// Whether the statement may have run though nobody acknowledged it.
    virtual bool leavesOpen() const { return false; }
    /// Whether the statement fails; else it finds nothing.
    virtual bool fails() const { return true; }
    /// Whether it is met with by every statement that can; a trigger needs a row.
    virtual bool isSure() const { return true; }

    virtual void ahead(WatchedConnection& connection, const std::string& statement) = 0;
    /// The server is whole again for the next statement; not after what is beyond repair.
    virtual void behind(WatchedConnection& connection, const std::string& statement);
    /// After the operator's action: the server is whole again.
    virtual void over() {}
    /// What it changed in the rows by itself, for the copy.
    virtual std::string changed(const std::string& statement) const;
};

std::vector<std::unique_ptr<Fault>> allFaults();

} // namespace dn::tests
