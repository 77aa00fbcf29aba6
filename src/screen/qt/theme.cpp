// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "screen/qt/theme.h"

#include "screen/qt/colours.h"
#include "screen/qt/spanish.h"
#include "screen/qt/style.h"

#include <QApplication>
#include <QFontDatabase>
#include <QWidget>

namespace dn::screen::qt {
namespace {

constexpr int fontHeight = 12; // logical pixels

/// One for the life of the program: a style must outlive every widget that it draws.
QStyle& style()
{
    static QStyle* const style = new Style;
    return *style;
}

QString family()
{
    for (const QLatin1String name :
         {QLatin1String("Roboto"), QLatin1String("Liberation Sans"), QLatin1String("Open Sans"),
          QLatin1String("Noto Sans"), QLatin1String("Segoe UI"), QLatin1String("DejaVu Sans")})
        if (QFontDatabase::hasFamily(name)) return name;
    return QFontDatabase::systemFont(QFontDatabase::GeneralFont).family();
}

struct Tones {
    QRgb window, base, alternate, text, button, mid, dark, highlight, dim;
};

QPalette paletteOf(const Tones& tones)
{
    QPalette palette{QColor(tones.button), QColor(tones.window)};
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText})
        palette.setColor(role, tones.text);
    palette.setColor(QPalette::Base, tones.base);
    palette.setColor(QPalette::AlternateBase, tones.alternate);
    palette.setColor(QPalette::Mid, tones.mid);
    palette.setColor(QPalette::Dark, tones.dark);
    palette.setColor(QPalette::ToolTipBase, tones.base);
    palette.setColor(QPalette::Highlight, tones.highlight);
    palette.setColor(QPalette::HighlightedText, inkOn(tones.highlight));
    palette.setColor(QPalette::PlaceholderText, legible(tones.dim, tones.base));
    palette.setColor(QPalette::Link, legible(tones.highlight, tones.window));
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, tones.dim);
    palette.setColor(QPalette::Disabled, QPalette::Highlight, tones.mid);
    palette.setColor(QPalette::Disabled, QPalette::HighlightedText, inkOn(tones.mid));
    return palette;
}

} // namespace

QFont controlFont()
{
    QFont font(family());
    font.setPixelSize(fontHeight);
    font.setHintingPreference(QFont::PreferVerticalHinting);
    return font;
}

void dress(QWidget& root)
{
    root.setFont(controlFont());
    root.setStyle(&style());
    for (QWidget* widget : root.findChildren<QWidget*>())
        widget->setStyle(&style());
}

QPalette schemePalette(Scheme scheme)
{
    switch (scheme) {
    case Scheme::dark:
        return paletteOf({0xFF23272E, 0xFF1B1E24, 0xFF20242B, 0xFFE4E7EB, 0xFF2F353E, 0xFF444B57, 0xFF12151A,
                          0xFF3372BE, 0xFF808894});
    case Scheme::whiteOnBlack:
        return paletteOf({0xFF000000, 0xFF000000, 0xFF101010, 0xFFFFFFFF, 0xFF000000, 0xFFFFFFFF, 0xFFFFFFFF,
                          0xFFFFE000, 0xFFB0B0B0});
    case Scheme::blackOnWhite:
        return paletteOf({0xFFFFFFFF, 0xFFFFFFFF, 0xFFF4F4F4, 0xFF000000, 0xFFFFFFFF, 0xFF000000, 0xFF000000,
                          0xFF000060, 0xFF505050});
    case Scheme::light:
        break;
    }
    return paletteOf({0xFFF3F5F7, 0xFFFFFFFF, 0xFFF7F9FB, 0xFF1F2933, 0xFFFDFDFE, 0xFFC3CBD4, 0xFF8E99A6,
                      0xFF2B6CB0, 0xFF8A94A0});
}

Scheme schemeOf(const QPalette& desktop)
{
    const QColor window = desktop.color(QPalette::Window);
    const bool dark = window.lightness() < 128;
    if (isStark(desktop)) return dark ? Scheme::whiteOnBlack : Scheme::blackOnWhite;
    return dark ? Scheme::dark : Scheme::light;
}

void applyTheme(QApplication& application) { applyTheme(application, schemeOf(QApplication::palette())); }

void applyTheme(QApplication& application, Scheme scheme)
{
    // NOLINTNEXTLINE(clang-analyzer-cplusplus.NewDeleteLeaks): owned by the application
    QApplication::setStyle(new Style);
    QApplication::setPalette(schemePalette(scheme));
    QApplication::setFont(controlFont());
    speakSpanish(application);
}

} // namespace dn::screen::qt
