// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The containers: the control itself, the panels inside it, and the windows of the dialogs.
#pragma once

#include "base/export.h"
#include "screen/element.h"
#include "screen/visitor.h"

#include <optional>

namespace dn::screen {

/// A plain panel. Its back colour is its own matter: the colour swatch shows a mark with it.
class DN_INTERNAL PicturePanel : public Container {
public:
    using Container::Container;

    void accept(ElementVisitor& visitor) override { visitor.visit(*this); }

    /// Nothing until a colour is set: the panel then shows the colour of the window.
    std::optional<Colour> BackColor() const { return backColor_; }

    void BackColor(Colour colour) { set(backColor_, std::optional(colour)); }

    /// Whether a frame is drawn around it.
    bool framed() const { return framed_; }

    void framed(bool framed) { set(framed_, framed); }

private:
    std::optional<Colour> backColor_;
    bool framed_ = false;
};

/// The outermost container of the control. Whoever gives it room calls `resize`.
class DN_INTERNAL UserControl : public Container {
public:
    explicit UserControl(std::string name) : Container(nullptr, std::move(name)) {}

    void accept(ElementVisitor& visitor) override { visitor.visit(*this); }

    /// Takes the new size, docks what is docked and raises the event.
    void resize(Twips width, Twips height);

    Signal<> Resize;
};

/// The window of a dialog. It shows through the modal loop of the ports and is hidden or unloaded by its own
/// code.
class DN_INTERNAL Form : public Container {
public:
    explicit Form(std::string name) : Container(nullptr, std::move(name)) { Visible(false); }

    void accept(ElementVisitor& visitor) override { visitor.visit(*this); }

    const std::string& Caption() const { return caption_; }

    void Caption(std::string caption) { set(caption_, std::move(caption)); }

    /// Whether the operator may change its size, by its frame.
    bool resizable() const { return resizable_; }

    /// From now on he may, down to the size that it has at present.
    void makeResizable();

    Twips MinWidth() const { return minWidth_; }
    Twips MinHeight() const { return minHeight_; }

    /// The operator gives it another size; no smaller one than the smallest, and none at all unless it is
    /// resizable.
    void resize(Twips width, Twips height);

    /// Raised when a resizing has changed the size.
    Signal<> Resize;

    /// Ends the modal loop; the elements keep their state.
    void Hide() { Visible(false); }

    /// What the operator does when he closes the window by its frame or with Escape where no button cancels:
    /// the window hides and nothing else happens.
    void closeWindow()
    {
        if (Visible()) Hide();
    }

private:
    std::string caption_;
    Twips minWidth_ = 0;
    Twips minHeight_ = 0;
    bool resizable_ = false;
};

/// A plain line drawn on a form.
class DN_INTERNAL Line : public Element {
public:
    using Element::Element;

    void accept(ElementVisitor& visitor) override { visitor.visit(*this); }
};

} // namespace dn::screen
