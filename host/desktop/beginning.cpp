// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "host/desktop/beginning.h"

#include "host/desktop/password_box.h"

#include <exception>
#include <utility>

namespace dn::host {
namespace {

std::vector<std::string> serversOf(const StartAnswer& answer)
{
    if (!answer.choice.own) return {};
    return connectTexts(answer.choice.database, answer.password);
}

/// With its password to be kept, unless the operator says otherwise.
std::optional<StartAnswer> withoutPassword(const std::optional<StartChoice>& choice)
{
    if (!choice) return std::nullopt;
    return StartAnswer{.choice = *choice, .password = {}, .keepPassword = true};
}

} // namespace

Beginning::Beginning(QString file, Keyring& keyring, FirstStart::ConnectionTest test)
    : file_(std::move(file)), keyring_(keyring), test_(std::move(test))
{
}

bool Beginning::open(const Opener& opener)
{
    std::optional<StartAnswer> known = withoutPassword(readStartChoice(file_));
    std::optional<StartAnswer> answer;
    if (known) answer = remembered(known->choice);
    QString problem;
    for (;;) {
        if (!answer) answer = ask(known, problem, nullptr);
        if (!answer) return false;
        try {
            opener(serversOf(*answer), answer->choice.createSchema);
            break;
        } catch (const std::exception& failure) {
            problem = QString::fromUtf8(failure.what());
        }
        known = std::exchange(answer, std::nullopt);
    }
    answer->choice.createSchema = false; // it is done
    keep(*answer);
    return true;
}

bool Beginning::chooseAgain(QWidget* over)
{
    const std::optional<StartAnswer> answer = ask(withoutPassword(readStartChoice(file_)), {}, over);
    if (answer) keep(*answer);
    return answer.has_value();
}

std::optional<StartAnswer> Beginning::ask(const std::optional<StartAnswer>& before, const QString& problem,
                                          QWidget* over)
{
    FirstStart window(test_, keyring_.answers(), over);
    if (before) window.fillWith(*before);
    if (!problem.isEmpty()) window.complain(problem);
    if (window.exec() != QDialog::Accepted) return std::nullopt;
    StartAnswer answer = window.answer();
    if (before) takeKeptPassword(answer, before->choice);
    return answer;
}

// The field comes up empty, also where the keyring has a password for that account: then it is still the one.
void Beginning::takeKeptPassword(StartAnswer& answer, const StartChoice& before)
{
    if (!answer.choice.own || !before.own || !answer.password.empty()) return;
    const std::string account = accountOf(answer.choice.database);
    if (account != accountOf(before.database)) return;
    if (const auto kept = keyring_.find(account)) answer.password = *kept;
}

/// The choice with its password; nothing when that is not to be had, which brings up the window of the first
/// start.
std::optional<StartAnswer> Beginning::remembered(const StartChoice& choice)
{
    StartAnswer answer;
    answer.choice = choice;
    if (!choice.own) return answer;
    const std::string account = accountOf(choice.database);
    if (const auto password = keyring_.find(account)) {
        answer.password = *password;
        answer.keepPassword = true;
        return answer;
    }
    const auto typed = askPassword({.title = "Clave de la base de datos",
                                    .account = QString::fromStdString(account),
                                    .accepts = "&Entrar",
                                    .rejects = "C&ambiar…",
                                    .canKeep = keyring_.answers()},
                                   nullptr);
    if (!typed) return std::nullopt;
    answer.password = typed->password;
    answer.keepPassword = typed->keep;
    return answer;
}

// A choice that cannot be written down is asked for again next time: no reason to keep anybody from his work.
void Beginning::keep(const StartAnswer& answer)
{
    writeStartChoice(file_, answer.choice);
    if (!answer.choice.own) return;
    const std::string account = accountOf(answer.choice.database);
    if (!answer.keepPassword)
        keyring_.forget(account);
    else if (keyring_.find(account) != answer.password)
        keyring_.keep(account, answer.password);
}

} // namespace dn::host
