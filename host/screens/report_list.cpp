// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "host/screens/report_list.h"

#include <QHeaderView>
#include <QStyledItemDelegate>

namespace dn::host {
namespace {

constexpr int roomInRow = 6; // pixels above and below the text, taken together

/// Rows with some air, for whoever reads them all day.
class RowDelegate : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        return QStyledItemDelegate::sizeHint(option, index) + QSize(0, roomInRow);
    }
};

} // namespace

void dressAsReport(QTreeWidget& list, const char* name, const char* accessible,
                   const std::vector<ReportColumn>& columns)
{
    list.setObjectName(name);
    list.setAccessibleName(accessible);
    list.setRootIsDecorated(false);
    list.setUniformRowHeights(true);
    list.setAlternatingRowColors(true);
    list.setAllColumnsShowFocus(true);
    list.setItemDelegate(new RowDelegate(&list));
    QStringList captions;
    for (const ReportColumn& column : columns)
        captions.append(column.caption);
    list.setHeaderLabels(captions);
    list.header()->setStretchLastSection(false);
    const int character = list.fontMetrics().averageCharWidth();
    for (int i = 0; i < captions.size(); ++i) {
        const int characters = columns[static_cast<std::size_t>(i)].characters;
        if (characters > 0)
            list.setColumnWidth(i, character * characters);
        else
            list.header()->setSectionResizeMode(i, QHeaderView::Stretch);
    }
}

} // namespace dn::host
