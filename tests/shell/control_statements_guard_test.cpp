// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// What the tests of this program make the control send must stand in the list of its statements, by which they go
// to SQL Server's stand-in: whoever adds a statement and a test of it, adds it to the list as well.

#include "tests/support/control_statements.h"
#include "tests/support/fake_connection.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>
#include <string>

namespace dn::tests {
namespace {

/// The tests of the connection itself make up their statements.
bool testsTheControl(const testing::TestInfo& test)
{
    return std::string_view(test.file()).find("tests/data/") == std::string_view::npos;
}

/// An apostrophe that was typed takes a statement apart, and so does a marker in a text of the new prospect; what
/// is left has no shape of its own.
bool isTakenApart(std::string_view statement)
{
    const auto isLetter = [](char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); };
    const auto letterBehindValue = [&](char a, char b) { return a == '?' && isLetter(b); };
    if (std::count(statement.begin(), statement.end(), '\'') % 2 != 0) return true;
    const std::string shape = shapeOf(statement);
    return statement.starts_with("INSERT INTO ut_icontact ") &&
           std::adjacent_find(shape.begin(), shape.end(), letterBehindValue) != shape.end();
}

/// What a test brings about by a key that no list of the control has.
bool isOfAnImpossibleRow(std::string_view statement)
{
    return statement == "SELECT * FROM xt_biticontact WHERE uf_Iicontact = x ORDER BY uf_Tiempo";
}

std::set<std::string> listedShapes()
{
    std::set<std::string> shapes;
    for (const Dialect dialect : {Dialect::mySql, Dialect::sqlServer})
        for (const std::string& statement : validStatements(dialect))
            shapes.insert(shapeOf(statement));
    for (const Refused& refused : refusedStatements())
        shapes.insert(shapeOf(refused.text));
    return shapes;
}

class ControlStatementsGuard : public testing::Environment {
public:
    void SetUp() override
    {
        FakeConnection::observeAll([this](std::string_view statement) {
            const testing::TestInfo* const test = testing::UnitTest::GetInstance()->current_test_info();
            if (test == nullptr || !testsTheControl(*test)) return;
            if (isTakenApart(statement) || isOfAnImpossibleRow(statement)) return;
            sent_.try_emplace(shapeOf(statement), std::string(test->test_suite_name()) + "." + test->name());
        });
    }

    void TearDown() override
    {
        const std::set<std::string> listed = listedShapes();
        for (const auto& [shape, test] : sent_)
            EXPECT_TRUE(listed.contains(shape))
                << "tests/support/control_statements.cpp lacks it; sent in " << test << ":\n"
                << shape;
    }

private:
    std::map<std::string, std::string> sent_; // the first test that sent it
};

const testing::Environment* const guard = testing::AddGlobalTestEnvironment(new ControlStatementsGuard);

TEST(ControlStatements, OfOneShapeDifferByTheirValuesAlone)
{
    EXPECT_NE(guard, nullptr);
    EXPECT_EQ(shapeOf("UPDATE t1 SET a='it''s 5', b = -12 WHERE k=7"), "UPDATE t1 SET a=?, b = ? WHERE k=?");
    EXPECT_EQ(
        shapeOf(
            "SELECT a FROM t WHERE a LIKE '%x%' AND b LIKE 'y' AND c > CAST('2026-03-14 10:30:00' AS DATETIME)"),
        "SELECT a FROM t WHERE a LIKE %?% AND b LIKE ? AND c > CAST('0000-00-00 00:00:00' AS DATETIME)");
    EXPECT_NE(shapeOf("SELECT a FROM t WHERE k=7"), shapeOf("SELECT a FROM t WHERE k = 7"));
    EXPECT_TRUE(listedShapes().contains(shapeOf("UPDATE ut_icontact SET uf_IEjecutivo = 3 WHERE Sys_PK=99")));
    EXPECT_FALSE(listedShapes().contains(shapeOf("UPDATE ut_icontact SET uf_IEjecutivo = 3")));
}

} // namespace
} // namespace dn::tests
