// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The captioned list of options with their keys.

#include "base/runtime_error.h"
#include "screen/option_list_field.h"
#include "tests/support/element_tree.h"

#include <gmock/gmock.h>

namespace dn::tests {
namespace {

using testing::ElementsAre;

struct OptionListField : testing::Test {
    screen::Form form{"dlg"};
    screen::eOptionLstField field{&form, "dxColor"};

    OptionListField() { form.Visible(true); }
};

TEST_F(OptionListField, keeps_the_key_of_each_entry)
{
    field.AddOption(99, "Todos");
    field.AddOption(0, "Negro");
    field.AddOption(-2'147'483'647, "Otro");
    EXPECT_EQ(field.OptionCount(), 3);
    EXPECT_EQ(field.InnerList().ListIndex(), -1);
    EXPECT_THROW(field.SelectedKey(), RuntimeError);
    field.InnerList().ListIndex(0);
    EXPECT_EQ(field.SelectedKey(), 99);
    field.InnerList().pick("Otro");
    EXPECT_EQ(field.SelectedKey(), -2'147'483'647);
    EXPECT_THROW(field.InnerList().ListIndex(3), RuntimeError);
}

TEST_F(OptionListField, gives_the_list_what_the_caption_leaves_of_the_width)
{
    field.caption("Color:");
    field.titleWidth(1200);
    field.Move(180, 90, 4200, 345);
    field.TabIndex(7);
    EXPECT_EQ(field.caption(), "Color:");
    const auto& title = elementNamed<screen::Label>(form, "dxColor.caption");
    const auto& list = elementNamed<screen::ComboBox>(form, "dxColor.InnerList");
    EXPECT_THAT((std::vector{title.Left(), title.Top(), title.Width(), title.Height()}),
                ElementsAre(0, 45, 1200, 255));
    EXPECT_THAT((std::vector{list.Left(), list.Top(), list.Width(), list.Height()}),
                ElementsAre(1200, 0, 3000, 345));
    EXPECT_EQ(title.TabIndex(), 7);
    EXPECT_EQ(list.TabIndex(), 7);
    field.Width(600);
    EXPECT_EQ(title.Width(), 600);
    EXPECT_EQ(list.Width(), 0);
}

TEST_F(OptionListField, takes_no_choice_while_it_is_disabled)
{
    field.AddOption(1, "Uno");
    field.Enabled(false);
    field.InnerList().pick(0);
    EXPECT_EQ(field.InnerList().ListIndex(), -1);
}

} // namespace
} // namespace dn::tests
