// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// What the operator asked for on the command line.
#pragma once

#include <QSize>
#include <QString>
#include <QStringList>

#include <cstddef>
#include <cstdint>
#include <optional>

namespace dn::host {

struct ProgramOptions {
    QString answer;                      ///< to be printed, and all there is to do, after `--help` and `--version`
    QString connect;                     ///< another database; empty for the private one
    QStringList furtherServers;          ///< of that database, in the order in which they are tried
    bool createSchema = false;           ///< make the tables there
    QString dataFolder;                  ///< of the private database; empty for the usual place
    std::optional<std::size_t> demoRows; ///< prospects of the sample data of a new database
    std::optional<std::int32_t> agent;   ///< key of the agent who works
    bool admin = false;
    QString user;
    std::optional<std::int16_t> tab; ///< tab to show first
    bool dial = false;               ///< hand the number of a call to the desktop
    QString screenshot;              ///< file to render the window to, instead of showing it
    std::optional<QSize> size;       ///< of the window, in logical pixels
    QString theme;                   ///< a name of `themes`; empty for what was chosen before

    /// Whether the command line says which database to open, so that nobody needs to be asked. A picture, and who
    /// names the agent, wants no question either.
    bool saysWhichDatabase() const
    {
        return !connect.isEmpty() || createSchema || !dataFolder.isEmpty() || demoRows.has_value();
    }

    /// Whether the command line says who works, so that nobody needs to be asked.
    bool saysWhoWorks() const { return agent.has_value() || admin; }
};

/// Reads the command line of the application, which must be there.
/// @throws HostError for a value that makes no sense.
ProgramOptions readProgramOptions();

} // namespace dn::host
