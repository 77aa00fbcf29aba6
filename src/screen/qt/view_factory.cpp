// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "screen/qt/view_factory.h"

#include "screen/qt/button_view.h"
#include "screen/qt/calendar_views.h"
#include "screen/qt/combo_box_view.h"
#include "screen/qt/data_grid_view.h"
#include "screen/qt/label_view.h"
#include "screen/qt/list_box_view.h"
#include "screen/qt/list_view_view.h"
#include "screen/qt/panel_views.h"
#include "screen/qt/small_views.h"
#include "screen/qt/text_box_view.h"

#include <stdexcept>

namespace dn::screen::qt {
namespace {

// Every widget has its parent for an owner.
class Factory : public ElementVisitor {
public:
    Factory(QWidget& parent, Guard& guard, std::vector<View>& views)
        : parent_(parent), guard_(guard), views_(views)
    {
    }

    void build(Container& container)
    {
        for (Element* child : container.children())
            child->accept(*this);
    }

    void visit(screen::Button& element) override { add<ButtonView>(element); }

    void visit(screen::CheckBox& element) override { add<CheckBoxView>(element); }

    void visit(screen::ComboBox& element) override { add<ComboBoxView>(element); }

    void visit(screen::DTPicker& element) override { add<DTPickerView>(element); }

    void visit(screen::DataGrid& element) override { add<DataGridView>(element); }

    void visit(screen::Form&) override { throw std::logic_error("a form lies in no container"); }

    void visit(screen::Label& element) override
    {
        if (element.handPointer())
            add<ClickLabelView>(element);
        else
            add<LabelView>(element);
    }

    void visit(screen::Line& element) override { add<LineView>(element); }

    void visit(screen::ListBox& element) override { add<ListBoxView>(element); }

    void visit(screen::ListView& element) override { add<ListViewView>(element); }

    void visit(screen::MonthView& element) override { add<MonthViewView>(element); }

    void visit(screen::OptionButton& element) override { add<OptionButtonView>(element); }

    void visit(screen::PicturePanel& element) override
    {
        auto& panel = add<PanelView>(element);
        Factory(panel, guard_, views_).build(element);
    }

    void visit(screen::ProgressBar& element) override { add<ProgressBarView>(element); }

    void visit(screen::TextBox& element) override
    {
        if (element.MultiLine())
            add<MultiLineBoxView>(element);
        else
            add<LineBoxView>(element);
    }

    void visit(screen::Timer& element) override { new TimerView(element, &parent_, guard_); }

    void visit(screen::UserControl&) override { throw std::logic_error("a control lies in no container"); }

private:
    template <class WidgetKind, class ElementKind>
    WidgetKind& add(ElementKind& element)
    {
        auto* const widget = new WidgetKind(element, &parent_, guard_);
        widget->lower(); // the first child stands in front
        views_.push_back({&element, widget});
        return *widget;
    }

    QWidget& parent_;
    Guard& guard_;
    std::vector<View>& views_;
};

} // namespace

std::vector<View> buildViews(Container& container, QWidget& parent, Guard& guard)
{
    std::vector<View> views;
    Factory(parent, guard, views).build(container);
    return views;
}

} // namespace dn::screen::qt
