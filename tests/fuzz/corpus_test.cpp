// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// Every target over the inputs that were kept: those that reach new places, and each that once found something.

#include "tests/fuzz/input.h"
#include "tests/fuzz/targets.h"
#include "tests/support/table_files.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <charconv>
#include <filesystem>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

namespace dn::tests {
namespace {

const std::filesystem::path corpus = DN_SOURCE_DIR "/tests/fuzz/corpus";

std::vector<std::string> namesIn(const std::filesystem::path& folder)
{
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(folder))
        names.push_back(entry.path().filename());
    std::sort(names.begin(), names.end());
    return names;
}

struct Kept {
    std::string name;
    std::string bytes;
};

/// @throws std::invalid_argument for what is no pairs of figures.
std::string fromHex(std::string_view figures)
{
    std::string bytes;
    for (; !figures.empty(); figures.remove_prefix(2)) {
        unsigned value = 0;
        const char* const end = figures.data() + std::min<std::size_t>(2, figures.size());
        if (figures.size() < 2 || std::from_chars(figures.data(), end, value, 16).ptr != end)
            throw std::invalid_argument("no byte: " + std::string(figures.substr(0, 2)));
        bytes += static_cast<char>(value);
    }
    return bytes;
}

/// Those with a name of their own, one in a file, and those that the fuzzer found, one in a line.
std::vector<Kept> inputsIn(const std::filesystem::path& folder)
{
    std::vector<Kept> inputs;
    for (const std::string& name : namesIn(folder)) {
        const std::string contents = contentsOf(folder / name);
        if (name != "reached.hex") {
            inputs.push_back({name, contents});
            continue;
        }
        std::istringstream lines(contents);
        for (std::string line; std::getline(lines, line);)
            inputs.push_back({line, fromHex(line)});
    }
    return inputs;
}

class Corpus : public testing::TestWithParam<fuzz::Target> {};

TEST_P(Corpus, keeps_its_properties)
{
    const std::vector<Kept> inputs = inputsIn(corpus / GetParam().name);
    ASSERT_FALSE(inputs.empty());
    for (const Kept& kept : inputs) {
        fuzz::Input input(kept.bytes);
        EXPECT_NO_THROW(GetParam().run(input)) << kept.name;
    }
}

INSTANTIATE_TEST_SUITE_P(Of, Corpus, testing::ValuesIn(fuzz::targets()),
                         [](const auto& target) { return std::string(target.param.name); });

TEST(Corpora, have_a_target_each)
{
    std::vector<std::string> names;
    for (const fuzz::Target& target : fuzz::targets())
        names.emplace_back(target.name);
    EXPECT_THAT(names, testing::ElementsAreArray(namesIn(corpus)));
}

TEST(Corpora, are_read_byte_by_byte)
{
    EXPECT_EQ(fromHex("00FF61"), std::string("\0\xFF"
                                             "a",
                                             3));
    EXPECT_THROW(fromHex("0"), std::invalid_argument);
    EXPECT_THROW(fromHex("0G"), std::invalid_argument);
}

TEST(Targets, say_which_property_does_not_hold)
{
    EXPECT_THROW(fuzz::require(false, "a property"), std::logic_error);
    EXPECT_NO_THROW(fuzz::require(true, "a property"));
}

} // namespace
} // namespace dn::tests
