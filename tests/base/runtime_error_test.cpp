// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "base/runtime_error.h"

#include <gtest/gtest.h>

namespace dn {
namespace {

TEST(RuntimeErrors, SpeakSpanish)
{
    EXPECT_STREQ(RuntimeError::overflow().what(), "Desbordamiento");
    EXPECT_STREQ(RuntimeError::invalidUseOfNull().what(), "Uso no válido de Null");
    EXPECT_STREQ(RuntimeError::typeMismatch().what(), "No coinciden los tipos");
    EXPECT_STREQ(RuntimeError::objectNotSet().what(), "Variable de objeto no establecida");
}

} // namespace
} // namespace dn
