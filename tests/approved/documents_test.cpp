// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The pictures of the documents that the program itself makes, with its sample data: they show what it shows
// today.

#include "tests/approved/approval.h"

#include <QDir>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace dn::tests {
namespace {

TEST(DocumentPictures, are_what_the_program_shows)
{
    const QTemporaryDir taken;
    QProcess script;
    script.setProcessChannelMode(QProcess::MergedChannels);
    script.start(DN_SOURCE_DIR "/scripts/take-pictures", {"--into", taken.path(), DN_BINARY_DIR});
    ASSERT_TRUE(script.waitForFinished(-1));
    const std::string said = script.readAll().toStdString();
    if (script.exitCode() == 77) GTEST_SKIP() << said;
    ASSERT_EQ(script.exitCode(), 0) << said;
    const QStringList names = QDir(taken.path()).entryList({"*.png"});
    EXPECT_EQ(names.size(), 6);
    for (const QString& name : names)
        isAsApproved(QImage(taken.filePath(name)), QStringLiteral(DN_SOURCE_DIR "/docs/pictures/") + name);
}

} // namespace
} // namespace dn::tests
