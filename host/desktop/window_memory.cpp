// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "host/desktop/window_memory.h"

#include <QScreen>
#include <QSettings>
#include <QStandardPaths>

#include <algorithm>
#include <array>
#include <utility>

namespace dn::host {
namespace {

using screen::qt::ColumnLayouts;

QVariantList toList(const std::vector<int>& numbers) { return {numbers.begin(), numbers.end()}; }

/// A word that is no number makes one that fits no column.
std::vector<int> toNumbers(const QVariant& list)
{
    std::vector<int> numbers;
    for (const QVariant& number : list.toList()) {
        bool valid = false;
        const int value = number.toInt(&valid);
        numbers.push_back(valid ? value : -1);
    }
    return numbers;
}

/// The control's own widths, but for the day's queue, where the first ones hold more than they need: the number to
/// call shows without scrolling in a window of 1048 logical pixels, and all columns in one of 1280.
ColumnLayouts fitted(ColumnLayouts layouts)
{
    constexpr std::array queue{90, 128, 215, 225, 133, 229}; // kind, hour, contact, company, number, mail
    std::vector<int>& widths = layouts["lvwHoy"].widths;
    if (widths.size() == queue.size()) std::copy(queue.begin(), queue.end(), widths.begin());
    return layouts;
}

} // namespace

WindowMemory::WindowMemory(QWidget& window, screen::qt::CtrDnContactsWidget& control, QString file)
    : window_(window), control_(control), file_(std::move(file)), designed_(fitted(control.columnLayouts()))
{
}

void WindowMemory::restore(bool withPlace)
{
    QSettings settings(file_, QSettings::IniFormat);
    if (withPlace) window_.restoreGeometry(settings.value("ventana/lugar").toByteArray());
    settings.beginGroup("columnas");
    ColumnLayouts layouts;
    for (const QString& list : settings.childGroups())
        layouts[list.toStdString()] = {toNumbers(settings.value(list + "/orden")),
                                       toNumbers(settings.value(list + "/anchos"))};
    control_.columnLayouts(layouts);
}

void WindowMemory::save() const
{
    QSettings settings(file_, QSettings::IniFormat);
    settings.setValue("ventana/lugar", window_.saveGeometry());
    for (const auto& [list, layout] : control_.columnLayouts()) {
        const QString group = "columnas/" + QString::fromStdString(list);
        settings.setValue(group + "/orden", toList(layout.order));
        settings.setValue(group + "/anchos", toList(layout.widths));
    }
}

void WindowMemory::resetColumns() { control_.columnLayouts(designed_); }

void takeFirstPlace(QWidget& window, QSize designed)
{
    const QSize room = window.screen()->availableGeometry().size();
    window.resize(designed.boundedTo(room));
    const bool fits = designed.width() <= room.width() && designed.height() <= room.height();
    if (!fits) window.setWindowState(window.windowState() | Qt::WindowMaximized);
}

QString rememberedTheme(const QString& file)
{
    return QSettings(file, QSettings::IniFormat).value("ventana/tema").toString();
}

void rememberTheme(const QString& file, const QString& theme)
{
    QSettings(file, QSettings::IniFormat).setValue("ventana/tema", theme);
}

std::optional<int> rememberedAgent(const QString& file)
{
    bool valid = false;
    const int agent = QSettings(file, QSettings::IniFormat).value("quien/agente").toInt(&valid);
    return valid ? std::optional(agent) : std::nullopt;
}

void rememberAgent(const QString& file, int agent)
{
    QSettings(file, QSettings::IniFormat).setValue("quien/agente", agent);
}

QString settingsFile(const QString& name)
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + "/dncontacts/" + name;
}

} // namespace dn::host
