// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "desk/session.h"

#include <gmock/gmock.h>

#include <cstdint>

namespace dn::desk {
namespace {

TEST(Session, starts_without_rights_keys_call_and_engine)
{
    const Session session;

    EXPECT_EQ(session.PKAgente, 0);
    EXPECT_FALSE(session.GAdmon);
    EXPECT_EQ(session.MotorBD, 0);
    EXPECT_FALSE(session.Call_Progress);
    EXPECT_EQ(session.Call_PK, 0);
    EXPECT_EQ(session.oUICRM, nullptr);
}

TEST(Session, asks_for_a_connection_before_it_lends_one)
{
    const Session session;

    EXPECT_THAT([&] { session.cnn(); }, testing::ThrowsMessage<RuntimeError>("Variable de objeto no establecida"));
}

TEST(Session, takes_the_forms_of_MySQL_for_1_alone)
{
    Session session;
    for (const std::int16_t engine : {std::int16_t{0}, std::int16_t{1}, std::int16_t{2}, std::int16_t{-1}}) {
        session.MotorBD = engine;
        EXPECT_EQ(session.isMySql(), engine == 1) << engine;
    }
}

} // namespace
} // namespace dn::desk
