// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// Amounts as operators type them.

#include "host/screens/amount.h"

#include <gtest/gtest.h>

namespace dn::host::tests {
namespace {

TEST(Amount, is_read_with_and_without_separators)
{
    EXPECT_EQ(readAmount("1234.50"), "1234.50");
    EXPECT_EQ(readAmount("1,234.50"), "1234.50");
    EXPECT_EQ(readAmount(" 12,345,678 "), "12345678");
    EXPECT_EQ(readAmount("$ 5"), "5");
    EXPECT_EQ(readAmount(".5"), "0.5");
    EXPECT_EQ(readAmount("007."), "7");
    EXPECT_EQ(readAmount("0"), "0");
    EXPECT_EQ(readAmount("999999999999999.99"), "999999999999999.99");
}

TEST(Amount, is_refused_when_it_may_mean_something_else)
{
    for (const char* text : {"", " ", ".", "$", "-1", "+1", "1,23", "12,34.5", "1234,567", ",123", "1,,234",
                             "1.234", "1.2.3", "1e5", "12 000", "abc", "1234567890123456", "１"})
        EXPECT_EQ(readAmount(text), std::nullopt) << text;
}

} // namespace
} // namespace dn::host::tests
