// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The filter of a save-file dialog: pairs of name and pattern, "Archivos HTML|*.html", joined by "|".
#pragma once

#include <QStringList>

#include <string_view>

namespace dn::screen::qt {

class FileFilter {
public:
    explicit FileFilter(std::string_view pairs);

    /// One for each pair, "Archivos HTML (*.html)".
    const QStringList& nameFilters() const { return filters_; }

    /// The number of a name filter, counted from 1; 1 for one that is not there.
    int number(const QString& nameFilter) const;

private:
    QStringList filters_;
};

} // namespace dn::screen::qt
