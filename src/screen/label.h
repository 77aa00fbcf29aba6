// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// A text on the screen; the tabs of the strip are labels too.
#pragma once

#include "base/export.h"
#include "screen/element.h"
#include "screen/visitor.h"

#include <optional>

namespace dn::screen {

enum class TextAlignment : std::uint8_t { left, right, centre };

class DN_INTERNAL Label : public Element {
public:
    using Element::Element;

    void accept(ElementVisitor& visitor) override { visitor.visit(*this); }

    /// An ampersand marks the key that gives the focus to the next element in tab order, unless the label has no
    /// such key.
    const std::string& Caption() const { return caption_; }

    void Caption(std::string caption) { set(caption_, std::move(caption)); }

    /// Whether an ampersand marks a key; a label that shows data has none, and shows it.
    bool UseMnemonic() const { return useMnemonic_; }

    void UseMnemonic(bool use) { set(useMnemonic_, use); }

    /// Nothing until a colour is set: the label is then transparent.
    std::optional<Colour> BackColor() const { return backColor_; }

    void BackColor(Colour colour) { set(backColor_, std::optional(colour)); }

    int BorderStyle() const { return borderStyle_; } ///< 0 none, 1 fixed single

    void BorderStyle(int style) { set(borderStyle_, style); }

    bool FontBold() const { return bold_; }

    void FontBold(bool bold) { set(bold_, bold); }

    TextAlignment Alignment() const { return alignment_; }

    void Alignment(TextAlignment alignment) { set(alignment_, alignment); }

    /// Whether the text decides the width, as it does for the counters.
    bool AutoSize() const { return autoSize_; }

    void AutoSize(bool autoSize) { set(autoSize_, autoSize); }

    /// Whether the pointer shows that a click does something here.
    bool handPointer() const { return handPointer_; }

    void handPointer(bool hand) { set(handPointer_, hand); }

    /// The operator clicks it.
    void click()
    {
        if (usable()) Click.emit();
    }

    Signal<> Click;

private:
    std::string caption_;
    std::optional<Colour> backColor_;
    int borderStyle_ = 0;
    TextAlignment alignment_ = TextAlignment::left;
    bool useMnemonic_ = true;
    bool bold_ = false;
    bool autoSize_ = false;
    bool handPointer_ = false;
};

} // namespace dn::screen
