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
#include <optional>
#include <vector>

namespace dn::host {

/// How often is tried.
struct Rhythm {
    /// Ahead of each attempt; the last one repeats.
    std::vector<std::chrono::seconds> pauses{std::chrono::seconds(0),  std::chrono::seconds(1),
                                             std::chrono::seconds(2),  std::chrono::seconds(5),
                                             std::chrono::seconds(10), std::chrono::seconds(30)};
    /// A connection that is lost again sooner than this behind its coming back counts as an attempt that failed.
    std::chrono::milliseconds steady = std::chrono::seconds(10);
};

class Reconnection : public QObject {
public:
    enum class State : std::uint8_t { connected, waiting, trying };

    /// @param database outlives this.
    explicit Reconnection(Database& database, Rhythm rhythm = {});
    /// Leaves an attempt under way to itself: nobody who closes a window waits for a server that hangs.
    ~Reconnection() override;

    State state() const { return state_; }
    /// Until the next attempt, rounded up; while waiting.
    std::chrono::seconds untilNext() const;
    /// Why the last attempt failed, for the operator to read. Empty ahead of the first one.
    const QString& reason() const { return reason_; }

    /// The control works on the connection. Only from here on does it stand: one whose first statements hang until
    /// it is lost again is not tried at once, however long they took.
    void works();

    /// Tries without waiting any longer. Does nothing while connected or trying.
    void tryNow();

    screen::Signal<> alive;   ///< soon after a key or a click, and from time to time: the connection still stands
    screen::Signal<> changed; ///< the state, or the seconds until the next attempt
    screen::Signal<> back;    ///< the control's connection works again; comes behind `changed`

    /// Hears of the operator's keys and clicks, whatever window they go to.
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    class Attempt;

    void look();
    void lose();
    void enter(State state);
    void wait();
    void failed(const QString& reason);
    void settle();

    Database& database_;
    Rhythm rhythm_;
    State state_ = State::connected;
    QString reason_;
    std::size_t failures_ = 0; // of attempts, since the connection was lost
    std::size_t soonLost_ = 0; // connections one after the other that did not last
    bool worked_ = true;       // the present connection; the first one by itself
    std::optional<std::chrono::steady_clock::time_point> since_; // when it began to; none for the first
    std::chrono::steady_clock::time_point next_;
    std::chrono::seconds told_{0};
    std::unique_ptr<Attempt> attempt_;
    QTimer timer_;
    QTimer soon_; // once, behind something that the operator did
};

} // namespace dn::host
