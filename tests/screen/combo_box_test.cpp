// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The text of a combo: that of the selected entry, or what the operator typed.

#include "base/runtime_error.h"
#include "screen/combo_box.h"
#include "screen/panels.h"
#include "tests/support/listener.h"

#include <gtest/gtest.h>

#include <string>

namespace dn::screen {
namespace {

using tests::Listener;

struct Combo : testing::Test {
    UserControl control{"control"};
    ComboBox combo{&control, "combo"};
    Listener changes{combo.Change};

    Combo()
    {
        combo.AddItem("Presentación");
        combo.AddItem("Seguimiento");
    }
};

TEST_F(Combo, shows_the_text_of_the_selected_entry)
{
    EXPECT_EQ(combo.Text(), "");

    combo.ListIndex(1);
    EXPECT_EQ(combo.Text(), "Seguimiento");

    combo.ListIndex(-1);
    EXPECT_EQ(combo.Text(), "");
}

TEST_F(Combo, shows_the_new_text_by_the_time_of_the_click)
{
    std::string seen;
    const auto watch = combo.Click.connect([&] { seen = combo.Text(); });

    combo.pick(0);

    EXPECT_EQ(seen, "Presentación");
    EXPECT_EQ(changes.count(), 0);
}

TEST_F(Combo, tells_its_view_that_a_pick_reads_anew)
{
    EXPECT_FALSE(combo.readsAnew());
    const Listener changed(combo.changed);
    combo.readsAnew(true);
    combo.readsAnew(true);
    EXPECT_TRUE(combo.readsAnew());
    EXPECT_EQ(changed.count(), 1);
}

TEST_F(Combo, with_fixed_entries_takes_no_text)
{
    combo.ListIndex(0);

    EXPECT_THROW(combo.Text("otra"), RuntimeError);
    combo.edit("otra");

    EXPECT_EQ(combo.Text(), "Presentación");
    EXPECT_EQ(changes.count(), 0);
}

TEST_F(Combo, an_editable_one_takes_a_text_and_keeps_its_selection)
{
    combo.editable(true);
    combo.ListIndex(0);

    combo.edit("Visita");

    EXPECT_TRUE(combo.editable());
    EXPECT_EQ(combo.Text(), "Visita");
    EXPECT_EQ(combo.ListIndex(), 0);
    EXPECT_EQ(changes.count(), 1);
}

TEST_F(Combo, raises_Change_only_when_the_typed_text_becomes_another)
{
    combo.editable(true);
    const Listener clicks(combo.Click);

    combo.Text("Visita");
    combo.Text("Visita");
    combo.edit("Visita");

    EXPECT_EQ(changes.count(), 1);
    EXPECT_EQ(clicks.count(), 0);
}

TEST_F(Combo, picking_the_selected_entry_again_brings_its_text_back)
{
    combo.editable(true);
    combo.pick(1);
    combo.edit("Seguimiento pronto");

    combo.pick(1);

    EXPECT_EQ(combo.Text(), "Seguimiento");
}

TEST_F(Combo, editing_is_refused_out_of_reach)
{
    combo.editable(true);

    combo.Enabled(false);
    combo.edit("x");
    combo.Enabled(true);
    control.Visible(false);
    combo.edit("x");

    EXPECT_EQ(combo.Text(), "");
    EXPECT_EQ(changes.count(), 0);
}

TEST_F(Combo, Clear_empties_the_text)
{
    combo.editable(true);
    combo.edit("a medias");

    combo.Clear();

    EXPECT_EQ(combo.Text(), "");
    EXPECT_EQ(changes.count(), 1);
}

} // namespace
} // namespace dn::screen
