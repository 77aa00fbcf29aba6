// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/support/screen_design.h"

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

#include <algorithm>
#include <iomanip>
#include <optional>
#include <sstream>
#include <vector>

namespace dn::tests {
namespace {

class Design : public screen::ElementVisitor {
public:
    void add(screen::Element& element, int depth)
    {
        line_.str("");
        element.accept(*this);
        text_ += std::string(static_cast<std::size_t>(depth) * 2, ' ') + line_.str() + "\n";
        auto* const container = dynamic_cast<screen::Container*>(&element);
        if (container == nullptr) return;
        std::vector<screen::Element*> children = container->children();
        std::stable_sort(children.begin(), children.end(),
                         [](const screen::Element* one, const screen::Element* other) {
                             return one->TabIndex() < other->TabIndex();
                         });
        for (screen::Element* child : children)
            add(*child, depth + 1);
    }

    const std::string& text() const { return text_; }

private:
    void begin(const char* kind, const screen::Element& it)
    {
        line_ << kind << " " << it.name() << " " << it.Left() << "," << it.Top() << " " << it.Width() << "x"
              << it.Height();
        if (it.Align() != screen::Align::none)
            line_ << (it.Align() == screen::Align::top ? " at the top" : " at the right");
        flag("hidden", !it.Visible());
        flag("disabled", !it.Enabled());
        quoted("tip", it.ToolTipText());
        quoted("spoken", it.AccessibleName());
    }

    void quoted(const char* what, const std::string& text)
    {
        if (!text.empty()) line_ << " " << what << " " << std::quoted(text);
    }

    void flag(const char* what, bool set)
    {
        if (set) line_ << " " << what;
    }

    void colour(const std::optional<screen::Colour>& colour)
    {
        if (colour) line_ << " 0x" << std::hex << *colour << std::dec;
    }

    void entries(const screen::ItemList& list)
    {
        for (int i = 0; i < list.ListCount(); ++i)
            line_ << (i == list.ListIndex() ? " *" : " ") << std::quoted(list.List(i)) << "=" << list.ItemData(i);
    }

    void columns(const screen::ListView& list)
    {
        for (const screen::ColumnHeader& column : list.ColumnHeaders())
            line_ << " " << std::quoted(column.Text) << ":" << column.Width << column.Key;
        for (int image = 1; list.SmallIcons() != nullptr && image <= list.SmallIcons()->Count(); ++image)
            line_ << " " << list.SmallIcons()->image(image);
        flag("with boxes", list.CheckBoxes());
    }

    void visit(screen::Button& it) override
    {
        begin("Button", it);
        quoted("caption", it.Caption());
        quoted("picture", it.Picture());
        quoted("key", it.Shortcut());
        if (it.shortcutReach() != nullptr) line_ << " within " << it.shortcutReach()->name();
        colour(it.BackColor());
        flag("default", it.Default());
        flag("cancels", it.Cancel());
    }

    void visit(screen::CheckBox& it) override
    {
        begin("CheckBox", it);
        quoted("caption", it.Caption());
        flag("marked", it.Value() != 0);
    }

    void visit(screen::ComboBox& it) override
    {
        begin("ComboBox", it);
        flag("editable", it.editable());
        flag("reads anew", it.readsAnew());
        entries(it);
    }

    void visit(screen::DTPicker& it) override { begin("DTPicker", it); }

    void visit(screen::DataGrid& it) override
    {
        begin("DataGrid", it);
        flag("read only", it.ReadOnly());
        columns(it);
    }

    void visit(screen::Form& it) override
    {
        begin("Form", it);
        quoted("caption", it.Caption());
        if (it.resizable()) line_ << " down to " << it.MinWidth() << "x" << it.MinHeight();
    }

    void visit(screen::Label& it) override
    {
        begin("Label", it);
        quoted("caption", it.Caption());
        colour(it.BackColor());
        flag("bold", it.FontBold());
        flag("right", it.Alignment() == screen::TextAlignment::right);
        flag("centred", it.Alignment() == screen::TextAlignment::centre);
        flag("bordered", it.BorderStyle() != 0);
        flag("as wide as its text", it.AutoSize());
        flag("without a key", !it.UseMnemonic());
        flag("hand", it.handPointer());
    }

    void visit(screen::Line& it) override { begin("Line", it); }

    void visit(screen::ListBox& it) override
    {
        begin("ListBox", it);
        flag("with boxes", it.checkBoxes());
        entries(it);
    }

    void visit(screen::ListView& it) override
    {
        begin("ListView", it);
        columns(it);
    }

    void visit(screen::MonthView& it) override { begin("MonthView", it); }

    void visit(screen::OptionButton& it) override
    {
        begin("OptionButton", it);
        quoted("caption", it.Caption());
        flag("marked", it.Value());
    }

    void visit(screen::PicturePanel& it) override
    {
        begin("PicturePanel", it);
        colour(it.BackColor());
        flag("framed", it.framed());
    }

    void visit(screen::ProgressBar& it) override
    {
        begin("ProgressBar", it);
        line_ << " from " << it.Min() << " to " << it.Max();
    }

    void visit(screen::TextBox& it) override
    {
        begin("TextBox", it);
        flag("of several lines", it.MultiLine());
        flag("without bars", !it.ScrollBars());
        flag("read only", it.Locked());
        quoted("text", it.Text());
    }

    void visit(screen::Timer& it) override
    {
        begin("Timer", it);
        line_ << " every " << it.Interval() << " ms";
        if (it.Moves() != nullptr) line_ << " moves " << it.Moves()->name() << " round in " << it.Round();
    }

    void visit(screen::UserControl& it) override { begin("UserControl", it); }

    std::ostringstream line_;
    std::string text_;
};

} // namespace

std::string designOf(screen::Container& screen)
{
    Design design;
    design.add(screen, 0);
    return design.text();
}

} // namespace dn::tests
