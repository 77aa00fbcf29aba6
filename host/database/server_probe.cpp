// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "host/database/server_probe.h"

#include "host/database/unique_fd.h"

#include <fcntl.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>

#include <cerrno>
#include <cstring>

namespace dn::host {

SocketState probeSocket(const std::filesystem::path& socket)
{
    struct stat status {};
    if (::lstat(socket.c_str(), &status) != 0) return SocketState::free;
    if (!S_ISSOCK(status.st_mode)) return SocketState::blocked;
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    std::strncpy(address.sun_path, socket.c_str(), sizeof address.sun_path - 1);
    const UniqueFd fd(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0));
    const bool accepted = ::connect(fd.get(), reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0;
    // A server that stands still has its queue full at last.
    return accepted || errno == EAGAIN ? SocketState::listening : SocketState::free;
}

std::optional<pid_t> dataHolder(const std::filesystem::path& data)
{
    for (const char* file : {"ibdata1", "aria_log_control"}) {
        const UniqueFd fd(::open((data / file).c_str(), O_RDONLY | O_CLOEXEC));
        struct flock lock {};
        lock.l_type = F_WRLCK;
        lock.l_whence = SEEK_SET;
        if (fd && ::fcntl(fd.get(), F_GETLK, &lock) == 0 && lock.l_type != F_UNLCK) return lock.l_pid;
    }
    return {};
}

} // namespace dn::host
