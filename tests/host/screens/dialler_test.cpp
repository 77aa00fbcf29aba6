// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The number that the desktop is asked to dial, taken out of what a row holds for one.

#include "host/dialler.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

namespace dn::host::tests {
namespace {

TEST(Dialler, takes_the_first_number_of_a_text)
{
    for (const auto& [text, address] : std::map<std::string, QString>{{"5512345678", "tel:5512345678"},
                                                                      {"(55) 12-34.56 78", "tel:5512345678"},
                                                                      {"+52 961 612", "tel:+52961612"},
                                                                      {"9611 / 9612", "tel:9611"},
                                                                      {"oficina 9611 o casa 9612", "tel:9611"},
                                                                      {"ext. + 12", "tel:12"},
                                                                      {"Tel. Proyecto", ""},
                                                                      {"", ""},
                                                                      {"; rm -rf 1;", "tel:1"}})
        EXPECT_EQ(telephoneAddress(text), address) << text;
}

TEST(Dialler, starts_the_desktops_program_and_does_not_wait_for_it)
{
    const QTemporaryDir folder;
    const QString called = folder.filePath("llamado");
    QFile program(folder.filePath("xdg-open"));
    ASSERT_TRUE(program.open(QIODevice::WriteOnly));
    program.write(
        ("#!/bin/sh\necho \"$1\" > '" + called + ".nuevo' && mv '" + called + ".nuevo' '" + called + "'\n")
            .toUtf8());
    program.close();
    program.setPermissions(QFile::ReadOwner | QFile::ExeOwner);
    const QByteArray before = qgetenv("PATH");
    qputenv("PATH", folder.path().toUtf8() + ":" + before);
    EXPECT_TRUE(dial("55 12"));
    EXPECT_FALSE(dial("Tel. Proyecto"));
    EXPECT_TRUE(QTest::qWaitFor([&] { return QFile::exists(called); }));
    QFile said(called);
    ASSERT_TRUE(said.open(QIODevice::ReadOnly));
    EXPECT_EQ(said.readAll(), "tel:5512\n");
    qputenv("PATH", "/proc/no/existe");
    EXPECT_FALSE(dial("55 12")) << "a desktop without such a program";
    qputenv("PATH", before);
}

} // namespace
} // namespace dn::host::tests
