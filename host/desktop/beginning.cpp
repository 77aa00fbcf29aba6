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

} // namespace

Beginning::Beginning(QString file, Keyring& keyring, FirstStart::ConnectionTest test)
    : file_(std::move(file)), keyring_(keyring), test_(std::move(test))
{
}

bool Beginning::open(const Opener& opener)
{
    std::optional<StartAnswer> known = chosenBefore();
    std::optional<StartAnswer> answer;
    if (known) answer = completed(*known);
    QString problem;
    for (;;) {
        if (!answer) answer = ask(known, problem);
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
    answer->choice.withoutPassword = answer->choice.own && answer->password.empty();
    keep(*answer);
    return true;
}

bool Beginning::chooseAgain(QWidget* over)
{
    const std::optional<StartAnswer> before = chosenBefore();
    FirstStart window(test_, keyring_, over);
    window.asksForTheNextTime();
    if (before) window.fillWith(*before);
    if (window.exec() != QDialog::Accepted) return false;
    keep(window.answer());
    return true;
}

std::optional<StartAnswer> Beginning::ask(const std::optional<StartAnswer>& before, const QString& problem)
{
    FirstStart window(test_, keyring_);
    if (before) window.fillWith(*before);
    if (!problem.isEmpty()) window.complain(problem);
    if (window.exec() != QDialog::Accepted) return std::nullopt;
    return window.answer();
}

/// With its password where the keyring has it, and then to be kept there.
std::optional<StartAnswer> Beginning::chosenBefore()
{
    const std::optional<StartChoice> choice = readStartChoice(file_);
    if (!choice) return std::nullopt;
    StartAnswer answer{.choice = *choice, .password = {}, .keepPassword = false};
    if (choice->own) answer.password = keptPassword(keyring_, accountOf(choice->database));
    answer.keepPassword = !answer.password.empty();
    return answer;
}

/// What was chosen before, with its password; nothing when that is not to be had, which brings up the window of
/// the first start.
std::optional<StartAnswer> Beginning::completed(StartAnswer answer)
{
    if (!answer.choice.own || answer.choice.withoutPassword || !answer.password.empty()) return answer;
    const std::string account = accountOf(answer.choice.database);
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
    else if (!answer.password.empty() && keptPassword(keyring_, account) != answer.password)
        keyring_.keep(account, answer.password);
}

} // namespace dn::host
