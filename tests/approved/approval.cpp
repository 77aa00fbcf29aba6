// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/approved/approval.h"

#include <QDir>
#include <QPainter>

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>

namespace dn::tests {
namespace {

constexpr int tolerated = 8; ///< pixels of a picture: less than a letter has
constexpr int softness = 56; ///< of 255, in any channel

bool differ(QRgb one, QRgb other)
{
    return std::max({std::abs(qRed(one) - qRed(other)), std::abs(qGreen(one) - qGreen(other)),
                     std::abs(qBlue(one) - qBlue(other))}) > softness;
}

/// What was taken in grey, with the differing pixels in red.
QImage marked(const QImage& taken, const QImage& approved)
{
    QImage result = taken.convertToFormat(QImage::Format_Grayscale8).convertToFormat(QImage::Format_RGB32);
    for (int y = 0; y < taken.height(); ++y)
        for (int x = 0; x < taken.width(); ++x)
            if (!approved.rect().contains(x, y) || differ(taken.pixel(x, y), approved.pixel(x, y)))
                result.setPixel(x, y, qRgb(255, 0, 0));
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

} // namespace

int differing(const QImage& taken, const QImage& approved)
{
    if (taken.size() != approved.size()) return taken.width() * taken.height();
    int count = 0;
    for (int y = 0; y < taken.height(); ++y)
        for (int x = 0; x < taken.width(); ++x)
            if (differ(taken.pixel(x, y), approved.pixel(x, y))) ++count;
    return count;
}

void looksAsApproved(QWidget& window, const char* name)
{
    if (window.devicePixelRatioF() > 1)
        return; // approved at scale 1; at others only what is cut off is looked for
    const QString file = QString::fromUtf8(name) + QStringLiteral(".png");
    const QImage taken = window.grab().toImage().convertToFormat(QImage::Format_RGB32);
    if (const QString folder = qEnvironmentVariable("DN_APPROVE"); !folder.isEmpty()) {
        EXPECT_TRUE(taken.save(QDir(folder).filePath(file)));
        return;
    }
    const QImage approved(QDir(QStringLiteral(DN_APPROVED)).filePath(file));
    ASSERT_FALSE(approved.isNull()) << name << " has no approved picture: scripts/approve-pictures";
    const int count = differing(taken, approved.convertToFormat(QImage::Format_RGB32));
    EXPECT_LE(count, tolerated) << name << " looks different; see pictures-that-differ/" << file.toStdString();
    if (count > tolerated) leaveDifference(taken, approved.convertToFormat(QImage::Format_RGB32), file);
}

} // namespace dn::tests
