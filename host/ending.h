// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// Ending in good order when the program is told to end from outside (Ctrl+C, the end of the desktop session): the
// window closes and the private server stops, as if the operator had closed it.
#pragma once

#include <QObject>

#include <functional>

namespace dn::host {

class EndingSignals : public QObject {
public:
    /// @param ending runs on the event loop after SIGINT, SIGTERM or SIGHUP.
    explicit EndingSignals(std::function<void()> ending);
    ~EndingSignals() override;

private:
    void arrived();

    std::function<void()> ending_;
};

} // namespace dn::host
