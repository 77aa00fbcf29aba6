// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "bench/program.h"

#include "bench/measure.h"
#include "bench/processes.h"

#include <QProcess>
#include <QProcessEnvironment>

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>
#include <sstream>
#include <stdexcept>
#include <string_view>
#include <thread>

namespace dn::bench {
namespace {

namespace fs = std::filesystem;
using namespace std::chrono_literals;

constexpr auto idleTime = 10s;

std::string contentsOf(const fs::path& path)
{
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

/// Whether the picture was written to its end.
bool isWhole(const fs::path& picture)
{
    return fs::exists(picture) && contentsOf(picture).find("IEND") != std::string::npos;
}

/// What the program writes down of each paint that reaches its window.
constexpr const char* paintLogged = "Flushing";

std::size_t countOf(const std::string& text, std::string_view part)
{
    std::size_t count = 0;
    for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + part.size()))
        ++count;
    return count;
}

class Program {
public:
    Program(std::string program, std::string folder) : program_(std::move(program)), folder_(std::move(folder))
    {
        if (!fs::exists(program_))
            throw std::runtime_error("there is no program " + program_ + "; build dncontacts");
    }

    /// Milliseconds by the clock from the start of the process to the picture of its first screen on the disk.
    double toFirstScreen()
    {
        const fs::path picture = fs::path(folder_) / "picture.png";
        fs::create_directories(folder_);
        fs::remove(picture);
        QProcess process;
        process.setStandardErrorFile(QProcess::nullDevice());
        const auto start = std::chrono::steady_clock::now();
        begin(process, {"--screenshot", QString::fromStdString(picture.string())});
        while (!isWhole(picture)) {
            if (std::chrono::steady_clock::now() - start > 60s)
                throw std::runtime_error("the program shows nothing");
            std::this_thread::sleep_for(1ms);
        }
        const std::chrono::duration<double, std::milli> passed = std::chrono::steady_clock::now() - start;
        end(process);
        return passed.count();
    }

    /// Lets the program stand in its window, with its list loaded.
    void idle(Report& report)
    {
        // What is "not measurable": a thousandth of a processor, which is the step of the system's own accounts.
        constexpr double mostCpu = std::chrono::duration<double, std::milli>(idleTime).count() / 1000;
        const fs::path log = fs::path(folder_) / "paints.log";
        QProcess process;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("QT_LOGGING_RULES", "qt.widgets.painting.info=true");
        environment.insert("QT_FORCE_STDERR_LOGGING", "1");
        process.setProcessEnvironment(environment);
        process.setStandardErrorFile(QString::fromStdString(log.string()));
        begin(process, {});
        settle(process);
        const auto pid = static_cast<pid_t>(process.processId());
        const auto server = static_cast<pid_t>(std::stol(contentsOf(data() / "servidor.pid")));
        rememberFiles(pid);
        rememberFiles(server);
        const double cpu = exactCpuOfProcess(pid);
        const double serverCpu = exactCpuOfProcess(server);
        const std::int64_t wakeUps = wakeUpsOf(pid);
        const std::size_t paints = countOf(contentsOf(log), paintLogged);
        if (paints == 0) report.wrong("idle", "the program does not tell of its paints");
        std::this_thread::sleep_for(idleTime);
        const double seconds = std::chrono::duration<double>(idleTime).count();
        report.bar("idle for 10 s: CPU of the program", exactCpuOfProcess(pid) - cpu, mostCpu, "ms");
        report.bar("idle for 10 s: paints of the program",
                   static_cast<double>(countOf(contentsOf(log), paintLogged) - paints), 0, "paints");
        report.figure("idle: paints of the program up to then", static_cast<double>(paints), "");
        report.figure("idle: wake-ups of the program a second",
                      static_cast<double>(wakeUpsOf(pid) - wakeUps) / seconds, "");
        report.figure("idle for 10 s: CPU of the private server", exactCpuOfProcess(server) - serverCpu, "ms");
        process.terminate();
        end(process);
    }

    /// Takes what the program needs out of the system's cache.
    void cool() const
    {
        ::sync(); // what is not yet written cannot be given up
        for (const std::string& file : files_)
            giveUp(file);
        for (const auto& entry : fs::recursive_directory_iterator(data()))
            if (entry.is_regular_file()) giveUp(entry.path());
    }

private:
    fs::path data() const { return fs::path(folder_) / "data"; }

    void begin(QProcess& process, QStringList arguments) const
    {
        arguments << "--data-folder" << QString::fromStdString(data().string()) << "--agent"
                  << "1"
                  << "--tab"
                  << "0";
        process.setStandardOutputFile(QProcess::nullDevice());
        process.start(QString::fromStdString(program_), arguments);
        if (!process.waitForStarted()) throw std::runtime_error("the program does not start");
    }

    static void end(QProcess& process)
    {
        if (!process.waitForFinished(60'000) || process.exitCode() != 0)
            throw std::runtime_error("the program ended badly");
    }

    // Settled is who has used no processor for a while.
    static void settle(QProcess& process)
    {
        const auto start = std::chrono::steady_clock::now();
        const auto pid = static_cast<pid_t>(process.processId());
        double before = -1;
        for (int quiet = 0; quiet < 10;) {
            if (std::chrono::steady_clock::now() - start > 60s)
                throw std::runtime_error("the program does not come to rest");
            std::this_thread::sleep_for(200ms);
            const double now = cpuOfProcess(pid);
            quiet = now > 0 && now == before ? quiet + 1 : 0;
            before = now;
        }
    }

    void rememberFiles(pid_t process)
    {
        std::istringstream maps(contentsOf("/proc/" + std::to_string(process) + "/maps"));
        for (std::string line; std::getline(maps, line);)
            if (const std::size_t path = line.find('/'); path != std::string::npos)
                files_.insert(line.substr(path));
    }

    static void giveUp(const std::string& path)
    {
        const int file = ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
        if (file < 0) return; // a mapping of a file that is gone
        ::posix_fadvise(file, 0, 0, POSIX_FADV_DONTNEED);
        ::close(file);
    }

    std::string program_;
    std::string folder_;
    std::set<std::string> files_;
};

double middle(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

} // namespace

void benchProgram(const std::string& path, const std::string& folder, Report& report)
{
    fs::remove_all(folder);
    Program program(path, folder);
    report.figure(
        "very first start of the program, which makes database and sample data, to the picture of its first "
        "screen, wall",
        program.toFirstScreen(), "ms");
    program.idle(report);
    std::vector<double> warm;
    std::vector<double> cold;
    for (int round = 0; round < 3; ++round) {
        program.cool();
        cold.push_back(program.toFirstScreen());
        warm.push_back(program.toFirstScreen());
    }
    report.figure("start of the program with its server, cold, to the picture of its first screen, wall",
                  middle(cold), "ms");
    report.figure("start of the program with its server, warm, to the picture of its first screen, wall",
                  middle(warm), "ms");
}

} // namespace dn::bench
