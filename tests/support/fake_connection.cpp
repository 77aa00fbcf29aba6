// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/support/fake_connection.h"

#include "data/driver_support.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace dn::tests {

namespace {

std::function<void(std::string_view)>& observerOfAll()
{
    static std::function<void(std::string_view)> observer;
    return observer;
}

} // namespace

Answer& Answer::gives(Rows rows)
{
    error_.reset();
    rows_ = std::move(rows);
    return *this;
}

Answer& Answer::gives(std::vector<std::string> names, std::vector<std::vector<Cell>> rows)
{
    Rows given;
    given.names = std::move(names);
    given.rows = std::move(rows);
    return gives(std::move(given));
}

Answer& Answer::givesNothing()
{
    rows_.reset();
    error_.reset();
    return *this;
}

Answer& Answer::fails(const std::string& text, const std::string& sqlState, int nativeCode)
{
    return fails(data::Error(sqlState, nativeCode, text));
}

Answer& Answer::fails(const data::Error& error)
{
    error_ = error;
    return *this;
}

Answer& Answer::once()
{
    once_ = true;
    return *this;
}

Answer& Answer::calling(std::function<void()> action)
{
    action_ = std::move(action);
    return *this;
}

bool Answer::fits(std::string_view statement) const
{
    if (once_ && used_) return false;
    return exact_ ? statement == pattern_ : statement.find(pattern_) != std::string_view::npos;
}

std::unique_ptr<data::Recordset> Answer::answer()
{
    used_ = true;
    if (action_) action_();
    if (error_) throw data::Error(*error_);
    if (!rows_) return nullptr;
    return std::make_unique<FakeRecordset>(*rows_);
}

Answer& FakeConnection::on(std::string exactText) { return add(std::move(exactText), true); }

Answer& FakeConnection::onContaining(std::string part) { return add(std::move(part), false); }

Answer& FakeConnection::add(std::string pattern, bool exact)
{
    Answer& answer = answers_.emplace_back();
    answer.pattern_ = std::move(pattern);
    answer.exact_ = exact;
    return answer;
}

void FakeConnection::failAt(std::size_t n, const std::string& text, const std::string& sqlState, int nativeCode)
{
    failures_.insert_or_assign(count_ + n, data::Error(sqlState, nativeCode, text));
}

void FakeConnection::observeAll(std::function<void(std::string_view)> observer)
{
    observerOfAll() = std::move(observer);
}

std::unique_ptr<data::Recordset> FakeConnection::execute(std::string_view statement)
{
    ++count_;
    statements_.emplace_back(statement);
    if (observerOfAll()) observerOfAll()(statement);
    if (hook_) hook_(statement);
    data::requireText(statement);
    if (state_ == closed) throw data::connectionClosed();
    if (const auto failure = failures_.extract(count_)) throw data::Error(failure.mapped());
    if (Answer* const answer = find(statement)) return answer->answer();
    if (strict_) ADD_FAILURE() << "nobody told what to answer to: " << statement;
    return nullptr;
}

Answer* FakeConnection::find(std::string_view statement)
{
    const auto found = std::find_if(answers_.rbegin(), answers_.rend(),
                                    [&](const Answer& answer) { return answer.fits(statement); });
    return found == answers_.rend() ? nullptr : &*found;
}

} // namespace dn::tests
