// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// What a mail server answers. A server of the target's own says what stands in the input, a piece for each line
// that it is sent, and remembers what it took.

#include "host/mail/smtp.h"
#include "tests/fuzz/input.h"
#include "tests/fuzz/targets.h"

#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <deque>
#include <string>
#include <thread>
#include <vector>

namespace dn::fuzz {
namespace {

constexpr const char* password = "zqp-clave";
const std::string sentText = "Subject: x\r\n\r\nuno\r\n.dos\r\n..\r\n";

bool isNumeral(char c) { return c >= '0' && c <= '9'; }

/// Whether a line of a server is the last one of its answer: three figures and a blank, or nothing behind them.
bool endsAnAnswer(std::string_view line)
{
    if (line.size() < 3 || !std::all_of(line.begin(), line.begin() + 3, isNumeral)) return false;
    return line.size() == 3 || line[3] == ' ';
}

class ScriptedServer {
public:
    explicit ScriptedServer(std::deque<std::string> pieces) : pieces_(std::move(pieces))
    {
        sockaddr_in address{};
        address.sin_family = AF_INET;
        address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        socklen_t size = sizeof(address);
        // NOLINTBEGIN(cppcoreguidelines-pro-type-reinterpret-cast): the interface of sockets
        auto* const place = reinterpret_cast<sockaddr*>(&address);
        const bool listens = ::bind(listener_, place, size) == 0 && ::listen(listener_, 1) == 0 &&
                             ::getsockname(listener_, place, &size) == 0;
        // NOLINTEND(cppcoreguidelines-pro-type-reinterpret-cast)
        require(listens, "a server of the target's own listens");
        port_ = ntohs(address.sin_port);
        thread_ = std::thread([this] { serve(); });
    }
    ScriptedServer(const ScriptedServer&) = delete;
    ScriptedServer& operator=(const ScriptedServer&) = delete;
    ~ScriptedServer()
    {
        end();
        ::close(listener_);
    }

    std::string url() const { return "smtp://127.0.0.1:" + std::to_string(port_); }

    /// Nobody comes any more.
    void end()
    {
        ::shutdown(listener_, SHUT_RDWR);
        if (thread_.joinable()) thread_.join();
    }

    /// Once it ended: the text that it was sent whole, and whether it said that it took it.
    const std::string& text() const { return text_; }
    bool tookIt() const { return tookIt_; }

private:
    void serve()
    {
        client_ = ::accept(listener_, nullptr, nullptr);
        if (client_ < 0) return;
        bool open = answer().has_value(); // the greeting
        while (open) {
            const auto line = takeLine();
            if (!line) break;
            const auto said = answer();
            open = said.has_value();
            if (open && line->starts_with("DATA") && said->starts_with("354")) open = takeText();
        }
        ::shutdown(client_, SHUT_WR);
        while (takeLine()) {
        }
        ::close(client_);
    }

    /// Says pieces up to one that ends an answer. @return its last line; nothing when the pieces have run out.
    std::optional<std::string> answer()
    {
        while (!pieces_.empty()) {
            const std::string piece = pieces_.front() + "\r\n";
            pieces_.pop_front();
            if (::send(client_, piece.data(), piece.size(), MSG_NOSIGNAL) < 0) return std::nullopt;
            const std::size_t end = piece.size() - 2;
            const std::size_t before = end == 0 ? std::string::npos : piece.rfind('\n', end - 1);
            std::string last = piece.substr(before == std::string::npos ? 0 : before + 1);
            last.resize(last.size() - 2);
            if (endsAnAnswer(last)) return last;
        }
        return std::nullopt;
    }

    bool takeText()
    {
        text_.clear();
        while (auto line = takeLine()) {
            if (*line == ".\r") {
                const auto said = answer();
                tookIt_ = said && said->starts_with("250");
                return said.has_value();
            }
            if (line->starts_with('.')) line->erase(0, 1);
            text_ += *line + "\n";
        }
        return false;
    }

    /// Without its line feed; nothing at the end.
    std::optional<std::string> takeLine()
    {
        std::size_t end = read_.find('\n');
        while (end == std::string::npos) {
            std::array<char, 4096> some{};
            const ssize_t size = ::recv(client_, some.data(), some.size(), 0);
            if (size <= 0) return std::nullopt;
            read_.append(some.data(), static_cast<std::size_t>(size));
            end = read_.find('\n');
        }
        std::string line = read_.substr(0, end);
        read_.erase(0, end + 1);
        return line;
    }

    int listener_ = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
    int client_ = -1;
    int port_ = 0;
    std::deque<std::string> pieces_;
    std::string read_;
    std::string text_;
    bool tookIt_ = false;
    std::thread thread_;
};

} // namespace

void replies(Input& input)
{
    host::MailSettings settings;
    settings.tls = input.flag(); // what asks for encryption and does not get it must send nothing
    if (input.flag()) {
        settings.user = "ana";
        settings.password = password;
    }
    settings.from = "ana@example.com";
    settings.timeout = 1;
    std::deque<std::string> pieces;
    while (!input.empty())
        pieces.push_back(input.text());
    const auto holds = [&](const char* part) {
        return std::any_of(pieces.begin(), pieces.end(),
                           [&](const std::string& piece) { return piece.find(part) != std::string::npos; });
    };
    const bool lineByLine = !holds("\n");
    const bool knowsPassword = holds("zqp");
    ScriptedServer server(std::move(pieces));
    settings.url = server.url();
    host::SendProgress progress;
    bool sent = false;
    try {
        host::sendBySmtp(settings, {"ana@example.com", {"luz@example.com", "gil@example.com"}}, sentText,
                         progress);
        sent = true;
    } catch (const host::HostError& failure) {
        const std::string_view text = failure.what();
        require(!text.empty() && text.find("\r") == std::string_view::npos, "what went wrong is told in lines");
        require(knowsPassword || text.find("zqp") == std::string_view::npos, "no password is told");
        require(
            std::none_of(text.begin(), text.end(),
                         [](char c) { return (static_cast<unsigned char>(c) < 0x20 && c != '\n') || c == 0x7F; }),
            "what a server says is shown as signs");
    }
    server.end();
    if (settings.tls) require(!sent && server.text().empty(), "without encryption nothing is sent");
    if (!lineByLine) return; // who answers ahead of the question may be believed
    require(sent == server.tookIt(), "a mail counts as sent when the server took it, and only then");
    if (sent) require(server.text() == sentText, "the server has the whole text");
}

} // namespace dn::fuzz
