// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// How a start without options finds its database: what was chosen at the first start, with the password from the
// keyring; or the window of the first start, again and again until a database opens or the operator gives up.
#pragma once

#include "host/desktop/first_start.h"
#include "host/desktop/keyring.h"

#include <QString>

#include <functional>
#include <string>
#include <vector>

namespace dn::host {

class Beginning {
public:
    /// Opens a database at one of its servers: the private one with sample data where there are none. Throws what
    /// is wrong.
    using Opener = std::function<void(const std::vector<std::string>& servers, bool createSchema)>;

    /// @param file remembers the choice. The keyring outlives this.
    Beginning(QString file, Keyring& keyring, FirstStart::ConnectionTest test);

    /// Whether there was a first start.
    bool knows() const { return readStartChoice(file_).has_value(); }

    /// @return false when the operator gave up; nothing is open then.
    bool open(const Opener& opener);
    /// Lets the operator choose anew; the next start takes it. @return whether he chose.
    bool chooseAgain(QWidget* over);

private:
    std::optional<StartAnswer> ask(const std::optional<StartAnswer>& before, const QString& problem);
    std::optional<StartAnswer> chosenBefore();
    std::optional<StartAnswer> completed(StartAnswer answer);
    void keep(const StartAnswer& answer);

    QString file_;
    Keyring& keyring_;
    FirstStart::ConnectionTest test_;
};

} // namespace dn::host
