// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/faults/faults.h"

#include "base/text.h"
#include "host/database/patience.h"

#include <errmsg.h>
#include <mysqld_error.h>

#include <atomic>
#include <exception>
#include <functional>
#include <optional>
#include <thread>
#include <utility>

namespace dn::tests {
namespace {

using namespace std::chrono_literals;

std::string one(data::Connection& connection, const std::string& statement)
{
    const auto rows = connection.execute(statement);
    return rows && !rows->Eof() ? rows->value(0).toText() : std::string();
}

const std::vector<int> connectionLost{CR_SERVER_GONE_ERROR, CR_SERVER_LOST, ER_CONNECTION_KILLED,
                                      CR_SERVER_LOST_EXTENDED};

std::string idOf(WatchedConnection& connection) { return one(connection.real(), "SELECT CONNECTION_ID()"); }

/// Until the server has forgotten a connection, and so ended whatever ran on it.
void awaitEnd(const std::string& connection)
{
    const std::string asked = "SELECT COUNT(*) FROM information_schema.processlist WHERE id = " + connection;
    if (!host::waitUntil(10s, [&] { return one(office().beside(), asked) == "0"; }))
        throw std::runtime_error("connection " + connection + " does not end");
}

// The session holds a lock on another table, and so may use no table that it did not ask for.
class RefusedStatement final : public Fault {
public:
    std::string name() const override { return "statement refused"; }
    std::vector<int> codes() const override { return {ER_TABLE_NOT_LOCKED}; }
    void ahead(WatchedConnection& connection, const std::string&) override
    {
        connection.real().execute("LOCK TABLES aparte READ");
    }
    void behind(WatchedConnection& connection, const std::string&) override
    {
        connection.real().execute("UNLOCK TABLES");
    }
};

// With or without tables in the statement.
class OfTheConnection : public Fault {
public:
    std::vector<Target> targets(const std::string&) const override { return std::vector<Target>(1); }
    std::vector<int> codes() const override { return connectionLost; }
};

class Cut final : public OfTheConnection {
public:
    std::string name() const override { return "connection cut"; }
    void ahead(WatchedConnection& connection, const std::string&) override
    {
        const std::string id = idOf(connection);
        office().beside().execute("KILL CONNECTION " + id);
        awaitEnd(id);
    }
};

class Killed final : public OfTheConnection {
public:
    std::string name() const override { return "server killed (SIGKILL)"; }
    std::string origin() const override { return "signal"; }
    bool dear() const override { return true; }
    void ahead(WatchedConnection&, const std::string&) override { office().server().kill(); }
    void over() override { office().restart(); }
};

// It goes on where it stood once it is let go, and then runs what it had been sent.
class Frozen final : public OfTheConnection {
public:
    std::string name() const override { return "server frozen (SIGSTOP)"; }
    std::string origin() const override { return "signal"; }
    bool dear() const override { return true; }
    bool leavesOpen() const override { return true; }
    std::unique_ptr<data::Connection> connect() override
    {
        return office().salesperson(2s); // it is waited out at each statement
    }
    void ahead(WatchedConnection& connection, const std::string&) override
    {
        id_ = idOf(connection);
        office().server().freeze();
    }
    void over() override
    {
        office().server().thaw();
        awaitEnd(id_);
    }

private:
    std::string id_;
};

// The network loses the answer, or all but its beginning: the server has carried the statement out by then.
class AnswerLost : public OfTheConnection {
public:
    explicit AnswerLost(std::size_t bytes) : bytes_(bytes) {}
    std::string name() const override
    {
        return bytes_ == 0 ? "answer lost" : "answer cut off behind its first bytes";
    }
    std::string origin() const override { return "a relay between control and server"; }
    bool dear() const override { return true; }
    bool carriesOut() const override { return true; }
    std::unique_ptr<data::Connection> connect() override
    {
        relay_.emplace(office().server().socket());
        return office().salespersonOver(*relay_);
    }
    void ahead(WatchedConnection&, const std::string&) override { relay_->cutNextAnswer(bytes_); }
    void over() override { relay_.reset(); }

private:
    std::size_t bytes_;
    std::optional<Relay> relay_;
};

// At once behind the request; whether the server runs it is its own affair.
class CutBehindRequest final : public OfTheConnection {
public:
    std::string name() const override { return "connection cut behind the request"; }
    std::string origin() const override { return "a relay between control and server"; }
    bool dear() const override { return true; }
    bool leavesOpen() const override { return true; }
    std::unique_ptr<data::Connection> connect() override
    {
        relay_.emplace(office().server().socket());
        return office().salespersonOver(*relay_);
    }
    void ahead(WatchedConnection& connection, const std::string&) override
    {
        id_ = idOf(connection);
        relay_->cutBehindNextRequest();
    }
    void over() override
    {
        relay_.reset();
        awaitEnd(id_);
    }

private:
    std::optional<Relay> relay_;
    std::string id_;
};

class Changing : public Fault {
public:
    std::vector<Target> targets(const std::string& statement) const override
    {
        return changes(statement) ? Fault::targets(statement) : std::vector<Target>{};
    }
    bool needsRow() const override { return true; }
};

/// What somebody does while a statement of the control runs. What he throws comes out of `done`.
class Meanwhile {
public:
    void begin(std::function<void()> work)
    {
        isOver_ = false;
        thread_ = std::thread([this, work = std::move(work)] {
            try {
                work();
            } catch (...) {
                failure_ = std::current_exception();
            }
        });
    }
    /// Whether the control's statement has come back, so that nobody needs to wait for it any longer.
    bool isOver() const { return isOver_; }
    void done()
    {
        isOver_ = true;
        thread_.join();
        if (failure_) std::rethrow_exception(std::exchange(failure_, nullptr));
    }

private:
    std::atomic<bool> isOver_ = false;
    std::exception_ptr failure_;
    std::thread thread_;
};

// In the middle of its work on the row; nothing of it may be there afterwards.
class KilledMeanwhile final : public Changing {
public:
    std::string name() const override { return "server killed while the statement runs"; }
    std::string origin() const override { return "signal; a trigger waits"; }
    std::vector<int> codes() const override { return connectionLost; }
    bool dear() const override { return true; }
    void ahead(WatchedConnection& connection, const std::string&) override
    {
        connection.real().execute("SET @pausa = 1");
        meanwhile_.begin([this, id = idOf(connection)] { killWhileItSleeps(id); });
    }
    void behind(WatchedConnection&, const std::string&) override { meanwhile_.done(); }
    void over() override { office().restart(); }

private:
    void killWhileItSleeps(const std::string& id)
    {
        const auto looking = office().administrator();
        const std::string asked =
            "SELECT COUNT(*) FROM information_schema.processlist WHERE state = 'User sleep' AND id = " + id;
        bool sleeps = false;
        host::waitUntil(20s, [&] { return (sleeps = one(*looking, asked) == "1") || meanwhile_.isOver(); });
        if (sleeps) office().server().kill();
    }

