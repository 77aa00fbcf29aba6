// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// What a screen needs of the machine around it. Each port is an interface, so that a test sets the clock and
// answers the questions; the toolkit implements them for real.
#pragma once

#include "base/date_time.h"
#include "base/export.h"

#include <cstdint>
#include <optional>
#include <string>

namespace dn::screen {

class Form;

/// A box that the operator must answer.
struct MessageBox {
    /// What he can answer.
    enum class Buttons : std::uint8_t { ok, yesNo };
    /// The drawing beside the text.
    enum class Icon : std::uint8_t { none, critical };

    std::string prompt;            ///< the text, with line ends where it has several lines
    Buttons buttons = Buttons::ok; ///< one, or a choice
    Icon icon = Icon::none;        ///< almost always none
    /// The button that Enter presses, counted from 1.
    int defaultButton = 1;
    /// Empty: the box shows the display name of the host application.
    std::string title = {};
};

/// The button that was pressed.
enum class Answer : std::uint8_t { ok, yes, no };

/// The result of a save-file dialog.
struct SaveChoice {
    std::string path;    ///< as typed, no extension added
    int filterIndex = 1; ///< which pair of the filter was chosen, counted from 1
};

/// Boxes in front of the control.
class DN_EXPORT Dialogs {
public:
    virtual ~Dialogs() = default;

    /// Closing the box by its frame counts as OK, or as No.
    virtual Answer MsgBox(const MessageBox& box) = 0;
    /// @return the typed text; the empty text on cancel. @throws RuntimeError when the application ends meanwhile.
    virtual std::string InputBox(const std::string& prompt) = 0;
    /// @param filter pairs of name and pattern, "Archivos HTML|*.html", joined by "|".
    /// @return nothing on cancel.
    virtual std::optional<SaveChoice> ShowSave(const std::string& filter) = 0;

    /// A box with an OK button, no icon and no title of its own: almost all boxes of the control.
    void say(std::string prompt) { MsgBox({std::move(prompt)}); }
};

/// The mouse pointer of the whole screen.
class DN_EXPORT Pointer {
public:
    static constexpr int standard = 0;   ///< the usual shape
    static constexpr int hourglass = 11; ///< while something takes long

    virtual ~Pointer() = default;
    virtual int MousePointer() const = 0;     ///< the shape that was set last
    virtual void MousePointer(int shape) = 0; ///< @overload
};

/// The toolkit's loop of events, in which the control runs.
class DN_EXPORT EventLoop {
public:
    virtual ~EventLoop() = default;
    /// Yields once: pending events run, paints among them, and may start handlers of the control.
    virtual void DoEvents() = 0;
    /// Shows a window and returns when it has hidden itself.
    virtual void ShowModal(Form& form) = 0;
};

/// The time, which a test sets.
class DN_EXPORT Clock {
public:
    virtual ~Clock() = default;
    /// The machine's local date and time, in whole seconds.
    virtual DateTime Now() const = 0;
};

/// The ports of one screen; whoever makes them keeps them alive longer than the screen.
struct Ports {
    Dialogs& dialogs;  ///< boxes and questions
    Pointer& pointer;  ///< the hourglass
    EventLoop& events; ///< yields and windows
    Clock& clock;      ///< dates of the log
};

} // namespace dn::screen
