// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "host/database/server_arguments.h"

#include <unistd.h>

#include <algorithm>

namespace dn::host {
namespace fs = std::filesystem;
namespace {

std::uintmax_t bytesOfTables(const fs::path& data)
{
    std::uintmax_t bytes = 0;
    std::error_code ignored; // what cannot be read counts nothing
    for (const fs::directory_entry& entry : fs::recursive_directory_iterator(data, ignored))
        if (entry.path().extension() == ".ibd") bytes += entry.file_size(ignored);
    return bytes;
}

std::uintmax_t bytesOfMachine()
{
    const auto pages = std::max(0L, ::sysconf(_SC_PHYS_PAGES));
    const auto size = std::max(0L, ::sysconf(_SC_PAGE_SIZE));
    return static_cast<std::uintmax_t>(pages) * static_cast<std::uintmax_t>(size);
}

} // namespace

std::vector<std::string> layoutOptions(const fs::path& data)
{
    std::vector<std::string> options{
        "--datadir=" + data.string(),
        "--lower-case-table-names=1", // the statements write one table in several letter cases
        "--innodb-data-file-path=ibdata1:10M:autoextend",
        "--innodb-log-file-size=32M",
        // Not to be had in every container, and scarce where several servers run for one user: the installer, a
        // server itself, would now and then fail for want of it.
        "--innodb-use-native-aio=0",
    };
    // The installer's script takes "--user" to itself: it changes owners in the system and fails on a path with
    // blanks.
    if (::geteuid() == 0) options.emplace_back("--loose-user=root");
    return options;
}

unsigned bufferPoolMegabytes(const fs::path& data)
{
    constexpr std::uintmax_t least = 128;
    const std::uintmax_t wanted = bytesOfTables(data) * 5 / 4 >> 20U;
    const std::uintmax_t most = std::clamp<std::uintmax_t>(bytesOfMachine() / 4 >> 20U, least, 1024);
    return static_cast<unsigned>(std::clamp(wanted, least, most));
}

std::vector<std::string> serverArguments(const fs::path& program, const ServerFolder& folder,
                                         unsigned bufferPoolMegabytes)
{
    std::vector<std::string> all = layoutOptions(folder.data);
    all.insert(all.begin(), {program.string(), "--no-defaults"});
    all.insert(all.end(), {
                              "--socket=" + folder.socket.string(),
                              "--pid-file=" + (folder.root / "servidor.pid").string(),
                              "--log-error=" + folder.log.string(),
                              "--tmpdir=" + folder.tmp.string(),
                              "--skip-networking",
                              "--skip-name-resolve",
                              "--symbolic-links=0",
                              "--local-infile=0",
                              "--character-set-server=utf8mb4",
                              "--collation-server=utf8mb4_spanish_ci",
                              "--innodb-buffer-pool-size=" + std::to_string(bufferPoolMegabytes) + "M",
                              "--innodb-autoextend-increment=8",
                              "--innodb-temp-data-file-path=ibtmp1:4M:autoextend",
                              "--key-buffer-size=1M",
                              "--aria-pagecache-buffer-size=8M",
                              "--sort-buffer-size=8M",
                              "--tmp-memory-table-size=64M", // the two queues are unions, built in memory
                              "--max-heap-table-size=64M",
                              "--max-allowed-packet=64M",
                              "--max-connections=40",
                          });
    return all;
}

} // namespace dn::host
