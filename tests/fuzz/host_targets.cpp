// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// Texts that the program around the control reads: its command line, the settings of mails, their templates,
// numbers to dial, and amounts.

#include "base/format.h"
#include "base/text.h"
#include "host/database/host_error.h"
#include "host/dialler.h"
#include "host/mail/addresses.h"
#include "host/mail/mail_settings.h"
#include "host/mail/party_fields.h"
#include "host/mail/templates.h"
#include "host/program_options.h"
#include "host/screens/amount.h"
#include "tests/fuzz/input.h"
#include "tests/fuzz/targets.h"
#include "tests/support/table_files.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>
#include <fstream>
#include <regex>
#include <vector>

namespace dn::fuzz {
namespace {

constexpr std::string_view figures = "0123456789";

bool areFigures(std::string_view text) { return text.find_first_not_of(figures) == std::string_view::npos; }

void write(const std::string& file, const std::string& content)
{
    std::ofstream(file, std::ios::binary) << content;
}

// ---- The command line

host::ProgramOptions optionsOf(std::vector<std::string> arguments)
{
    arguments.insert(arguments.begin(), "dncontacts");
    std::vector<char*> words;
    for (std::string& argument : arguments)
        words.push_back(argument.data());
    int count = static_cast<int>(words.size());
    const QCoreApplication application(count, words.data());
    return host::readProgramOptions();
}

/// A number as the option of its range takes it; nothing for one that it refuses.
std::optional<std::int64_t> within(const std::string& number, std::int64_t least, std::int64_t most)
{
    if (number.empty() || number.size() > 18 || !areFigures(number)) return std::nullopt;
    const std::int64_t value = std::stoll(number);
    return value >= least && value <= most ? std::optional(value) : std::nullopt;
}

void requireInRange(const host::ProgramOptions& options)
{
    require(!options.agent || *options.agent >= 0, "an agent's key is none below 0");
    require(!options.tab || (*options.tab >= 0 && *options.tab <= 4), "a tab is one of five");
    require(!options.demoRows || *options.demoRows <= 10'000'000, "there are so many rows at the most");
    require(!options.size || (options.size->width() > 0 && options.size->width() <= 16'000 &&
                              options.size->height() > 0 && options.size->height() <= 16'000),
            "a window has a size");
    const std::array<QString, 6> themes{"", "auto", "claro", "oscuro", "contraste", "contraste-claro"};
    require(std::find(themes.begin(), themes.end(), options.theme) != themes.end(), "a theme is one of five");
}

/// One option of a number, written in one word or in two.
void requireNumber(Input& input)
{
    struct Range {
        const char* name;
        std::int64_t most;
    };
    constexpr std::array ranges{Range{"--agent", 2'147'483'647}, Range{"--tab", 4},
                                Range{"--demo-rows", 10'000'000}};
    const Range range = ranges.at(input.choice(ranges.size()));
    const bool together = input.flag();
    std::string number = input.text();
    std::replace(number.begin(), number.end(), '\0', '0');
    if (!areFigures(number) || number.empty()) return;
    const std::vector<std::string> words =
        together ? std::vector{range.name + ("=" + number)} : std::vector<std::string>{range.name, number};
    const std::string significant = number.substr(std::min(number.find_first_not_of('0'), number.size() - 1));
    const auto wanted = within(significant, 0, range.most);
    try {
        const host::ProgramOptions options = optionsOf(words);
        const std::array<std::optional<std::int64_t>, 3> read{options.agent, options.tab, options.demoRows};
        require(wanted.has_value() && std::find(read.begin(), read.end(), wanted) != read.end(),
                "a number is read as it stands");
    } catch (const host::HostError&) {
        require(!wanted, "a number within its range is taken");
    }
}

// ---- The settings of mails

std::string stripped(const std::string& text)
{
    constexpr const char* blanks = " \t\r";
    const std::size_t first = text.find_first_not_of(blanks);
    if (first == std::string::npos) return {};
    return text.substr(first, text.find_last_not_of(blanks) + 1 - first);
}

bool isLoopback(const std::string& server)
{
    static const std::regex address(R"(127\.\d{1,3}\.\d{1,3}\.\d{1,3})");
    return server == "localhost" || server == "[::1]" || std::regex_match(server, address);
}

void requireSound(const host::MailSettings& settings)
{
    require(settings.timeout >= 1 && settings.timeout <= 3600 && settings.limit >= 1 && settings.limit <= 3600,
            "a number is one of its range");
    if (settings.toOutbox() || !settings.problem.empty()) return;
    const std::string& url = settings.url;
    require(url.starts_with("smtp://") || url.starts_with("smtps://"), "a mail goes out by SMTP");
    require(url.find_first_of("@ \t\r\n") == std::string::npos, "an address holds no password");
    require(host::complaintAbout(settings.from).empty(), "a sender has an address");
    require(settings.tls || settings.user.empty() || url.starts_with("smtps://") || isLoopback(settings.host()),
            "no password goes out in the clear");
}

std::vector<std::string> linesWithout(const std::string& content, const std::string& key)
{
    std::vector<std::string> lines;
    for (std::size_t begin = 0; begin < content.size();) {
        const std::size_t end = std::min(content.find('\n', begin), content.size() - 1) + 1;
        const std::string line = content.substr(begin, end - begin);
        const std::string plain = line.ends_with('\n') ? line.substr(0, line.size() - 1) : line;
        const std::string core = stripped(plain);
        if (core.empty() || core.find_first_of("#;[") == 0 || stripped(core.substr(0, core.find('='))) != key)
            lines.push_back(line);
        begin = end;
    }
    return lines;
}

// ---- Templates

/// Values for all fields, which may hold anything, names of fields too.
host::PartyFields someFields(Input& input, bool each)
{
    host::PartyFields fields = host::emptyFields();
    for (auto& [name, value] : fields) {
        value = input.text();
        if (each && value.empty()) value = name;
    }
    return fields;
}

} // namespace

void options(Input& input)
{
    requireNumber(input);
    std::vector<std::string> words;
    std::vector<std::string> servers;
    while (!input.empty()) {
        std::string word = input.text();
        std::replace(word.begin(), word.end(), '\0', ' ');
        words.push_back(std::move(word));
    }
    try {
        requireInRange(optionsOf(words));
    } catch (const host::HostError& refusal) {
        require(refusal.what() != std::string_view(), "a refusal says why");
    }
    for (const std::string& word : words)
        servers.push_back("--connect=" + word);
    try {
        const host::ProgramOptions read = optionsOf(servers);
        QStringList all = read.furtherServers;
        if (!servers.empty()) all.prepend(read.connect);
        QStringList wanted;
        for (const std::string& word : words)
            wanted.append(QString::fromLocal8Bit(word));
        require(all == wanted, "each server is read, in their order");
    } catch (const host::HostError&) {
        require(false, "a server is a text, whichever");
    }
}

void settings(Input& input)
{
    constexpr std::array names{"url", "user", "from", "name", "tls", "ca", "templates", "password"};
    std::map<std::string, std::string> values;
    std::string lines;
    for (const char* name : names) {
        std::string value = input.text();
        std::replace(value.begin(), value.end(), '\n', ' ');
        values[name] = stripped(value);
        lines.append(name).append(" = ").append(value).append("\n");
    }
    const std::string junk = input.rest();
    const tests::OutputFolder folder;
    const std::string file = folder.file("mail.ini");
    write(file, junk + "\n" + lines);
    const host::MailSettings read = host::readMailSettings(file, folder.file("datos"));
    require(read.url == values["url"] && read.user == values["user"] && read.password == values["password"] &&
                read.name == values["name"] && read.ca == values["ca"] &&
                read.templates.string() == values["templates"] && read.tls == (values["tls"] != "no"),
            "the last line of a name is the one that counts");
    const bool user = values["from"].empty() && host::complaintAbout(values["user"]).empty();
    require(read.from == (user ? values["user"] : values["from"]), "a user may be the sender");
    requireSound(read);
    const std::string before = tests::contentsOf(file);
    require(host::removePassword(file), "a password is taken out");
    std::string others;
    for (const std::string& line : linesWithout(before, "password"))
        others += line;
    require(tests::contentsOf(file) == others, "the other lines stay to the byte");
    require(host::readMailSettings(file, folder.file("datos")).openPassword.empty(), "no password is left");
    write(file, junk);
    requireSound(host::readMailSettings(file, folder.file("datos")));
}

void templates(Input& input)
{
    const host::PartyFields fields = someFields(input, true);
    std::string text;
    std::string wanted;
    while (!input.empty()) {
        auto field = fields.begin();
        std::advance(field, static_cast<std::ptrdiff_t>(input.choice(fields.size())));
        const bool capital = input.flag();
        std::string between = input.text();
        std::erase_if(between, [](char c) { return c == '{' || c == '}'; });
        std::string name = field->first;
        if (capital) name.front() = static_cast<char>(name.front() - 'a' + 'A');
        text += between + "{" + name + "}";
        wanted += between + field->second;
    }
    require(host::filled(text, fields) == wanted, "each field is its value, and no value is taken for a field");
    const std::string any = wanted; // with whatever brackets the values hold
    require(host::filled(any, host::emptyFields()) == any, "a field without a value stays");
    const std::string left = host::fieldLeft(any, fields);
    require(left.empty() || any.find(left) != std::string::npos, "a field that is left stands in the text");
    if (left.empty()) require(host::filled(any, fields) == any, "where no field is left nothing is filled in");

    const tests::OutputFolder folder;
    write(folder.file("a.txt"), any);
    const host::TemplateText read = host::readTemplate(folder.file("a.txt"));
    require(!read.subject.contains('\n'), "a subject is one line");
    QString body = QString::fromUtf8(QByteArray::fromStdString(any));
    if (body.startsWith(QChar(QChar::ByteOrderMark))) body.remove(0, 1);
    body.replace("\r\n", "\n");
    if (!body.startsWith("Asunto:", Qt::CaseInsensitive))
        require(read.subject.isEmpty() && read.body == body, "a text without a subject is the body");
    const std::string head = "Asunto: x\n\n";
    write(folder.file("b.txt"), head + any);
    const host::TemplateText second = host::readTemplate(folder.file("b.txt"));
    const QString behind =
        QString::fromUtf8(QByteArray::fromStdString(head + any)).mid(static_cast<qsizetype>(head.size()));
    require(second.subject == "x" && second.body == QString(behind).replace("\r\n", "\n"),
            "what stands behind a subject is the body");
}

void telephones(Input& input)
{
    const std::string text = input.rest();
    const std::string address = host::telephoneAddress(text).toStdString();
    if (!address.empty()) {
        require(address.starts_with("tel:"), "an address is that of a telephone");
        const std::string number = address.substr(address.starts_with("tel:+") ? 5 : 4);
        require(areFigures(number) && number.size() >= 5 && number.size() <= 15, "a number has 5 to 15 figures");
        std::size_t at = 0; // its figures stand in the text one behind the other, with signs alone between them
        std::string all;
        for (const char c : text)
            if (areFigures({&c, 1})) all += c;
        at = all.find(number);
        require(at != std::string::npos, "a number is made of the figures of its text");
        require(!address.starts_with("tel:+") || text.find('+') != std::string::npos, "a plus is the text's own");
    }
    if (areFigures(text))
        require(address == (text.size() >= 5 && text.size() <= 15 ? "tel:" + text : ""),
                "a number alone is that number");
    if (!areFigures(text) && text.find_first_of(figures) == std::string::npos)
        require(address.empty(), "without a figure there is no number");
}

void amounts(Input& input)
{
    const std::string text = input.rest();
    const auto amount = host::readAmount(text);
    std::string core(trimmed(text));
    if (core.starts_with('$')) core = trimmed(core.substr(1));
    std::smatch parts;
    static const std::regex form(R"((?=.*\d)(\d*|\d{1,3}(?:,\d{3})+)(?:\.(\d{0,2}))?)");
    const bool holds = std::regex_match(core, parts, form);
    std::string whole = holds ? without(parts[1].str(), ",") : "";
    whole.erase(0, std::min(whole.find_first_not_of('0'), whole.size()));
    require(amount.has_value() == (holds && whole.size() <= 15), "an amount is read, and nothing else");
    if (!amount) return;
    const std::string cents = parts[2].str();
    require(*amount == (whole.empty() ? "0" : whole) + (cents.empty() ? "" : "." + cents), "an amount is exact");
    require(host::readAmount(*amount) == amount, "an amount that was read is one");
    const auto shown = host::readAmount(formatAmount(*amount));
    require(shown && formatAmount(*shown) == formatAmount(*amount), "an amount that shows is read as it is");
}

} // namespace dn::fuzz
