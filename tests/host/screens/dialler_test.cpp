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
    for (const auto& [text, address] :
         std::map<std::string, QString>{{"5512345678", "tel:5512345678"},
                                        {"(55) 12-34.56 78", "tel:5512345678"},
                                        {"55 - 12 - 34 - 56 - 78", "tel:5512345678"},
                                        {"+52 961 612", "tel:+52961612"},
                                        {"+52 (961) 612 34 56", "tel:+529616123456"},
                                        {"96112 / 96122", "tel:96112"},
                                        {"oficina 96112 o casa 96122", "tel:96112"},
                                        {"5512345678 - 9611234567", "tel:5512345678"},
                                        {"6123456 - 6123457", "tel:6123456"},
                                        {"5512345678 9611234567", "tel:5512345678"},
                                        {"Tel1: 5512345678", "tel:5512345678"},
                                        {"Tel1 5512345678", "tel:5512345678"},
                                        {"2 líneas: 5512345678", "tel:5512345678"},
                                        {"ext. + 12", ""},
                                        {"ext. 12, 5512345678", "tel:5512345678"},
                                        {"123456789012345", "tel:123456789012345"},
                                        {"1234567890123456", ""}, // no number of the world has 16
                                        {"1234567890123456, 5512345678", "tel:5512345678"},
                                        {"Tel. Proyecto", ""},
                                        {"", ""},
                                        {"; rm -rf 55123;", "tel:55123"}})
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
    EXPECT_TRUE(dial("55 123"));
    EXPECT_FALSE(dial("Tel. Proyecto"));
    EXPECT_TRUE(QTest::qWaitFor([&] { return QFile::exists(called); }));
    QFile said(called);
    ASSERT_TRUE(said.open(QIODevice::ReadOnly));
    EXPECT_EQ(said.readAll(), "tel:55123\n");
    qputenv("PATH", "/proc/no/existe");
    EXPECT_FALSE(dial("55 123")) << "a desktop without such a program";
    qputenv("PATH", before);
}

} // namespace
} // namespace dn::host::tests
