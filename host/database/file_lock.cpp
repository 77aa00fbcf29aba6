// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "host/database/file_lock.h"

#include "host/database/host_error.h"
#include "host/database/patience.h"

#include <fcntl.h>
#include <sys/file.h>

#include <cerrno>

namespace dn::host {
namespace {

UniqueFd openLockFile(const std::filesystem::path& file)
{
    UniqueFd fd(::open(file.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0600));
    if (!fd)
        throw HostError("No se puede escribir en la carpeta de datos «" + file.parent_path().string() +
                        "»: " + systemReason(errno) + ". Revise sus permisos o elija otra carpeta.");
    return fd;
}

} // namespace

FileLock::FileLock(const std::filesystem::path& file, std::chrono::milliseconds patience,
                   const std::stop_token& givenUp)
    : fd_(openLockFile(file))
{
    const auto free = [this] { return ::flock(fd_.get(), LOCK_EX | LOCK_NB) == 0; };
    const bool held = waitUntil(patience, free, givenUp);
    if (!held)
        throw HostError("Otro programa está preparando la carpeta de datos «" + file.parent_path().string() +
                        "» y no termina. Espere a que acabe o ciérrelo, y vuelva a intentarlo.");
}

} // namespace dn::host
