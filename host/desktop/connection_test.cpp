// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "host/desktop/connection_test.h"

#include "data/error.h"
#include "host/database/host_error.h"
#include "host/database/schema.h"

#include <QStringList>

namespace dn::host {
namespace {

constexpr unsigned patience = 5; // seconds: the operator waits before his screen

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

} // namespace dn::host
