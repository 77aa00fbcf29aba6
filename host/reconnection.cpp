// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "host/reconnection.h"

#include "host/database/patience.h"

#include <QCoreApplication>
#include <QEvent>

#include <algorithm>
#include <atomic>
#include <stop_token>
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

/// Touches nothing of the window, nor of anything that ends with it: whoever waits looks at the outcome from time
/// to time, or forgets about it.
class Reconnection::Attempt {
public:
    struct Outcome {
        std::unique_ptr<data::Connection> connection;
        std::string failure;
        std::atomic<bool> finished{false};
    };

    explicit Attempt(Database::Revival revive)
        : thread_([revive = std::move(revive), outcome = outcome_, givenUp = givenUp_.get_token()] {
              try {
                  outcome->connection = revive(givenUp);
              } catch (const std::exception& error) {
                  outcome->failure = error.what();
              }
              outcome->finished = true;
          })
    {
    }
    Attempt(const Attempt&) = delete;
    Attempt& operator=(const Attempt&) = delete;
    ~Attempt()
    {
        givenUp_.request_stop();
        if (waitUntil(aMoment, [this] { return outcome_->finished.load(); }))
            thread_.join();
        else
            thread_.detach(); // a client library waits for a server and cannot be called back
    }

    Outcome& outcome() { return *outcome_; }

private:
    static constexpr auto aMoment = 100ms;

    std::shared_ptr<Outcome> outcome_ = std::make_shared<Outcome>();
    std::stop_source givenUp_;
    std::thread thread_; // last: it uses the others
};

Reconnection::Reconnection(Database& database, Rhythm rhythm) : database_(database), rhythm_(std::move(rhythm))
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
        if (attempt_->outcome().finished) settle();
        return;
    }
    if (state_ == State::connected) {
        if (database_.connection().State() == data::Connection::open) return alive.emit();
        lose();
    }
    if (std::chrono::steady_clock::now() >= next_)
        tryNow();
    else if (untilNext() != std::exchange(told_, untilNext()))
        changed.emit();
}

// A server that takes connections and drops them is not stormed.
void Reconnection::lose()
{
    const bool stood = worked_ && (!since_ || std::chrono::steady_clock::now() - *since_ >= rhythm_.steady);
    soonLost_ = stood ? 0 : soonLost_ + 1;
    failures_ = soonLost_;
    reason_.clear();
    wait();
}

void Reconnection::wait()
{
    enter(State::waiting);
    const std::chrono::seconds pause = rhythm_.pauses[std::min(failures_, rhythm_.pauses.size() - 1)];
    next_ = std::chrono::steady_clock::now() + pause;
    told_ = pause;
    changed.emit();
}

void Reconnection::tryNow()
{
    if (state_ != State::waiting) return;
    enter(State::trying);
    attempt_ = std::make_unique<Attempt>(database_.revival());
    changed.emit();
}

void Reconnection::works()
{
    worked_ = true;
    since_ = std::chrono::steady_clock::now();
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
    if (!attempt->outcome().connection) return failed(QString::fromStdString(attempt->outcome().failure));
    database_.connection().renew(std::move(attempt->outcome().connection));
    worked_ = false;
    enter(State::connected);
    changed.emit();
    back.emit();
}

} // namespace dn::host
