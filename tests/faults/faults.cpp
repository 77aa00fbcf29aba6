// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/faults/faults.h"

#include "base/text.h"
#include "host/database/patience.h"

#include <thread>

namespace dn::tests {
namespace {

using namespace std::chrono_literals;

std::string one(data::Connection& connection, const std::string& statement)
{
    const auto rows = connection.execute(statement);
    return rows && !rows->Eof() ? rows->value(0).toText() : std::string();
}

/// Until the server has forgotten a connection, and so ended whatever ran on it.
void awaitEnd(const std::string& connection)
{
    const std::string asked = "SELECT COUNT(*) FROM information_schema.processlist WHERE id = " + connection;
    if (!host::waitUntil(10s, [&] { return one(office().beside(), asked) == "0"; }))
        throw std::runtime_error("connection " + connection + " does not end");
}

// The session holds a lock on another table, and so may use no table that it did not ask for.
class Refused final : public Fault {
public:
    std::string name() const override { return "statement refused"; }
    void ahead(WatchedConnection& connection, const std::string&) override
    {
        connection.real().execute("LOCK TABLES aparte READ");
    }
    void behind(WatchedConnection& connection, const std::string&) override
    {
        connection.real().execute("UNLOCK TABLES");
    }
};

class Cut final : public Fault {
public:
    std::string name() const override { return "connection cut"; }
    bool meets(const std::string&) const override { return true; }
    void ahead(WatchedConnection& connection, const std::string&) override
    {
        const std::string id = one(connection.real(), "SELECT CONNECTION_ID()");
        office().beside().execute("KILL CONNECTION " + id);
        awaitEnd(id);
    }
};

class Killed final : public Fault {
public:
    std::string name() const override { return "server killed (SIGKILL)"; }
    std::string origin() const override { return "signal"; }
    bool meets(const std::string&) const override { return true; }
    bool dear() const override { return true; }
    void ahead(WatchedConnection&, const std::string&) override { office().server().kill(); }
    void over() override { office().restart(); }
};

// It goes on where it stood once it is let go, and then runs what it had been sent.
class Frozen final : public Fault {
public:
    std::string name() const override { return "server frozen (SIGSTOP)"; }
    std::string origin() const override { return "signal"; }
    bool meets(const std::string&) const override { return true; }
    bool dear() const override { return true; }
    bool leavesOpen() const override { return true; }
    std::chrono::seconds patience() const override { return 2s; } // it is waited out at each statement
    void ahead(WatchedConnection& connection, const std::string&) override
    {
        id_ = one(connection.real(), "SELECT CONNECTION_ID()");
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

class Changing : public Fault {
public:
    bool meets(const std::string& statement) const override
    {
        return changes(statement) && Fault::meets(statement);
    }
    bool isSure() const override { return false; }
};

// Somebody else holds the rows, and the gaps between them.
class LockWait final : public Changing {
public:
    explicit LockWait(int seconds) : seconds_(seconds) {}
    std::string name() const override { return seconds_ == 0 ? "row locked, no wait" : "lock wait time-out"; }
    bool dear() const override { return seconds_ > 0; }
    void ahead(WatchedConnection& connection, const std::string& statement) override
    {
        connection.real().execute("SET innodb_lock_wait_timeout = " + std::to_string(seconds_));
        holder_ = office().administrator();
        holder_->execute("START TRANSACTION");
        holder_->execute("SELECT * FROM " + office().tableOf(statement) + " FOR UPDATE");
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
    bool dear() const override { return true; }
    void ahead(WatchedConnection& connection, const std::string&) override
    {
        connection.real().execute("SET @enredo = 1");
        other_ = office().administrator();
        other_->execute("START TRANSACTION");
        other_->execute("UPDATE peso SET n = n + 1");
        other_->execute("SELECT id FROM cerrojo WHERE id = 2 FOR UPDATE");
        thread_ = std::thread([this] { tangle(); });
    }
    void behind(WatchedConnection& connection, const std::string&) override
    {
        thread_.join();
        other_.reset();
        connection.real().execute("SET @enredo = NULL");
    }

private:
    void tangle()
    {
        const auto looking = office().administrator();
        // Not by innodb_trx, which shows an old state to whoever asks more often than ten times a second.
        const auto waiting = [&] {
            return one(*looking, "SELECT VARIABLE_VALUE FROM information_schema.GLOBAL_STATUS WHERE VARIABLE_NAME "
                                 "= 'INNODB_ROW_LOCK_CURRENT_WAITS'") != "0";
        };
        if (host::waitUntil(20s, waiting)) other_->execute("SELECT id FROM cerrojo WHERE id = 1 FOR UPDATE");
    }

    std::unique_ptr<data::Connection> other_;
    std::thread thread_;
};

class DiskFull final : public Changing {
public:
    std::string name() const override { return "disk full"; }
    std::string origin() const override { return "a trigger's SIGNAL of error 1114"; }
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
    void ahead(WatchedConnection&, const std::string&) override
    {
        office().beside().execute("SET GLOBAL read_only = 1");
    }
    void behind(WatchedConnection&, const std::string&) override
    {
        office().beside().execute("SET GLOBAL read_only = 0");
    }
};

class TableMissing final : public Fault {
public:
    std::string name() const override { return "table missing"; }
    void ahead(WatchedConnection&, const std::string& statement) override
    {
        const std::string table = office().tableOf(statement);
        office().beside().execute("RENAME TABLE " + table + " TO fuera");
    }
    void behind(WatchedConnection&, const std::string& statement) override
    {
        office().beside().execute("RENAME TABLE fuera TO " + office().tableOf(statement));
    }
};

class ColumnMissing final : public Fault {
public:
    std::string name() const override { return "column missing"; }
    bool meets(const std::string& statement) const override
    {
        return Fault::meets(statement) && !office().columnOf(office().tableOf(statement), statement).empty();
    }
    void ahead(WatchedConnection&, const std::string& statement) override { rename(statement, false); }
    void behind(WatchedConnection&, const std::string& statement) override { rename(statement, true); }

private:
    static void rename(const std::string& statement, bool back)
    {
        const std::string table = office().tableOf(statement);
        const std::string column = office().columnOf(table, statement);
        office().beside().execute("ALTER TABLE " + table + " RENAME COLUMN " + (back ? "fuera" : column) + " TO " +
                                  (back ? column : "fuera"));
    }
};

class RowGone final : public Fault {
public:
    std::string name() const override { return "row gone"; }
    bool fails() const override { return false; }
    void ahead(WatchedConnection&, const std::string& statement) override
    {
        office().beside().execute(changed(statement));
    }
    std::string changed(const std::string& statement) const override
    {
        return "DELETE FROM " + office().tableOf(statement);
    }
};

} // namespace

void Fault::behind(WatchedConnection& /*connection*/, const std::string& /*statement*/) {}

std::string Fault::changed(const std::string& /*statement*/) const { return {}; }

std::vector<std::unique_ptr<Fault>> allFaults()
{
    std::vector<std::unique_ptr<Fault>> all;
    all.push_back(std::make_unique<Refused>());
    all.push_back(std::make_unique<Cut>());
    all.push_back(std::make_unique<Killed>());
    all.push_back(std::make_unique<Frozen>());
    all.push_back(std::make_unique<LockWait>(0));
    all.push_back(std::make_unique<LockWait>(1));
    all.push_back(std::make_unique<Deadlock>());
    all.push_back(std::make_unique<DiskFull>());
    all.push_back(std::make_unique<ReadOnly>());
    all.push_back(std::make_unique<TableMissing>());
    all.push_back(std::make_unique<ColumnMissing>());
    all.push_back(std::make_unique<RowGone>());
    return all;
}

} // namespace dn::tests
