// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The database server behind the stories: MariaDB, or the stand-in for SQL Server where the variable
// DN_STORIES_SERVER says "sqlserver". The control does its work on either with its own statements; here stands
// what the stories themselves must write differently, to lay out what is there ahead and to look at what is left.
#pragma once

#include "data/connection.h"

#include <gmock/gmock.h>

#include <memory>
#include <string>
#include <vector>

namespace dn::tests {

class StoryServer {
public:
    virtual ~StoryServer() = default;

    /// Whether the control takes it for SQL Server.
    virtual bool isSqlServer() const = 0;
    /// @param application whose statements they are: "control" or "prueba". On MariaDB the control's connection
    /// has the account that the documents ask for, and no rights beyond it.
    virtual std::unique_ptr<data::Connection> connect(const std::string& application) = 0;
    virtual void createSchema() = 0;

    /// What to run around a statement of the story so that the rows of a table may bring their own keys.
    virtual std::string keysOn(const std::string& table) const = 0;
    virtual std::string keysOff(const std::string& table) const = 0;
    /// The server's clock stands at "2026-03-14 09:30:00" on these connections; without a moment it runs.
    virtual void setClock(const std::string& moment, const std::vector<data::Connection*>& connections) = 0;

    // ---- Pieces of statements

    /// The server's present moment and days to it.
    virtual std::string fromNow(int days) const = 0;
    /// The whole seconds, or days, from a column to now.
    virtual std::string secondsSince(const std::string& column) const = 0;
    virtual std::string daysSince(const std::string& column) const = 0;
    virtual std::string renaming(const std::string& from, const std::string& to) const = 0;
    /// The server's text about a statement with an apostrophe too many.
    virtual testing::Matcher<std::string> syntaxRefusal() const = 0;
};

/// The one that all stories of the program run on.
StoryServer& storyServer();

} // namespace dn::tests
