// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "screen/control_array.h"
#include "screen/label.h"
#include "screen/panels.h"
#include "tests/support/element_tree.h"

#include <gmock/gmock.h>

#include <limits>
#include <string>

namespace dn::screen {
namespace {

using testing::ElementsAre;
using testing::ThrowsMessage;

TEST(ControlArray, names_its_members_by_their_index)
{
    UserControl control("control");
    const ControlArray<Label> lblItem(&control, "lblItem", 3);

    EXPECT_EQ(lblItem.Count(), 3);
    EXPECT_THAT(tests::namesIn(control), ElementsAre("lblItem(0)", "lblItem(1)", "lblItem(2)"));
    for (int i = 0; i < 3; ++i)
        EXPECT_EQ(lblItem(i).name(), "lblItem(" + std::to_string(i) + ")");
}

TEST(ControlArray, refuses_a_member_that_does_not_exist_and_says_which)
{
    UserControl control("control");
    const ControlArray<PicturePanel> picItem(&control, "picItem", 2);

    EXPECT_THAT([&] { picItem(2); },
                ThrowsMessage<RuntimeError>("No existe el elemento 2 de la matriz de controles"));
    EXPECT_THAT([&] { picItem(-1); },
                ThrowsMessage<RuntimeError>("No existe el elemento -1 de la matriz de controles"));
    EXPECT_THROW(picItem(std::numeric_limits<int>::max()), RuntimeError);
}

TEST(ControlArray, may_be_empty)
{
    const ControlArray<Label> nothing(nullptr, "nothing", 0);

    EXPECT_EQ(nothing.Count(), 0);
    EXPECT_THROW(nothing(0), RuntimeError);
}

} // namespace
} // namespace dn::screen
