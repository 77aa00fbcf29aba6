// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The layout of a dialog: labels in one column, their fields in the next, the buttons at the foot.
#pragma once

#include "dialogs/dialog.h"
#include "screen/button.h"
#include "screen/label.h"
#include "screen/panels.h"

#include <cstdint>
#include <memory>
#include <vector>

namespace dn::dialogs {

/// Lays elements in the order of the calls, which is also that of the key Tab; `buttons` comes last and gives the
/// window its size. A window with a tall field can be resized: fields take the width, the tall one the height.
class FieldGrid {
public:
    /// @param labelWidth 0 for a dialog without labels.
    FieldGrid(screen::Form& form, screen::Twips labelWidth, screen::Twips fieldWidth);

    /// A field in a row of its own. @param label its text; nullptr for a field that says itself what it is.
    void field(const char* label, screen::Element& field);
    /// A field of several rows.
    void tall(const char* label, screen::Element& field, screen::Twips height);
    /// A line of text over the fields that follow.
    void heading(screen::Label& heading);
    /// A field with another behind it. @param width of the one behind.
    void pair(screen::Element& field, screen::Element& behind, screen::Twips width);
    /// The row of buttons. @param accept pressed by Enter. @param cancel pressed by Escape.
    void buttons(screen::Button& accept, screen::Button& cancel, screen::Twips width = Metrics::buttonWidth);
    /// The same with a further button ahead of them, which stands apart at the left.
    void buttons(screen::Button& further, screen::Twips width, screen::Button& accept, screen::Button& cancel);

private:
    /// What an element does of the width and the height that a larger window has more.
    enum class Share : std::uint8_t { none, moves, grows };

    struct Placed {
        screen::Element* element;
        screen::Twips left, top, width, height;
        Share ofWidth, ofHeight;
    };

    screen::Twips fieldLeft() const;
    screen::Twips formWidth() const;
    void row(const char* label, screen::Element& field, screen::Twips height, Share ofHeight);
    void place(const Placed& placed);
    void follow() const;

    screen::Form& form_;
    screen::Twips labelWidth_;
    screen::Twips fieldWidth_;
    screen::Twips top_ = Metrics::margin;
    bool below_ = false; ///< what comes now stands below the tall field
    std::vector<std::unique_ptr<screen::Label>> labels_;
    std::vector<Placed> placed_;
    screen::Subscription wire_;
};

} // namespace dn::dialogs
