// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The mails of one record: the host's mail object writes them and shows the old ones. The control finds out by
// what identifier the host knows the record, and hands it over.
#pragma once

#include "desk/host_screens.h"
#include "desk/session.h"
#include "screen/ports.h"

#include <cstdint>
#include <string>

namespace dn::mail {

/// The kinds of record; the host tells them apart by a prefix of the identifier.
inline constexpr std::int16_t ofProspect = 0;
inline constexpr std::int16_t ofProject = 1;

class RecordMail {
public:
    RecordMail(desk::Session& session, desk::HostScreens& host, screen::Dialogs& dialogs)
        : session_(session), host_(host), dialogs_(dialogs)
    {
    }

    /// Lets the operator write a mail. @param kind of the record. @param key of its row.
    /// @param addresses joined by ";", or empty. @param result whether a mail was sent.
    void EnviaCorreo(std::int16_t& kind, std::int32_t& key, std::string& addresses, bool& result);

    /// Shows the mails of a record. @param t its kind. @param Sys_PK its key.
    void Historial(std::int16_t& t, std::int32_t& Sys_PK);

private:
    bool find(const std::string& statement, const char* prefix, std::string& record);
    std::shared_ptr<CorreoHost> begin();

    desk::Session& session_;
    desk::HostScreens& host_;
    screen::Dialogs& dialogs_;
};

} // namespace dn::mail
