// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// What the benchmarks make of their measurements: percentiles, verdicts, the document and its picture.

#include "bench/report/document.h"
#include "bench/report/percentiles.h"
#include "bench/report/plot.h"
#include "bench/report/report.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>

namespace dn::bench {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

TEST(Percentiles, are_values_that_were_measured)
{
    std::vector<double> hundred;
    for (int i = 100; i >= 1; --i)
        hundred.push_back(i);
    EXPECT_EQ(percentile(hundred, 0.5), 50);
    EXPECT_EQ(percentile(hundred, 0.99), 99);
    EXPECT_EQ(percentile(hundred, 1), 100);
    EXPECT_EQ(percentile(hundred, 0.001), 1);
    hundred.push_back(1000);
    EXPECT_EQ(percentile(hundred, 0.99), 100);
}

TEST(Percentiles, of_few_values)
{
    EXPECT_EQ(percentile({}, 0.5), 0);
    EXPECT_EQ(percentile({7}, 0.5), 7);
    EXPECT_EQ(percentile({7}, 0.99), 7);
    EXPECT_EQ(percentile({2, 1}, 0.5), 1);
    EXPECT_EQ(percentile({2, 1}, 0.51), 2);
}

TEST(Reports, a_value_at_its_bar_keeps_it)
{
    Report report;
    report.bar("load", 2.5, 2.5, "times");
    EXPECT_THAT(report.missed(), IsEmpty());
    EXPECT_EQ(report.status(), 0);
    report.bar("sort", 2.51, 2.5, "times");
    report.wrong("search", "nothing found");
    report.figure("wall", 12, "ms");
    EXPECT_THAT(report.missed(), ElementsAre("sort", "search (wrong answer: nothing found)"));
    EXPECT_EQ(report.status(), 1);
}

TEST(Reports, what_was_not_measured_or_gave_a_wrong_answer_keeps_no_bar)
{
    Report wrong;
    wrong.wrong("search", "nothing found");
    EXPECT_EQ(wrong.status(), 1);
    Report missing;
    missing.notMeasured("search in a million");
    EXPECT_EQ(missing.status(), 1);
    EXPECT_THAT(missing.missed(), ElementsAre("search in a million (not measured)"));
    EXPECT_THAT(missing.barsAsMarkdown(), HasSubstr("| search in a million | - |  | NOT MEASURED |"));
}

TEST(Reports, bars_and_figures_are_tables_of_their_own)
{
    Report report;
    report.bar("against a tree", 0.08, 1.0 / 8, "times");
    report.figure("wall", 1234.4, "ms");
    EXPECT_EQ(report.barsAsMarkdown(), "| What | Measured | Bar | |\n|---|--:|--:|---|\n"
                                       "| against a tree | 1/12.5 | at most 1/8.00 | kept |\n");
    EXPECT_EQ(report.figuresAsMarkdown(), "| What | Measured |\n|---|--:|\n| wall | 1,234 ms |\n");
    EXPECT_THAT(report.table(), HasSubstr("1/12.5"));
}

TEST(Reports, numbers_show_three_digits_that_count)
{
    EXPECT_EQ(readable(0), "0.00");
    EXPECT_EQ(readable(0.126), "0.13");
    EXPECT_EQ(readable(12.34), "12.3");
    EXPECT_EQ(readable(123.4), "123");
    EXPECT_EQ(readable(1'234'567), "1,234,567");
    EXPECT_EQ(readable(-123), "-123");
    EXPECT_EQ(readable(-1234), "-1,234");
}

const std::string handWritten =
    "# Speed\nby hand\n" + std::string(figuresBegin) + "\nold\n" + std::string(figuresEnd) + "\nmore by hand\n";

TEST(Documents, only_what_lies_between_the_marks_is_written_anew)
{
    const std::string once = withFigures(handWritten, "new");
    EXPECT_EQ(once, "# Speed\nby hand\n" + std::string(figuresBegin) + "\n\nnew\n" + std::string(figuresEnd) +
                        "\nmore by hand\n");
    EXPECT_EQ(withFigures(once, "new"), once);
}

TEST(Documents, marks_that_are_missing_double_or_turned_round_are_refused)
{
    const std::string begin(figuresBegin);
    const std::string end(figuresEnd);
    for (const std::string& document :
         {std::string(), begin, end, begin + begin + end, begin + end + end, end + begin})
        EXPECT_THROW(withFigures(document, "new"), std::runtime_error) << document;
}

TEST(Documents, a_file_that_lacks_the_marks_stays_as_it_was)
{
    const auto path = std::filesystem::temp_directory_path() / "dn_document_test.md";
    const auto contents = [&] {
        std::ifstream file(path);
        return std::string{std::istreambuf_iterator<char>(file), {}};
    };
    std::ofstream(path) << "by hand";
    EXPECT_THROW(writeFigures(path, "new"), std::runtime_error);
    EXPECT_EQ(contents(), "by hand");
    std::ofstream(path) << handWritten;
    writeFigures(path, "new");
    EXPECT_EQ(contents(), withFigures(handWritten, "new"));
    std::filesystem::remove(path);
    EXPECT_THROW(writeFigures(path, "new"), std::runtime_error);
}

std::size_t countOf(const std::string& text, const std::string& part)
{
    std::size_t count = 0;
    for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + 1))
        ++count;
    return count;
}

