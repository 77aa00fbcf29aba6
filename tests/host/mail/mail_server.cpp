// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/host/mail/mail_server.h"

#include "tests/support/child_process.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QTest>

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <sstream>
#include <stdexcept>
#include <utility>

namespace dn::host::tests {
namespace fs = std::filesystem;
namespace {

constexpr int patience = 20'000; // milliseconds until a program has surely started

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

/// The process with all mail servers and the parser.
class MailProcess {
public:
    static MailProcess& get()
    {
        static MailProcess process;
        return process;
    }

    /// Sends a wish, as smtp_server.py understands it. @return the connection, and the answer.
    std::pair<int, QByteArray> ask(const QJsonObject& wish) const
    {
        const int connection = connect();
        send(connection, QJsonDocument(wish).toJson(QJsonDocument::Compact) + '\n');
        QByteArray answer;
        std::array<char, 4096> some{};
        while (!answer.endsWith('\n')) {
            const ssize_t size = ::read(connection, some.data(), some.size());
            if (size <= 0) throw std::runtime_error(contentOf(folder_.path() / "log"));
            answer.append(some.data(), size);
        }
        return {connection, answer};
    }

    static void send(int connection, const QByteArray& line)
    {
        if (::write(connection, line.data(), static_cast<std::size_t>(line.size())) != line.size())
            throw std::runtime_error("the mail server does not listen");
    }

private:
    MailProcess()
        : process_({DN_PYTHON, "-B", "-W", "ignore",
                    std::string(DN_SOURCE_DIR) + "/tests/host/mail/smtp_server.py",
                    (folder_.path() / "s").string()},
                   {}, folder_.path() / "log")
    {
    }

    // The socket is there a moment ahead of whoever listens on it.
    int connect() const
    {
        const int connection = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
        sockaddr_un address{};
        address.sun_family = AF_UNIX;
        const std::string path = folder_.path() / "s";
        path.copy(std::data(address.sun_path), sizeof(address.sun_path) - 1);
        const auto connects = [&] {
            return ::connect(connection, reinterpret_cast<const sockaddr*>(&address), sizeof(address)) == 0;
        };
        if (!QTest::qWaitFor(connects, patience)) throw std::runtime_error(contentOf(folder_.path() / "log"));
        return connection;
    }

    Folder folder_;
    dn::tests::ChildProcess process_;
};

bool isIn(const std::vector<std::string>& moods, const char* mood)
{
    return std::find(moods.begin(), moods.end(), mood) != moods.end();
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
    QJsonArray files;
    for (const fs::path& mail : mails)
        files.append(QString::fromStdString(mail.string()));
    const auto [connection, answer] = MailProcess::get().ask({{"read", files}});
    ::close(connection);
    std::vector<QJsonObject> result;
    for (const QJsonValue& mail : QJsonDocument::fromJson(answer).array())
        result.push_back(mail.toObject());
    return result;
}

QJsonObject parsed(const fs::path& mail) { return parsed(std::vector<fs::path>{mail}).at(0); }

MailServer::MailServer(const std::vector<std::string>& moods)
{
    if (isIn(moods, "tls") || isIn(moods, "smtps")) makeCertificate(folder_.path());
    QJsonArray list;
    for (const std::string& mood : moods)
        list.append(QString::fromStdString(mood));
    const auto [connection, answer] =
        MailProcess::get().ask({{"serve", QString::fromStdString(folder_.path().string())}, {"moods", list}});
    connection_ = connection;
    const int port = QJsonDocument::fromJson(answer)["port"].toInt();
    url_ = (isIn(moods, "smtps") ? "smtps://127.0.0.1:" : "smtp://127.0.0.1:") + std::to_string(port);
}

MailServer::~MailServer() { ::close(connection_); }

void MailServer::waitUntilSilent() const
{
    if (!QTest::qWaitFor([&] { return fs::exists(folder_.path() / "silent"); }, patience))
        throw std::runtime_error("no text reached the mail server");
}

void MailServer::letGoOn() const { MailProcess::send(connection_, "\n"); }

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
