// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/host/mail/mail_server.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QTest>

#include <cstdlib>
#include <fstream>
#include <sstream>
#include <stdexcept>

namespace dn::host::tests {
namespace fs = std::filesystem;
namespace {

constexpr int patience = 20'000; // milliseconds until a program has surely started

std::string script(const char* name) { return std::string(DN_SOURCE_DIR) + "/tests/host/mail/" + name; }

QJsonObject jsonOf(const fs::path& file)
{
    return QJsonDocument::fromJson(QByteArray::fromStdString(contentOf(file))).object();
}

// A certificate of the server's own, for this address alone.
void makeCertificate(const fs::path& folder)
{
    dn::tests::ChildProcess openssl({dn::tests::findProgram("openssl"), "req", "-x509", "-newkey", "ec",
                                     "-pkeyopt", "ec_paramgen_curve:prime256v1", "-nodes", "-days", "2", "-subj",
                                     "/CN=prueba", "-addext", "subjectAltName=IP:127.0.0.1", "-keyout",
                                     (folder / "key.pem").string(), "-out", (folder / "cert.pem").string()},
                                    {}, folder / "openssl.log");
    if (openssl.wait() != 0) throw std::runtime_error(contentOf(folder / "openssl.log"));
}

} // namespace

Folder::Folder()
{
    std::string pattern = fs::temp_directory_path() / "dn-mail-XXXXXX";
    if (mkdtemp(pattern.data()) == nullptr) throw std::runtime_error("no temporary folder");
    path_ = pattern;
}

Folder::~Folder()
{
    std::error_code ignored;
    fs::remove_all(path_, ignored);
}

fs::path Folder::holds(const std::string& name, const std::string& content) const
{
    std::ofstream(path_ / name, std::ios::binary) << content;
    return path_ / name;
}

std::string contentOf(const fs::path& file)
{
    std::ostringstream text;
    text << std::ifstream(file, std::ios::binary).rdbuf();
    return text.str();
}

std::vector<QJsonObject> parsed(const std::vector<fs::path>& mails)
{
    const Folder folder;
    std::vector<std::string> command{DN_PYTHON, script("read_mail.py")};
    for (const fs::path& mail : mails)
        command.push_back(mail.string());
    dn::tests::ChildProcess python(command, {}, folder.path() / "out");
    if (python.wait() != 0) throw std::runtime_error(contentOf(folder.path() / "out"));
    std::vector<QJsonObject> result;
    const QByteArray json = QByteArray::fromStdString(contentOf(folder.path() / "out"));
    for (const QJsonValue& mail : QJsonDocument::fromJson(json).array())
        result.push_back(mail.toObject());
    return result;
}

QJsonObject parsed(const fs::path& mail) { return parsed(std::vector<fs::path>{mail}).at(0); }

MailServer::MailServer(std::vector<std::string> moods)
{
    std::vector<std::string> command{DN_PYTHON, "-W", "ignore", script("smtp_server.py"), folder_.path().string()};
    for (std::string& mood : moods) {
        if (mood == "tls") makeCertificate(folder_.path());
        command.push_back(std::move(mood));
    }
    process_ =
        std::make_unique<dn::tests::ChildProcess>(command, std::vector<std::string>{}, folder_.path() / "log");
    waitFor("port");
    port_ = contentOf(folder_.path() / "port");
}

void MailServer::waitFor(const std::string& name) const
{
    if (!QTest::qWaitFor([&] { return fs::exists(folder_.path() / name); }, patience))
        throw std::runtime_error(contentOf(folder_.path() / "log"));
}

void MailServer::waitUntilSilent() const { waitFor("silent"); }

int MailServer::count() const
{
    int number = 0;
    while (fs::exists(folder_.path() / (std::to_string(number + 1) + ".json")))
        ++number;
    return number;
}

QJsonObject MailServer::envelope(int number) const
{
    return jsonOf(folder_.path() / (std::to_string(number) + ".json"));
}

std::vector<std::string> texts(const QJsonValue& list)
{
    std::vector<std::string> result;
    for (const QJsonValue& text : list.toArray())
        result.push_back(text.toString().toStdString());
    return result;
}

} // namespace dn::host::tests
