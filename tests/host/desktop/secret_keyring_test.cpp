// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The desktop's keyring. `with_keyring` runs these where there is one, and where there is none.

#include "host/desktop/secret_keyring.h"

#include <gtest/gtest.h>

namespace dn::host {
namespace {

TEST(NoKeyring, answers_nothing_keeps_nothing_and_hangs_nobody)
{
    SecretKeyring keyring;
    EXPECT_FALSE(keyring.answers());
    EXPECT_EQ(keyring.find("ana@servidor/base"), std::nullopt);
    EXPECT_FALSE(keyring.keep("ana@servidor/base", "clave secreta"));
    keyring.forget("ana@servidor/base");
}

TEST(SecretKeyringAtWork, keeps_one_password_for_each_account_until_it_forgets)
{
    SecretKeyring keyring;
    ASSERT_TRUE(keyring.answers());
    EXPECT_EQ(keyring.find("ana@servidor/base"), std::nullopt);
    EXPECT_TRUE(keyring.keep("ana@servidor/base", "clave secreta"));
    EXPECT_TRUE(keyring.keep("luis@servidor/base", "ñandú €"));
    EXPECT_EQ(keyring.find("ana@servidor/base"), "clave secreta");
    EXPECT_EQ(keyring.find("luis@servidor/base"), "ñandú €");
    EXPECT_TRUE(keyring.keep("ana@servidor/base", "otra clave secreta"));
    EXPECT_EQ(SecretKeyring().find("ana@servidor/base"), "otra clave secreta");
    keyring.forget("ana@servidor/base");
    EXPECT_EQ(keyring.find("ana@servidor/base"), std::nullopt);
    EXPECT_EQ(keyring.find("luis@servidor/base"), "ñandú €");
}

} // namespace
} // namespace dn::host
