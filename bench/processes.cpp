// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "bench/processes.h"

#include <sys/utsname.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <sstream>
#include <stdexcept>
#include <thread>

namespace dn::bench {
namespace {

std::string folderOf(pid_t process) { return "/proc/" + std::to_string(process); }

/// What stands behind a caption of a file with a line for each; empty when it is not there.
std::string entry(const std::string& path, const std::string& caption)
{
    std::ifstream file(path);
    for (std::string line; std::getline(file, line);)
        if (line.rfind(caption, 0) == 0 && line.find(':') != std::string::npos)
            return line.substr(line.find_first_not_of(" \t", line.find(':') + 1));
    return {};
}

} // namespace

double exactCpuOfProcess(pid_t process)
{
    double nanoseconds = 0;
    for (const auto& thread : std::filesystem::directory_iterator(folderOf(process) + "/task")) {
        std::ifstream file(thread.path() / "schedstat");
        double ran = 0;
        if (!(file >> ran)) throw std::runtime_error("the system keeps no schedstat");
        nanoseconds += ran;
    }
    return nanoseconds / 1e6;
}

double cpuOfProcess(pid_t process)
{
    std::ifstream file(folderOf(process) + "/stat");
    std::string text;
    std::getline(file, text, ')'); // the name may hold blanks
    std::string skipped;
    for (int field = 3; field < 14; ++field)
        file >> skipped;
    double user = 0;
    double system = 0;
    file >> user >> system;
    return (user + system) * 1000 / static_cast<double>(::sysconf(_SC_CLK_TCK));
}

std::int64_t wakeUpsOf(pid_t process)
{
    std::int64_t count = 0;
    for (const auto& thread : std::filesystem::directory_iterator(folderOf(process) + "/task")) {
        const std::string switches = entry(thread.path() / "status", "voluntary_ctxt_switches");
        if (!switches.empty()) count += std::stoll(switches);
    }
    return count;
}

std::string machine()
{
    utsname system{};
    ::uname(&system);
    std::string memory = entry("/proc/meminfo", "MemTotal");
    memory = memory.empty() ? "unknown" : std::to_string(std::stoll(memory) / 1'000'000) + " GB";
    const std::string processor = entry("/proc/cpuinfo", "model name");
    return (processor.empty() ? std::string(system.machine) : processor) + ", " +
           std::to_string(std::thread::hardware_concurrency()) + " processors, " + memory + " of memory, " +
           system.sysname + " " + system.release;
}

} // namespace dn::bench
