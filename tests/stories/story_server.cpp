// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/stories/story_server.h"

#include "host/database/database_choice.h"
#include "host/database/schema.h"
#include "tests/stories/on_maria_db.h"
#include "tests/support/sql_server_stand_in.h"

#include <cstdlib>
#include <optional>
#include <string_view>

namespace dn::tests {
namespace {

/// The connections are made as the host makes them, with what it sets on each.
class OnStandIn final : public StoryServer {
public:
    bool isSqlServer() const override { return true; }
    std::unique_ptr<data::Connection> connect(const std::string& application) override
    {
        return host::connect(
            host::OdbcTarget{sharedStandIn().connectionString(SqlServerStandIn::database, application)});
    }
    void createSchema() override { host::createSchema(*connect("esquema"), host::Engine::sqlServer); }
    std::string keysOn(const std::string& table) const override { return "SET IDENTITY_INSERT " + table + " ON"; }
    std::string keysOff(const std::string& table) const override
    {
        return "SET IDENTITY_INSERT " + table + " OFF";
    }
    void setClock(const std::string& moment, const std::vector<data::Connection*>& /*connections*/) override
    {
        if (moment.empty()) return sharedStandIn().setClock(std::nullopt);
        std::string iso = moment;
        iso.at(iso.find(' ')) = 'T';
        sharedStandIn().setClock(iso);
    }
    std::string fromNow(int days) const override
    {
        return "DATEADD(DAY, " + std::to_string(days) + ", GETDATE())";
    }
    std::string secondsSince(const std::string& column) const override
    {
        return "DATEDIFF(SECOND, " + column + ", GETDATE())";
    }
    std::string daysSince(const std::string& column) const override
    {
        return "DATEDIFF(DAY, " + column + ", GETDATE())";
    }
    std::string renaming(const std::string& from, const std::string& to) const override
    {
        return "EXEC sp_rename '" + from + "', '" + to + "'";
    }
    testing::Matcher<std::string> syntaxRefusal() const override
    {
        return testing::AnyOf(testing::HasSubstr("quotation mark"), testing::HasSubstr("Incorrect syntax"));
    }
};

} // namespace

StoryServer& storyServer()
{
    static const std::unique_ptr<StoryServer> server = []() -> std::unique_ptr<StoryServer> {
        const char* const wanted = std::getenv("DN_STORIES_SERVER");
        if (wanted != nullptr && std::string_view(wanted) == "sqlserver") return std::make_unique<OnStandIn>();
        return std::make_unique<OnMariaDb>();
    }();
    return *server;
}

} // namespace dn::tests
