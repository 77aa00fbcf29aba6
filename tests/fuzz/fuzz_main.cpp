// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The program that looks for inputs of its own: the fuzzer's main function with one of the targets, which the
// variable DN_FUZZ_TARGET names.

#include "tests/fuzz/input.h"
#include "tests/fuzz/targets.h"

#include <gtest/gtest.h>

#include <csignal>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace {

const dn::fuzz::Target* chosen = nullptr;

} // namespace

extern "C" int LLVMFuzzerInitialize(int* /*argc*/, char*** /*argv*/)
{
    GTEST_FLAG_SET(break_on_failure, true);          // what the fakes find wrong is a finding
    std::signal(SIGTRAP, [](int) { std::abort(); }); // whose input the fuzzer writes down
    const char* const name = std::getenv("DN_FUZZ_TARGET");
    for (const dn::fuzz::Target& target : dn::fuzz::targets()) {
        if (name == nullptr) std::puts(target.name);
        if (name != nullptr && std::strcmp(name, target.name) == 0) chosen = &target;
    }
    if (name == nullptr) std::exit(0);
    if (chosen != nullptr) return 0;
    std::fprintf(stderr, "no target is called %s\n", name);
    std::exit(2);
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-reinterpret-cast): the fuzzer gives bytes, texts are of characters
    dn::fuzz::Input input({reinterpret_cast<const char*>(bytes), size});
    chosen->run(input); // a property that does not hold ends the program, which the fuzzer takes for a finding
    return 0;
}
