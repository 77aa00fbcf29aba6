// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/support/table_files.h"

#include <algorithm>
#include <csignal>
#include <cstdlib>
#include <fstream>
#include <iterator>

namespace dn::tests {

OutputFolder::OutputFolder()
{
    std::string pattern = std::filesystem::temp_directory_path() / "dn-tables-XXXXXX";
    path_ = mkdtemp(pattern.data());
}

OutputFolder::~OutputFolder() { std::filesystem::remove_all(path_); }

std::vector<std::string> OutputFolder::names() const
{
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(path_))
        names.push_back(entry.path().filename());
    std::sort(names.begin(), names.end());
    return names;
}

std::string contentsOf(const std::string& file)
{
    std::ifstream bytes(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(bytes), {}};
}

// Without the signal ignored the process ends instead of being told.
FullDisk::FullDisk(std::size_t bytes) : signalBefore_(std::signal(SIGXFSZ, SIG_IGN))
{
    getrlimit(RLIMIT_FSIZE, &before_);
    rlimit limit = before_;
    limit.rlim_cur = std::min<rlim_t>(bytes, before_.rlim_cur);
    setrlimit(RLIMIT_FSIZE, &limit);
}

FullDisk::~FullDisk()
{
    setrlimit(RLIMIT_FSIZE, &before_);
    std::signal(SIGXFSZ, signalBefore_);
}

} // namespace dn::tests
