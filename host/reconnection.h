// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// Watches over the control's connection. When it is lost, reaches the database anew: at once, then after pauses
// that grow. The waiting for a server is a thread's; the window goes on meanwhile.
#pragma once

#include "host/database/database.h"
#include "screen/signal.h"

#include <QObject>
#include <QString>
#include <QTimer>

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

namespace dn::host {

class Reconnection : public QObject {
public:
    using Pauses = std::vector<std::chrono::seconds>;
    enum class State : std::uint8_t { connected, waiting, trying };

    /// @param database outlives this. @param pauses ahead of each attempt; the last one repeats.
    explicit Reconnection(Database& database, Pauses pauses = {});
    /// Waits for an attempt under way, which the connect time-out bounds.
    ~Reconnection() override;

    State state() const { return state_; }
    /// Until the next attempt, rounded up; while waiting.
    std::chrono::seconds untilNext() const;
    /// Why the last attempt failed, for the operator to read. Empty ahead of the first one.
    const QString& reason() const { return reason_; }

    /// Tries without waiting any longer. Does nothing while connected or trying.
    void tryNow();

    screen::Signal<> alive;   ///< soon after a key or a click, and from time to time: the connection still stands
    screen::Signal<> changed; ///< the state, or the seconds until the next attempt
    screen::Signal<> back;    ///< the control's connection works again; comes behind `changed`

    /// Hears of the operator's keys and clicks, whatever window they go to.
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct Attempt;

    void look();
    void enter(State state);
    void wait();
    void failed(const QString& reason);
    void settle();

    Database& database_;
    Pauses pauses_;
    State state_ = State::connected;
    QString reason_;
    std::size_t failures_ = 0;
    std::chrono::steady_clock::time_point next_;
    std::chrono::seconds told_{0};
    std::unique_ptr<Attempt> attempt_;
    QTimer timer_;
    QTimer soon_; // once, behind something that the operator did
};

} // namespace dn::host
