// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The mails that were sent, in a table of the host's own. Another's database may lack it.
#pragma once

#include "data/error.h"
#include "host/database/own_connection.h"
#include "host/mail/message.h"

#include <cstdint>
#include <string>
#include <vector>

namespace dn::host {

struct StoredMail {
    std::int32_t key;
    std::string moment; ///< "2026-03-14 09:30:00", by the server's clock
    std::string sender;
    std::string recipients;
    std::string subject;
    std::string user;
};

/// The most that a look at the history shows.
inline constexpr std::int32_t historyLimit = 1000;

/// Whether the database has the table. @throws data::Error for any other trouble.
bool keepsMailHistory(OwnConnection& database);

/// Adds a mail that was sent. Of attachments it keeps names and sizes.
/// @param record the identifier of the party. @throws data::Error
void storeMail(OwnConnection& database, const std::string& record, const Message& message,
               const std::string& user);

/// The mails of a record, the latest first. @throws data::Error
std::vector<StoredMail> mailsOf(OwnConnection& database, const std::string& record);

/// The text of a stored mail; empty when it is gone. @throws data::Error
std::string mailBody(OwnConnection& database, std::int32_t key);

/// "1.4 MB", "12 KB", "0 KB" for nothing.
std::string sizeText(std::size_t bytes);

} // namespace dn::host
