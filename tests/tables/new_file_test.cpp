// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// A file that appears whole or not at all.

#include "tables/new_file.h"

#include "base/runtime_error.h"
#include "tests/support/table_files.h"

#include <gmock/gmock.h>

#include <csignal>
#include <filesystem>
#include <fstream>

namespace dn::tests {
namespace {

namespace fs = std::filesystem;
using tables::NewFile;
using testing::ElementsAre;
using testing::IsEmpty;

class NewFileTest : public testing::Test {
protected:
    void there(const std::string& name, const std::string& text) { std::ofstream(folder.file(name)) << text; }

    OutputFolder folder;
};

TEST_F(NewFileTest, appears_with_its_name_when_it_is_kept)
{
    {
        NewFile file(folder.file("ñandú.xls"));
        file.write("uno ");
        file.write("dos");
        file.overwrite(0, "U");
        file.write("!");
        EXPECT_EQ(file.size(), 8U);
        EXPECT_FALSE(fs::exists(folder.file("ñandú.xls")));
        file.keep();
    }
    EXPECT_THAT(folder.names(), ElementsAre("ñandú.xls"));
    EXPECT_EQ(contentsOf(folder.file("ñandú.xls")), "Uno dos!");
}

TEST_F(NewFileTest, that_is_not_kept_leaves_nothing)
{
    {
        NewFile file(folder.file("a"));
        file.write("medio");
    }
    EXPECT_THAT(folder.names(), IsEmpty());
}

TEST_F(NewFileTest, replaces_what_was_there_only_at_the_end_and_keeps_its_rights)
{
    there("a", "antes");
    fs::permissions(folder.file("a"), fs::perms::owner_read | fs::perms::owner_write);
    {
        NewFile file(folder.file("a"));
        file.write("medio");
    }
    EXPECT_EQ(contentsOf(folder.file("a")), "antes");
    NewFile file(folder.file("a"));
    file.write("después");
    file.keep();
    EXPECT_EQ(contentsOf(folder.file("a")), "después");
    EXPECT_EQ(fs::status(folder.file("a")).permissions(), fs::perms::owner_read | fs::perms::owner_write);
}

TEST_F(NewFileTest, follows_a_link)
{
    there("lejos", "antes");
    fs::create_symlink("lejos", folder.file("aquí"));
    NewFile file(folder.file("aquí"));
    file.write("después");
    file.keep();
    EXPECT_TRUE(fs::is_symlink(folder.file("aquí")));
    EXPECT_EQ(contentsOf(folder.file("lejos")), "después");
    EXPECT_THAT(folder.names(), ElementsAre("aquí", "lejos"));
}

TEST_F(NewFileTest, is_refused_where_no_file_can_be_made)
{
    fs::create_directory(folder.file("carpeta"));
    for (const std::string& path : {folder.file("no/existe.xls"), folder.file("carpeta"), std::string(),
                                    folder.file(std::string(300, 'x')) + "/a", std::string("/proc/nada.xls")})
        EXPECT_THROW(NewFile file(path), RuntimeError) << path;
    EXPECT_THAT(folder.names(), ElementsAre("carpeta"));
}

TEST_F(NewFileTest, does_not_take_the_place_of_a_device)
{
    EXPECT_THROW(NewFile file("/dev/full"), RuntimeError);
    EXPECT_TRUE(fs::is_character_file("/dev/full"));
}

// Not even the administrator of a machine may write to a program that runs.
TEST_F(NewFileTest, does_not_take_the_place_of_a_file_that_cannot_be_written)
{
    const fs::path running = fs::canonical("/proc/self/exe");
    EXPECT_THROW(NewFile file(running), RuntimeError);
}

TEST_F(NewFileTest, does_not_take_the_place_of_a_folder_that_was_made_meanwhile)
{
    NewFile file(folder.file("a"));
    file.write("datos");
    fs::create_directory(folder.file("a"));
    EXPECT_THROW(file.keep(), RuntimeError);
    EXPECT_TRUE(fs::is_directory(folder.file("a")));
}

TEST_F(NewFileTest, tells_of_bytes_that_cannot_be_written_over)
{
    NewFile file(folder.file("a"));
    file.write(std::string(1000, 'x'));
    file.overwrite(0, "y");
    EXPECT_THROW(file.overwrite(std::uint64_t{1} << 63U, "y"), RuntimeError) << "there is no such place";
    const FullDisk disk(10);
    EXPECT_THROW(file.overwrite(500, "y"), RuntimeError);
}

TEST_F(NewFileTest, with_the_longest_name_is_made_all_the_same)
{
    const std::string path = folder.file(std::string(255, 'x'));
    NewFile file(path);
    file.keep();
    EXPECT_TRUE(fs::exists(path));
}

TEST_F(NewFileTest, has_room_beside_another_that_is_written)
{
    NewFile one(folder.file("a"));
    NewFile other(folder.file("b"));
    one.write("uno");
    other.write("dos");
    other.keep();
    one.keep();
    EXPECT_EQ(contentsOf(folder.file("a")), "uno");
    EXPECT_EQ(contentsOf(folder.file("b")), "dos");
}

TEST_F(NewFileTest, that_does_not_fit_on_the_disk_leaves_what_was_there)
{
    there("a", "antes");
    const auto writeMuch = [&] {
        const FullDisk disk(100'000);
        NewFile file(folder.file("a"));
        for (int i = 0; i < 200; ++i)
            file.write(std::string(1000, 'x'));
        file.keep();
    };
    EXPECT_THROW(writeMuch(), RuntimeError);
    EXPECT_EQ(contentsOf(folder.file("a")), "antes");
    EXPECT_THAT(folder.names(), ElementsAre("a"));
}

TEST(FullDiskTest, leaves_the_limit_and_the_signal_that_were_there)
{
    const auto limits = [] {
        rlimit limit{};
        getrlimit(RLIMIT_FSIZE, &limit);
        return std::pair(limit.rlim_cur, limit.rlim_max);
    };
    const auto handler = [] {
        const auto present = std::signal(SIGXFSZ, SIG_IGN);
        std::signal(SIGXFSZ, present);
        return present;
    };
    const auto before = limits();
    const auto handlerBefore = handler();
    {
        const FullDisk outer(5'000'000);
        {
            const FullDisk inner(10);
            EXPECT_EQ(limits(), std::pair(rlim_t{10}, before.second));
        }
        EXPECT_EQ(limits(), std::pair(rlim_t{5'000'000}, before.second));
        EXPECT_EQ(handler(), SIG_IGN);
    }
    EXPECT_EQ(limits(), before);
    EXPECT_EQ(handler(), handlerBefore);
}

TEST_F(NewFileTest, that_does_not_fit_with_its_last_bytes_is_no_file)
{
    const auto writeLittle = [&] { // it stays in the buffer until the end
        const FullDisk disk(10);
        NewFile file(folder.file("a"));
        file.write(std::string(1000, 'x'));
        file.keep();
    };
    EXPECT_THROW(writeLittle(), RuntimeError);
    EXPECT_THAT(folder.names(), IsEmpty());
}

} // namespace
} // namespace dn::tests
