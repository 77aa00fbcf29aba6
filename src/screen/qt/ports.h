// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The machine around a screen, for real: boxes, pointer, event loop and clock.
#pragma once

#include "screen/ports.h"
#include "screen/qt/guard.h"

#include <QPointer>
#include <QWidget>

namespace dn::screen::qt {

/// Boxes with Spanish buttons, modal to the window that is active when they come up. Their object names are
/// "MsgBox", "InputBox" and "ShowSave".
class QtDialogs : public Dialogs {
public:
    /// @param owner a widget of the window to stand over when no window of the application is active.
    explicit QtDialogs(QWidget* owner = nullptr) : owner_(owner) {}

    Answer MsgBox(const MessageBox& box) override;
    std::string InputBox(const std::string& prompt) override;
    std::optional<SaveChoice> ShowSave(const std::string& filter) override;

private:
    QPointer<QWidget> owner_;
};

/// Every shape but the standard one and the hourglass shows as the standard one.
class QtPointer : public Pointer {
public:
    QtPointer() = default;
    QtPointer(const QtPointer&) = delete;
    QtPointer& operator=(const QtPointer&) = delete;
    ~QtPointer() override { QtPointer::MousePointer(standard); }

    int MousePointer() const override { return shape_; }

    void MousePointer(int shape) override;

private:
    int shape_ = standard;
};

class QtEventLoop : public EventLoop {
public:
    explicit QtEventLoop(Guard& guard, QWidget* owner = nullptr) : guard_(guard), owner_(owner) {}

    void DoEvents() override;
    void ShowModal(Form& form) override;

private:
    Guard& guard_;
    QPointer<QWidget> owner_;
};

class QtClock : public Clock {
public:
    DateTime Now() const override;
};

/// All of them, for one screen.
class QtPorts {
public:
    QtPorts(Guard& guard, QWidget* owner) : dialogs_(owner), events_(guard, owner) {}

    Ports ports() { return {dialogs_, pointer_, events_, clock_}; }

private:
    QtDialogs dialogs_;
    QtPointer pointer_;
    QtEventLoop events_;
    QtClock clock_;
};

} // namespace dn::screen::qt
