// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The entries of combo and list boxes, and what selecting one raises. Both kinds share it; a combo stands for
// them.

#include "base/runtime_error.h"
#include "screen/combo_box.h"
#include "screen/item_list.h"
#include "screen/list_box.h"
#include "screen/panels.h"
#include "tests/support/listener.h"
#include "tests/support/out_of_reach.h"

#include <gmock/gmock.h>

#include <cstdint>
#include <limits>
#include <string>
#include <vector>

namespace dn::screen {
namespace {

using tests::Listener;

template <class Kind>
struct Entries : testing::Test {
    UserControl control{"control"};
    PicturePanel panel{&control, "panel"};
    Kind list{&panel, "list"};
    Listener clicks{list.Click};

    void fill()
    {
        for (const char* text : {"Recibido", "Descartado", "Sin interés"})
            list.AddItem(text);
    }
};

using Kinds = testing::Types<ComboBox, ListBox>;
TYPED_TEST_SUITE(Entries, Kinds);

TYPED_TEST(Entries, none_at_first)
{
    EXPECT_EQ(this->list.ListCount(), 0);
    EXPECT_EQ(this->list.ListIndex(), -1);
    EXPECT_EQ(this->list.NewIndex(), -1);
}

TYPED_TEST(Entries, are_added_at_the_end_with_item_data_0_and_select_nothing)
{
    const Listener entries(this->list.entriesChanged);

    this->fill();

    EXPECT_EQ(this->list.ListCount(), 3);
    EXPECT_EQ(this->list.List(0), "Recibido");
    EXPECT_EQ(this->list.List(2), "Sin interés");
    EXPECT_EQ(this->list.ItemData(1), 0);
    EXPECT_EQ(this->list.ListIndex(), -1);
    EXPECT_EQ(entries.count(), 3);
    EXPECT_EQ(this->clicks.count(), 0);
}

TYPED_TEST(Entries, carry_item_data_of_32_bits_under_the_new_index)
{
    for (const std::int32_t key : {std::numeric_limits<std::int32_t>::max(), -7}) {
        this->list.AddItem("agente");
        this->list.ItemData(this->list.NewIndex(), key);
    }

    EXPECT_EQ(this->list.NewIndex(), 1);
    EXPECT_EQ(this->list.ItemData(0), std::numeric_limits<std::int32_t>::max());
    EXPECT_EQ(this->list.ItemData(1), -7);
}

TYPED_TEST(Entries, selected_by_code_raise_the_click_only_when_the_index_changes)
{
    this->fill();

    this->list.ListIndex(1);
    EXPECT_EQ(this->list.ListIndex(), 1);
    EXPECT_EQ(this->clicks.count(), 1);

    this->list.ListIndex(1);
    EXPECT_EQ(this->clicks.count(), 1);

    this->list.ListIndex(-1);
    EXPECT_EQ(this->list.ListIndex(), -1);
    EXPECT_EQ(this->clicks.count(), 2);

    this->list.ListIndex(-1);
    EXPECT_EQ(this->clicks.count(), 2);
}

TYPED_TEST(Entries, picked_by_hand_raise_the_click_each_time)
{
    this->fill();

    this->list.pick(2);
    this->list.pick(2);
    this->list.pick("Descartado");
    this->list.pick("Descartado");

    EXPECT_EQ(this->list.ListIndex(), 1);
    EXPECT_EQ(this->clicks.count(), 4);
}

TYPED_TEST(Entries, a_text_that_is_not_there_picks_nothing)
{
    this->fill();
    this->list.pick(0);

    this->list.pick("descartado");
    this->list.pick("");

    EXPECT_EQ(this->list.ListIndex(), 0);
    EXPECT_EQ(this->clicks.count(), 1);
}

TYPED_TEST(Entries, the_first_of_equal_texts_is_picked)
{
    for (const char* text : {"Ana", "Eva", "Eva"})
        this->list.AddItem(text);

    this->list.pick("Eva");

    EXPECT_EQ(this->list.ListIndex(), 1);
}

TYPED_TEST(Entries, the_click_finds_the_new_index)
{
    this->fill();
    std::vector<int> seen;
    const auto watch = this->list.Click.connect([&] { seen.push_back(this->list.ListIndex()); });

    this->list.ListIndex(2);
    this->list.pick(0);

    EXPECT_THAT(seen, testing::ElementsAre(2, 0));
}

TYPED_TEST(Entries, picking_is_refused_out_of_reach_and_code_is_not)
{
    this->fill();
    tests::outOfReach({&this->list, &this->panel, &this->control}, [&] {
        this->list.pick(1);
        this->list.pick("Descartado");
    });
    EXPECT_EQ(this->list.ListIndex(), -1);
    EXPECT_EQ(this->clicks.count(), 0);

    this->panel.Visible(false);
    this->list.ListIndex(1);
    EXPECT_EQ(this->clicks.count(), 1);
}

TYPED_TEST(Entries, Clear_leaves_no_selection_and_raises_nothing)
{
    this->fill();
    this->list.ListIndex(1);
    const Listener entries(this->list.entriesChanged);

    this->list.Clear();

    EXPECT_EQ(this->list.ListCount(), 0);
    EXPECT_EQ(this->list.ListIndex(), -1);
    EXPECT_EQ(this->list.NewIndex(), -1);
    EXPECT_EQ(this->clicks.count(), 1);
    EXPECT_EQ(entries.count(), 1);
}

TYPED_TEST(Entries, an_index_out_of_range_is_an_error_that_changes_nothing)
{
    this->fill();
    this->list.ListIndex(1);

    for (const int index : {-1, 3, std::numeric_limits<int>::max(), std::numeric_limits<int>::min()}) {
        SCOPED_TRACE(index);
        EXPECT_THROW(this->list.List(index), RuntimeError);
        EXPECT_THROW(this->list.ItemData(index), RuntimeError);
        EXPECT_THROW(this->list.ItemData(index, 1), RuntimeError);
        EXPECT_THROW(this->list.pick(index), RuntimeError);
    }
    EXPECT_THROW(this->list.ListIndex(-2), RuntimeError);
    EXPECT_THROW(this->list.ListIndex(3), RuntimeError);

    EXPECT_EQ(this->list.ListIndex(), 1);
    EXPECT_EQ(this->clicks.count(), 1);
}

TYPED_TEST(Entries, the_data_of_the_selected_one_needs_a_selection)
{
    this->fill();
    this->list.ItemData(2, 42);
    EXPECT_THAT([&] { this->list.selectedData(); },
                testing::ThrowsMessage<RuntimeError>("No hay ningún elemento seleccionado en la lista."));

    this->list.ListIndex(2);

    EXPECT_EQ(this->list.selectedData(), 42);
}

} // namespace
} // namespace dn::screen
