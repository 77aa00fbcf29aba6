// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// A real mail server on the loopback, and a parser of mails that is not this program's: both are Python's.
#pragma once

#include "tests/support/child_process.h"

#include <QJsonObject>

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

namespace dn::host::tests {

/// A folder of the test's own, which goes with it.
class Folder {
public:
    Folder();
    ~Folder();
    Folder(const Folder&) = delete;
    Folder& operator=(const Folder&) = delete;

    const std::filesystem::path& path() const { return path_; }
    /// Writes a file into it. @return the file.
    std::filesystem::path holds(const std::string& name, const std::string& content) const;

private:
    std::filesystem::path path_;
};

std::string contentOf(const std::filesystem::path& file);

/// What an independent parser makes of mails: see read_mail.py. @throws std::runtime_error when it cannot read
/// one.
std::vector<QJsonObject> parsed(const std::vector<std::filesystem::path>& mails);
QJsonObject parsed(const std::filesystem::path& mail);

class MailServer {
public:
    /// @param moods see smtp_server.py.
    explicit MailServer(std::vector<std::string> moods = {});

    std::string url() const { return "smtp://127.0.0.1:" + port_; }
    /// The certificate that a client must trust.
    std::filesystem::path certificate() const { return folder_.path() / "cert.pem"; }
    /// How many mails it took.
    int count() const;
    /// What it was told of a mail, the first one by default: sender, recipients, encryption, login.
    QJsonObject envelope(int number = 1) const;
    QJsonObject mail(int number = 1) const { return parsed(file(number)); }
    std::filesystem::path file(int number = 1) const { return folder_.path() / (std::to_string(number) + ".eml"); }
    /// Waits until it has the text of a mail that it will not answer.
    void waitUntilSilent() const;

private:
    void waitFor(const std::string& name) const;

    Folder folder_;
    std::unique_ptr<dn::tests::ChildProcess> process_;
    std::string port_;
};

/// A list of texts, as the parser gives it.
std::vector<std::string> texts(const QJsonValue& list);

} // namespace dn::host::tests
