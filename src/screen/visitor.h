// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// Every kind of element, in one list: a view factory implements it, and a new kind does not compile until
// each factory has a view for it.
#pragma once

#include "base/export.h"

namespace dn::screen {

class Button;
class CheckBox;
class ComboBox;
class DTPicker;
class DataGrid;
class Form;
class Label;
class Line;
class ListBox;
class ListView;
class MonthView;
class OptionButton;
class PicturePanel;
class ProgressBar;
class TextBox;
class Timer;
class UserControl;

class DN_INTERNAL ElementVisitor {
public:
    virtual ~ElementVisitor() = default;

    virtual void visit(Button& element) = 0;
    virtual void visit(CheckBox& element) = 0;
    virtual void visit(ComboBox& element) = 0;
    virtual void visit(DTPicker& element) = 0;
    virtual void visit(DataGrid& element) = 0;
    virtual void visit(Form& element) = 0;
    virtual void visit(Label& element) = 0;
    virtual void visit(Line& element) = 0;
    virtual void visit(ListBox& element) = 0;
    virtual void visit(ListView& element) = 0;
    virtual void visit(MonthView& element) = 0;
    virtual void visit(OptionButton& element) = 0;
    virtual void visit(PicturePanel& element) = 0;
    virtual void visit(ProgressBar& element) = 0;
    virtual void visit(TextBox& element) = 0;
    virtual void visit(Timer& element) = 0;
    virtual void visit(UserControl& element) = 0;
};

} // namespace dn::screen
