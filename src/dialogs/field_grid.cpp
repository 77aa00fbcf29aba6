// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "dialogs/field_grid.h"

#include <algorithm>
#include <string>

namespace dn::dialogs {
namespace {

using screen::Twips;

constexpr Twips labelDrop =
    (Metrics::rowHeight - Metrics::labelHeight) / 2; // centres it beside a field of one row
constexpr Twips aboveHeading = 60;
constexpr Twips belowHeading = 60;
constexpr Twips aboveButtons = 60; // they stand off from the fields by this much more than a field from the next

/// The label's name is its field's with another prefix: "lblNombre" for "txtNombre".
std::string labelName(const std::string& fieldName)
{
    const auto word =
        std::find_if(fieldName.begin(), fieldName.end(), [](char c) { return c >= 'A' && c <= 'Z'; });
    return "lbl" + std::string(word, fieldName.end());
}

} // namespace

FieldGrid::FieldGrid(screen::Form& form, Twips labelWidth, Twips fieldWidth)
    : form_(form), labelWidth_(labelWidth), fieldWidth_(fieldWidth)
{
}

void FieldGrid::field(const char* label, screen::Element& field)
{
    row(label, field, Metrics::rowHeight, below_ ? Share::moves : Share::none);
}

void FieldGrid::tall(const char* label, screen::Element& field, Twips height)
{
    row(label, field, height, Share::grows);
    below_ = true;
}

void FieldGrid::heading(screen::Label& heading)
{
    heading.FontBold(true);
    const Share ofHeight = below_ ? Share::moves : Share::none;
    place({&heading, fieldLeft(), top_ + aboveHeading, fieldWidth_, Metrics::labelHeight, Share::grows, ofHeight});
    top_ += aboveHeading + Metrics::labelHeight + belowHeading;
}

void FieldGrid::pair(screen::Element& field, screen::Element& behind, Twips width)
{
    const Share ofHeight = below_ ? Share::moves : Share::none;
    const Twips left = fieldLeft() + fieldWidth_ - width;
    place({&field, fieldLeft(), top_, left - Metrics::gap - fieldLeft(), Metrics::rowHeight, Share::grows,
           ofHeight});
    place({&behind, left, top_, width, Metrics::rowHeight, Share::moves, ofHeight});
    top_ += Metrics::rowHeight + Metrics::gap;
}

void FieldGrid::buttons(screen::Button& accept, screen::Button& cancel, Twips width)
{
    const Share ofHeight = below_ ? Share::moves : Share::none;
    top_ += aboveButtons;
    Twips left = formWidth() - Metrics::margin - 2 * width - Metrics::gap;
    for (screen::Button* button : {&accept, &cancel}) {
        place({button, left, top_, width, Metrics::buttonHeight, Share::moves, ofHeight});
        left += width + Metrics::gap;
    }
    accept.Default(true);
    cancel.Cancel(true);
    form_.Width(formWidth());
    form_.Height(top_ + Metrics::buttonHeight + Metrics::margin);
    if (!below_) return;
    form_.makeResizable();
    wire_ = form_.Resize.connect([this] { follow(); });
}

void FieldGrid::buttons(screen::Button& further, Twips width, screen::Button& accept, screen::Button& cancel)
{
    place({&further, Metrics::margin, top_ + aboveButtons, width, Metrics::buttonHeight, Share::none,
           below_ ? Share::moves : Share::none});
    buttons(accept, cancel);
}

Twips FieldGrid::fieldLeft() const
{
    return Metrics::margin + (labelWidth_ == 0 ? 0 : labelWidth_ + Metrics::gap);
}

Twips FieldGrid::formWidth() const { return fieldLeft() + fieldWidth_ + Metrics::margin; }

void FieldGrid::row(const char* label, screen::Element& field, Twips height, Share ofHeight)
{
    if (label != nullptr) {
        screen::Label& beside =
            *labels_.emplace_back(std::make_unique<screen::Label>(&form_, labelName(field.name())));
        beside.Caption(label);
        place({&beside, Metrics::margin, top_ + labelDrop, labelWidth_, Metrics::labelHeight, Share::none,
               ofHeight == Share::grows ? Share::none : ofHeight});
    }
    place({&field, fieldLeft(), top_, fieldWidth_, height, Share::grows, ofHeight});
    top_ += height + Metrics::gap;
}

void FieldGrid::place(const Placed& placed)
{
    placed.element->Move(placed.left, placed.top, placed.width, placed.height);
    placed.element->TabIndex(static_cast<int>(placed_.size()));
    placed_.push_back(placed);
}

void FieldGrid::follow() const
{
    const auto part = [](Share share, Share wanted, Twips more) { return share == wanted ? more : 0; };
    const Twips wider = form_.Width() - form_.MinWidth();
    const Twips higher = form_.Height() - form_.MinHeight();
    for (const Placed& it : placed_)
        it.element->Move(
            it.left + part(it.ofWidth, Share::moves, wider), it.top + part(it.ofHeight, Share::moves, higher),
            it.width + part(it.ofWidth, Share::grows, wider), it.height + part(it.ofHeight, Share::grows, higher));
}

} // namespace dn::dialogs
