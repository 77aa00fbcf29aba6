// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "host/database/server_folder.h"

#include "host/database/host_error.h"

#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>

namespace dn::host {
namespace fs = std::filesystem;
namespace {

/// The address of a unix socket holds 108 bytes with its end.
constexpr std::size_t longestSocketPath = 106;

fs::path fromEnvironment(const char* name)
{
    const char* value = std::getenv(name); // NOLINT(concurrency-mt-unsafe)
    return value == nullptr ? fs::path() : fs::path(value);
}

[[noreturn]] void refuse(const fs::path& folder, int reason)
{
    throw HostError("No se pudo crear la carpeta de datos «" + folder.string() + "»: " + systemReason(reason) +
                    ". Revise sus permisos o elija otra carpeta.");
}

/// Folders above it take the user's default mode; the folder itself is for the user alone.
void makePrivate(const fs::path& folder)
{
    std::error_code error;
    fs::create_directories(folder.parent_path(), error);
    if (error) refuse(folder.parent_path(), error.value());
    if (::mkdir(folder.c_str(), 0700) == 0) return;
    const int reason = errno;
    if (reason != EEXIST || !fs::is_directory(folder, error)) refuse(folder, reason);
}

/// A number that is the same in every program for one path (FNV-1a), so that a second one finds the socket.
std::string nameFor(const fs::path& path)
{
    std::uint64_t hash = 14695981039346656037U;
    for (const char c : path.string())
        hash = (hash ^ static_cast<unsigned char>(c)) * 1099511628211U;
    return "dncontacts-" + std::to_string(::getuid()) + "-" + std::to_string(hash);
}

/// Somebody else may have put a folder of that name into a place that all can write to.
void requireOwn(const fs::path& folder)
{
    struct stat status {};
    const bool known = ::lstat(folder.c_str(), &status) == 0;
    if (known && S_ISDIR(status.st_mode) && status.st_uid == ::geteuid() && (status.st_mode & 077U) == 0) return;
    throw HostError(
        "La carpeta «" + folder.string() +
        "», que haría falta para el servidor de base de datos, es de otro usuario o está abierta a otros. "
        "Bórrela o elija una carpeta de datos con una ruta más corta.");
}

fs::path socketElsewhere(const fs::path& root)
{
    const fs::path runtime = fromEnvironment("XDG_RUNTIME_DIR");
    fs::path socket = runtime / nameFor(root) / "s";
    if (runtime.empty() || socket.string().size() > longestSocketPath)
        socket = fs::path("/tmp") / nameFor(root) / "s";
    makePrivate(socket.parent_path());
    requireOwn(socket.parent_path());
    return socket;
}

fs::path socketFor(const fs::path& root)
{
    fs::path socket = root / "ejecucion" / "s";
    if (socket.string().size() > longestSocketPath) return socketElsewhere(root);
    makePrivate(socket.parent_path());
    return socket;
}

/// One spelling for every program that means the folder.
fs::path oneSpelling(const fs::path& root)
{
    std::error_code error;
    fs::path path = fs::canonical(root, error);
    if (error) refuse(root, error.value());
    return path;
}

void requireWritable(const fs::path& folder)
{
    if (::access(folder.c_str(), W_OK | X_OK) == 0) return;
    throw HostError("No se puede escribir en la carpeta de datos «" + folder.string() +
                    "»: " + systemReason(errno) + ". Revise sus permisos o elija otra carpeta.");
}

fs::path withoutEndingSlash(const fs::path& path) { return path.has_filename() ? path : path.parent_path(); }

} // namespace

fs::path defaultDataFolder()
{
    const fs::path data = fromEnvironment("XDG_DATA_HOME");
    if (data.is_absolute()) return data / "dncontacts";
    const fs::path home = fromEnvironment("HOME");
    if (home.empty())
        throw HostError(
            "No se sabe dónde guardar los datos: no está definida la variable HOME. Indique una carpeta "
            "de datos.");
    return home / ".local" / "share" / "dncontacts";
}

ServerFolder prepareServerFolder(const fs::path& given)
{
    makePrivate(withoutEndingSlash(fs::absolute(given).lexically_normal()));
    const fs::path root = oneSpelling(given);
    requireWritable(root);
    ServerFolder folder{
        root, root / "datos", root / "tmp", root / "candado", root / "servidor.log", root / "instalacion.log", {}};
    makePrivate(folder.tmp);
    folder.socket = socketFor(root);
    return folder;
}

std::uintmax_t freeBytes(const fs::path& folder)
{
    std::error_code error;
    const fs::space_info space = fs::space(folder, error);
    return error ? UINTMAX_MAX : space.available;
}

} // namespace dn::host
