// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// Every target over the inputs that were kept: those that reach new places, and each that once found something.

#include "tests/fuzz/input.h"
#include "tests/fuzz/targets.h"
#include "tests/support/table_files.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <filesystem>
#include <stdexcept>
#include <string>

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

class Corpus : public testing::TestWithParam<fuzz::Target> {};

TEST_P(Corpus, keeps_its_properties)
{
    const std::filesystem::path folder = corpus / GetParam().name;
    std::vector<std::string> names = namesIn(folder);
    ASSERT_FALSE(names.empty());
    for (const std::string& name : names) {
        const std::string bytes = contentsOf(folder / name);
        fuzz::Input input(bytes);
        EXPECT_NO_THROW(GetParam().run(input)) << name;
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

TEST(Targets, say_which_property_does_not_hold)
{
    EXPECT_THROW(fuzz::require(false, "a property"), std::logic_error);
    EXPECT_NO_THROW(fuzz::require(true, "a property"));
}

} // namespace
} // namespace dn::tests
