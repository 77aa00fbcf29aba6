// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// What the system tells of a process and of the machine.
#pragma once

#include <sys/types.h>

#include <cstdint>
#include <string>

namespace dn::bench {

/// Milliseconds of processor that a process has used, all threads, in the system's steps of 10.
double cpuOfProcess(pid_t process);

/// The same to the nanosecond, of the threads that the process has at present.
/// @throws std::runtime_error where the system does not count it.
double exactCpuOfProcess(pid_t process);

/// How often the threads of a process gave up the processor by themselves, to wait for something: wake-ups.
std::int64_t wakeUpsOf(pid_t process);

/// Processor, number of them, memory, kernel.
std::string machine();

} // namespace dn::bench
