// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// Tries a gesture in every situation in which the operator cannot reach an element.
#pragma once

#include "screen/element.h"

#include <initializer_list>

namespace dn::tests {

/// Hides and then disables each of the elements in turn, runs the gesture, and brings the element back.
/// @param elementAndAncestors the element that the gesture is for, and the containers around it.
template <class Gesture>
void outOfReach(std::initializer_list<screen::Element*> elementAndAncestors, Gesture gesture)
{
    for (screen::Element* element : elementAndAncestors) {
        element->Visible(false);
        gesture();
        element->Visible(true);
        element->Enabled(false);
        gesture();
        element->Enabled(true);
    }
}

} // namespace dn::tests
