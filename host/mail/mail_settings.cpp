// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "host/mail/mail_settings.h"

#include "host/mail/addresses.h"

#include <QSaveFile>

#include <arpa/inet.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdlib>
#include <fstream>
#include <map>

namespace dn::host {
namespace fs = std::filesystem;
namespace {

struct Key {
    const char* name;
    const char* variable;
};

constexpr std::array keys{Key{"url", "DNCONTACTS_SMTP_URL"},
                          Key{"user", "DNCONTACTS_SMTP_USER"},
                          Key{"password", "DNCONTACTS_SMTP_PASSWORD"},
                          Key{"from", "DNCONTACTS_SMTP_FROM"},
                          Key{"name", "DNCONTACTS_SMTP_NAME"},
                          Key{"tls", "DNCONTACTS_SMTP_TLS"},
                          Key{"ca", "DNCONTACTS_SMTP_CA"},
                          Key{"timeout", "DNCONTACTS_SMTP_TIMEOUT"},
                          Key{"limit", "DNCONTACTS_SMTP_LIMIT"},
                          Key{"templates", "DNCONTACTS_MAIL_TEMPLATES"},
                          Key{"outbox", "DNCONTACTS_MAIL_OUTBOX"}};

using Texts = std::map<std::string, std::string>;

std::string variable(const char* name)
{
    const char* const value = std::getenv(name); // NOLINT(concurrency-mt-unsafe): nobody sets one while this runs
    return value == nullptr ? std::string() : std::string(value);
}

std::string stripped(const std::string& text)
{
    constexpr const char* blanks = " \t\r";
    const std::size_t first = text.find_first_not_of(blanks);
    if (first == std::string::npos) return {};
    return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

/// The name ahead of a line's equals sign.
std::string nameIn(const std::string& line)
{
    const bool remark = line.empty() || line.front() == '#' || line.front() == ';' || line.front() == '[';
    return remark ? std::string() : stripped(line.substr(0, line.find('=')));
}

bool isKey(const std::string& name)
{
    return std::any_of(std::begin(keys), std::end(keys), [&](const Key& key) { return name == key.name; });
}

// A value goes from the equals sign to the end of its line, as it stands: no quotes, no escapes.
Texts readFile(const fs::path& path, std::vector<std::string>& warnings)
{
    Texts texts;
    std::ifstream file(path);
    std::string line;
    while (std::getline(file, line)) {
        line = stripped(line);
        const std::size_t equals = line.find('=');
        const std::string name = nameIn(line);
        if (name.empty() && equals != 0) continue;
        if (equals != std::string::npos && isKey(name))
            texts[name] = stripped(line.substr(equals + 1));
        else // never the line itself: it may hold the password
            warnings.push_back("En «" + path.string() + "» hay un renglón que no se entiende.");
    }
    return texts;
}

int number(const std::string& text, const char* name, int usual, std::vector<std::string>& warnings)
{
    if (text.empty()) return usual;
    int value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error == std::errc() && end == text.data() + text.size() && value >= 1 && value <= 3600) return value;
    warnings.push_back("El valor de «" + std::string(name) +
                       "» del correo debe ser un número de 1 a 3600; se usa " + std::to_string(usual) + ".");
    return usual;
}

// A name that begins like an address ("127.0.0.1.example.com") may lead anywhere.
bool isLoopback(const std::string& host)
{
    in_addr address{};
    const bool isAddress = ::inet_pton(AF_INET, host.c_str(), &address) == 1;
    return host == "localhost" || host == "[::1]" || (isAddress && host.rfind("127.", 0) == 0);
}

std::string problemOf(const MailSettings& settings)
{
    const std::string& url = settings.url;
    if (url.rfind("smtp://", 0) != 0 && url.rfind("smtps://", 0) != 0)
        return "La dirección del servidor de correo debe empezar con smtp:// o smtps://.";
    if (url.find('@') != std::string::npos || url.find_first_of(" \t\r\n") != std::string::npos)
        return "La dirección del servidor de correo no lleva usuario, clave ni espacios: tienen su propio "
               "renglón.";
    if (!settings.tls && url.rfind("smtps://", 0) != 0 && !settings.user.empty() && !isLoopback(settings.host()))
        return "El usuario y la clave del correo no se envían sin cifrar: quite «tls = no».";
    if (settings.from.empty()) return "Falta la dirección del remitente («from»).";
    return complaintAbout(settings.from);
}

} // namespace

std::string MailSettings::host() const
{
    const std::size_t begin = url.find("://");
    if (begin == std::string::npos) return url;
    const std::string rest = url.substr(begin + 3, url.find('/', begin + 3) - begin - 3);
    const std::size_t colon = rest.rfind(':');
    const bool inBrackets = rest.rfind(']') != std::string::npos && colon < rest.rfind(']');
    return colon == std::string::npos || inBrackets ? rest : rest.substr(0, colon);
}

fs::path mailSettingsFile()
{
    const fs::path config = variable("XDG_CONFIG_HOME");
    if (config.is_absolute()) return config / "dncontacts" / "mail.ini";
    return fs::path(variable("HOME")) / ".config" / "dncontacts" / "mail.ini";
}

bool removePassword(const fs::path& file)
{
    std::ifstream before(file, std::ios::binary);
    QSaveFile after(QString::fromStdString(file.string()));
    if (!before || !after.open(QIODevice::WriteOnly)) return false;
    std::string line;
    while (std::getline(before, line)) {
        if (nameIn(stripped(line)) == "password") continue;
        if (!before.eof()) line += '\n';
        after.write(line.data(), static_cast<qint64>(line.size()));
    }
    return !before.bad() && after.commit();
}

MailSettings readMailSettings(const fs::path& file, const fs::path& dataFolder)
{
    MailSettings settings;
    Texts texts = readFile(file, settings.warnings);
    settings.file = file;
    settings.openPassword = texts["password"];
    for (const Key& key : keys)
        if (const std::string value = variable(key.variable); !value.empty()) texts[key.name] = value;
    settings.url = texts["url"];
    settings.user = texts["user"];
    settings.password = texts["password"];
    settings.from = texts["from"];
    settings.name = texts["name"];
    settings.tls = texts["tls"] != "no";
    settings.ca = texts["ca"];
    settings.timeout = number(texts["timeout"], "timeout", settings.timeout, settings.warnings);
    settings.limit = number(texts["limit"], "limit", settings.limit, settings.warnings);
    settings.templates = texts["templates"];
    settings.outbox = texts["outbox"].empty() ? dataFolder / "bandeja-de-salida" : fs::path(texts["outbox"]);
    if (settings.from.empty() && complaintAbout(settings.user).empty()) settings.from = settings.user;
    if (!settings.toOutbox()) settings.problem = problemOf(settings);
    return settings;
}

} // namespace dn::host
