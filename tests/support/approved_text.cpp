// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/support/approved_text.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <iomanip>
#include <sstream>

namespace dn::tests {

void expectApproved(const std::string& text, const std::string& file)
{
    const std::string path = std::string(DN_SOURCE_DIR "/tests/") + file;
    if (std::getenv("DN_APPROVE_TEXTS") != nullptr) {
        std::ofstream(path) << text;
        FAIL() << "written anew: " << path;
    }
    std::ifstream approved(path);
    ASSERT_TRUE(approved) << path;
    EXPECT_EQ(text, std::string((std::istreambuf_iterator<char>(approved)), std::istreambuf_iterator<char>()))
        << path;
}

std::string hexDump(const std::string& bytes)
{
    constexpr std::size_t width = 16;
    std::ostringstream dump;
    dump << std::hex << std::setfill('0');
    for (std::size_t at = 0; at < bytes.size(); at += width) {
        const std::string line = bytes.substr(at, width);
        if (line.find_first_not_of('\0') == std::string::npos) continue;
        dump << std::setw(6) << at;
        for (const char byte : line)
            dump << " " << std::setw(2) << static_cast<int>(static_cast<unsigned char>(byte));
        dump << "\n";
    }
    return dump.str() + std::to_string(bytes.size()) + " bytes\n";
}

} // namespace dn::tests
