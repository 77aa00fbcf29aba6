// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// Each kind of element presents itself to a visitor as what it is, so that it gets the right view.

#include "screen/button.h"
#include "screen/calendars.h"
#include "screen/combo_box.h"
#include "screen/data_grid.h"
#include "screen/label.h"
#include "screen/list_box.h"
#include "screen/list_view.h"
#include "screen/panels.h"
#include "screen/progress_bar.h"
#include "screen/text_box.h"
#include "screen/timer.h"
#include "screen/visitor.h"

#include <gtest/gtest.h>

#include <string>

namespace dn::screen {
namespace {

class KindOf : public ElementVisitor {
public:
    explicit KindOf(Element& element) { element.accept(*this); }

    const std::string& kind() const { return kind_; }

private:
    void visit(Button&) override { kind_ = "Button"; }
    void visit(CheckBox&) override { kind_ = "CheckBox"; }
    void visit(ComboBox&) override { kind_ = "ComboBox"; }
    void visit(DTPicker&) override { kind_ = "DTPicker"; }
    void visit(DataGrid&) override { kind_ = "DataGrid"; }
    void visit(Form&) override { kind_ = "Form"; }
    void visit(Label&) override { kind_ = "Label"; }
    void visit(Line&) override { kind_ = "Line"; }
    void visit(ListBox&) override { kind_ = "ListBox"; }
    void visit(ListView&) override { kind_ = "ListView"; }
    void visit(MonthView&) override { kind_ = "MonthView"; }
    void visit(OptionButton&) override { kind_ = "OptionButton"; }
    void visit(PicturePanel&) override { kind_ = "PicturePanel"; }
    void visit(ProgressBar&) override { kind_ = "ProgressBar"; }
    void visit(TextBox&) override { kind_ = "TextBox"; }
    void visit(Timer&) override { kind_ = "Timer"; }
    void visit(UserControl&) override { kind_ = "UserControl"; }

    std::string kind_;
};

template <class Kind>
std::string kindOfNew()
{
    Kind element(nullptr, "element");
    return KindOf(element).kind();
}

TEST(ElementVisitor, meets_each_kind_as_what_it_is)
{
    EXPECT_EQ(kindOfNew<Button>(), "Button");
    EXPECT_EQ(kindOfNew<CheckBox>(), "CheckBox");
    EXPECT_EQ(kindOfNew<ComboBox>(), "ComboBox");
    EXPECT_EQ(kindOfNew<DTPicker>(), "DTPicker");
    EXPECT_EQ(kindOfNew<DataGrid>(), "DataGrid");
    EXPECT_EQ(kindOfNew<Label>(), "Label");
    EXPECT_EQ(kindOfNew<Line>(), "Line");
    EXPECT_EQ(kindOfNew<ListBox>(), "ListBox");
    EXPECT_EQ(kindOfNew<ListView>(), "ListView");
    EXPECT_EQ(kindOfNew<MonthView>(), "MonthView");
    EXPECT_EQ(kindOfNew<OptionButton>(), "OptionButton");
    EXPECT_EQ(kindOfNew<PicturePanel>(), "PicturePanel");
    EXPECT_EQ(kindOfNew<ProgressBar>(), "ProgressBar");
    EXPECT_EQ(kindOfNew<TextBox>(), "TextBox");
    EXPECT_EQ(kindOfNew<Timer>(), "Timer");
    Form form("form");
    EXPECT_EQ(KindOf(form).kind(), "Form");
    UserControl control("control");
    EXPECT_EQ(KindOf(control).kind(), "UserControl");
}

} // namespace
} // namespace dn::screen
