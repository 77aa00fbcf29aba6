// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// How the lists of the host's windows look: rows of columns under a header, one row chosen.
#pragma once

#include <QTreeWidget>

#include <vector>

namespace dn::host {

struct ReportColumn {
    const char* caption;
    int characters; ///< width; 0 for what is left
};

/// @param name the list's object name. @param accessible what a screen reader calls it.
void dressAsReport(QTreeWidget& list, const char* name, const char* accessible,
                   const std::vector<ReportColumn>& columns);

} // namespace dn::host
