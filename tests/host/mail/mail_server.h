// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// Real mail servers on the loopback, and a parser of mails that is not this program's: all of them Python's, in
// one process that starts with the first test that asks.
#pragma once

#include <QJsonObject>

#include <filesystem>
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
    explicit MailServer(const std::vector<std::string>& moods = {});
    ~MailServer();
    MailServer(const MailServer&) = delete;
    MailServer& operator=(const MailServer&) = delete;

    std::string url() const { return url_; }
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
    /// Lets a slow one read the rest.
    void letGoOn() const;

private:
    Folder folder_;
    int connection_; // to the process; the server goes with it
    std::string url_;
};

/// A list of texts, as the parser gives it.
std::vector<std::string> texts(const QJsonValue& list);

} // namespace dn::host::tests
