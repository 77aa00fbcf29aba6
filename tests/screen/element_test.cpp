// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// What all elements have in common: their place in a tree of containers, and who may be reached by the operator.

#include "base/runtime_error.h"
#include "screen/element.h"
#include "screen/label.h"
#include "screen/panels.h"
#include "tests/support/element_tree.h"
#include "tests/support/listener.h"

#include <gmock/gmock.h>

#include <memory>
#include <optional>

namespace dn::screen {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using tests::Listener;
using tests::namesIn;

struct ElementTree : testing::Test {
    UserControl control{"control"};
    PicturePanel outer{&control, "outer"};
    PicturePanel inner{&outer, "inner"};
    Label leaf{&inner, "leaf"};
};

TEST_F(ElementTree, knows_names_parents_and_children)
{
    const Label second(&inner, "second");

    EXPECT_EQ(leaf.name(), "leaf");
    EXPECT_EQ(leaf.parent(), &inner);
    EXPECT_EQ(control.parent(), nullptr);
    EXPECT_THAT(namesIn(inner), ElementsAre("leaf", "second"));
    EXPECT_THAT(namesIn(control), ElementsAre("outer"));
}

TEST_F(ElementTree, has_those_that_are_not_named_behind_the_others_in_their_own_order)
{
    Label second(&inner, "second");
    const Label third(&inner, "third");

    inner.frontToBack({&second});

    EXPECT_THAT(namesIn(inner), ElementsAre("second", "leaf", "third"));
}

TEST_F(ElementTree, is_visible_enabled_and_usable_at_first)
{
    EXPECT_TRUE(leaf.Visible());
    EXPECT_TRUE(leaf.Enabled());
    EXPECT_TRUE(leaf.usable());
    EXPECT_TRUE(leaf.shown());
}

TEST_F(ElementTree, hiding_any_ancestor_makes_the_leaf_unusable_and_not_shown)
{
    for (Element* element : std::initializer_list<Element*>{&leaf, &inner, &outer, &control}) {
        SCOPED_TRACE(element->name());
        element->Visible(false);
        EXPECT_FALSE(leaf.usable());
        EXPECT_FALSE(leaf.shown());
        element->Visible(true);
        EXPECT_TRUE(leaf.usable());
        EXPECT_TRUE(leaf.shown());
    }
}

TEST_F(ElementTree, disabling_any_ancestor_makes_the_leaf_unusable_though_shown)
{
    for (Element* element : std::initializer_list<Element*>{&leaf, &inner, &outer, &control}) {
        SCOPED_TRACE(element->name());
        element->Enabled(false);
        EXPECT_FALSE(leaf.usable());
        EXPECT_TRUE(leaf.shown());
        element->Enabled(true);
        EXPECT_TRUE(leaf.usable());
    }
}

TEST_F(ElementTree, a_hidden_ancestor_leaves_the_own_flags_of_the_leaf_alone)
{
    outer.Visible(false);
    outer.Enabled(false);

    EXPECT_TRUE(leaf.Visible());
    EXPECT_TRUE(leaf.Enabled());
}

TEST_F(ElementTree, keeps_its_former_size_when_a_negative_one_is_refused)
{
    leaf.Move(-75, -30, 100, 200);
    const Listener changed(leaf.changed);

    EXPECT_THROW(leaf.Width(-1), RuntimeError);
    EXPECT_THROW(leaf.Height(-1), RuntimeError);

    EXPECT_EQ(leaf.Left(), -75);
    EXPECT_EQ(leaf.Top(), -30);
    EXPECT_EQ(leaf.Width(), 100);
    EXPECT_EQ(leaf.Height(), 200);
    EXPECT_EQ(changed.count(), 0);
}

TEST_F(ElementTree, takes_a_size_of_nothing)
{
    leaf.Move(1, 2, 3, 4);

    leaf.Width(0);
    leaf.Height(0);

    EXPECT_EQ(leaf.Width(), 0);
    EXPECT_EQ(leaf.Height(), 0);
}

TEST_F(ElementTree, a_refused_height_does_not_take_back_the_width_of_the_same_move)
{
    leaf.Move(1, 2, 3, 4);

    EXPECT_THROW(leaf.Move(10, 20, 30, -1), RuntimeError);

    EXPECT_EQ(leaf.Left(), 10);
    EXPECT_EQ(leaf.Top(), 20);
    EXPECT_EQ(leaf.Width(), 30);
    EXPECT_EQ(leaf.Height(), 4);
}

TEST_F(ElementTree, tells_of_a_change_only_when_a_property_becomes_another)
{
    const Listener changed(leaf.changed);

    leaf.Visible(true);
    leaf.Enabled(true);
    leaf.Left(0);
    leaf.ToolTipText("");
    EXPECT_EQ(changed.count(), 0);

    leaf.Visible(false);
    leaf.Enabled(false);
    leaf.Left(1);
    leaf.Top(2);
    leaf.Width(3);
    leaf.Height(4);
    leaf.Align(Align::top);
    leaf.ToolTipText("Agente");
    EXPECT_EQ(changed.count(), 8);
    EXPECT_EQ(leaf.ToolTipText(), "Agente");
}

TEST_F(ElementTree, has_one_focus_for_the_whole_screen)
{
    Label other(&control, "other");
    EXPECT_EQ(control.focused(), nullptr);

    leaf.SetFocus();
    EXPECT_TRUE(leaf.hasFocus());
    EXPECT_EQ(control.focused(), &leaf);
    EXPECT_EQ(inner.focused(), &leaf);

    other.SetFocus();
    EXPECT_FALSE(leaf.hasFocus());
    EXPECT_TRUE(other.hasFocus());
    EXPECT_EQ(inner.focused(), &other);
}

TEST_F(ElementTree, tells_both_elements_when_the_focus_moves_and_nobody_when_it_stays)
{
    Label other(&control, "other");
    leaf.SetFocus();
    const Listener left(leaf.changed);
    const Listener entered(other.changed);

    other.SetFocus();
    other.SetFocus();

    EXPECT_EQ(left.count(), 1);
    EXPECT_EQ(entered.count(), 1);
}

TEST_F(ElementTree, the_outermost_container_takes_no_focus)
{
    control.SetFocus();

    EXPECT_FALSE(control.hasFocus());
    EXPECT_EQ(control.focused(), nullptr);
}

TEST_F(ElementTree, an_element_that_goes_leaves_its_container_and_gives_up_the_focus)
{
    {
        Label guest(&inner, "guest");
        guest.SetFocus();
        ASSERT_EQ(control.focused(), &guest);
    }

    EXPECT_EQ(control.focused(), nullptr);
    EXPECT_THAT(namesIn(inner), ElementsAre("leaf"));
}

TEST_F(ElementTree, an_element_that_goes_leaves_the_focus_of_another_alone)
{
    leaf.SetFocus();
    {
        const Label guest(&inner, "guest");
    }

    EXPECT_EQ(control.focused(), &leaf);
}

TEST(ElementLife, a_child_outlives_its_container)
{
    auto panel = std::make_unique<PicturePanel>(nullptr, "panel");
    Label child(panel.get(), "child");
    panel->Visible(false);
    ASSERT_FALSE(child.usable());

    panel.reset();

    EXPECT_EQ(child.parent(), nullptr);
    EXPECT_TRUE(child.usable());
    child.SetFocus();
    EXPECT_FALSE(child.hasFocus());
}

TEST(ElementLife, a_container_between_goes_ahead_of_its_child_that_has_the_focus)
{
    UserControl control("control");
    auto panel = std::make_unique<PicturePanel>(&control, "panel");
    std::optional<Label> child(std::in_place, panel.get(), "child");
    child->SetFocus();
    ASSERT_EQ(control.focused(), &*child);

    panel.reset();

    EXPECT_EQ(control.focused(), nullptr);
    EXPECT_THAT(namesIn(control), IsEmpty());
    child.reset();
    EXPECT_EQ(control.focused(), nullptr);
}

TEST(ElementLife, the_focus_is_lost_however_deep_it_lies_below_the_container_that_goes)
{
    UserControl control("control");
    auto outer = std::make_unique<PicturePanel>(&control, "outer");
    PicturePanel inner(outer.get(), "inner");
    Label child(&inner, "child");
    Label elsewhere(&control, "elsewhere");
    child.SetFocus();

    outer.reset();
    EXPECT_EQ(control.focused(), nullptr);

    elsewhere.SetFocus();
    EXPECT_EQ(control.focused(), &elsewhere);
    EXPECT_EQ(inner.focused(), nullptr);
}

} // namespace
} // namespace dn::screen
