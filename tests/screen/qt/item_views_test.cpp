// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// Combo boxes and list boxes under the mouse and the keyboard.

#include "screen/combo_box.h"
#include "screen/list_box.h"
#include "tests/screen/qt/stage.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QListView>
#include <QWheelEvent>

namespace dn::tests {
namespace {

using namespace dn::screen;

class ItemViewsTest : public StageTest {
protected:
    ItemViewsTest()
    {
        place(fixed, 10, 10, 150, 21);
        place(typed, 10, 40, 150, 21);
        place(plain, 10, 80, 150, 100);
        place(checks, 200, 80, 150, 100);
        typed.editable(true);
        checks.checkBoxes(true);
        for (ItemList* list : {static_cast<ItemList*>(&fixed), static_cast<ItemList*>(&typed),
                               static_cast<ItemList*>(&plain), static_cast<ItemList*>(&checks)})
            for (const char* text : {"uno", "dos", "tres"})
                list->AddItem(text);
        wires.push_back(fixed.Click.connect([this] { picked.push_back(fixed.ListIndex()); }));
        wires.push_back(typed.Click.connect([this] { picked.push_back(typed.ListIndex()); }));
        wires.push_back(plain.Click.connect([this] { picked.push_back(plain.ListIndex()); }));
        wires.push_back(plain.DblClick.connect([this] { picked.push_back(100 + plain.ListIndex()); }));
    }
    ~ItemViewsTest() override { view.reset(); }

    static QPoint at(const QListView& list, int row)
    {
        return list.visualRect(list.model()->index(row, 0)).center();
    }

