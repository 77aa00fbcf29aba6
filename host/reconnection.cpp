// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "host/reconnection.h"

#include "host/database/host_error.h"

#include <QCoreApplication>
#include <QEvent>

#include <algorithm>
#include <atomic>
#include <thread>
#include <utility>

namespace dn::host {
namespace {

using namespace std::chrono_literals;

constexpr auto lookEvery = 250ms;
constexpr auto lookAtRestEvery = 1s; // an idle program is to sleep

bool isOfTheOperator(QEvent::Type type)
{
    return type == QEvent::KeyRelease || type == QEvent::MouseButtonRelease;
}

} // namespace

/// Touches nothing of the window: whoever waits looks at it from time to time.
struct Reconnection::Attempt {
    explicit Attempt(const Database& database)
        : thread([this, &database] {
              try {
                  connection = database.openConnection();
              } catch (const std::exception& error) {
                  failure = error.what();
              }
              finished = true;
          })
    {
    }
    Attempt(const Attempt&) = delete;
    Attempt& operator=(const Attempt&) = delete;
    ~Attempt() { thread.join(); }

    std::unique_ptr<data::Connection> connection;
    std::string failure;
    std::atomic<bool> finished{false};
    std::thread thread; // last: it uses the others
};

Reconnection::Reconnection(Database& database, Pauses pauses)
    : database_(database), pauses_(pauses.empty() ? Pauses{0s, 1s, 2s, 5s, 10s, 30s} : std::move(pauses))
{
    connect(&timer_, &QTimer::timeout, this, [this] { look(); });
    soon_.setSingleShot(true);
    soon_.setInterval(lookEvery);
    connect(&soon_, &QTimer::timeout, this, [this] { look(); });
    qApp->installEventFilter(this);
    enter(State::connected);
}

bool Reconnection::eventFilter(QObject* watched, QEvent* event)
{
    if (isOfTheOperator(event->type()) && !soon_.isActive()) soon_.start();
    return QObject::eventFilter(watched, event);
}

void Reconnection::enter(State state)
{
    state_ = state;
    timer_.start(state == State::connected ? std::chrono::milliseconds(lookAtRestEvery) : lookEvery);
}

Reconnection::~Reconnection() = default;

std::chrono::seconds Reconnection::untilNext() const
{
    const auto left = std::chrono::ceil<std::chrono::seconds>(next_ - std::chrono::steady_clock::now());
    return std::max(left, std::chrono::seconds::zero());
}

void Reconnection::look()
{
    if (state_ == State::trying) {
        if (attempt_->finished) settle();
        return;
    }
    if (state_ == State::connected) {
        if (database_.connection().State() == data::Connection::open) return alive.emit();
        failures_ = 0;
        reason_.clear();
        wait();
    }
    if (std::chrono::steady_clock::now() >= next_)
        tryNow();
    else if (untilNext() != std::exchange(told_, untilNext()))
        changed.emit();
}

void Reconnection::wait()
{
    enter(State::waiting);
    const std::chrono::seconds pause = pauses_[std::min(failures_, pauses_.size() - 1)];
    next_ = std::chrono::steady_clock::now() + pause;
    told_ = pause;
    changed.emit();
}

void Reconnection::tryNow()
{
    if (state_ != State::waiting) return;
    try {
        database_.revive();
    } catch (const HostError& error) {
        failed(QString::fromUtf8(error.what()));
        return;
    }
    enter(State::trying);
    attempt_ = std::make_unique<Attempt>(database_);
    changed.emit();
}

void Reconnection::failed(const QString& reason)
{
    ++failures_;
    reason_ = reason;
    wait();
}

void Reconnection::settle()
{
    const std::unique_ptr<Attempt> attempt = std::move(attempt_);
    if (!attempt->connection) return failed(QString::fromStdString(attempt->failure));
    database_.connection().renew(std::move(attempt->connection));
    enter(State::connected);
    changed.emit();
    back.emit();
}

} // namespace dn::host