TEST(Reports, growth_is_measured_between_different_numbers_alone)
{
    Report report;
    report.growth("load", 100, 1000, 2, 22, 11);
    EXPECT_THAT(report.missed(), IsEmpty());
    report.growth("sort", 100, 1000, 2, 22.1, 11);
    report.growth("search", 100, 100, 2, 2, 11);
    EXPECT_THAT(report.missed(), ElementsAre(HasSubstr("sort: growth from 100 to 1,000 rows"),
                                             HasSubstr("search: growth from 100 to 100 rows (not measured)")));
}

TEST(Plots, equal_ratios_are_equal_distances)
{
    const std::string svg = svgOf({{"load", {{"ours", {{1000, 1}, {10'000, 10}, {100'000, 100}}}}}});
    // From 64 to 390 across and from 368 to 48 upwards, two decades each.
    EXPECT_THAT(svg, HasSubstr("d=\"M64.0 368.0 L227.0 208.0 L390.0 48.0\""));
    EXPECT_THAT(svg, HasSubstr(">10,000</text>"));
    EXPECT_THAT(svg, HasSubstr(">100 ms</text>"));
    EXPECT_THAT(svg, HasSubstr("prefers-color-scheme: dark"));
}

TEST(Plots, names_do_not_lie_on_each_other)
{
    const std::string svg = svgOf({{"", {{"a", {{1, 100}}}, {"b", {{1, 100}}}, {"c", {{1, 10}}}}}});
    EXPECT_THAT(svg, HasSubstr("y=\"52.0\" class=\"name c0\""));
    EXPECT_THAT(svg, HasSubstr("y=\"68.0\" class=\"name c1\""));
    EXPECT_THAT(svg, HasSubstr("y=\"372.0\" class=\"name c2\""));
}

TEST(Plots, what_has_no_logarithm_is_left_out)
{
    const std::string svg = svgOf({{"none", {{"empty", {}}}}, {"one", {{"a < b", {{0, 5}, {10, 5}, {100, 0}}}}}});
    EXPECT_EQ(countOf(svg, "<circle"), 1U);
    EXPECT_EQ(countOf(svg, "<path"), 1U);
    EXPECT_THAT(svg, Not(HasSubstr("nan")));
    EXPECT_THAT(svg, Not(HasSubstr("inf")));
    EXPECT_THAT(svg, HasSubstr("a &lt; b"));
}

} // namespace
} // namespace dn::bench
