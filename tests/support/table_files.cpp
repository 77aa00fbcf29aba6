// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/support/table_files.h"

#include <sys/resource.h>

#include <algorithm>
#include <csignal>
#include <cstdlib>
#include <fstream>
#include <iterator>

namespace dn::tests {
namespace {

void limitFiles(rlim_t bytes)
{
    rlimit limit{};
    getrlimit(RLIMIT_FSIZE, &limit);
    limit.rlim_cur = std::min(bytes, limit.rlim_max);
    setrlimit(RLIMIT_FSIZE, &limit);
}

} // namespace

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

FullDisk::FullDisk(std::size_t bytes)
{
    std::signal(SIGXFSZ, SIG_IGN); // else the process ends instead of being told
    limitFiles(bytes);
}

FullDisk::~FullDisk()
{
    limitFiles(RLIM_INFINITY);
    std::signal(SIGXFSZ, SIG_DFL);
}

} // namespace dn::tests
