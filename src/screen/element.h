// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// What every element of a screen has: a name, a place in a container, and whether it shows and takes input.
//
// An element is a plain object: state (properties under their usual names), events, and the gestures that an
// operator can make on it. A gesture does nothing while the element, or a panel around it, is hidden or
// disabled. Nothing here knows a toolkit: a view mirrors the state and turns the operator's input into the
// same gestures.
#pragma once

#include "base/export.h"
#include "screen/signal.h"

#include <cstdint>
#include <initializer_list>
#include <string>
#include <vector>

namespace dn::screen {

class Container;
class ElementVisitor;

/// A colour as the colour properties hold it, blue in the high byte: 0x0000FF is red.
using Colour = std::uint32_t;
inline constexpr Colour white = 0xFFFFFF;

/// Lengths on the screen: 15 to a logical pixel.
using Twips = int;

/// How an element keeps to the edges of its container by itself.
enum class Align : std::uint8_t {
    none,
    top,   ///< along the top edge, over the full width
    right, ///< along the right edge, below what is docked to the top
};

class DN_INTERNAL Element {
public:
    /// @param parent the container that the element lies in; nothing for a screen's outermost container.
    /// @param name the element's name; members of an array carry their index, "lblItem(2)".
    Element(Container* parent, std::string name);
    Element(const Element&) = delete;
    Element& operator=(const Element&) = delete;
    virtual ~Element();

    const std::string& name() const { return name_; }

    Container* parent() const { return parent_; }

    virtual void accept(ElementVisitor& visitor) = 0;

    bool Visible() const { return visible_; }

    void Visible(bool visible) { set(visible_, visible); }

    bool Enabled() const { return enabled_; }

    void Enabled(bool enabled) { set(enabled_, enabled); }

    Twips Left() const { return left_; }

    void Left(Twips left) { set(left_, left); }

    Twips Top() const { return top_; }

    void Top(Twips top) { set(top_, top); }

    Twips Width() const { return width_; }

    /// @throws RuntimeError for a negative width; the element keeps its own.
    void Width(Twips width);

    Twips Height() const { return height_; }

    /// @throws RuntimeError for a negative height; the element keeps its own.
    void Height(Twips height);
    void Move(Twips left, Twips top, Twips width, Twips height);

    screen::Align Align() const { return align_; }

    void Align(screen::Align align) { set(align_, align); }

    const std::string& ToolTipText() const { return toolTip_; }

    void ToolTipText(std::string text) { set(toolTip_, std::move(text)); }

    /// The place in the order of the key Tab, over all containers of a screen; -1 leaves it to the place on the
    /// screen.
    int TabIndex() const { return tabIndex_; }

    void TabIndex(int index) { set(tabIndex_, index); }

    /// What a screen reader calls an element without a caption of its own. Empty: the label ahead of it.
    const std::string& AccessibleName() const { return accessibleName_; }

    void AccessibleName(std::string name) { set(accessibleName_, std::move(name)); }

    /// Whether the operator can reach it: shown and enabled, and so is every container around it.
    bool usable() const;
    /// Whether it shows, and so does every container around it.
    bool shown() const;

    /// Gives it the focus of its screen, also when it has it already and the operator is elsewhere.
    void SetFocus();
    /// The operator moves the focus here.
    void takeFocus();
    bool hasFocus() const;

    /// Some property changed; a view reads the state anew.
    Signal<> changed;
    /// The code gave it the focus: the keyboard goes there.
    Signal<> focusGiven;
    /// The element ends; whoever shows it must forget it. Its own kind is gone already.
    Signal<> ended;

protected:
    template <class T>
    void set(T& property, T value)
    {
        if (property == value) return;
        property = std::move(value);
        changed.emit();
    }

private:
    friend class Container;

    Container* parent_;
    std::string name_;
    std::string toolTip_;
    std::string accessibleName_;
    Twips left_ = 0;
    Twips top_ = 0;
    Twips width_ = 0;
    Twips height_ = 0;
    int tabIndex_ = -1;
    screen::Align align_ = screen::Align::none;
    bool visible_ = true;
    bool enabled_ = true;
};

/// An element that others lie in. The first one stands in front.
class DN_INTERNAL Container : public Element {
public:
    using Element::Element;
    ~Container() override;

    const std::vector<Element*>& children() const { return children_; }

    /// Puts children in this order, the first one in front; those not named stand behind them, in their own order.
    void frontToBack(std::initializer_list<Element*> order);

    /// Lays the docked children along the edges of this container's present size.
    void dock();

    /// The element of this screen that takes the keyboard, or nothing. Asked of any container of the screen.
    Element* focused() const { return root().focused_; }

private:
    friend class Element;

    const Container& root() const;
    Container& root();

    std::vector<Element*> children_;
    Element* focused_ = nullptr; // kept by the outermost container
};

} // namespace dn::screen
