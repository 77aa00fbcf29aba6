// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The order of rows by their texts, held against a plain sort by comparing.

#include "base/collation.h"
#include "screen/row_order.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <array>
#include <numeric>
#include <random>
#include <string>

namespace dn::screen {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using Order = std::vector<RowOrder::RowNumber>;

Order sorted(const std::vector<std::string>& texts, bool descending)
{
    RowOrder order(texts.size());
    for (std::size_t i = 0; i < texts.size(); ++i)
        order.add(static_cast<RowOrder::RowNumber>(i), texts[i]);
    return order.sorted(descending);
}

Order compared(const std::vector<std::string>& texts, bool descending)
{
    Order rows(texts.size());
    std::iota(rows.begin(), rows.end(), 0U);
    std::stable_sort(rows.begin(), rows.end(), [&](auto left, auto right) {
        const int order = compareSpanish(texts[left], texts[right]);
        return descending ? order > 0 : order < 0;
    });
    return rows;
}

TEST(RowOrder, of_no_rows_is_none)
{
    EXPECT_THAT(sorted({}, false), IsEmpty());
    EXPECT_THAT(sorted({"a"}, true), ElementsAre(0));
}

TEST(RowOrder, gives_the_numbers_that_came_with_the_texts)
{
    RowOrder order(3);
    order.add(7, "b");
    order.add(3, "ñ");
    order.add(5, "A");
    EXPECT_THAT(order.sorted(false), ElementsAre(5, 7, 3));
}

TEST(RowOrder, looks_beyond_the_first_letters_and_leaves_equals_as_they_came)
{
    const std::string common(20, 'x');
    const std::vector<std::string> texts{common + "b", common, common + "á", common + "A", common + "a", common};
    EXPECT_THAT(sorted(texts, false), ElementsAre(1, 5, 3, 4, 2, 0));
    EXPECT_THAT(sorted(texts, true), ElementsAre(0, 2, 3, 4, 1, 5));
}

class RowOrders : public testing::TestWithParam<std::size_t> {};

// Few words in many combinations: texts of one beginning, of one text, of one text but for an accent or its case.
TEST_P(RowOrders, are_those_of_a_plain_sort)
{
    constexpr std::array<const char*, 16> words{
        "",     "José ", "JOSÉ ", "Jose ", "María ", "Ñúñez ", "Nunez ", "a",
        "Зоя ", "😀",     "日本 ", "á",     " ",      "10",     "\xFF",   "Comercializadora del Golfo "};
    std::mt19937 random(20260314); // NOLINT(cert-msc32-c,cert-msc51-cpp): the same texts in every run
    std::uniform_int_distribution<std::size_t> word(0, words.size() - 1);
    std::vector<std::string> texts(GetParam());
    for (std::string& text : texts)
        for (int i = 0; i < 3; ++i)
            text += words[word(random)];
    for (const bool descending : {false, true})
        EXPECT_TRUE(sorted(texts, descending) == compared(texts, descending)) << descending;
}

INSTANTIATE_TEST_SUITE_P(OfAllLengths, RowOrders, testing::Values(2, 17, 255, 256, 1'000, 20'000));

} // namespace
} // namespace dn::screen
