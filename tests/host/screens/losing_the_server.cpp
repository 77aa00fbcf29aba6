// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/host/screens/losing_the_server.h"

#include "host/database/schema.h"

#include <QCoreApplication>
#include <QPlainTextEdit>

namespace dn::host::tests {

using dn::tests::MariaServer;

std::string textTo(const MariaServer& server)
{
    return "mariadb://" + std::string(MariaServer::user) + ":" + std::string(MariaServer::password) +
           "@localhost/" + std::string(MariaServer::database) +
           "?read_timeout=1&connect_timeout=1&socket=" + server.socket();
}

std::unique_ptr<data::Connection> reach(const MariaServer& server)
{
    return connect(parseDatabaseChoice(textTo(server)));
}

std::unique_ptr<MariaServer> serverWithRows()
{
    auto server = std::make_unique<MariaServer>(MariaServer::Network::socketOnly,
                                                std::vector<std::string>{"--innodb-flush-log-at-trx-commit=1"});
    const auto beside = reach(*server);
    createSchema(*beside, Engine::mariadb);
    beside->execute("INSERT INTO Agente (Sys_PK, Nombre) VALUES (7, 'Ana'), (9, 'Beto')");
    beside->execute("INSERT INTO ut_icontact (Sys_PK, uf_Nombre, uf_Telefono, uf_IEjecutivo, uf_Fecha) VALUES "
                    "(1, 'Luz', '961', 7, '2026-03-01'), (2, 'Gil', '962', 7, '2026-03-02'), "
                    "(3, 'Rita', '963', 9, '2026-03-03')");
    return server;
}

void LosingTheServer::opens(std::optional<std::int16_t> tab, Rhythm rhythm, const Worker& worker)
{
    database.emplace(openDatabase(options()));
    window.emplace(*database, worker, std::move(rhythm));
    window->show();
    window->start(tab);
    window->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&*window));
}

DatabaseOptions LosingTheServer::options()
{
    DatabaseOptions result;
    result.connect = textTo(*server);
    return result;
}

std::string LosingTheServer::bar()
{
    if (!in("BarraDeConexion").isVisible()) return "";
    return in<QLabel>("lblConexion").text().toStdString();
}

std::string LosingTheServer::keptNote()
{
    const auto& notes = in<QPlainTextEdit>("txtNotasNoGuardadas");
    return notes.isVisible() ? notes.toPlainText().toStdString() : "";
}

bool LosingTheServer::tells(const std::string& part)
{
    return QTest::qWaitFor([&] { return bar().find(part) != std::string::npos; }, 20'000);
}

bool LosingTheServer::goesOn()
{
    return QTest::qWaitFor([&] { return bar().starts_with("Conexión restablecida") && window->ready(); }, 20'000);
}

bool LosingTheServer::startsMeanwhile()
{
    for (int turn = 0; turn < 3; ++turn)
        QCoreApplication::processEvents();
    return window->ready();
}

void LosingTheServer::selects(screen::ListView& list, const char* key)
{
    list.clickRow(static_cast<std::size_t>(list.ListItems()(key).Index()) - 1);
}

std::string LosingTheServer::selected(screen::ListView& list)
{
    const auto row = list.SelectedItem();
    return row ? std::string(row->Key()) : "";
}

std::vector<std::string> LosingTheServer::notes()
{
    std::vector<std::string> found;
    const auto rows = reach(*server)->execute("SELECT CONCAT(uf_Iicontact, ' ', uf_Mensaje) FROM xt_biticontact");
    for (; !rows->Eof(); rows->MoveNext())
        found.emplace_back(rows->value(0).raw());
    return found;
}

} // namespace dn::host::tests
