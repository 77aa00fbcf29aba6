// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The verdicts on the lists: which figures each bar is held against, at which numbers of rows.

#include "bench/report/list_figures.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>

namespace dn::bench {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

Cost cpu(double milliseconds) { return {.cpu = milliseconds, .wall = 2 * milliseconds}; }

/// A list that keeps each bar, and no more than that.
ListFigures atItsBars(std::size_t rows, double ours)
{
    ListFigures figures;
    figures.name = "prospects";
    figures.rows = rows;
    figures.ours = cpu(ours);
    figures.bare = cpu(ours / 2.5);
    figures.driver = cpu(ours / 2);
    figures.firstPainted = 20;
    figures.firstRow = 10;
    figures.modelFetched = cpu(ours * 8);
    figures.modelColumns = cpu(ours * 8);
    figures.model = cpu(ours * 20);
    figures.tree = cpu(ours * 3);
    return figures;
}

std::vector<std::string> missedBy(const std::vector<ListFigures>& all)
{
    Report report;
    judgeLists(all, report);
    return report.missed();
}

const ListFigures many = atItsBars(manyRows, 100);
const ListFigures most = atItsBars(mostRows, 1100);

TEST(ListVerdicts, bars_that_are_just_kept_are_kept) { EXPECT_THAT(missedBy({many, most}), IsEmpty()); }

TEST(ListVerdicts, each_bar_is_missed_by_its_own_figure)
{
    const auto missedWith = [](const std::function<void(ListFigures&)>& worsen) {
        ListFigures worse = many;
        worsen(worse);
        return missedBy({worse, most});
    };
    EXPECT_THAT(missedWith([](ListFigures& it) { it.bare.cpu *= 0.99; }),
                ElementsAre(HasSubstr("against the bare store_result fetch")));
    EXPECT_THAT(missedWith([](ListFigures& it) { it.modelColumns->cpu *= 0.99; }),
                ElementsAre(HasSubstr("all rows read, as many columns")));
    EXPECT_THAT(missedWith([](ListFigures& it) { it.modelFetched->cpu *= 0.99; }),
                ElementsAre(HasSubstr("all rows fetched and hardly any read")));
    EXPECT_THAT(missedWith([](ListFigures& it) { it.firstPainted = 21; }),
                ElementsAre(HasSubstr("first row painted against first row at use_result, wall")));
    EXPECT_THAT(missedWith([](ListFigures& it) {
                    it.ours.cpu *= 0.99; // all the better, but for what it grows by
                }),
                ElementsAre("prospects: growth of the load from 100,000 to 1,000,000 rows, client CPU"));
}

TEST(ListVerdicts, short_lists_are_judged_as_well)
{
    ListFigures few = atItsBars(1000, 50);
    few.bare = cpu(1);
    EXPECT_THAT(missedBy({few, many, most}),
                ElementsAre("prospects, 1,000 rows: load to the first frame against the bare store_result fetch, "
                            "client CPU"));
}

TEST(ListVerdicts, what_is_missing_is_missed)
{
    EXPECT_THAT(missedBy({many}),
                ElementsAre("prospects: growth of the load from 100,000 to 1,000,000 rows, client "
                            "CPU (not measured)"));
    ListFigures without = many;
    without.modelColumns.reset();
    without.modelFetched.reset();
    EXPECT_THAT(missedBy({without, most}), ElementsAre(HasSubstr("as many columns, client CPU (not measured)"),
                                                       HasSubstr("hardly any read, client CPU (not measured)")));
}

TEST(ListTables, show_processor_and_clock_apart)
{
    ListFigures figures = many;
    figures.tree.reset();
    EXPECT_THAT(listsAsMarkdown({figures}),
                HasSubstr("\n| prospects | 100,000 | 100 | 40.0 | 2.50 | 800 | 800 | 2,000 | not measured |\n"));
    EXPECT_THAT(
        wallAsMarkdown({figures}),
        HasSubstr("\n| prospects | 100,000 | 200 | 20.0 | 10.0 | 80.0 | 1,600 | 1,600 | not measured |\n"));
    EXPECT_THAT(sharesAsMarkdown({figures}), HasSubstr("\n| prospects | 100,000 | 0.00 | 50.0 | 50.0 |\n"));
}

TEST(ListTables, the_picture_has_a_line_for_each_way_and_each_list)
{
    EXPECT_THAT(panelsOf({}), IsEmpty());
    const std::vector<Panel> panels = panelsOf({many, most});
    ASSERT_EQ(panels.size(), 2U);
    EXPECT_EQ(panels[0].lines.size(), 5U);
    ASSERT_EQ(panels[1].lines.size(), 1U);
    EXPECT_EQ(panels[1].lines[0].name, "prospects");
    EXPECT_THAT(panels[1].lines[0].points,
                ElementsAre(testing::Pair(100'000, 100), testing::Pair(1'000'000, 1100)));
}

} // namespace
} // namespace dn::bench
