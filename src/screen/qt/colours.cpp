// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "screen/qt/colours.h"

#include <QPalette>
#include <QWidget>

#include <algorithm>
#include <cmath>

namespace dn::screen::qt {
namespace {

double linear(double channel)
{
    return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

double luminance(const QColor& colour)
{
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) + 0.0722 * linear(colour.blueF());
}

} // namespace

QColor fromColour(Colour colour)
{
    return {static_cast<int>(colour & 0xFF), static_cast<int>((colour >> 8) & 0xFF),
            static_cast<int>((colour >> 16) & 0xFF)};
}

double contrast(const QColor& one, const QColor& other)
{
    const auto [low, high] = std::minmax({luminance(one), luminance(other)});
    return (high + 0.05) / (low + 0.05);
}

QColor legible(const QColor& colour, const QColor& background, double least)
{
    constexpr float step = 0.02F;
    constexpr float calm = 0.75F; // a shifted colour at full saturation glares
    const float direction = inkOn(background) == QColor(Qt::white) ? step : -step;
    QColor result = colour;
    float lightness = colour.lightnessF();
    while (contrast(result, background) < least && lightness > 0.0F && lightness < 1.0F) {
        lightness = std::clamp(lightness + direction, 0.0F, 1.0F);
        const float saturation = std::min(calm, colour.hslSaturationF());
        result = QColor::fromHslF(std::max(0.0F, colour.hslHueF()), saturation, lightness);
    }
    return contrast(result, background) < least ? inkOn(background) : result;
}

QColor LegibleInks::on(const QColor& background, const QColor& colour, double least) const
{
    QColor& ink = known_[{background.rgba(), colour.rgba(), least}];
    if (!ink.isValid()) ink = legible(colour, background, least);
    return ink;
}

bool isStark(const QPalette& palette)
{
    constexpr double stark = 20;
    return contrast(palette.color(QPalette::Active, QPalette::Window),
                    palette.color(QPalette::Active, QPalette::WindowText)) >= stark;
}

QColor pastInk(const QPalette& palette)
{
    const double least = isStark(palette) ? starklyReadable : readable;
    QColor ink = palette.color(QPalette::Disabled, QPalette::Text);
    for (const auto paper : {QPalette::Base, QPalette::AlternateBase})
        ink = legible(ink, palette.color(QPalette::Active, paper), least);
    return ink;
}

QColor mixed(const QColor& one, const QColor& other, float share)
{
    return QColor::fromRgbF(one.redF() + (other.redF() - one.redF()) * share,
                            one.greenF() + (other.greenF() - one.greenF()) * share,
                            one.blueF() + (other.blueF() - one.blueF()) * share);
}

void dressInColour(QWidget& widget, std::optional<Colour> back)
{
    QPalette colours;
    bool paper = false;
    if (back) { // the flag first: the compiler turns "back == white" round, of which valgrind complains
        paper = *back == white;
        if (!paper) {
            const QColor colour = fromColour(*back);
            colours.setColor(QPalette::Window, colour);
            colours.setColor(QPalette::WindowText, inkOn(colour));
        }
    }
    widget.setPalette(colours);
    widget.setBackgroundRole(paper ? QPalette::Base : QPalette::Window);
    widget.setForegroundRole(paper ? QPalette::Text : QPalette::WindowText);
}

QColor inkOn(const QColor& background)
{
    return contrast(Qt::white, background) > contrast(Qt::black, background) ? Qt::white : Qt::black;
}

} // namespace dn::screen::qt
