// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// What the dialogs have in common: a window, how it comes up and how it goes.
//
// A dialog lives as long as its caller needs it: he makes one, sets its public fields, shows it, reads the result
// and lets it go, so that each showing starts with elements and fields at their initial values.
#pragma once

#include "screen/panels.h"
#include "screen/ports.h"
#include "screen/signal.h"

#include <string>

namespace dn::dialogs {

/// Distances between the elements of a dialog, in twips.
struct Metrics {
    static constexpr screen::Twips margin = 180;
    static constexpr screen::Twips gap = 120;
    static constexpr screen::Twips rowHeight = 345;
    static constexpr screen::Twips labelHeight = 255;
    static constexpr screen::Twips buttonWidth = 1485;
    static constexpr screen::Twips buttonHeight = 390;
};

class Dialog {
public:
    Dialog(const Dialog&) = delete;
    Dialog& operator=(const Dialog&) = delete;

    /// Loads the dialog, shows it modally and returns when it has hidden itself, or was closed by its frame, which
    /// leaves the public fields as they are.
    /// @throws what the loading fails with; the window is not shown then.
    void Show();

protected:
    /// @param name of the window, the dialog's class name. @param title in its frame.
    Dialog(std::string name, std::string title, screen::Ports ports);
    ~Dialog() = default;

    /// Fills the elements ahead of the first sight.
    virtual void Form_Load() {}

    /// Ends the showing; the public fields can still be read.
    void Hide() { form.Hide(); }

    /// Joins an event of an element with its handler.
    template <class Room, class... Arguments, class... Parameters>
    void on(screen::Signal<Arguments...>& event, Room& room, void (Room::*handler)(Parameters...))
    {
        wires_.push_back(
            event.connect([&room, handler](Arguments... arguments) { (room.*handler)(arguments...); }));
    }

    screen::Form form; // first, for the elements lie in it
    screen::Ports ports;

private:
    screen::Subscriptions wires_;
};

} // namespace dn::dialogs
