// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "screen/qt/file_filter.h"

#include "screen/qt/text.h"

namespace dn::screen::qt {

FileFilter::FileFilter(std::string_view pairs)
{
    const QStringList parts = fromUtf8(pairs).split(u'|');
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
        QString pattern = parts[i + 1];
        filters_ += QStringLiteral("%1 (%2)").arg(parts[i], pattern.replace(u';', u' '));
    }
}

int FileFilter::number(const QString& nameFilter) const
{
    const qsizetype index = filters_.indexOf(nameFilter);
    return index < 0 ? 1 : static_cast<int>(index) + 1;
}

} // namespace dn::screen::qt
