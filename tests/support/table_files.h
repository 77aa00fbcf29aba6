// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// Tables that tests write to files, and a folder for those files that goes with the test.
#pragma once

#include "tables/table.h"

#include <sys/resource.h>

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

namespace dn::tests {

/// A table whose cells are made when they are asked for.
class MadeTable : public tables::Table {
public:
    using Maker = std::function<std::string(std::size_t row, std::size_t column)>;

    MadeTable(std::vector<tables::Column> columns, std::size_t rows, Maker maker)
        : columns_(std::move(columns)), rows_(rows), maker_(std::move(maker))
    {
    }
    /// A table of these rows.
    MadeTable(std::vector<tables::Column> columns, std::vector<std::vector<std::string>> cells)
        : MadeTable(std::move(columns), cells.size(),
                    [cells](std::size_t row, std::size_t column) { return cells[row][column]; })
    {
    }

    const std::vector<tables::Column>& columns() const override { return columns_; }
    std::size_t rows() const override { return rows_; }
    std::string_view cell(std::size_t row, std::size_t column) const override
    {
        return cell_ = maker_(row, column);
    }

private:
    std::vector<tables::Column> columns_;
    std::size_t rows_;
    Maker maker_;
    mutable std::string cell_;
};

class OutputFolder {
public:
    OutputFolder();
    ~OutputFolder();
    OutputFolder(const OutputFolder&) = delete;
    OutputFolder& operator=(const OutputFolder&) = delete;

    std::string file(const std::string& name) const { return path_ / name; }
    /// The names of all that lies in it, hidden files too, in their order.
    std::vector<std::string> names() const;

private:
    std::filesystem::path path_;
};

std::string contentsOf(const std::string& file);

/// While it lives, no file of this process can grow beyond so many bytes: as on a disk that is full.
class FullDisk {
public:
    explicit FullDisk(std::size_t bytes);
    /// The limit is again what it was.
    ~FullDisk();
    FullDisk(const FullDisk&) = delete;
    FullDisk& operator=(const FullDisk&) = delete;

private:
    rlimit before_{};
    void (*signalBefore_)(int);
};

} // namespace dn::tests
