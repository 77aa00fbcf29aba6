// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "data/mariadb/session.h"

#include <errmsg.h>
#include <mysqld_error.h>
#include <poll.h>

#include <algorithm>
#include <array>
#include <mutex>
#include <new>

namespace dn::data::mariadb {
namespace {

// The library sets itself up with its first handle, which two threads must not do at a time.
MYSQL* newHandle()
{
    static std::once_flag once;
    std::call_once(once, [] { mysql_library_init(0, nullptr, nullptr); });
    MYSQL* const handle = mysql_init(nullptr);
    if (handle == nullptr) throw std::bad_alloc();
    return handle;
}

bool meansLost(unsigned code)
{
    static constexpr std::array<unsigned, 12> codes{
        CR_SERVER_GONE_ERROR, CR_SERVER_LOST,       CR_SERVER_LOST_EXTENDED, CR_MALFORMED_PACKET,
        CR_ERR_NET_READ,      CR_ERR_NET_WRITE,     CR_ERR_NET_UNCOMPRESS,   CR_COMMANDS_OUT_OF_SYNC,
        ER_SERVER_SHUTDOWN,   ER_CONNECTION_KILLED, ER_NET_READ_ERROR,       ER_NET_READ_INTERRUPTED,
    };
    return std::find(codes.begin(), codes.end(), code) != codes.end();
}

const char* textOrNull(const std::string& text) { return text.empty() ? nullptr : text.c_str(); }

} // namespace

Session::Session(const Options& options) : handle_(newHandle(), &mysql_close)
{
    setOptions(options);
    const MYSQL* const connected = mysql_real_connect(
        handle(), textOrNull(options.host), textOrNull(options.user), textOrNull(options.password),
        textOrNull(options.database), options.port, textOrNull(options.socket), CLIENT_MULTI_RESULTS);
    if (connected == nullptr) fail();
}

void Session::setOptions(const Options& options)
{
    const auto seconds = [&](mysql_option option, std::chrono::seconds timeOut) {
        const auto count = static_cast<unsigned>(timeOut.count());
        mysql_options(handle(), option, &count);
    };
    seconds(MYSQL_OPT_CONNECT_TIMEOUT, options.connectTimeOut);
    seconds(MYSQL_OPT_READ_TIMEOUT, options.readTimeOut);
    seconds(MYSQL_OPT_WRITE_TIMEOUT, options.writeTimeOut);
    mysql_options(handle(), MYSQL_SET_CHARSET_NAME, "utf8mb4");
    const unsigned noFiles = 0; // a server could ask for any file of the operator's otherwise
    mysql_options(handle(), MYSQL_OPT_LOCAL_INFILE, &noFiles);
    const my_bool never = 0;
    mysql_options(handle(), MYSQL_OPT_RECONNECT, &never);
    const unsigned tcp = MYSQL_PROTOCOL_TCP; // the library takes "localhost" for the socket whatever the port
    if (options.socket.empty() && options.port != 0) mysql_options(handle(), MYSQL_OPT_PROTOCOL, &tcp);
}

bool Session::hungUp() const
{
    pollfd end{mysql_get_socket(handle()), POLLRDHUP, 0};
    return ::poll(&end, 1, 0) == 1;
}

void Session::send(std::string_view statement)
{
    if (mysql_real_query(handle(), statement.data(), static_cast<unsigned long>(statement.size())) != 0) fail();
}

void Session::drainResults()
{
    while (mysql_more_results(handle()) != 0) {
        if (mysql_next_result(handle()) > 0) fail();
        const Result readOff(mysql_use_result(handle()));
        if (!readOff && mysql_field_count(handle()) != 0) fail();
    }
}

void Session::fail()
{
    const unsigned code = mysql_errno(handle());
    lost_ = lost_ || meansLost(code);
    throw Error(mysql_sqlstate(handle()), static_cast<int>(code), mysql_error(handle()));
}

} // namespace dn::data::mariadb
