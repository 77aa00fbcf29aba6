// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// A table as a binary workbook, as far as its bytes tell without a program that reads it.

#include "tables/workbook.h"

#include "base/runtime_error.h"
#include "tests/support/approved_text.h"
#include "tests/support/table_files.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <cstdint>
#include <map>
#include <utility>

namespace dn::tests {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::StartsWith;

constexpr std::size_t headerBytes = 512;

std::uint32_t number16(const std::string& bytes, std::size_t at)
{
    return static_cast<unsigned char>(bytes[at]) + 256U * static_cast<unsigned char>(bytes[at + 1]);
}

std::uint32_t number32(const std::string& bytes, std::size_t at)
{
    return number16(bytes, at) + 65'536U * number16(bytes, at + 2);
}

class WorkbookFile : public testing::Test {
protected:
    std::string written(const tables::Table& table)
    {
        tables::writeWorkbook(path, "Correos", table);
        return contentsOf(path);
    }

    /// How many records of each kind follow each other from the beginning, to the end of the last sheet.
    static std::map<std::uint32_t, int> records(const std::string& file)
    {
        std::map<std::uint32_t, int> kinds;
        for (std::size_t at = headerBytes; number16(file, at) != 0; at += 4 + number16(file, at + 2)) {
            EXPECT_LE(number16(file, at + 2), 8224U);
            ++kinds[number16(file, at)];
        }
        return kinds;
    }

