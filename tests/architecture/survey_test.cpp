// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The survey itself, on small houses with one fault each: a survey that finds nothing proves nothing.

#include "tests/architecture/survey.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <stdexcept>

namespace dn::tests {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* document = R"(# Map

## Allowed edges

Text ahead of the table, with a `name`.

| Room | Target | May include |
|---|---|---|
| `base` | `core` | |
| `list` | `core` | `base` |
| `list/qt` | `qt` | `base`, `list` |

| `no` | `row` | `of it` |

## Headers from outside

| Headers | Library | Rooms |
|---|---|---|
| `<Q*>` | Qt | `list/qt` |
| `<mysql*.h>` | a database client | |
)";

// A tree that agrees with the map.
class SmallHouse : public testing::Test {
protected:
    SmallHouse()
    {
        std::string name = (fs::temp_directory_path() / "dn-house-XXXXXX").string();
        if (::mkdtemp(name.data()) == nullptr) throw std::runtime_error("no temporary folder");
        root_ = name;
        write("src/base/text.h", "#pragma once\n#include <string>\n");
        write("src/list/list.h", "#include \"base/text.h\"\n");
        write("src/list/list.cpp", "#include \"list/list.h\"\n");
        write("src/list/qt/view.h", "#include \"base/text.h\"\n#include \"list/list.h\"\n\n#include <QWidget>\n");
    }
    ~SmallHouse() override { fs::remove_all(root_); }

    void write(const std::string& file, const std::string& text) const
    {
        fs::create_directories((root_ / file).parent_path());
        std::ofstream(root_ / file) << text;
    }

    std::vector<std::string> found(const std::string& map = document) const
    {
        return findings(readMap(map), includesOf(root_));
    }

    static std::string documentWith(const std::string& old, const std::string& now)
    {
        std::string text = document;
        return text.replace(text.find(old), old.size(), now);
    }

private:
    fs::path root_;
};

TEST_F(SmallHouse, agrees_with_its_map) { EXPECT_THAT(found(), IsEmpty()); }

TEST_F(SmallHouse, an_edge_that_is_not_allowed_is_told_with_file_and_line)
{
    write("src/base/date.cpp", "// a comment\n\n  #  include \"list/list.h\"\n");
    EXPECT_THAT(found(), ElementsAre("src/base/date.cpp:3: base may not include \"list/list.h\""));
}

TEST_F(SmallHouse, a_folder_that_is_on_no_map_is_told)
{
    write("host/window.cpp", "#include \"list/list.h\"\n");
    EXPECT_THAT(found(), ElementsAre("host/window.cpp:1: the folder host is not on the map"));
}

TEST_F(SmallHouse, a_folder_inside_a_room_needs_a_place_on_the_map)
{
    write("src/list/sort/sort.h", "#include <vector>\n");
    EXPECT_THAT(found(), ElementsAre("src/list/sort/sort.h:1: the folder list/sort is not on the map"));
}

TEST_F(SmallHouse, the_folders_of_one_room_include_each_other)
{
    write("src/list/sort/sort.h", "#include \"list/list.h\"\n");
    write("src/list/list.cpp", "#include \"list/sort/sort.h\"\n");
    EXPECT_THAT(found(documentWith("| `list` |", "| `list`, `list/sort` |")), IsEmpty());
}

TEST_F(SmallHouse, an_include_of_the_tests_is_told)
{
    write("src/base/fake.cpp", "#include \"tests/support/fake.h\"\n");
    EXPECT_THAT(found(), ElementsAre("src/base/fake.cpp:1: base may not include \"tests/support/fake.h\""));
}

TEST_F(SmallHouse, an_include_that_does_not_start_at_the_root_is_told)
{
    write("src/base/date.cpp", "#include \"text.h\"\n");
    EXPECT_THAT(found(), ElementsAre("src/base/date.cpp:1: base may not include \"text.h\""));
}

TEST_F(SmallHouse, the_toolkit_outside_its_room_is_told)
{
    write("src/list/list.cpp", "#include <QString>\n");
    EXPECT_THAT(found(), ElementsAre("src/list/list.cpp:1: list may not include <QString>"));
}

TEST_F(SmallHouse, a_database_client_and_a_header_that_no_row_names_are_told)
{
    write("src/list/list.cpp", "#include <mysql.h>\n#include <unistd.h>\n");
    EXPECT_THAT(found(), ElementsAre("src/list/list.cpp:1: list may not include <mysql.h>",
                                     "src/list/list.cpp:2: list may not include <unistd.h>"));
}

TEST_F(SmallHouse, an_edge_that_nobody_uses_is_told)
{
    write("src/list/list.h", "");
    EXPECT_THAT(found(), ElementsAre("the map allows list -> base, which no include uses"));
}

TEST_F(SmallHouse, a_header_from_outside_that_nobody_uses_is_told)
{
    EXPECT_THAT(found(documentWith("client | |", "client | `base` |")),
                ElementsAre("the map allows base -> <mysql*.h>, which no include uses"));
}

TEST_F(SmallHouse, a_room_that_is_gone_is_told)
{
    EXPECT_THAT(found(documentWith("| `base` |", "| `attic` | `core` | |\n| `base` |")),
                ElementsAre("the map has a folder attic that is not there"));
}

TEST_F(SmallHouse, rooms_that_include_each_other_are_told)
{
    write("src/base/date.cpp", "#include \"list/list.h\"\n");
    EXPECT_THAT(found(documentWith("| `base` | `core` | |", "| `base` | `core` | `list` |")),
                ElementsAre("the map has a circle through base", "the map has a circle through list"));
}

TEST(Map, without_its_tables_is_an_error)
{
    EXPECT_THROW(readMap("# Nothing\n"), std::runtime_error);
    EXPECT_THROW(readMap("## Allowed edges\n\n| a | b |\n|---|---|\n| no name | `base` |\n"), std::runtime_error);
}

TEST(Map, does_not_take_a_room_twice)
{
    const std::string rows = "| `base` | |\n| `base` | |\n";
    EXPECT_THROW(readMap("## Allowed edges\n\n| a | b |\n|---|---|\n" + rows), std::runtime_error);
}

TEST(Fits, takes_a_star_for_any_characters)
{
    EXPECT_TRUE(fits("QString", "Q*"));
    EXPECT_TRUE(fits("mysql.h", "mysql*.h"));
    EXPECT_TRUE(fits("mysqld_error.h", "mysql*.h"));
    EXPECT_FALSE(fits("mysql", "mysql*.h"));
    EXPECT_FALSE(fits("xQString", "Q*"));
    EXPECT_FALSE(fits("sql.hpp", "sql.h"));
}

} // namespace
} // namespace dn::tests
