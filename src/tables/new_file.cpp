// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "tables/new_file.h"

#include "base/runtime_error.h"

#include <system_error>

namespace dn::tables {
namespace {

namespace fs = std::filesystem;

constexpr std::size_t bufferBytes = 64U << 10U;

// Where the bytes of a path end up: behind the links.
fs::path destination(const fs::path& path)
{
    std::error_code failure;
    fs::path real = fs::canonical(path, failure);
    return failure ? path : real;
}

bool isWritable(const fs::path& path)
{
    std::FILE* const file = std::fopen(path.string().c_str(), "ab"); // changes nothing
    return file != nullptr && std::fclose(file) == 0;
}

} // namespace

NewFile::NewFile(const std::string& path) : path_(destination(std::u8string(path.begin(), path.end())))
{
    if (!path_.has_filename()) fail();
    std::error_code failure;
    const fs::file_status there = fs::status(path_, failure);
    // A device or a folder would not be replaced but lost.
    if (fs::exists(there) && (!fs::is_regular_file(there) || !isWritable(path_))) fail();
    open();
    if (fs::exists(there)) fs::permissions(partial_, there.permissions(), failure);
}

NewFile::~NewFile()
{
    if (partial_.empty()) return;
    file_.reset();
    std::error_code failure;
    fs::remove(partial_, failure);
}

// A short name of its own: one made of the file's could be too long. Several programs may write side by side.
void NewFile::open()
{
    constexpr int tries = 100;
    for (int number = 1; number <= tries && !file_; ++number) {
        fs::path partial = path_.parent_path() / (".dncontacts-" + std::to_string(number) + ".parte");
        file_.reset(std::fopen(partial.string().c_str(), "wbx"));
        if (file_) partial_ = std::move(partial);
    }
    if (!file_) fail();
    std::setvbuf(file_.get(), nullptr, _IONBF, 0); // the bytes are collected here
    buffer_.reserve(bufferBytes);
}

// Rows come in small pieces by the million: each would cost a call of the library and its lock.
void NewFile::write(std::string_view bytes)
{
    if (buffer_.size() + bytes.size() > bufferBytes) flush();
    buffer_ += bytes;
    size_ += bytes.size();
}

void NewFile::overwrite(std::uint64_t position, std::string_view bytes)
{
    flush();
    if (std::fseek(file_.get(), static_cast<long>(position), SEEK_SET) != 0) fail();
    if (std::fwrite(bytes.data(), 1, bytes.size(), file_.get()) != bytes.size()) fail();
    if (std::fseek(file_.get(), static_cast<long>(size_), SEEK_SET) != 0) fail();
}

void NewFile::keep()
{
    flush();
    if (std::fclose(file_.release()) != 0) fail();
    std::error_code failure;
    fs::rename(partial_, path_, failure);
    if (failure) fail();
    partial_.clear();
}

void NewFile::flush()
{
    if (std::fwrite(buffer_.data(), 1, buffer_.size(), file_.get()) != buffer_.size()) fail();
    buffer_.clear();
}

void NewFile::fail() const { throw RuntimeError("No se pudo escribir el archivo «" + path_.string() + "»"); }

} // namespace dn::tables