    Meanwhile meanwhile_;
};

// Somebody else holds the rows, and the gaps between them.
class LockWait final : public Changing {
public:
    explicit LockWait(int seconds) : seconds_(seconds) {}
    std::string name() const override { return seconds_ == 0 ? "row locked, no wait" : "lock wait time-out"; }
    std::vector<int> codes() const override { return {ER_LOCK_WAIT_TIMEOUT}; }
    bool dear() const override { return seconds_ > 0; }
    void ahead(WatchedConnection& connection, const std::string&) override
    {
        connection.real().execute("SET innodb_lock_wait_timeout = " + std::to_string(seconds_));
        holder_ = office().administrator();
        holder_->execute("START TRANSACTION");
        holder_->execute("SELECT * FROM " + target().table + " FOR UPDATE");
    }
    void behind(WatchedConnection&, const std::string&) override { holder_.reset(); }
    void over() override { holder_.reset(); }

private:
    int seconds_;
    std::unique_ptr<data::Connection> holder_;
};

// The other one has changed more rows, so that the server gives up the control's statement.
class Deadlock final : public Changing {
public:
    std::string name() const override { return "deadlock"; }
    std::string origin() const override { return "server, the order of the locks by a trigger"; }
    std::vector<int> codes() const override { return {ER_LOCK_DEADLOCK}; }
    bool dear() const override { return true; }
    void ahead(WatchedConnection& connection, const std::string&) override
    {
        connection.real().execute("SET @enredo = 1");
        other_ = office().administrator();
        other_->execute("START TRANSACTION");
        other_->execute("UPDATE peso SET n = n + 1");
        other_->execute("SELECT id FROM cerrojo WHERE id = 2 FOR UPDATE");
        meanwhile_.begin([this] { tangle(); });
    }
    void behind(WatchedConnection& connection, const std::string&) override
    {
        meanwhile_.done();
        other_.reset();
        connection.real().execute("SET @enredo = NULL");
    }

private:
    void tangle()
    {
        const auto looking = office().administrator();
        // Not by innodb_trx, which shows an old state to whoever asks more often than ten times a second.
        bool waits = false;
        const auto waiting = [&] {
            waits =
                one(*looking, "SELECT VARIABLE_VALUE FROM information_schema.GLOBAL_STATUS WHERE VARIABLE_NAME "
                              "= 'INNODB_ROW_LOCK_CURRENT_WAITS'") != "0";
            return waits || meanwhile_.isOver();
        };
        host::waitUntil(20s, waiting);
        if (waits) other_->execute("SELECT id FROM cerrojo WHERE id = 1 FOR UPDATE");
    }

