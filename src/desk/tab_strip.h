// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The strip of five tabs. It has no variable for the tab in view: the active tab is the label that carries the
// active colour. The strip also has a narrowed form, without "Proyectos" and "Hoy", for the prospects that nobody
// owns.
#pragma once

#include "desk/elements.h"

#include <cstdint>
#include <functional>

namespace dn::desk {

/// The tabs, by their index in the strip; `none` before the first selection.
enum Tab : std::int16_t { none = -1, prospectos = 0, proyectos = 1, hoy = 2, organizaciones = 3, contactos = 4 };

class TabStrip {
public:
    static constexpr screen::Colour inactiveColour = 0xC0FFFF;
    static constexpr screen::Colour activeColour = 0x8080FF;
    static constexpr int count = 5;

    explicit TabStrip(TopElements& top) : top_(top) {}

    /// Writes the index of the active tab, or -1.
    void GetActiveTab(std::int16_t& result) const;
    std::int16_t GetActiveTab() const;

    /// Whether the strip stands in its narrowed form.
    bool TabsContraidos() const { return TabsContraidos_; }

    /// Shows or hides the tabs "Proyectos" and "Hoy".
    void showWorkTabs(bool visible);

    /// How a move runs its statements: one after the other up to the first failure, or passing over failures.
    using Run = std::function<void(const std::function<void()>&)>;

    /// Moves the tabs behind "Hoy" into its place and lets the colour strip grow leftwards; sets TabsContraidos.
    void narrow(const Run& run) { shift(-1, run); }
    /// Moves them back to where they were.
    void restore(const Run& run) { shift(1, run); }

private:
    void shift(int direction, const Run& run);

    TopElements& top_;
    bool TabsContraidos_ = false;
};

} // namespace dn::desk
