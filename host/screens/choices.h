// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The entries of the forms' drop-downs: those that the database lists, and the codes of a project.
#pragma once

#include "host/database/own_connection.h"

#include <QIcon>
#include <QString>

#include <cstdint>
#include <vector>

namespace dn::host {

struct Choice {
    std::int32_t key = 0;
    QString text;
    QIcon icon = {};
};

// In alphabetical order. @throws data::Error

std::vector<Choice> readGoals(OwnConnection& database);
std::vector<Choice> readAgents(OwnConnection& database);
std::vector<Choice> readCities(OwnConnection& database);
std::vector<Choice> readActivityKinds(OwnConnection& database);

/// The codes of UF_Status1, from cold to hot. @param ended with "Cerrado" and "Perdido" as well.
std::vector<Choice> temperatures(bool ended);
/// The codes of UF_Color but that for none, each with a patch of its colour.
std::vector<Choice> colours();

/// The text of a choice; the empty text for a key that none has.
QString textOf(const std::vector<Choice>& choices, std::int32_t key);

} // namespace dn::host
