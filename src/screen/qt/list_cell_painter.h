// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// Paints the cells of a list view: one selected row instead of a focused cell, colours that stay legible on the
// present palette, and figures that are a little too wide for their column in full.
#pragma once

#include "screen/qt/colours.h"

#include <QIcon>
#include <QStyledItemDelegate>

#include <map>
#include <tuple>

namespace dn::screen::qt {

class ListCellPainter : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    /// Fills an option whose rectangle is set, as it is painted.
    void describe(QStyleOptionViewItem& option, const QModelIndex& index) const;

    /// Whether the cell's text does not fit.
    bool isCutOff(const QStyleOptionViewItem& place, const QModelIndex& index) const;

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;

private:
    /// A drawing, its width, height, scale and paper, and whether it is enabled.
    using Plate = std::tuple<qint64, int, int, qreal, QRgb, bool>;

    const QIcon& plated(const QStyleOptionViewItem& option) const;

    LegibleInks inks_;
    // A new icon for each painting would fill the toolkit's cache of pixmaps, and push all others out of it.
    mutable std::map<Plate, QIcon> plates_;
};

} // namespace dn::screen::qt
