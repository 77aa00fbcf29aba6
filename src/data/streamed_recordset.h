// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The recordset of the drivers: the first rows are in memory when the statement returns, so that a small result
// leaves nothing on the wire; a long one is read batch by batch as the loop goes on.
//
// A server answers one statement at a time. When the next one comes while a long result is still on the wire, the
// recordset takes its remaining rows into memory; the loop over it never notices.
#pragma once

#include "base/export.h"
#include "data/error.h"
#include "data/recordset.h"
#include "data/row_memory.h"

#include <exception>
#include <memory>
#include <string>
#include <vector>

namespace dn::data {

/// A driver's result on the wire. Its destructor reads off whatever is left of it.
class DN_INTERNAL RowSource {
public:
    RowSource() = default;
    RowSource(const RowSource&) = delete;
    RowSource& operator=(const RowSource&) = delete;
    virtual ~RowSource() = default;

    /// Appends the next row. @return false behind the last one, with every further result of the statement read
    /// off. @throws Error what the server said in the middle of the result.
    virtual bool fetch(RowMemory& rows) = 0;
};

class StreamedRecordset;

/// The wire of a connection: knows which recordset still reads from it.
class DN_INTERNAL Wire {
public:
    /// Ahead of a statement: that recordset takes its remaining rows into memory.
    void clear();
    /// Ahead of the connection's end: that recordset keeps the rows it holds; reading on gives an error.
    void cut();

private:
    friend class StreamedRecordset;
    StreamedRecordset* reader_ = nullptr;
};

struct DN_INTERNAL Column {
    std::string name;
    Value::Kind kind = Value::Kind::text; ///< of all its cells that are not null
};

class DN_INTERNAL StreamedRecordset final : public Recordset {
public:
    enum class Reading : std::uint8_t {
        batches, ///< the rest is read as the loop goes on
        whole,   ///< all rows at once: results follow whose errors belong to the statement
    };

    /// Reads the first rows. @throws Error when the server fails while they come.
    /// @param wire outlives the recordset, or is cut first.
    StreamedRecordset(const std::vector<Column>& columns, std::unique_ptr<RowSource> source, Wire& wire,
                      Reading reading);
    ~StreamedRecordset() override;

    bool Eof() const override { return !onRow_; }
    bool Bof() const override { return empty_; }
    void MoveNext() override;
    Value value(std::size_t column) const override;

private:
    friend class Wire;
    static constexpr std::size_t batchRows = 256;
    static constexpr std::size_t batchBytes = 65'536;

    void readBatch();
    void readAll();
    void fetchRow();
    void leaveWire();
    void throwFailure();

    std::vector<Value::Kind> kinds_;
    RowMemory rows_;
    std::unique_ptr<RowSource> source_; // nothing once every row is in memory
    Wire* wire_ = nullptr;              // nothing unless rows are left on it
    std::exception_ptr failure_;        // met while reading ahead, due once the rows ahead of it are used up
    bool onRow_ = false;
    bool empty_ = false;
};

} // namespace dn::data
