// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// An operator's day: the server's clock and the machine's are set to one moment, and the queue of the day is at
// hand.
#pragma once

#include "tests/stories/operator.h"

#include <cstdint>
#include <string>
#include <vector>

namespace dn::tests {

class Day : public Operator {
protected:
    Day();

    /// Sets both clocks: "2026-03-14 09:30:00".
    void itIs(const std::string& moment);

    /// From here on the server counts the hours of Madrid, whose clocks change on 29 March and 25 October 2026.
    void livesInMadrid();

    /// An open project with its organisation and contact, of one name; its key.
    std::int64_t project(const std::string& name, std::int32_t agent = ana);
    /// A pending activity of a project.
    void activity(std::int64_t project, const std::string& due);

    /// While an operation of the host's screens runs, this happens in the database.
    void whileTheHost(const std::string& call, const std::vector<std::string>& statements);

    void clicksQueue(const std::string& contact);
    /// The queue from top to bottom: "Contacto 10:00:00 María".
    std::vector<std::string> seesQueue();
    /// The log from the oldest line on: the party, its key and the message.
    std::vector<std::string> log();

private:
    std::size_t queuePosition(const std::string& contact);
};

} // namespace dn::tests
