// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// Every statement that the control can send to SQL Server goes through the real driver to the stand-in.

#include "tests/sqlserver/fixture.h"
#include "tests/sqlserver/statements.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <regex>
#include <sstream>

namespace dn::tests {
namespace {

namespace fs = std::filesystem;

class SqlServerStatements : public OnStandIn {
protected:
    static void SetUpTestSuite() { connection_ = freshDatabase("instrucciones", "control"); }
    static void TearDownTestSuite() { connection_.reset(); }
    static data::Connection& connection() { return *connection_; }

private:
    inline static std::unique_ptr<data::Connection> connection_;
};

TEST_F(SqlServerStatements, all_valid_ones_are_taken)
{
    const auto statements = validStatements();
    EXPECT_GT(statements.size(), 80U);
    for (const std::string& statement : statements)
        EXPECT_EQ(refusalOf(connection(), statement), 0) << statement;
}

TEST_F(SqlServerStatements, the_others_are_refused_by_their_number)
{
    for (const Refused& refused : refusedStatements())
        EXPECT_EQ(refusalOf(connection(), refused.text), refused.code) << refused.text;
}

/// The texts in quotes of a source, those of adjacent literals apart.
std::vector<std::string> literalsOf(const fs::path& source)
{
    std::ostringstream text;
    text << std::ifstream(source).rdbuf();
    const std::string code = text.str();
    const std::regex literal(R"re("((?:[^"\\\n]|\\.)*)")re");
    std::vector<std::string> literals;
    for (std::sregex_iterator it(code.begin(), code.end(), literal); it != std::sregex_iterator(); ++it)
        literals.push_back((*it)[1].str());
    return literals;
}

bool isOfAStatement(const std::string& literal)
{
    static const std::regex words(
        R"re(^(SELECT|Select|select|INSERT|UPDATE|EXEC|DELETE) |\b(FROM|INTO|SET|VALUES|WHERE|Where|JOIN) |[Oo]rder [Bb]y |ORDER B[Yy] | AS [a-zA-Z_]+,)re");
    static const std::regex ofMySql(R"re(IFNULL|NOW\(|UUID\(|CONCAT\()re");
    return std::regex_search(literal, words) && !std::regex_search(literal, ofMySql);
}

// A statement that somebody adds to the control is missing here until he adds it to the list as well.
TEST_F(SqlServerStatements, the_list_has_every_piece_that_stands_in_the_sources)
{
    std::vector<std::string> listed = validStatements();
    for (const Refused& refused : refusedStatements())
        listed.push_back(refused.text);
    int pieces = 0;
    for (const auto& entry : fs::recursive_directory_iterator(DN_SOURCE_DIR "/src")) {
        const std::string path = entry.path().string();
        if (!path.ends_with(".cpp") && !path.ends_with(".h")) continue;
        if (path.find("/data/odbc/") != std::string::npos || path.find("/data/mariadb/") != std::string::npos ||
            path.find("/screen/") != std::string::npos)
            continue;
        for (const std::string& literal : literalsOf(entry.path())) {
            if (!isOfAStatement(literal)) continue;
            ++pieces;
            EXPECT_TRUE(std::any_of(listed.begin(), listed.end(),
                                    [&](const std::string& text) { return text.find(literal) != text.npos; }))
                << path << ": " << literal;
        }
    }
    EXPECT_GT(pieces, 60);
}

} // namespace
} // namespace dn::tests