    OutputFolder folder;
    std::string path = folder.file("lista.xls");
};

TEST_F(WorkbookFile, holds_what_programs_insist_on)
{
    const std::string file =
        written(MadeTable({{"Nombre", 200}, {"Correos", 150}}, {{"Ana", "a@x"}, {"", "b@x"}}));
    EXPECT_THAT(file, StartsWith("\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1"));
    EXPECT_EQ(file.size() % 512, 0U);
    std::map<std::uint32_t, int> kinds = records(file);
    EXPECT_EQ(kinds[0x0031], 5) << "FONT";
    EXPECT_EQ(kinds[0x00E0], 17) << "XF";
    EXPECT_EQ(kinds[0x0293], 1) << "STYLE";
    EXPECT_EQ(kinds[0x0085], 1) << "BOUNDSHEET";
    EXPECT_EQ(kinds[0x00FC], 1) << "SST";
    EXPECT_EQ(kinds[0x00FD], 5) << "LABELSST: an empty cell has none";
    EXPECT_EQ(kinds[0x0809], 2) << "BOF";
    EXPECT_EQ(kinds[0x000A], 2) << "EOF";
}

// What programs of others read well, tests/tables/readers. The bytes are no matter of taste: none changes unseen.
TEST_F(WorkbookFile, has_the_approved_bytes)
{
    const MadeTable table({{"Nombre", 200}, {"Correos", 150}},
                          {{"Ana Ñúñez", "a@x"}, {"", "b@x"}, {"日本 😀", ""}});
    expectApproved(hexDump(written(table)), "tables/approved/small.xls.txt");
    const MadeTable further({{"N", 50}}, 65'536, [](std::size_t, std::size_t) { return "x"; });
    const std::string file = written(further);
    const std::size_t directory = headerBytes + 512 * number32(file, 48);
    expectApproved(hexDump(file.substr(0, 2048)) + hexDump(file.substr(directory - 1024, 1536)),
                   "tables/approved/two_sheets.xls.txt"); // beginning, second sheet and directory
}

// The units of the texts in a workbook, put together over all records that they go on in.
std::vector<std::u16string> sharedTexts(const std::string& file)
{
    std::size_t at = headerBytes;
    while (number16(file, at) != 0x00FC)
        at += 4 + number16(file, at + 2);
    std::size_t end = at + 4 + number16(file, at + 2);
    std::vector<std::u16string> texts(number32(file, at + 8));
    at += 12;
    const auto goOn = [&] {
        EXPECT_EQ(number16(file, at), 0x003CU);
        end = at + 4 + number16(file, at + 2);
        at += 4;
    };
    for (std::u16string& text : texts) {
        if (at == end) goOn();
        const std::size_t length = number16(file, at);
        bool wide = file[at + 2] != 0;
        for (at += 3; text.size() < length; at += wide ? 2 : 1) {
            if (at == end) {
                goOn();
                wide = file[at++] != 0;
            }
            text += static_cast<char16_t>(wide ? number16(file, at) : number16(file, at) & 0xFFU);
        }
    }
    return texts;
}

bool isFirstHalf(char16_t unit) { return unit >= 0xD800 && unit < 0xDC00; }

TEST_F(WorkbookFile, holds_texts_that_go_on_in_further_records_whole)
{
    std::string bars;    // each of two units
    std::string accents; // each of one byte in the file
    for (int i = 0; i < 20'000; ++i)
        bars += "\U0001D11E";
    for (int i = 0; i < 40'000; ++i)
        accents += "é";
    const MadeTable table({{"N", 50}},
                          {{bars}, {"x" + bars}, {accents}, {std::string(20'000, 'x')}, {"\uFFFD日"}});
    const std::vector<std::u16string> texts = sharedTexts(written(table));
    ASSERT_EQ(texts.size(), 6U);
    ASSERT_EQ(texts[1].size(), 32'767U) << "the most that a cell holds";
    ASSERT_EQ(texts[2].size(), 32'767U);
    for (std::size_t i = 0; i < 32'766; i += 2) {
        ASSERT_EQ(texts[1].substr(i, 2), u"\U0001D11E") << i;
        ASSERT_EQ(texts[2].substr(i + 1, 2), u"\U0001D11E") << i;
    }
    EXPECT_EQ(texts[1].back(), u' ') << "half a character would be none";
    EXPECT_EQ(texts[3], std::u16string(32'767, u'é'));
    EXPECT_EQ(texts[4], std::u16string(20'000, u'x'));
    EXPECT_EQ(texts[5], u"\uFFFD日");
}

// Letters with accents and other signs below U+0100 take a byte; one of the control characters among them becomes
// a sign that does not, and with it the whole text.
TEST_F(WorkbookFile, holds_narrow_texts_as_they_are)
{
    std::string accents; // goes on in a second record
    for (int i = 0; i < 15'000; ++i)
        accents += "é";
    const MadeTable table({{"N", 50}}, {{accents},
                                        {"\u00A0¿Ñandú?\u00FF"},
                                        {"é\u0085"},
                                        {"é\r\nü"},
                                        {std::string(40'000, 'x')},
                                        {std::string(32'766, 'x') + "é"},
                                        {"x" + std::string(32'764, 'x') + "é"}});
    const std::vector<std::u16string> texts = sharedTexts(written(table));
    ASSERT_EQ(texts.size(), 8U);
    EXPECT_EQ(texts[1], std::u16string(15'000, u'é'));
    EXPECT_EQ(texts[2], u"\u00A0¿Ñandú?\u00FF");
    EXPECT_EQ(texts[3], u"é\uFFFD");
    EXPECT_EQ(texts[4], u"é\nü");
    EXPECT_EQ(texts[5], std::u16string(32'767, u'x'));
    EXPECT_EQ(texts[6], std::u16string(32'766, u'x') + u"é");
    EXPECT_EQ(texts[7], std::u16string(32'765, u'x') + u"é");
}

// Readers take the texts record by record.
TEST_F(WorkbookFile, has_both_halves_of_a_character_in_one_record)
{
    for (std::size_t ahead = 0; ahead < 4; ++ahead) {
        std::string bars(ahead, 'x');
        for (int i = 0; i < 9'000; ++i)
            bars += "\U0001D11E";
        const std::string file = written(MadeTable({{"N", 50}}, {{bars}}));
        for (std::size_t at = headerBytes; number16(file, at) != 0; at += 4 + number16(file, at + 2)) {
            const std::size_t end = at + 4 + number16(file, at + 2);
            if (number16(file, end) != 0x003C) continue;
            EXPECT_FALSE(isFirstHalf(static_cast<char16_t>(number16(file, end - 2)))) << ahead << ", " << at;
        }
    }
}

TEST_F(WorkbookFile, allocates_every_sector_once)
{
    // The last but one takes more than the header's index, the last more than one list beyond it.
    std::vector<std::pair<std::size_t, std::size_t>> sizes{{0, 1},       {1, 1},        {127, 180},
                                                           {5'000, 180}, {260, 30'000}, {700, 30'000}};
    for (std::size_t sector = 0; sector < 20; ++sector) // over the edge at which the table takes one sector more
        sizes.emplace_back(2, 30'000 + 256 * sector);
    for (const auto& [rows, wide] : sizes) {
        const std::string file =
            written(MadeTable({{"Nombre", 200}}, rows, [bytes = wide](std::size_t row, std::size_t) {
                return std::to_string(row) + std::string(bytes, 'x');
            }));
        const std::uint32_t tableSectors = number32(file, 44);
        std::vector<std::uint32_t> places;
        for (std::size_t i = 0; i < 109; ++i)
            places.push_back(number32(file, 76 + 4 * i));
        std::uint32_t list = number32(file, 68);
        for (std::uint32_t i = 0; i < number32(file, 72); ++i, list = number32(file, 512 + list * 512 + 508))
            for (std::size_t n = 0; n < 127; ++n)
                places.push_back(number32(file, 512 + list * 512 + 4 * n));
        places.erase(std::remove(places.begin(), places.end(), 0xFFFFFFFFU), places.end());
        ASSERT_EQ(places.size(), tableSectors);
        std::vector<std::uint32_t> next;
        for (const std::uint32_t place : places)
            for (std::size_t n = 0; n < 128; ++n)
                next.push_back(number32(file, 512 + place * 512 + 4 * n));
        std::uint32_t sector = 0;
        std::uint32_t length = 1;
        for (; next[sector] != 0xFFFFFFFEU && length < next.size(); sector = next[sector])
            ++length;
        const std::uint32_t directory = number32(file, 48);
        EXPECT_EQ(length * 512, (number32(file, 512 + directory * 512 + 128 + 120) + 511) / 512 * 512);
        EXPECT_EQ(next[directory], 0xFFFFFFFEU);
        EXPECT_EQ(std::count(next.begin(), next.end(), 0xFFFFFFFDU), static_cast<std::ptrdiff_t>(tableSectors));
        EXPECT_EQ(std::count(next.begin(), next.end(), 0xFFFFFFFFU),
                  static_cast<std::ptrdiff_t>(next.size() - (file.size() / 512 - 1)));
        if (number32(file, 72) == 0) {
            EXPECT_GT(file.size() / 512 - 2, 128 * (tableSectors - 1)) << "with a sector less it would not do";
        }
    }
}

TEST_F(WorkbookFile, goes_on_in_a_further_sheet_after_65535_rows)
{
    const auto sheets = [&](std::size_t rows) {
        return records(
            written(MadeTable({{"N", 50}}, rows, [](std::size_t, std::size_t) { return "x"; })))[0x0085];
    };
    EXPECT_THAT((std::vector{sheets(0), sheets(65'535), sheets(65'536)}), ElementsAre(1, 1, 2));
}

TEST_F(WorkbookFile, that_cannot_be_written_leaves_nothing_behind)
{
    const MadeTable table({{"Nombre", 200}}, 5'000,
                          [](std::size_t, std::size_t) { return std::string(100, 'x'); });
    const std::size_t whole = written(table).size();
    std::filesystem::remove(path);
    for (const std::size_t room : {std::size_t{0}, std::size_t{511}, whole / 2, whole - 1}) {
        const FullDisk disk(room);
        EXPECT_THROW(tables::writeWorkbook(path, "Correos", table), RuntimeError) << room;
    }
    EXPECT_THROW(tables::writeWorkbook(folder.file("no/existe.xls"), "Correos", table), RuntimeError);
    EXPECT_THAT(folder.names(), IsEmpty());
}

} // namespace
} // namespace dn::tests
