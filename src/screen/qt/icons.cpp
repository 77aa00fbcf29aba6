// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "screen/qt/icons.h"

#include "screen/qt/text.h"

#include <QFile>
#include <QPixmap>

#include <map>
#include <string>

namespace dn::screen::qt {

const QIcon& drawing(std::string_view name)
{
    static std::map<std::string, QIcon, std::less<>> cache;
    const auto known = cache.find(name);
    if (known != cache.end()) return known->second;
    const QString file = QStringLiteral(":/dn/icons/%1.svg").arg(fromUtf8(name));
    return cache.emplace(name, QFile::exists(file) ? QIcon(file) : QIcon()).first->second;
}

const QIcon& blank()
{
    static const QIcon icon = [] {
        QPixmap nothing(16, 16);
        nothing.fill(Qt::transparent);
        return QIcon(nothing);
    }();
    return icon;
}

} // namespace dn::screen::qt
