// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// Push buttons, option buttons and check boxes.
#pragma once

#include "base/export.h"
#include "screen/element.h"
#include "screen/visitor.h"

#include <optional>

namespace dn::screen {

class DN_INTERNAL Button : public Element {
public:
    using Element::Element;

    void accept(ElementVisitor& visitor) override { visitor.visit(*this); }

    /// An ampersand marks the accelerator.
    const std::string& Caption() const { return caption_; }

    void Caption(std::string caption) { set(caption_, std::move(caption)); }

    /// The name of the picture beside the caption, empty for none.
    const std::string& Picture() const { return picture_; }

    void Picture(std::string picture) { set(picture_, std::move(picture)); }

    /// Filled with this colour, for the buttons that stand for a colour.
    std::optional<Colour> BackColor() const { return backColor_; }

    void BackColor(Colour colour) { set(backColor_, std::optional(colour)); }

    bool Default() const { return default_; } ///< pressed by Enter in its dialog

    void Default(bool isDefault) { set(default_, isDefault); }

    bool Cancel() const { return cancel_; } ///< pressed by Escape in its dialog

    void Cancel(bool cancels) { set(cancel_, cancels); }

    /// The key that presses it from anywhere on its screen, "F8" or "Ctrl+1"; empty for none. Buttons that never
    /// can be used at the same time may share one.
    const std::string& Shortcut() const { return shortcut_; }

    void Shortcut(std::string key) { set(shortcut_, std::move(key)); }

    /// A key that counts only while the focus lies within a container.
    void Shortcut(std::string key, const Container& reach)
    {
        reach_ = &reach;
        Shortcut(std::move(key));
    }

    /// Where the key counts; nothing for the whole screen.
    const Container* shortcutReach() const { return reach_; }

    /// The operator presses it.
    void press()
    {
        if (usable()) Click.emit();
    }

    Signal<> Click;

private:
    std::string caption_;
    std::string picture_;
    std::string shortcut_;
    const Container* reach_ = nullptr;
    std::optional<Colour> backColor_;
    bool default_ = false;
    bool cancel_ = false;
};

/// One of several options that exclude each other: all option buttons of one container.
class DN_INTERNAL OptionButton : public Element {
public:
    using Element::Element;

    void accept(ElementVisitor& visitor) override { visitor.visit(*this); }

    const std::string& Caption() const { return caption_; }

    void Caption(std::string caption) { set(caption_, std::move(caption)); }

    bool Value() const { return value_; }

    /// Marking it takes the mark off the others of its container. Raises the click when it becomes marked.
    void Value(bool value);

    /// The operator chooses it. Choosing the marked one again changes and raises nothing.
    void choose()
    {
        if (usable()) Value(true);
    }

    Signal<> Click;

private:
    std::string caption_;
    bool value_ = false;
};

class DN_INTERNAL CheckBox : public Element {
public:
    using Element::Element;

    void accept(ElementVisitor& visitor) override { visitor.visit(*this); }

    const std::string& Caption() const { return caption_; }

    void Caption(std::string caption) { set(caption_, std::move(caption)); }

    int Value() const { return value_; } ///< 0 unmarked, 1 marked

    /// Raises the click when the value changes. @throws RuntimeError for any value but 0 and 1.
    void Value(int value);

    /// The operator clicks it.
    void toggle()
    {
        if (usable()) Value(1 - value_);
    }

    Signal<> Click;

private:
    std::string caption_;
    int value_ = 0;
};

} // namespace dn::screen
