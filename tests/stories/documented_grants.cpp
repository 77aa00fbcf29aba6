// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/stories/documented_grants.h"

#include "data/mariadb/connection.h"
#include "tests/support/maria_server.h"

#include <fstream>
#include <regex>
#include <sstream>

namespace dn::tests {
namespace {

std::vector<std::string> readGrants()
{
    std::ostringstream text;
    text << std::ifstream(DN_SOURCE_DIR "/docs/database.md").rdbuf();
    const std::string page = text.str();
    const std::regex grant("`(GRANT [^`]* ON (?:PROCEDURE )?)ventas(\\.[^`]* TO 'fuerza'@'%')`");
    std::vector<std::string> grants;
    for (std::sregex_iterator it(page.begin(), page.end(), grant); it != std::sregex_iterator(); ++it)
        grants.push_back((*it)[1].str() + std::string(MariaServer::database) + (*it)[2].str());
    return grants;
}

} // namespace

const std::vector<std::string>& documentedGrants()
{
    static const std::vector<std::string> grants = readGrants();
    return grants;
}

void makeDocumentedAccount(data::Connection& owner)
{
    owner.execute("DROP USER IF EXISTS 'fuerza'@'%'");
    owner.execute("CREATE USER 'fuerza'@'%' IDENTIFIED BY 'secreta'");
    for (const std::string& grant : documentedGrants())
        owner.execute(grant);
}

std::unique_ptr<data::Connection> connectDocumentedAccount()
{
    data::mariadb::Options options;
    options.socket = sharedServer().socket();
    options.user = "fuerza";
    options.password = "secreta";
    options.database = MariaServer::database;
    return std::make_unique<data::mariadb::Connection>(options);
}

} // namespace dn::tests
