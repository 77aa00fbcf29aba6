// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "screen/image_list.h"

#include <gtest/gtest.h>

namespace dn::screen {
namespace {

TEST(ImageList, counts_its_pictures_from_1)
{
    const ImageList images("imgContactos", {"new", "verified"});

    EXPECT_EQ(images.name(), "imgContactos");
    EXPECT_EQ(images.Count(), 2);
    EXPECT_EQ(images.image(1), "new");
    EXPECT_EQ(images.image(2), "verified");
}

TEST(ImageList, has_no_picture_for_0_and_for_numbers_beyond_its_ends)
{
    const ImageList images("imgContactos", {"new", "verified"});

    for (const int number : {0, 3, -1})
        EXPECT_EQ(images.image(number), "") << number;
}

} // namespace
} // namespace dn::screen
