// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// A file that appears whole or not at all: it is written under another name in the same folder and takes its own
// name at the end. Until then what lay there before stays as it was, and a failure leaves nothing behind.
#pragma once

#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <string>
#include <string_view>

namespace dn::tables {

class NewFile {
public:
    /// @param path UTF-8. A link is followed. What is there already must be a file that can be written.
    /// @throws RuntimeError when no file can be made there.
    explicit NewFile(const std::string& path);
    /// Takes the file away again unless it was kept.
    ~NewFile();
    NewFile(const NewFile&) = delete;
    NewFile& operator=(const NewFile&) = delete;

    // All of these throw RuntimeError when the file cannot be written: a full disk, a limit on its size.

    /// Writes at the end.
    void write(std::string_view bytes);
    /// Writes over what stands there; the end stays the end.
    void overwrite(std::uint64_t position, std::string_view bytes);
    /// Bytes written at the end so far.
    std::uint64_t size() const { return size_; }
    /// The file is complete and takes its name.
    void keep();

private:
    struct Close {
        void operator()(std::FILE* file) const { std::fclose(file); }
    };

    void open();
    void flush();
    [[noreturn]] void fail() const;

    std::filesystem::path path_;    ///< where it will be
    std::filesystem::path partial_; ///< where it is written; empty once it is kept
    std::unique_ptr<std::FILE, Close> file_;
    std::string buffer_; ///< written, but not to the file yet
    std::uint64_t size_ = 0;
};

} // namespace dn::tables
