// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// What the stories write on MariaDB, and the one server that they share there.
#pragma once

#include "data/mariadb/connection.h"
#include "host/database/schema.h"
#include "tests/stories/documented_grants.h"
#include "tests/stories/story_server.h"
#include "tests/support/maria_server.h"

#include <memory>
#include <string>
#include <vector>

namespace dn::tests {

class OnMariaDb : public StoryServer {
public:
    bool isSqlServer() const override { return false; }
    std::unique_ptr<data::Connection> connect(const std::string& application) override
    {
        if (application == "control") return connectDocumentedAccount();
        data::mariadb::Options options;
        options.socket = sharedServer().socket();
        options.user = MariaServer::user;
        options.password = MariaServer::password;
        options.database = MariaServer::database;
        return std::make_unique<data::mariadb::Connection>(options);
    }
    void createSchema() override
    {
        const auto owner = connect("");
        host::createSchema(*owner, host::Engine::mariadb);
        makeDocumentedAccount(*owner);
    }
    std::string keysOn(const std::string& /*table*/) const override { return ""; }
    std::string keysOff(const std::string& /*table*/) const override { return ""; }
    void setClock(const std::string& moment, const std::vector<data::Connection*>& connections) override
    {
        if (moment.empty()) return; // it runs on a new connection
        for (data::Connection* connection : connections)
            connection->execute("SET timestamp = UNIX_TIMESTAMP('" + moment + "')");
    }
    std::string fromNow(int days) const override { return "NOW() + INTERVAL " + std::to_string(days) + " DAY"; }
    std::string secondsSince(const std::string& column) const override
    {
        return "TIMESTAMPDIFF(SECOND, " + column + ", NOW())";
    }
    std::string daysSince(const std::string& column) const override { return "DATEDIFF(NOW(), " + column + ")"; }
    std::string renaming(const std::string& from, const std::string& to) const override
    {
        return "RENAME TABLE " + from + " TO " + to;
    }
    testing::Matcher<std::string> syntaxRefusal() const override { return testing::HasSubstr("SQL syntax"); }
};

} // namespace dn::tests
