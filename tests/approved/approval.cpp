// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/approved/approval.h"

#include <QDir>
#include <QFile>
#include <QPainter>
#include <QTest>
#include <QtGlobal>

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
            if (differ(taken.pixel(x, y), approved.pixel(x, y))) ++count;
    return count;
}

bool hasApprovedFonts()
{
    return qEnvironmentVariable("FONTCONFIG_FILE") == QStringLiteral(DN_APPROVED "/fonts.conf") &&
           qEnvironmentVariable("QT_FONT_DPI") == QStringLiteral("96");
}

void looksAsApproved(QWidget& window, const QString& name, Scales scales)
{
    const qreal scale = window.devicePixelRatioF();
    const bool compared = scale == 1 || (scale == 3 && scales == Scales::oneAndThree);
    if (!compared || !hasApprovedFonts()) return;
    const QString file = name + (scale == 1 ? QStringLiteral(".png") : QStringLiteral("-3x.png"));
    comesToRest(window);
    const QImage taken = window.grab().toImage().convertToFormat(QImage::Format_RGB32);
    const QString path = QDir(QStringLiteral(DN_APPROVED "/pictures")).filePath(file);
    const QImage approved(path);
    const int count = differing(taken, approved.convertToFormat(QImage::Format_RGB32));
    if (const QString folder = qEnvironmentVariable("DN_APPROVE"); !folder.isEmpty()) {
        const QString fresh = QDir(folder).filePath(file);
        EXPECT_TRUE(count > tolerated ? taken.save(fresh) : QFile::copy(path, fresh)) << fresh.toStdString();
        return;
    }
    ASSERT_FALSE(approved.isNull()) << file.toStdString() << " has no approved picture: scripts/approve-pictures";
    EXPECT_LE(count, tolerated) << file.toStdString() << " looks different; see the folder pictures-that-differ";
    if (count > tolerated) leaveDifference(taken, approved.convertToFormat(QImage::Format_RGB32), file);
}

} // namespace dn::tests
