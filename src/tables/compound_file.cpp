// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "tables/compound_file.h"

#include "tables/little_endian.h"

#include "base/runtime_error.h"

#include <algorithm>
#include <limits>
#include <string>

namespace dn::tables {
namespace {

constexpr std::uint32_t sectorBytes = 512;
constexpr std::uint32_t numbersInSector = sectorBytes / 4;
constexpr std::uint32_t indexInHeader = 109; // sectors of the allocation table that the header names
constexpr std::uint32_t smallStream = 4096;  // a shorter stream would have to lie in another place

constexpr std::uint32_t freeSector = 0xFFFFFFFF;
constexpr std::uint32_t endOfChain = 0xFFFFFFFE;
constexpr std::uint32_t tableSector = 0xFFFFFFFD;
constexpr std::uint32_t indexSector = 0xFFFFFFFC;

/// How many sectors each part takes, one part behind the other.
struct Sectors {
    std::uint32_t stream = 0;
    std::uint32_t directory = 1;
    std::uint32_t table = 0;
    std::uint32_t index = 0;

    explicit Sectors(std::uint32_t streamSectors) : stream(streamSectors)
    {
        // The table has an entry for each sector, its own among them.
        for (std::uint32_t before = 1; before != table + index;) {
            before = table + index;
            table = (behind() + numbersInSector - 1) / numbersInSector;
            const std::uint32_t further = table > indexInHeader ? table - indexInHeader : 0;
            index = (further + numbersInSector - 2) / (numbersInSector - 1);
        }
    }

    std::uint32_t firstOfTable() const { return stream + directory; }
    std::uint32_t firstOfIndex() const { return firstOfTable() + table; }
    std::uint32_t behind() const { return firstOfIndex() + index; }

    /// What the allocation table says of a sector: the next one of its chain, or what it is.
    std::uint32_t entry(std::uint32_t sector) const
    {
        if (sector + 1 < stream) return sector + 1;
        if (sector < firstOfTable()) return endOfChain;
        if (sector < firstOfIndex()) return tableSector;
        return sector < behind() ? indexSector : freeSector;
    }
};

std::string directoryEntry(std::string_view name, char kind, std::uint32_t child, std::uint32_t start,
                           std::uint32_t size)
{
    constexpr std::size_t nameBytes = 64;
    constexpr std::size_t entryBytes = 128;
    std::string entry;
    for (const char letter : name)
        append16(entry, static_cast<unsigned char>(letter));
    entry.resize(nameBytes);
    append16(entry, name.empty() ? 0 : static_cast<std::uint32_t>(2 * (name.size() + 1)));
    entry += kind;
    entry += '\1'; // a black node of the tree
    append32(entry, freeSector);
    append32(entry, freeSector);
    append32(entry, child);
    entry.resize(116); // class and times: none
    append32(entry, start);
    append32(entry, size);
    entry.resize(entryBytes);
    return entry;
}

std::string directory(std::uint32_t streamBytes)
{
    const std::string unused = directoryEntry({}, '\0', freeSector, 0, 0);
    return directoryEntry("Root Entry", '\5', 1, endOfChain, 0) +
           directoryEntry("Workbook", '\2', freeSector, 0, streamBytes) + unused + unused;
}

void writeTable(NewFile& file, const Sectors& sectors)
{
    std::string sector;
    for (std::uint32_t number = 0; number < sectors.table * numbersInSector; ++number) {
        append32(sector, sectors.entry(number));
        if (sector.size() < sectorBytes) continue;
        file.write(sector);
        sector.clear();
    }
}

// The sectors of the table that the header has no room for, with the number of the next such list at each end.
void writeIndex(NewFile& file, const Sectors& sectors)
{
    std::uint32_t next = indexInHeader;
    for (std::uint32_t list = 0; list < sectors.index; ++list) {
        std::string sector;
        for (std::uint32_t i = 0; i + 1 < numbersInSector; ++i, ++next)
            append32(sector, next < sectors.table ? sectors.firstOfTable() + next : freeSector);
        append32(sector, list + 1 < sectors.index ? sectors.firstOfIndex() + list + 1 : endOfChain);
        file.write(sector);
    }
}

std::string header(const Sectors& sectors)
{
    std::string bytes("\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1", 8);
    bytes.resize(24);                                               // no class
    for (const std::uint32_t number : {0x3EU, 3U, 0xFFFEU, 9U, 6U}) // revision, version, byte order, sector sizes
        append16(bytes, number);
    bytes.resize(44);
    append32(bytes, sectors.table);
    append32(bytes, sectors.stream); // the first sector of the directory
    append32(bytes, 0);
    append32(bytes, smallStream);
    append32(bytes, endOfChain); // no small streams
    append32(bytes, 0);
    append32(bytes, sectors.index == 0 ? endOfChain : sectors.firstOfIndex());
    append32(bytes, sectors.index);
    for (std::uint32_t i = 0; i < indexInHeader; ++i)
        append32(bytes, i < sectors.table ? sectors.firstOfTable() + i : freeSector);
    return bytes;
}

} // namespace

CompoundFile::CompoundFile(const std::string& path) : file_(path) { file_.write(std::string(sectorBytes, '\0')); }

void CompoundFile::overwrite(std::uint64_t position, std::string_view bytes)
{
    file_.overwrite(sectorBytes + position, bytes);
}

std::uint64_t CompoundFile::size() const { return file_.size() - sectorBytes; }

void CompoundFile::keep()
{
    const std::uint64_t used = std::max<std::uint64_t>(size(), smallStream);
    const std::uint64_t whole = (used + sectorBytes - 1) / sectorBytes * sectorBytes;
    if (whole > std::numeric_limits<std::int32_t>::max())
        throw RuntimeError("Los datos no caben en una hoja de cálculo");
    file_.write(std::string(whole - size(), '\0'));
    const Sectors sectors(static_cast<std::uint32_t>(whole / sectorBytes));
    file_.write(directory(static_cast<std::uint32_t>(used)));
    writeTable(file_, sectors);
    writeIndex(file_, sectors);
    file_.overwrite(0, header(sectors));
    file_.keep();
}

} // namespace dn::tables
