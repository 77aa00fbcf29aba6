// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// Every statement that the control can send to SQL Server goes through the real driver to the stand-in.

#include "tests/sqlserver/fixture.h"
#include "tests/support/control_statements.h"

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
    const auto statements = validStatements(Dialect::sqlServer);
    EXPECT_GT(statements.size(), 110U);
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
    // A comment and a single character may hold a quote as well.
    const std::regex piece(R"re(//[^\n]*|'(?:[^'\\\n]|\\.)'|"((?:[^"\\\n]|\\.)*)")re");
    std::vector<std::string> literals;
    for (std::sregex_iterator it(code.begin(), code.end(), piece); it != std::sregex_iterator(); ++it)
        if ((*it)[1].matched) literals.push_back((*it)[1].str());
    return literals;
}

/// Whole ones and their pieces: a beginning, a clause, a comparison with a column.
bool isOfAStatement(const std::string& literal)
{
    static const std::regex words(
        R"re(^(select|insert|update|exec|call|delete) |\b(from|into|set|values|where|join) |order by | as [a-z_]+,|\b(uf_\w+|\w+\.\w+|i?ejecutivo|sys_pk) *[=<])re",
        std::regex::icase);
    return std::regex_search(literal, words);
}

bool isOfTheControl(const std::string& path)
{
    if (!path.ends_with(".cpp") && !path.ends_with(".h")) return false;
    for (const char* folder : {"/data/odbc/", "/data/mariadb/", "/screen/", "/base/"})
        if (path.find(folder) != path.npos) return false;
    return true;
}

// A piece of a new statement that stands in no listed one. (That known pieces are joined in a new way, the core's
// tests notice: tests/shell/control_statements_guard_test.cpp.)
TEST(ControlStatementsList, has_every_piece_that_stands_in_the_sources)
{
    std::vector<std::string> listed = validStatements(Dialect::sqlServer);
    for (std::string& statement : validStatements(Dialect::mySql))
        listed.push_back(std::move(statement));
    for (const Refused& refused : refusedStatements())
        listed.push_back(refused.text);
    int pieces = 0;
    for (const auto& entry : fs::recursive_directory_iterator(DN_SOURCE_DIR "/src")) {
        if (!isOfTheControl(entry.path().string())) continue;
        for (const std::string& literal : literalsOf(entry.path())) {
            if (!isOfAStatement(literal)) continue;
            ++pieces;
            EXPECT_TRUE(std::any_of(listed.begin(), listed.end(),
                                    [&](const std::string& text) { return text.find(literal) != text.npos; }))
                << entry.path() << ": " << literal;
        }
    }
    EXPECT_GT(pieces, 60);
}

} // namespace
} // namespace dn::tests
