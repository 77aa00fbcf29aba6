// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The host's mail: what the control asks when the operator writes to a party or looks at what was written.
//
//     screens.mailBy([=](const auto& context) { return
//         std::make_shared<Mailer>(context, settings, password); });
#pragma once

#include "desk/host_objects.h"
#include "host/mail/mail_password.h"
#include "host/mail/mail_settings.h"
#include "host/screens/context.h"

#include <functional>
#include <memory>

namespace dn::host {

class Mailer : public CorreoHost {
public:
    using Settings = std::function<MailSettings()>;

    /// @param settings read anew for each mail, so that a change counts at once.
    /// @param password what is known of it; outlives this.
    Mailer(std::shared_ptr<ScreenContext> context, Settings settings, MailPassword& password)
        : context_(std::move(context)), settings_(std::move(settings)), password_(password)
    {
    }

    /// The connection is the control's and is left alone.
    void Inicia(data::Connection* connection, const std::string& templatePath,
                const std::string& usuario) override;

    /// @param text1 the subject to begin with. @param text2 the text. @param text3 and @param text4 of no meaning.
    void Enviar(const std::string& record, const std::string& addresses, const std::string& text1,
                const std::string& text2, const std::string& text3, const std::string& text4,
                bool& result) override;

    void VerHistorial(const std::string& record) override;

private:
    std::shared_ptr<ScreenContext> context_;
    Settings settings_;
    MailPassword& password_;
    std::string templates_;
    std::string user_;
};

} // namespace dn::host
