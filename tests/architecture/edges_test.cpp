// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The map in docs/architecture.md against the #include lines of the sources: neither may know what the other does
// not.

#include "tests/architecture/survey.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>
#include <iterator>

namespace dn::tests {
namespace {

const std::filesystem::path root = DN_SOURCE_DIR;

Map mapOfTheDocument()
{
    std::ifstream document(root / "docs/architecture.md");
    return readMap({std::istreambuf_iterator<char>(document), {}});
}

TEST(Edges, every_include_stands_on_the_map_and_every_edge_of_the_map_is_used)
{
    const std::vector<Include> includes = includesOf(root);
    ASSERT_GT(includes.size(), 100U) << "the sources were not found";
    for (const std::string& finding : findings(mapOfTheDocument(), includes))
        ADD_FAILURE() << finding;
}

TEST(Edges, the_core_uses_the_standard_library_alone)
{
    for (const OutsideHeaders& row : mapOfTheDocument().outside)
        for (const std::string& room : row.rooms)
            EXPECT_TRUE(room.starts_with("host") || room.starts_with("screen/qt") || room.starts_with("data/"))
                << room << " may include <" << row.pattern << ">";
}

} // namespace
} // namespace dn::tests
