// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "data/odbc/connection_string.h"

#include <gtest/gtest.h>

namespace dn::data::odbc {
namespace {

const TimeOuts timeOuts{std::chrono::seconds(3), std::chrono::seconds(7)};

TEST(ConnectionString, GetsTimeOutsAndCharacterSets)
{
    EXPECT_EQ(completed("DRIVER=x;UID=y", timeOuts),
              "DRIVER=x;UID=y;CONN_TIMEOUT=3;READ_TIMEOUT=7;WRITE_TIMEOUT=7;CHARSET=utf8mb4;ClientCharset=UTF-8");
    EXPECT_EQ(completed("DSN=x;", timeOuts),
              "DSN=x;CONN_TIMEOUT=3;READ_TIMEOUT=7;WRITE_TIMEOUT=7;CHARSET=utf8mb4;ClientCharset=UTF-8");
}

TEST(ConnectionString, KeepsWhatTheHostSays)
{
    EXPECT_EQ(completed("DSN=x;read_timeout=1;Charset=latin1", timeOuts),
              "DSN=x;read_timeout=1;Charset=latin1;CONN_TIMEOUT=3;WRITE_TIMEOUT=7;ClientCharset=UTF-8");
}

TEST(ConnectionString, KeywordsAreFoundWithoutRegardToCaseAndOutsideOfValues)
{
    EXPECT_TRUE(hasKeyword("Driver={a};uid=b", "UID"));
    EXPECT_TRUE(hasKeyword("A=1; Uid =b", "UID"));
    EXPECT_FALSE(hasKeyword("DRIVER=UID;X=1", "UID"));
    EXPECT_FALSE(hasKeyword("PWD={a;UID=b};X=1", "UID"));
    EXPECT_FALSE(hasKeyword("PWD={a}};UID=b};X=1", "UID"));
    EXPECT_TRUE(hasKeyword("PWD={a}}};UID=b", "UID"));
    EXPECT_FALSE(hasKeyword("PWD={never closed;UID=b", "UID"));
    EXPECT_TRUE(hasKeyword("A=1;;UID=b", "UID")) << "a semicolon too many";
    EXPECT_FALSE(hasKeyword("", "UID"));
    EXPECT_FALSE(hasKeyword("UID", "UID"));
}

} // namespace
} // namespace dn::data::odbc
