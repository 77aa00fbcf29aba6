// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The container of a binary workbook: a compound file with a single stream, "Workbook".
//
//   header | the stream, sector by sector | directory | allocation table | its index
//
// The stream is written as it comes, and all that depends on its length stands behind it; only the header is
// filled in at the end. So nothing of it is kept in memory.
#pragma once

#include "tables/new_file.h"

#include <cstdint>
#include <string_view>

namespace dn::tables {

class CompoundFile {
public:
    /// @throws RuntimeError as NewFile does; so do all of these.
    explicit CompoundFile(const std::string& path);

    /// Writes at the end of the stream.
    void write(std::string_view bytes) { file_.write(bytes); }
    /// Writes over what stands at a position of the stream.
    void overwrite(std::uint64_t position, std::string_view bytes);
    /// Bytes of the stream so far.
    std::uint64_t size() const;
    /// The stream is complete: writes what stands behind it, and the file takes its name.
    void keep();

private:
    NewFile file_;
};

} // namespace dn::tables
