// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// An operator who writes mails: real windows under real keys, over a real database, to a real mail server.
#pragma once

#include "host/mail/mailer.h"
#include "tests/host/desktop/fake_keyring.h"
#include "tests/host/mail/mail_server.h"
#include "tests/host/screens/fixture.h"

#include <functional>

namespace dn::host::tests {

class Mails : public Screens {
protected:
    static constexpr const char* maria = "CT.AAAA"; ///< a prospect with everything filled in
    static constexpr const char* silo = "PY.BBBB";  ///< a project of Acme's with Ana
    /// The button of a mail without a server.
    static constexpr const char* keeps = "Guardar en la bandeja de salida";
    void SetUp() override;

    /// A new mail object, bound as the control binds it.
    std::shared_ptr<CorreoHost> mail();
    /// Opens the window of a mail and lets the operator act. @return whether a mail was sent.
    bool writes(const std::function<void(QWidget&)>& act, const std::string& record = maria,
                const std::string& addresses = "maria@acme.example");
    /// What is stored of the mails sent: record, sender, recipients, subject, body, user.
    static std::vector<Row> history();

    std::vector<std::filesystem::path> outbox() const;

    MailSettings settings;
    FakeKeyring keyring;
    MailPassword password{keyring};
    std::string templates = "R:";
    Folder folder;
};

// What an operator does in the window.

void types(QWidget& window, const char* text);
/// Presses a key of the keyboard where the focus is.
void hits(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
QString textIn(QWidget& window, const char* name);
/// Waits until nothing is on its way any longer.
void waitUntilItCameBack(QWidget& window);

} // namespace dn::host::tests
