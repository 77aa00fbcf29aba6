// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "host/database/private_server.h"

#include "data/error.h"
#include "host/database/drivers.h"
#include "host/database/file_lock.h"
#include "host/database/patience.h"
#include "host/database/server_arguments.h"
#include "host/database/server_binaries.h"
#include "host/database/server_layout.h"
#include "host/database/server_log.h"
#include "host/database/server_probe.h"

#include <algorithm>

namespace dn::host {
namespace fs = std::filesystem;
namespace {

void tell(const Progress& progress, const std::string& text)
{
    if (progress) progress(text);
}

unsigned wholeSeconds(std::chrono::milliseconds time)
{
    return static_cast<unsigned>(std::max<std::int64_t>(1, time.count() / 1000));
}

/// The data folder of whoever answers at the socket; nothing when it does not answer as a server of ours does.
std::optional<fs::path> dataFolderOf(const MariadbTarget& target)
{
    try {
        const auto connection = openMariadb(target);
        const auto rows = connection->execute("SELECT @@datadir");
        if (!rows || rows->Eof()) return {};
        return fs::path(std::string(rows->value(0).raw()));
    } catch (const data::Error&) {
        return {};
    }
}

HostError socketInUse(const fs::path& socket)
{
    return HostError{
        "La ruta «" + socket.string() +
        "», que necesita el servidor de base de datos, la usa otra cosa. Bórrela o cierre el programa "
        "que la usa, o elija otra carpeta de datos."};
}

HostError heldByOther(const fs::path& data, pid_t holder)
{
    return HostError{"La carpeta de datos «" + data.string() + "» la tiene abierta otro servidor (proceso " +
                     std::to_string(holder) +
                     ") que no responde. Espere a que termine o ciérrelo, y vuelva a intentarlo."};
}

bool sameFolder(const fs::path& left, const fs::path& right)
{
    std::error_code error;
    return fs::equivalent(left, right, error);
}

} // namespace

PrivateServer::PrivateServer(ServerOptions options, const Progress& progress)
    : options_(std::move(options)),
      folder_(prepareServerFolder(options_.folder.empty() ? defaultDataFolder() : options_.folder))
{
    const FileLock lock(folder_.lock, options_.lockPatience);
    if (!join({})) start(progress, {});
}

void PrivateServer::revive(const std::stop_token& givenUp)
{
    if (owned() && !process_.ended()) return;
    const FileLock lock(folder_.lock, options_.lockPatience, givenUp);
    if (!join(givenUp)) start({}, givenUp);
}

PrivateServer::~PrivateServer() { process_.stop(options_.stopPatience); }

MariadbTarget PrivateServer::target(const std::string& database) const
{
    MariadbTarget target;
    target.socket = folder_.socket.string();
    target.user = "root"; // of the private server; its folder is what guards it
    target.database = database;
    return target;
}

/// A server that is going down, after its program ended, answers no more and soon lets go of its files.
bool PrivateServer::join(const std::stop_token& givenUp)
{
    bool answered = false;
    const auto settled = [&] {
        const SocketState state = probeSocket(folder_.socket);
        if (state == SocketState::blocked) throw socketInUse(folder_.socket);
        if (state == SocketState::free) return !dataHolder(folder_.data);
        MariadbTarget any = target("");
        any.connectTimeout = any.readTimeout = wholeSeconds(options_.joinPatience);
        const auto data = dataFolderOf(any);
        if (data && !sameFolder(*data, folder_.data)) throw socketInUse(folder_.socket);
        answered = data.has_value();
        return answered;
    };
    if (waitUntil(options_.joinPatience, settled, givenUp)) return answered;
    if (const auto holder = dataHolder(folder_.data)) throw heldByOther(folder_.data, *holder);
    throw socketInUse(folder_.socket);
}

void PrivateServer::start(const Progress& progress, const std::stop_token& givenUp)
{
    const ServerBinaries programs =
        findServerBinaries(options_.searchPath.empty() ? defaultSearchPath() : options_.searchPath);
    if (!isLaidOut(folder_)) {
        tell(progress, "Preparando la base de datos por primera vez…");
        layOut(folder_, programs, options_.minimumFreeBytes);
        initialised_ = true;
    }
    tell(progress, "Iniciando el servidor de base de datos…");
    putLogAside(folder_.log);
    const unsigned megabytes =
        options_.bufferPoolMegabytes != 0 ? options_.bufferPoolMegabytes : bufferPoolMegabytes(folder_.data);
    starter_.run([&] {
        process_ =
            ChildProcess(serverArguments(programs.server, folder_, megabytes), folder_.root / "servidor.salida");
    });
    awaitAnswer(givenUp);
}

void PrivateServer::awaitAnswer(const std::stop_token& givenUp)
{
    const auto answers = [this] {
        if (process_.ended()) throw HostError(explainFailedStart(folder_.root, folder_.log));
        return probeSocket(folder_.socket) == SocketState::listening && dataFolderOf(target(""));
    };
    if (!waitUntil(options_.startPatience, answers, givenUp))
        throw HostError(
            "El servidor de base de datos no respondió a tiempo. Vuelva a intentarlo; si no cambia, lea «" +
            folder_.log.string() + "».");
}

} // namespace dn::host
