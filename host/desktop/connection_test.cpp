// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "host/desktop/connection_test.h"

#include "data/error.h"
#include "host/database/host_error.h"
#include "host/database/schema.h"

#include <QStringList>

#include <future>

namespace dn::host {
namespace {

constexpr unsigned patience = 5; // seconds: the operator waits before his screen

QString howManyAnswer(qsizetype answering, std::size_t servers)
{
    if (answering == static_cast<qsizetype>(servers))
        return QStringLiteral("Contestan los %1 servidores.").arg(servers);
    return QStringLiteral("%1 %2 de %3 servidores.")
        .arg(answering == 1 ? QStringLiteral("Contesta") : QStringLiteral("Contestan"))
        .arg(answering)
        .arg(servers);
}

} // namespace

DatabaseChoice impatient(DatabaseChoice choice)
{
    std::visit(
        [](auto& target) {
            target.connectTimeout = patience;
            target.readTimeout = patience;
        },
        choice);
    return choice;
}

QString testConnection(const std::string& connect)
try {
    const auto connection = host::connect(impatient(parseDatabaseChoice(connect)));
    QStringList missing;
    for (const std::string& name : missingObjects(*connection))
        missing += QString::fromStdString(name);
    if (missing.isEmpty()) return QStringLiteral("La conexión funciona y la base tiene todas sus tablas.");
    return QStringLiteral("La conexión funciona, pero a la base le falta: %1. Si está vacía, marque «Crear las "
                          "tablas».")
        .arg(missing.join(QLatin1String(", ")));
} catch (const data::Error& failure) {
    throw HostError("El servidor contestó: " + std::string(failure.what()));
}

QString testServers(const std::vector<std::string>& servers)
{
    if (servers.size() == 1) return testConnection(servers.front());
    std::vector<std::future<QString>> tests;
    tests.reserve(servers.size());
    for (const std::string& server : servers)
        tests.push_back(std::async(std::launch::async, [&server] { return testConnection(server); }));
    QStringList told;
    QStringList problems;
    for (std::size_t i = 0; i < servers.size(); ++i) {
        try {
            const QString said = tests[i].get();
            told += QString::fromStdString(describe(parseDatabaseChoice(servers[i]))) + ": " + said;
        } catch (const std::exception& failure) {
            problems += QString::fromUtf8(failure.what());
            told += "⚠ " + problems.constLast();
        }
    }
    if (problems.size() == told.size()) throw HostError(problems.join(u'\n').toStdString());
    return howManyAnswer(told.size() - problems.size(), servers.size()) + "\n" + told.join(u'\n');
}

} // namespace dn::host
