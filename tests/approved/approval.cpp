// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/approved/approval.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QPainter>
#include <QTest>
#include <QtGlobal>

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstdlib>

namespace dn::tests {
namespace {

constexpr int tolerated = 8; ///< pixels of a picture: less than a letter has
constexpr int softness = 56; ///< of 255, in any channel
constexpr int tile = 16;     ///< pixels, the side of an area whose shade is compared
constexpr double tint = 2;   ///< of 255, in the mean of any channel over an area

/// A row of a picture of 32 bits; faster by far than a look at each pixel by its place.
const QRgb* row(const QImage& picture, int y) { return reinterpret_cast<const QRgb*>(picture.constScanLine(y)); }

bool differ(QRgb one, QRgb other)
{
    return std::max({std::abs(qRed(one) - qRed(other)), std::abs(qGreen(one) - qGreen(other)),
                     std::abs(qBlue(one) - qBlue(other))}) > softness;
}

/// How much the mean of an area differs, in the channel where that is most. Pixels that are counted by themselves,
/// because they differ much, are left aside.
double shift(const QImage& taken, const QImage& approved, const QRect& area)
{
    std::array<int, 3> sums{};
    int count = 0;
    for (int y = area.top(); y <= area.bottom(); ++y)
        for (int x = area.left(); x <= area.right(); ++x) {
            const QRgb one = row(taken, y)[x];
            const QRgb other = row(approved, y)[x];
            if (differ(one, other)) continue;
            sums[0] += qRed(one) - qRed(other);
            sums[1] += qGreen(one) - qGreen(other);
            sums[2] += qBlue(one) - qBlue(other);
            ++count;
        }
    const int most = std::max({std::abs(sums[0]), std::abs(sums[1]), std::abs(sums[2])});
    return count == 0 ? 0 : static_cast<double>(most) / count;
}

/// What was taken in grey, with the differing pixels in red and frames round areas of another shade.
QImage marked(const QImage& taken, const QImage& approved)
{
    QImage result = taken.convertToFormat(QImage::Format_Grayscale8).convertToFormat(QImage::Format_RGB32);
    for (int y = 0; y < taken.height(); ++y)
        for (int x = 0; x < taken.width(); ++x)
            if (!approved.rect().contains(x, y) || differ(taken.pixel(x, y), approved.pixel(x, y)))
                result.setPixel(x, y, qRgb(255, 0, 0));
    QPainter painter(&result);
    painter.setPen(Qt::red);
    for (const QRect& area : shaded(taken, approved))
        painter.drawRect(area.adjusted(0, 0, -1, -1));
    return result;
}

void leaveDifference(const QImage& taken, const QImage& approved, const QString& name)
{
    constexpr int gap = 10;
    const QImage difference = marked(taken, approved);
    QImage all(taken.width() * 2 + approved.width() + 2 * gap, std::max(taken.height(), approved.height()),
               QImage::Format_RGB32);
    all.fill(Qt::darkGray);
    QPainter painter(&all);
    painter.drawImage(0, 0, taken);
    painter.drawImage(taken.width() + gap, 0, approved);
    painter.drawImage(taken.width() + approved.width() + 2 * gap, 0, difference);
    painter.end();
    QDir().mkpath(QStringLiteral("pictures-that-differ"));
    EXPECT_TRUE(all.save(QStringLiteral("pictures-that-differ/") + name));
}

/// Gives the window the keyboard, which a box may have taken from it, and hides the buttons that empty a line:
/// they fade in and out, by animations that nobody can ask.
void comesToRest(QWidget& window)
{
    if (window.isWindow() && window.windowType() != Qt::Popup) {
        window.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window)) << window.objectName().toStdString();
    }
    for (QWidget* const child : window.findChildren<QWidget*>())
        if (child->property("opacity").isValid()) child->hide();
}

} // namespace

int differing(const QImage& taken, const QImage& approved)
{
    if (taken.size() != approved.size()) return taken.width() * taken.height();
    int count = 0;
    for (int y = 0; y < taken.height(); ++y)
        for (int x = 0; x < taken.width(); ++x)
            if (differ(row(taken, y)[x], row(approved, y)[x])) ++count;
    return count;
}

std::vector<QRect> shaded(const QImage& taken, const QImage& approved)
{
    std::vector<QRect> found;
    if (taken.size() != approved.size()) return found;
    for (int top = 0; top < taken.height(); top += tile)
        for (int left = 0; left < taken.width(); left += tile) {
            // What is left over at an edge is compared in a whole area too: few pixels have no mean to speak of.
            QRect area(std::min(left, std::max(taken.width() - tile, 0)),
                       std::min(top, std::max(taken.height() - tile, 0)), tile, tile);
            area &= taken.rect();
            if (shift(taken, approved, area) > tint) found.push_back(area);
        }
    return found;
}

bool hasApprovedFonts()
{
    return qEnvironmentVariable("FONTCONFIG_FILE") == QStringLiteral(DN_APPROVED "/fonts.conf") &&
           qEnvironmentVariable("QT_FONT_DPI") == QStringLiteral("96");
}

void isAsApproved(const QImage& picture, const QString& path)
{
    const QImage taken = picture.convertToFormat(QImage::Format_RGB32);
    const QImage approved = QImage(path).convertToFormat(QImage::Format_RGB32);
    const QString file = QFileInfo(path).fileName();
    const int count = differing(taken, approved);
    const std::size_t areas = shaded(taken, approved).size();
    const bool asApproved = count <= tolerated && areas == 0;
    if (const QString folder = qEnvironmentVariable("DN_APPROVE"); !folder.isEmpty()) {
        const QString fresh = QDir(folder).filePath(file);
        EXPECT_TRUE(asApproved ? QFile::copy(path, fresh) : taken.save(fresh)) << fresh.toStdString();
        return;
    }
    ASSERT_FALSE(approved.isNull()) << file.toStdString() << " has no approved picture: scripts/approve-pictures";
    EXPECT_TRUE(asApproved) << file.toStdString() << " looks different: " << count << " pixels, " << areas
                            << " areas of another shade; see the folder pictures-that-differ";
    if (!asApproved) leaveDifference(taken, approved, file);
}

void looksAsApproved(QWidget& window, const QString& name, Scales scales)
{
    comesToRest(window);
    const qreal scale = window.devicePixelRatioF();
    const bool compared = scale == 1 || (scale == 3 && scales == Scales::oneAndThree);
    if (!compared || !hasApprovedFonts()) return;
    const QString file = name + (scale == 1 ? QStringLiteral(".png") : QStringLiteral("-3x.png"));
    isAsApproved(window.grab().toImage(), QDir(QStringLiteral(DN_APPROVED "/pictures")).filePath(file));
}

} // namespace dn::tests
