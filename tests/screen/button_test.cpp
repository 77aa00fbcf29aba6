// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// Push buttons, option buttons and check boxes under the operator's hand and under code.

#include "base/runtime_error.h"
#include "screen/button.h"
#include "screen/panels.h"
#include "tests/support/listener.h"
#include "tests/support/out_of_reach.h"

#include <gmock/gmock.h>

#include <string>
#include <vector>

namespace dn::screen {
namespace {

using testing::ElementsAre;
using tests::Listener;
using tests::outOfReach;

struct Buttons : testing::Test {
    UserControl control{"control"};
    PicturePanel panel{&control, "panel"};
};

TEST_F(Buttons, a_press_raises_the_click_each_time)
{
    Button button(&panel, "button");
    const Listener clicks(button.Click);

    button.press();
    button.press();

    EXPECT_EQ(clicks.count(), 2);
}

TEST_F(Buttons, a_press_is_refused_while_disabled_hidden_or_in_a_panel_that_is)
{
    Button button(&panel, "button");
    const Listener clicks(button.Click);

    outOfReach({&button, &panel, &control}, [&] { button.press(); });
    EXPECT_EQ(clicks.count(), 0);

    button.press();
    EXPECT_EQ(clicks.count(), 1);
}

TEST_F(Buttons, a_button_keeps_its_properties_and_tells_of_each_change_once)
{
    Button button(&panel, "button");
    EXPECT_EQ(button.BackColor(), std::nullopt);
    EXPECT_FALSE(button.Default());
    EXPECT_FALSE(button.Cancel());
    const Listener changed(button.changed);

    for (int round = 0; round < 2; ++round) {
        button.Caption("Llamar");
        button.Picture("call");
        button.BackColor(0x004000);
        button.Default(true);
        button.Cancel(true);
    }

    EXPECT_EQ(changed.count(), 5);
    EXPECT_EQ(button.Caption(), "Llamar");
    EXPECT_EQ(button.Picture(), "call");
    EXPECT_EQ(button.BackColor(), Colour(0x004000));
    EXPECT_TRUE(button.Default());
    EXPECT_TRUE(button.Cancel());
}

struct Options : Buttons {
    OptionButton one{&panel, "one"};
    OptionButton two{&panel, "two"};
    OptionButton outside{&control, "outside"};
    std::vector<std::string> clicks;
    Subscriptions wires;

    Options()
    {
        for (OptionButton* option : {&one, &two, &outside})
            wires.push_back(option->Click.connect([this, option] { clicks.push_back(option->name()); }));
    }
};

TEST_F(Options, the_marked_one_takes_the_mark_off_the_others_of_its_container)
{
    outside.Value(true);
    one.choose();
    two.choose();

    EXPECT_FALSE(one.Value());
    EXPECT_TRUE(two.Value());
    EXPECT_TRUE(outside.Value());
}

TEST_F(Options, only_the_one_that_becomes_marked_raises_its_click)
{
    one.choose();
    two.choose();
    two.choose();

    EXPECT_THAT(clicks, ElementsAre("one", "two"));
}

TEST_F(Options, marking_by_code_raises_the_click_and_taking_the_mark_off_does_not)
{
    one.Value(true);
    one.Value(true);
    one.Value(false);

    EXPECT_THAT(clicks, ElementsAre("one"));
    EXPECT_FALSE(one.Value());
}

TEST_F(Options, taking_a_mark_off_marks_no_other)
{
    one.Value(true);
    one.Value(false);

    EXPECT_FALSE(two.Value());
}

TEST_F(Options, the_others_are_unmarked_by_the_time_of_the_click)
{
    one.choose();
    bool oneDuringClick = true;
    const auto watch = two.Click.connect([&] { oneDuringClick = one.Value(); });

    two.choose();

    EXPECT_FALSE(oneDuringClick);
}

TEST_F(Options, each_that_changes_tells_of_it)
{
    one.choose();
    const Listener oneChanged(one.changed);
    const Listener twoChanged(two.changed);

    two.choose();

    EXPECT_EQ(oneChanged.count(), 1);
    EXPECT_EQ(twoChanged.count(), 1);
}

TEST_F(Options, choosing_is_refused_out_of_reach_and_code_is_not)
{
    outOfReach({&one, &panel, &control}, [&] { one.choose(); });
    EXPECT_FALSE(one.Value());

    panel.Enabled(false);
    one.Value(true);
    EXPECT_TRUE(one.Value());
    EXPECT_THAT(clicks, ElementsAre("one"));
}

TEST_F(Options, other_elements_of_the_container_are_left_alone)
{
    CheckBox check(&panel, "check");
    check.Value(1);

    one.choose();

    EXPECT_EQ(check.Value(), 1);
}

TEST(LoneOption, needs_no_container)
{
    OptionButton option(nullptr, "option");
    option.Caption("Descartar");

    option.choose();

    EXPECT_TRUE(option.Value());
    EXPECT_EQ(option.Caption(), "Descartar");
}

struct Checks : Buttons {
    CheckBox check{&panel, "check"};
    Listener clicks{check.Click};
};

TEST_F(Checks, toggling_marks_and_unmarks_with_a_click_each_time)
{
    EXPECT_EQ(check.Value(), 0);

    check.toggle();
    EXPECT_EQ(check.Value(), 1);
    EXPECT_EQ(clicks.count(), 1);

    check.toggle();
    EXPECT_EQ(check.Value(), 0);
    EXPECT_EQ(clicks.count(), 2);
}

TEST_F(Checks, code_raises_the_click_only_when_the_value_changes)
{
    check.Value(0);
    EXPECT_EQ(clicks.count(), 0);

    check.Value(1);
    check.Value(1);
    EXPECT_EQ(clicks.count(), 1);

    check.Value(0);
    EXPECT_EQ(clicks.count(), 2);
}

TEST_F(Checks, the_click_finds_the_new_value)
{
    int seen = -1;
    const auto watch = check.Click.connect([&] { seen = check.Value(); });

    check.toggle();

    EXPECT_EQ(seen, 1);
}

TEST_F(Checks, other_values_are_an_error_and_change_nothing)
{
    check.Value(1);

    EXPECT_THROW(check.Value(2), RuntimeError);
    EXPECT_THROW(check.Value(-1), RuntimeError);

    EXPECT_EQ(check.Value(), 1);
    EXPECT_EQ(clicks.count(), 1);
}

TEST_F(Checks, toggling_is_refused_out_of_reach)
{
    check.Caption("Seleccionar todos");

    outOfReach({&check, &panel, &control}, [&] { check.toggle(); });

    EXPECT_EQ(check.Value(), 0);
    EXPECT_EQ(clicks.count(), 0);
    EXPECT_EQ(check.Caption(), "Seleccionar todos");
}

} // namespace
} // namespace dn::screen
