// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The operator at the real windows: the control as a widget on a real MariaDB, worked with clicks and keys.
//
//     enters(ana);
//     hands.expect("dlgSelAgente", [&](QWidget&) { key(Qt::Key_Down); key(Qt::Key_Return); });
//     clicks("cmdProsAsignPros");
#pragma once

#include "screen/qt/ctr_dn_contacts_widget.h"
#include "tests/screen/qt/keyboard.h"
#include "tests/screen/qt/modal_driver.h"
#include "tests/stories/operator.h"

#include <QTest>

#include <stdexcept>

namespace dn::tests {

/// The widget of a name in a window. @throws std::logic_error when there is none of that kind.
template <class Kind>
Kind& widgetIn(QWidget& window, const char* name)
{
    Kind* const found = window.findChild<Kind*>(QString::fromUtf8(name));
    if (found == nullptr) throw std::logic_error(std::string("no such widget: ") + name);
    return *found;
}

/// `Operator` gives the database and what lies in it; its own control rests.
class AtTheWindow : public Operator {
protected:
    AtTheWindow();

    /// Opens the window on the prospects.
    void opens(std::int32_t agent, bool admin);
    /// Clicks a button of the control.
    void clicks(const char* button);
    std::vector<std::string> listed();

    // ---- In whatever window has the keyboard

    static void key(Qt::Key key, Qt::KeyboardModifiers modifiers = {});
    static void writes(const char* text);
    /// Presses Tab until the widget of that name has the focus. @return how often.
    static int tabsTo(const char* name);
    /// Gives a window the keyboard back after a box stood over it: without a window manager nobody else does.
    static void backTo(QWidget& window);
    /// The name of the widget with the focus.
    static std::string focus();
    static std::string boxText(const QWidget& box);

    // ---- What holds of every dialog

    /// The names of the fields and buttons that Tab goes through, from the one with the focus on.
    static std::vector<std::string> tabOrder(QWidget& window);
    /// Everything that takes the keyboard has a name for a screen reader, and no caption is cut off.
    static void isLegible(QWidget& window);
    /// Saves a picture of a window beside the program.
    static void picture(QWidget& window, const char* name);

    HostFactory* screens = &host; ///< whose screens the control asks for
    screen::qt::CtrDnContactsWidget widget;
    ModalDriver hands;
};

} // namespace dn::tests