    std::vector<int> picked;
    ComboBox fixed{&root, "cbFixed"};
    ComboBox typed{&root, "cbTyped"};
    ListBox plain{&root, "lstPlain"};
    ListBox checks{&root, "lstChecks"};
    Subscriptions wires;
};

TEST_F(ItemViewsTest, a_combo_selects_what_the_element_selects_and_no_more)
{
    show();
    auto& combo = widget<QComboBox>("cbFixed");
    EXPECT_EQ(combo.count(), 3);
    EXPECT_EQ(combo.currentIndex(), -1);
    fixed.ListIndex(2);
    EXPECT_EQ(combo.currentText(), QStringLiteral("tres"));
    fixed.Clear();
    EXPECT_EQ(combo.count(), 0);
    fixed.AddItem("otro");
    EXPECT_EQ(combo.count(), 1);
    EXPECT_EQ(combo.currentIndex(), -1); // the widget by itself would select the first entry
    EXPECT_THAT(picked, testing::ElementsAre(2));
}

TEST_F(ItemViewsTest, picking_by_hand_raises_the_click_also_for_the_selected_entry)
{
    show();
    auto& combo = widget<QComboBox>("cbFixed");
    QTest::mouseClick(&combo, Qt::LeftButton);
    QAbstractItemView& list = *combo.view();
    waitUntil([&] { return list.isVisible(); });
    for (int round = 0; round < 2; ++round) {
        combo.showPopup();
        list.setCurrentIndex(combo.model()->index(1, 0));
        QTest::keyClick(&list, Qt::Key_Return);
    }
    EXPECT_THAT(picked, testing::ElementsAre(1, 1));
    QTest::keyClick(&combo, Qt::Key_Down);
    EXPECT_EQ(fixed.ListIndex(), 2);
}

TEST_F(ItemViewsTest, the_hourglass_shows_while_a_pick_reads_anew)
{
    fixed.readsAnew(true);
    std::vector<bool> shown;
    const auto noted = [&] { shown.push_back(QApplication::overrideCursor() != nullptr); };
    wires.push_back(fixed.Click.connect(noted));
    wires.push_back(typed.Click.connect(noted));
    show();
    QTest::keyClick(&widget<QComboBox>("cbFixed"), Qt::Key_Down);
    QTest::keyClick(&widget<QComboBox>("cbTyped"), Qt::Key_Down);
    EXPECT_THAT(shown, testing::ElementsAre(true, false)) << "the other one may ask something";
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

TEST_F(ItemViewsTest, the_hourglass_is_gone_when_a_failure_of_a_pick_is_told)
{
    fixed.readsAnew(true);
    bool told = false;
    guard.onError([&](const std::exception&) { told = QApplication::overrideCursor() == nullptr; });
    wires.push_back(fixed.Click.connect([] { throw std::runtime_error("no hay conexión"); }));
    show();
    QTest::keyClick(&widget<QComboBox>("cbFixed"), Qt::Key_Down);
    EXPECT_TRUE(told);
}

TEST_F(ItemViewsTest, the_wheel_over_a_closed_combo_changes_nothing)
{
    fixed.ListIndex(0);
    show();
    picked.clear();
    auto& combo = widget<QComboBox>("cbFixed");
    QWheelEvent wheel({5, 5}, combo.mapToGlobal(QPoint(5, 5)), {}, {0, -120}, Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(&combo, &wheel);
    EXPECT_EQ(fixed.ListIndex(), 0);
    EXPECT_THAT(picked, testing::IsEmpty());
}

TEST_F(ItemViewsTest, an_editable_combo_takes_a_text_of_the_operators_own)
{
    show();
    auto& combo = widget<QComboBox>("cbTyped");
    QTest::mouseClick(combo.lineEdit(), Qt::LeftButton);
    QTest::keyClicks(combo.lineEdit(), QStringLiteral("dos"));
    EXPECT_EQ(typed.Text(), "dos");
    EXPECT_EQ(typed.ListIndex(), -1); // an equal entry is not picked
    QTest::keyClick(combo.lineEdit(), Qt::Key_Tab);
    EXPECT_THAT(picked, testing::IsEmpty());
    typed.Text("otra");
    EXPECT_EQ(combo.currentText(), QStringLiteral("otra"));
    typed.ListIndex(0);
    EXPECT_EQ(combo.currentText(), QStringLiteral("uno"));
}

TEST_F(ItemViewsTest, a_list_box_is_picked_double_clicked_and_walked)
{
    show();
    auto& list = widget<QListView>("lstPlain");
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, at(list, 1));
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, at(list, 1));
    EXPECT_THAT(picked, testing::ElementsAre(1, 1));
    QTest::keyClick(&list, Qt::Key_Down);
    EXPECT_EQ(plain.ListIndex(), 2);
    picked.clear();
    QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, at(list, 0));
    EXPECT_EQ(picked.back(), 100);
    plain.ListIndex(1);
    EXPECT_EQ(list.currentIndex().row(), 1);
    plain.ListIndex(-1);
    EXPECT_FALSE(list.currentIndex().isValid());
}

TEST_F(ItemViewsTest, the_first_key_in_a_list_without_a_selection_picks_its_first_line)
{
    show();
    auto& list = widget<QListView>("lstPlain");
    list.setFocus();
    EXPECT_EQ(plain.ListIndex(), -1) << "the focus alone selects nothing";
    QTest::keyClick(&list, Qt::Key_Down);
    EXPECT_EQ(plain.ListIndex(), 0);
    QTest::keyClick(&list, Qt::Key_Down);
    EXPECT_EQ(plain.ListIndex(), 1);
    plain.ListIndex(-1);
    QTest::keyClick(&list, Qt::Key_Home);
    EXPECT_EQ(plain.ListIndex(), 0);
}

TEST_F(ItemViewsTest, check_boxes_of_a_list_box_go_both_ways)
{
    show();
    auto& list = widget<QListView>("lstChecks");
    const QRect row = list.visualRect(list.model()->index(1, 0));
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, {row.left() + 8, row.center().y()});
    EXPECT_TRUE(checks.Selected(1));
    EXPECT_EQ(list.model()->index(1, 0).data(Qt::CheckStateRole).toInt(), Qt::Checked);
    EXPECT_EQ(checks.ListIndex(), 1);
    QTest::keyClick(&list, Qt::Key_Space);
    EXPECT_FALSE(checks.Selected(1));
    checks.Selected(2, true);
    EXPECT_EQ(list.model()->index(2, 0).data(Qt::CheckStateRole).toInt(), Qt::Checked);
}

} // namespace
} // namespace dn::tests
