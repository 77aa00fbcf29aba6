// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "screen/element.h"

#include "base/runtime_error.h"

#include <algorithm>

namespace dn::screen {
namespace {

void refuseNegative(Twips length)
{
    if (length < 0) throw RuntimeError("Valor de propiedad no válido");
}

} // namespace

Element::Element(Container* parent, std::string name) : parent_(parent), name_(std::move(name))
{
    if (parent_ != nullptr) parent_->children_.push_back(this);
}

Element::~Element()
{
    ended.emit();
    if (parent_ == nullptr) return;
    std::erase(parent_->children_, this);
    Container& root = parent_->root();
    if (root.focused_ == this) root.focused_ = nullptr;
}

void Element::Width(Twips width)
{
    refuseNegative(width);
    set(width_, width);
}

void Element::Height(Twips height)
{
    refuseNegative(height);
    set(height_, height);
}

void Element::Move(Twips left, Twips top, Twips width, Twips height)
{
    Left(left);
    Top(top);
    Width(width);
    Height(height);
}

bool Element::usable() const
{
    for (const Element* element = this; element != nullptr; element = element->parent_)
        if (!element->visible_ || !element->enabled_) return false;
    return true;
}

bool Element::shown() const
{
    for (const Element* element = this; element != nullptr; element = element->parent_)
        if (!element->visible_) return false;
    return true;
}

void Element::SetFocus()
{
    takeFocus();
    focusGiven.emit();
}

void Element::takeFocus()
{
    if (parent_ == nullptr || hasFocus()) return;
    Container& root = parent_->root();
    Element* const before = root.focused_;
    root.focused_ = this;
    if (before != nullptr) before->changed.emit();
    changed.emit();
}

bool Element::hasFocus() const { return parent_ != nullptr && parent_->focused() == this; }

Container::~Container()
{
    // Members of a screen may go in any order: what outlives its container leaves the screen with it.
    Container& top = root();
    for (const Element* element = top.focused_; element != nullptr; element = element->parent_)
        if (element == this) top.focused_ = nullptr;
    for (Element* child : children_)
        child->parent_ = nullptr;
}

void Container::frontToBack(std::initializer_list<Element*> order)
{
    std::vector<Element*> children(order);
    for (Element* child : children_)
        if (std::find(order.begin(), order.end(), child) == order.end()) children.push_back(child);
    children_.swap(children);
}

void Container::dock()
{
    Twips top = 0;
    for (Element* child : children_) {
        if (child->Align() != Align::top) continue;
        child->Left(0);
        child->Top(top);
        child->Width(Width());
        top += child->Height();
    }
    Twips right = Width();
    for (Element* child : children_) {
        if (child->Align() != Align::right) continue;
        right -= child->Width();
        child->Left(right);
        child->Top(top);
        child->Height(std::max(0, Height() - top));
    }
}

const Container& Container::root() const
{
    const Container* container = this;
    while (container->parent() != nullptr)
        container = container->parent();
    return *container;
}

Container& Container::root() { return const_cast<Container&>(static_cast<const Container*>(this)->root()); }

} // namespace dn::screen
