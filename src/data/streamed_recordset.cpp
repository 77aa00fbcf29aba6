// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "data/streamed_recordset.h"

#include "data/driver_support.h"

#include <utility>

namespace dn::data {
namespace {

std::vector<std::string> namesOf(const std::vector<Column>& columns)
{
    std::vector<std::string> names;
    names.reserve(columns.size());
    for (const Column& column : columns)
        names.push_back(column.name);
    return names;
}

} // namespace

void Wire::clear()
{
    if (reader_ != nullptr) reader_->readAll();
}

void Wire::cut()
{
    if (reader_ == nullptr) return;
    reader_->failure_ = std::make_exception_ptr(connectionClosed());
    reader_->leaveWire();
}

StreamedRecordset::StreamedRecordset(const std::vector<Column>& columns, std::unique_ptr<RowSource> source,
                                     Wire& wire, Reading reading)
    : Recordset(namesOf(columns)), rows_(columns.size()), source_(std::move(source))
{
    for (const Column& column : columns)
        kinds_.push_back(column.kind);
    if (reading == Reading::whole)
        readAll();
    else
        readBatch();
    if (failure_) throwFailure();
    onRow_ = rows_.next();
    empty_ = !onRow_;
    if (!source_) return;
    wire_ = &wire;
    wire.reader_ = this;
}

StreamedRecordset::~StreamedRecordset() { leaveWire(); }

void StreamedRecordset::MoveNext()
{
    if (!onRow_) throw noRow();
    onRow_ = rows_.next();
    if (onRow_) return;
    readBatch();
    onRow_ = rows_.next();
    if (!onRow_ && failure_) throwFailure();
}

Value StreamedRecordset::value(std::size_t column) const
{
    if (!onRow_ || column >= kinds_.size()) throw noRow();
    const std::string_view cell = rows_.cell(column);
    if (cell.data() == nullptr) return {};
    const Value::Kind kind = kinds_[column];
    return kind == Value::Kind::dateTime ? deliveredDate(cell) : Value(kind, cell);
}

void StreamedRecordset::readBatch()
{
    while (source_ && rows_.waiting() < batchRows && rows_.bytes() < batchBytes)
        fetchRow();
}

void StreamedRecordset::readAll()
{
    while (source_)
        fetchRow();
}

// Nothing is thrown here: the rows that came ahead of a failure are good.
void StreamedRecordset::fetchRow()
{
    try {
        if (!source_->fetch(rows_)) leaveWire();
    } catch (...) {
        failure_ = std::current_exception();
        leaveWire();
    }
}

void StreamedRecordset::leaveWire()
{
    if (wire_ != nullptr) wire_->reader_ = nullptr;
    wire_ = nullptr;
    source_.reset();
}

void StreamedRecordset::throwFailure() { std::rethrow_exception(std::exchange(failure_, nullptr)); }

} // namespace dn::data