    std::unique_ptr<data::Connection> other_;
    Meanwhile meanwhile_;
};

class DiskFull final : public Changing {
public:
    std::string name() const override { return "disk full"; }
    std::string origin() const override { return "a trigger's SIGNAL of error 1114"; }
    std::vector<int> codes() const override { return {ER_RECORD_FILE_FULL}; }
    void ahead(WatchedConnection& connection, const std::string&) override
    {
        connection.real().execute("SET @lleno = 1");
    }
    void behind(WatchedConnection& connection, const std::string&) override
    {
        connection.real().execute("SET @lleno = NULL");
    }
};

class ReadOnly final : public Changing {
public:
    std::string name() const override { return "server read-only"; }
    std::vector<int> codes() const override { return {ER_OPTION_PREVENTS_STATEMENT}; }
    bool needsRow() const override { return false; }
    void ahead(WatchedConnection&, const std::string&) override
    {
        office().beside().execute("SET GLOBAL read_only = 1");
    }
    void behind(WatchedConnection&, const std::string&) override
    {
        office().beside().execute("SET GLOBAL read_only = 0");
    }
};

std::vector<Target> eachTable(const std::string& statement)
{
    std::vector<Target> all;
    for (const std::string& table : office().tablesOf(statement))
        all.push_back({.table = table});
    return all;
}

class TableMissing final : public Fault {
public:
    std::string name() const override { return "table missing"; }
    std::vector<Target> targets(const std::string& statement) const override { return eachTable(statement); }
    std::vector<int> codes() const override { return {ER_NO_SUCH_TABLE, ER_VIEW_INVALID}; }
    void ahead(WatchedConnection&, const std::string&) override
    {
        office().beside().execute("RENAME TABLE " + target().table + " TO fuera");
    }
    void behind(WatchedConnection&, const std::string&) override
    {
        office().beside().execute("RENAME TABLE fuera TO " + target().table);
    }
};

class ColumnMissing final : public Fault {
public:
    std::string name() const override { return "column missing"; }
    std::vector<Target> targets(const std::string& statement) const override
    {
        std::vector<Target> all;
        for (const std::string& table : office().tablesOf(statement))
            for (const std::string& column : office().columnsOf(table, statement))
                all.push_back({table, column});
        return all;
    }
    std::vector<int> codes() const override { return {ER_BAD_FIELD_ERROR, ER_VIEW_INVALID}; }
    void ahead(WatchedConnection&, const std::string&) override { rename(target().column, "fuera"); }
    void behind(WatchedConnection&, const std::string&) override { rename("fuera", target().column); }

private:
    void rename(const std::string& from, const std::string& to) const
    {
        office().beside().execute("ALTER TABLE " + target().table + " RENAME COLUMN " + from + " TO " + to);
    }
};

class RowGone : public Fault {
public:
    std::string name() const override { return "all rows gone"; }
    std::vector<Target> targets(const std::string& statement) const override { return eachTable(statement); }
    std::vector<int> codes() const override { return {}; }
    bool fails() const override { return false; }
    void ahead(WatchedConnection&, const std::string& statement) override
    {
        office().beside().execute(changed(statement));
    }
    std::string changed(const std::string&) const override { return "DELETE FROM " + target().table; }
};

// Somebody else has deleted the party that the operator has before him.
class SelectedRowGone final : public RowGone {
public:
    std::string name() const override { return "the selected row gone"; }
    std::vector<Target> targets(const std::string& statement) const override
    {
        std::vector<Target> parties;
        for (const Target& each : eachTable(statement))
            if (each.table == "ut_icontact" || each.table == "proyecto") parties.push_back(each);
        return parties;
    }
    std::string changed(const std::string& statement) const override
    {
        return RowGone::changed(statement) + " WHERE Sys_PK = 1";
    }
};

} // namespace

std::vector<Target> Fault::targets(const std::string& statement) const
{
    std::vector<Target> nearest = eachTable(statement);
    if (nearest.size() > 1) nearest.resize(1);
    return nearest;
}

void Fault::behind(WatchedConnection& /*connection*/, const std::string& /*statement*/) {}

std::string Fault::changed(const std::string& /*statement*/) const { return {}; }

std::vector<std::unique_ptr<Fault>> allFaults()
{
    std::vector<std::unique_ptr<Fault>> all;
    all.push_back(std::make_unique<RefusedStatement>());
    all.push_back(std::make_unique<Cut>());
    all.push_back(std::make_unique<Killed>());
    all.push_back(std::make_unique<Frozen>());
    all.push_back(std::make_unique<AnswerLost>(0));
    all.push_back(std::make_unique<AnswerLost>(3));
    all.push_back(std::make_unique<CutBehindRequest>());
    all.push_back(std::make_unique<KilledMeanwhile>());
    all.push_back(std::make_unique<LockWait>(0));
    all.push_back(std::make_unique<LockWait>(1));
    all.push_back(std::make_unique<Deadlock>());
    all.push_back(std::make_unique<DiskFull>());
    all.push_back(std::make_unique<ReadOnly>());
    all.push_back(std::make_unique<TableMissing>());
    all.push_back(std::make_unique<ColumnMissing>());
    all.push_back(std::make_unique<RowGone>());
    all.push_back(std::make_unique<SelectedRowGone>());
    return all;
}

} // namespace dn::tests
