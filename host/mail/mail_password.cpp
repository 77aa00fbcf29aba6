// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "host/mail/mail_password.h"

#include <filesystem>

namespace dn::host {
namespace {

namespace fs = std::filesystem;

bool isOpenToOthers(const fs::path& path)
{
    constexpr fs::perms others = fs::perms::group_all | fs::perms::others_all;
    std::error_code failure;
    const fs::perms mode = fs::status(path, failure).permissions();
    return !failure && (mode & others) != fs::perms::none;
}

std::string readable(const fs::path& file)
{
    return "La clave del correo está escrita en «" + file.string() + "», a la vista de quien abra ese archivo. ";
}

PasswordQuestion questionFor(const MailSettings& settings, bool canKeep)
{
    return {.title = "Clave del correo",
            .account = QString::fromStdString(settings.user + " en " + settings.host()),
            .accepts = "&Enviar",
            .rejects = "Ca&ncelar",
            .canKeep = canKeep};
}

} // namespace

std::string accountOf(const MailSettings& settings) { return "smtp:" + settings.user + "@" + settings.host(); }

void MailPassword::takeIn(MailSettings& settings)
{
    if (settings.openPassword.empty()) return;
    const std::string account = accountOf(settings);
    if (!settings.wantsPassword())
        settings.warnings.push_back(readable(settings.file) + "No hace falta: borre su renglón.");
    else if (!keyring_.keep(account, settings.openPassword) || keyring_.find(account) != settings.openPassword)
        settings.warnings.push_back(readable(settings.file) +
                                    "Este escritorio no tiene un llavero que la guarde: "
                                    "borre su renglón y el programa se la pedirá una vez "
                                    "en cada sesión.");
    else if (!removePassword(settings.file))
        settings.warnings.push_back(readable(settings.file) + "Ya está en el llavero del escritorio: borre su "
                                                              "renglón.");
    else
        return;
    if (isOpenToOthers(settings.file))
        settings.warnings.push_back("Mientras tanto, que no la lean otros usuarios: chmod 600 " +
                                    settings.file.string());
}

/// What the settings or the keyring have, but for what the server has refused.
std::optional<std::string> MailPassword::known(const MailSettings& settings, const std::string& account)
{
    const auto fits = [&](const std::string& password) {
        return !password.empty() && !refused_.contains({account, password});
    };
    if (fits(settings.password)) return settings.password;
    if (const auto typed = known_.find(account); typed != known_.end()) return typed->second;
    std::optional<std::string> kept = keyring_.find(account);
    return kept && fits(*kept) ? kept : std::nullopt;
}

bool MailPassword::provide(MailSettings& settings, QWidget* over)
{
    if (!settings.wantsPassword()) return true;
    const std::string account = accountOf(settings);
    if (const auto password = known(settings, account)) {
        settings.password = *password;
        return true;
    }
    const auto typed = askPassword(questionFor(settings, keyring_.answers()), over);
    if (!typed) return false;
    typed_[account] = *typed;
    settings.password = typed->password;
    return true;
}

void MailPassword::accepted(const MailSettings& settings)
{
    if (!settings.wantsPassword()) return;
    const std::string account = accountOf(settings);
    known_[account] = settings.password;
    const auto typed = typed_.extract(account);
    if (!typed) return;
    if (typed.mapped().keep)
        keyring_.keep(account, settings.password);
    else
        keyring_.forget(account);
}

void MailPassword::refused(const MailSettings& settings)
{
    const std::string account = accountOf(settings);
    typed_.erase(account);
    if (const auto known = known_.find(account); known != known_.end() && known->second == settings.password)
        known_.erase(known);
    refused_.emplace(account, settings.password);
}

} // namespace dn::host
