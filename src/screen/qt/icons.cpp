// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "screen/qt/icons.h"

#include "screen/qt/text.h"

#include <QFile>
#include <QPainter>
#include <QPixmap>

#include <map>
#include <string>
#include <tuple>

namespace dn::screen::qt {
namespace {

constexpr QRect inList(0, 0, 16, 16);

QIcon painted(const QColor& ground, const QIcon& picture, qreal scale)
{
    QPixmap pixmap(inList.size() * scale);
    pixmap.setDevicePixelRatio(scale);
    pixmap.fill(ground);
    QPainter painter(&pixmap);
    picture.paint(&painter, inList);
    return pixmap;
}

} // namespace

const QIcon& drawing(std::string_view name)
{
    static std::map<std::string, QIcon, std::less<>> cache;
    const auto known = cache.find(name);
    if (known != cache.end()) return known->second;
    const QString file = QStringLiteral(":/dn/icons/%1.svg").arg(fromUtf8(name));
    return cache.emplace(name, QFile::exists(file) ? QIcon(file) : QIcon()).first->second;
}

const QIcon& drawingOn(const QColor& ground, std::string_view name, qreal scale)
{
    static std::map<std::tuple<QRgb, std::string, qreal>, QIcon> made;
    QIcon& icon = made[{ground.rgba(), std::string(name), scale}];
    if (icon.isNull()) icon = painted(ground, drawing(name), scale);
    return icon;
}

const QIcon& blank()
{
    static const QIcon icon = [] {
        QPixmap nothing(inList.size());
        nothing.fill(Qt::transparent);
        return QIcon(nothing);
    }();
    return icon;
}

} // namespace dn::screen::qt
