// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/support/relay.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstring>
#include <stdexcept>
#include <string_view>

namespace dn::tests {
namespace {

using host::UniqueFd;

sockaddr_un addressOf(const std::string& path)
{
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    if (path.size() >= sizeof address.sun_path) throw std::runtime_error("too long: " + path);
    std::memcpy(address.sun_path, path.c_str(), path.size());
    return address;
}

UniqueFd newSocket() { return UniqueFd(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0)); }

UniqueFd listenAt(const std::string& path)
{
    const sockaddr_un address = addressOf(path);
    UniqueFd listener = newSocket();
    ::unlink(path.c_str());
    if (::bind(listener.get(), reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0 ||
        ::listen(listener.get(), 10) != 0)
        throw std::runtime_error("cannot listen at " + path);
    return listener;
}

std::string nextTo(const std::string& server)
{
    static std::atomic<int> count = 0;
    return server + "r" + std::to_string(++count);
}

/// What has come; empty where the other side is gone.
std::string whatCameFrom(int socket)
{
    std::array<char, 65'536> buffer{};
    const ssize_t size = ::recv(socket, buffer.data(), buffer.size(), 0);
    return size > 0 ? std::string(buffer.data(), static_cast<std::size_t>(size)) : std::string();
}

bool sendAll(int socket, std::string_view bytes)
{
    while (!bytes.empty()) {
        const ssize_t size = ::send(socket, bytes.data(), bytes.size(), MSG_NOSIGNAL);
        if (size <= 0) return false;
        bytes.remove_prefix(static_cast<std::size_t>(size));
    }
    return true;
}

pollfd toRead(const UniqueFd& fd) { return {fd.get(), POLLIN, 0}; }

} // namespace

Relay::Relay(std::string server, int connections)
    : server_(std::move(server)), path_(nextTo(server_)), connections_(connections), listener_(listenAt(path_))
{
    std::array<int, 2> ends{};
    if (::pipe2(ends.data(), O_CLOEXEC) != 0) throw std::runtime_error("no pipe");
    ended_ = UniqueFd(ends[0]);
    ending_ = UniqueFd(ends[1]);
    thread_ = std::thread([this] { serve(); });
}

Relay::~Relay()
{
    ending_ = UniqueFd();
    thread_.join();
    ::unlink(path_.c_str());
}

void Relay::serve()
{
    for (;;) {
        std::vector<pollfd> polled{toRead(ended_), toRead(listener_)};
        for (const auto& [client, server] : pairs_)
            polled.insert(polled.end(), {toRead(client), toRead(server)});
        ::poll(polled.data(), polled.size(), -1);
        if (polled[0].revents != 0) return;
        for (std::size_t i = pairs_.size(); i-- > 0;) {
            const bool asked = polled[2 + 2 * i].revents != 0;
            const bool answered = polled[3 + 2 * i].revents != 0;
            if ((answered && !passAnswer(pairs_[i])) || (asked && !passRequest(pairs_[i])))
                pairs_.erase(pairs_.begin() + static_cast<std::ptrdiff_t>(i));
        }
        if (polled[1].revents != 0) take();
    }
}

void Relay::take()
{
    UniqueFd client(::accept4(listener_.get(), nullptr, nullptr, SOCK_CLOEXEC));
    UniqueFd server = newSocket();
    const sockaddr_un address = addressOf(server_);
    if (::connect(server.get(), reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0)
        pairs_.emplace_back(std::move(client), std::move(server));
    if (--connections_ > 0) return;
    listener_ = UniqueFd();
    ::unlink(path_.c_str());
}

/// @return whether the connection goes on.
bool Relay::passRequest(const Pair& pair)
{
    const std::string request = whatCameFrom(pair.first.get());
    if (request.empty() || !sendAll(pair.second.get(), request)) return false;
    long armed = behindRequest;
    return !loss_.compare_exchange_strong(armed, none);
}

bool Relay::passAnswer(const Pair& pair)
{
    const std::string answer = whatCameFrom(pair.second.get());
    const long loss = loss_;
    if (loss < 0) return !answer.empty() && sendAll(pair.first.get(), answer);
    loss_ = none;
    sendAll(pair.first.get(), std::string_view(answer).substr(0, static_cast<std::size_t>(loss)));
    return false;
}

} // namespace dn::tests
