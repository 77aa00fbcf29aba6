// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "host/desktop/themes.h"

#include <QApplication>

#include <algorithm>

namespace dn::host {
namespace {

using screen::qt::Scheme;

auto find(const QString& name)
{
    return std::find_if(themes().begin(), themes().end(), [&](const Theme& theme) { return theme.name == name; });
}

} // namespace

const std::vector<Theme>& themes()
{
    static const std::vector<Theme> all{
        {"auto", "Como el &escritorio", std::nullopt},
        {"claro", "&Claro", Scheme::light},
        {"oscuro", "&Oscuro", Scheme::dark},
        {"contraste", "Alto contraste, fondo &negro", Scheme::whiteOnBlack},
        {"contraste-claro", "Alto contraste, fondo &blanco", Scheme::blackOnWhite}};
    return all;
}

const Theme& themeNamed(const QString& name)
{
    const auto found = find(name);
    return found == themes().end() ? themes().front() : *found;
}

bool isTheme(const QString& name) { return find(name) != themes().end(); }

void useTheme(const Theme& theme, const QPalette& desktop)
{
    QApplication::setPalette(schemePalette(theme.scheme.value_or(screen::qt::schemeOf(desktop))));
}

} // namespace dn::host
