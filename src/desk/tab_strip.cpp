// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "desk/tab_strip.h"

namespace dn::desk {

void TabStrip::GetActiveTab(std::int16_t& result) const
{
    result = none;
    for (std::int16_t i = 0; i < count; ++i)
        if (top_.lblItem(i).BackColor() == activeColour) result = i;
}

std::int16_t TabStrip::GetActiveTab() const
{
    std::int16_t result = none;
    GetActiveTab(result);
    return result;
}

void TabStrip::showWorkTabs(bool visible)
{
    top_.lblItem(proyectos).Visible(visible);
    top_.lblItem(hoy).Visible(visible);
}

void TabStrip::shift(int direction, const Run& run)
{
    const screen::Twips distance = direction * (top_.lblItem(proyectos).Width() + top_.lblItem(hoy).Width());
    PicturePanel& colours = top_.picColors;
    run([&] { colours.Width(colours.Width() - distance); });
    run([&] { colours.Left(colours.Left() + distance); });
    for (const int tab : {organizaciones, contactos})
        run([&] { top_.lblItem(tab).Left(top_.lblItem(tab).Left() + distance); });
    run([&] { TabsContraidos_ = direction < 0; });
}

} // namespace dn::desk
