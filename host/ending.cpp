// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "host/ending.h"

#include <QSocketNotifier>

#include <sys/socket.h>
#include <unistd.h>

#include <array>
#include <csignal>
#include <utility>

namespace dn::host {
namespace {

constexpr std::array<int, 3> endingSignals{SIGINT, SIGTERM, SIGHUP};

// A signal handler may do next to nothing; it writes a byte into this pair, and the event loop reads it.
std::array<int, 2> pair{-1, -1};

void onSignal(int)
{
    const char byte = 1;
    if (::write(pair[0], &byte, 1) < 0) return; // the pair is full: the news is on its way already
}

void handle(void (*handler)(int))
{
    struct sigaction action = {};
    action.sa_handler = handler;
    action.sa_flags = SA_RESTART;
    for (const int number : endingSignals)
        ::sigaction(number, &action, nullptr);
}

} // namespace

EndingSignals::EndingSignals(std::function<void()> ending) : ending_(std::move(ending))
{
    if (::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0, pair.data()) != 0) return;
    auto* notifier = new QSocketNotifier(pair[1], QSocketNotifier::Read, this);
    connect(notifier, &QSocketNotifier::activated, this, [this] { arrived(); });
    handle(onSignal);
}

EndingSignals::~EndingSignals()
{
    handle(SIG_DFL);
    for (int& end : pair) {
        if (end >= 0) ::close(end);
        end = -1;
    }
}

void EndingSignals::arrived()
{
    char byte = 0;
    if (::read(pair[1], &byte, 1) == 1) ending_();
}

} // namespace dn::host
