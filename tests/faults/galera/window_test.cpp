// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The program's real window on a cluster, whose node dies while a note is typed.

#include "host/main_window.h"
#include "shell/ctr_dn_contacts.h"
#include "tests/faults/galera/cluster.h"
#include "tests/screen/qt/keyboard.h"

#include <QApplication>
#include <QLabel>
#include <QTest>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace dn::tests {
namespace {

std::string noteAt(std::size_t node)
{
    const auto connection = Cluster::ownerAt(node, "ventas");
    connection->execute("SET wsrep_sync_wait = 7");
    const auto rows = connection->execute("SELECT uf_Mensaje FROM xt_biticontact WHERE uf_Iicontact = 1");
    return rows->Eof() ? "" : rows->value(0).toText();
}

TEST(TheWindowOnACluster, finds_the_next_node_and_the_operator_types_on)
{
    Cluster::makeVentas();
    host::Database database = host::openDatabase(Cluster::servers(Cluster::owner, "ventas"));
    host::MainWindow window(database, host::Worker{7, false, "ana"});
    window.show();
    window.start(desk::prospectos);
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    window.control().elements().prospects.lvw.clickRow(0);
    auto* const box = window.findChild<QWidget*>("txtText");
    box->setFocus();
    presses(*box, "pide ");

    Cluster::kill(0);
    const auto* const bar = window.findChild<QLabel*>("lblConexion");
    ASSERT_TRUE(QTest::qWaitFor(
        [&] { return bar->isVisible() && bar->text().startsWith("Conexión restablecida") && window.ready(); },
        60'000))
        << bar->text().toStdString();
    EXPECT_THAT(database.description(), testing::HasSubstr("(servidor 2 de 3)"));
    ASSERT_EQ(QApplication::focusWidget(), box);
    presses(*box, "precios");
    QTest::keyClick(box, Qt::Key_Return);
    EXPECT_EQ(noteAt(1), "pide precios");
    EXPECT_EQ(noteAt(2), "pide precios");
}

} // namespace
} // namespace dn::tests
