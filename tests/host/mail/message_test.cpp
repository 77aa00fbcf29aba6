// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// A mail as a text: whatever stands in it, an independent parser reads the same, and nothing gets out of its
// place.

#include "host/mail/addresses.h"
#include "host/mail/delivery.h"
#include "host/mail/encoding.h"
#include "host/mail/message.h"
#include "tests/host/mail/mail_server.h"

#include <QCryptographicHash>
#include <QJsonArray>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace dn::host::tests {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

/// What an operator, a database or a bad neighbour may put into a text.
const std::vector<std::string>& hostile()
{
    static const std::vector<std::string> texts{"x\r\nBcc: victima@example.com",
                                                "x\nBcc: victima@example.com",
                                                "x\rBcc: victima@example.com",
                                                "x\r\n\r\n<html>otro cuerpo",
                                                std::string("x\0Bcc: victima@example.com", 27),
                                                "x\r\n.\r\nMAIL FROM:<a@b>",
                                                std::string(10'000, 'x'),
                                                std::string(3'000, ' ') + "x",
                                                "=?UTF-8?Q?=0D=0ABcc:_victima@example.com?=",
                                                "=?UTF-8?B?DQpCY2M6IHg=?=",
                                                "a;b,c: d",
                                                "\"comillas\" \\barra\\ <a@b> (comentario)",
                                                "<script>alert(1)</script>",
                                                "ñandú, cigüeña y 😀 𝒞 مرحبا 日本語",
                                                "\xE2\x80\xA8"
                                                "Bcc: x\xC2\x85y",
                                                "\x7F\x01\x1F\t",
                                                " blancos ",
                                                "--=_",
                                                ""};
    return texts;
}

/// The text as it must come out of a header: in one line.
std::string inOneLine(const std::string& text) { return oneLine(text); }

/// What is left of a text without blanks, control characters and outer brackets: the parser puts blanks between
/// the encoded words of a name, and takes all of these off the ends of a file's name.
std::string inked(const std::string& text)
{
    QString result;
    for (const QChar c : QString::fromStdString(text))
        if (!c.isSpace() && c.category() != QChar::Other_Control && c != u'<' && c != u'>') result += c;
    return result.toStdString();
}

/// The text as it must come out of a body: with one kind of line end, and without other control characters.
std::string inLines(const std::string& text)
{
    std::string result;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '\r' && i + 1 < text.size() && text[i + 1] == '\n') continue;
        const bool end = text[i] == '\r' || text[i] == '\n';
        result += end ? "\n" : text[i] == '\t' ? "\t" : oneLine(text.substr(i, 1));
    }
    return result;
}

Message message()
{
    Message mail;
    mail.senderName = "Ana López";
    mail.sender = "ana@example.com";
    mail.recipients = {"maria@acme.example", "compras@acme.example"};
    mail.subject = "Cotización nº 5: silo y molino";
    mail.body = "Estimada María:\n\nAdjunto la cotización.\n\n.\n..\nFrom aquí\nSaludos  \n";
    stamp(mail);
    return mail;
}

class MailText : public testing::Test {
protected:
    QJsonObject read(const Message& mail, Purpose purpose = Purpose::sending)
    {
        return parsed(folder.holds("m.eml", messageText(mail, purpose)));
    }
    /// The same for one mail after the other, changed by each of some texts, in one run of the parser.
    template <class Texts, class Change>
    std::vector<QJsonObject> readEach(const Texts& all, const Change& change)
    {
        std::vector<std::filesystem::path> files;
        for (const auto& one : all) {
            Message mail = message();
            change(mail, one);
            files.push_back(
                folder.holds(std::to_string(files.size()) + ".eml", messageText(mail, Purpose::sending)));
        }
        return parsed(files);
    }
    static std::vector<std::string> headersOf(const QJsonObject& mail) { return texts(mail["headers"]); }
    static std::string text(const QJsonObject& mail, const char* key)
    {
        return mail[QLatin1String(key)].toString().toStdString();
    }

    Folder folder;
};

TEST_F(MailText, is_read_back_as_it_was_written)
{
    const Message mail = message();
    const QJsonObject read = this->read(mail);
    EXPECT_EQ(text(read, "from_name"), mail.senderName);
    EXPECT_EQ(text(read, "from"), mail.sender);
    EXPECT_EQ(texts(read["to"]), mail.recipients);
    EXPECT_EQ(text(read, "subject"), mail.subject);
    EXPECT_EQ(text(read, "body"), mail.body);
    EXPECT_EQ(text(read, "body_type"), "text/plain");
    EXPECT_EQ(text(read, "id"), "<" + mail.id + ">");
    EXPECT_NE(text(read, "date"), "");
    EXPECT_THAT(headersOf(read), ElementsAre("Date", "From", "To", "Subject", "Message-ID", "MIME-Version",
                                             "Content-Type", "Content-Transfer-Encoding"));
    EXPECT_THAT(texts(read["defects"]), IsEmpty());
    EXPECT_LE(read["longest_line"].toInt(), 78);
    EXPECT_EQ(read["bare_line_ends"].toInt(), 0);
    EXPECT_FALSE(read["eight_bit"].toBool());
}

TEST_F(MailText, for_the_outbox_asks_to_be_sent_by_a_mail_program)
{
    EXPECT_EQ(text(read(message(), Purpose::draft), "unsent"), "1");
    EXPECT_TRUE(read(message())["unsent"].isNull());
}

TEST_F(MailText, keeps_every_hostile_subject_in_its_place)
{
    const auto mails = readEach(hostile(), [](Message& mail, const std::string& text) { mail.subject = text; });
    for (std::size_t i = 0; i < mails.size(); ++i) {
        EXPECT_EQ(text(mails[i], "subject"), inOneLine(hostile()[i]));
        EXPECT_EQ(headersOf(mails[i]).size(), 8U) << hostile()[i];
        EXPECT_EQ(text(mails[i], "body"), message().body);
        EXPECT_LE(mails[i]["longest_line"].toInt(), 78);
    }
}

TEST_F(MailText, keeps_every_hostile_name_in_its_place)
{
    const auto mails = readEach(hostile(), [](Message& mail, const std::string& text) { mail.senderName = text; });
    for (std::size_t i = 0; i < mails.size(); ++i) {
        EXPECT_EQ(text(mails[i], "from"), "ana@example.com") << hostile()[i];
        EXPECT_EQ(inked(text(mails[i], "from_name")), inked(hostile()[i]));
        EXPECT_EQ(headersOf(mails[i]).size(), 8U) << hostile()[i];
        EXPECT_THAT(texts(mails[i]["to"]), ElementsAre("maria@acme.example", "compras@acme.example"));
        EXPECT_EQ(text(mails[i], "body"), message().body);
    }
}

TEST_F(MailText, keeps_every_hostile_body_in_its_place)
{
    const auto mails = readEach(hostile(), [](Message& mail, const std::string& text) {
        mail.body = text + "\n";
        mail.attachments = {{"a.txt", "text/plain", "adjunto"}};
    });
    for (std::size_t i = 0; i < mails.size(); ++i) {
        const QJsonObject& mail = mails[i];
        EXPECT_EQ(headersOf(mail).size(), 7U) << hostile()[i];
        EXPECT_EQ(text(mail, "body"), inLines(hostile()[i]) + "\n");
        EXPECT_EQ(mail["attachments"].toArray().size(), 1);
        EXPECT_EQ(mail["bare_line_ends"].toInt(), 0);
        EXPECT_LE(mail["longest_line"].toInt(), 78);
    }
}

TEST_F(MailText, keeps_every_hostile_file_name_in_its_place)
{
    const auto mails = readEach(hostile(), [](Message& mail, const std::string& text) {
        mail.attachments = {{text.substr(0, 200), "application/pdf", "x"}, {"b.pdf", "application/pdf", "y"}};
    });
    for (std::size_t i = 0; i < mails.size(); ++i) {
        const QJsonArray files = mails[i]["attachments"].toArray();
        EXPECT_EQ(headersOf(mails[i]).size(), 7U);
        ASSERT_EQ(files.size(), 2);
        EXPECT_EQ(inked(files[0]["name"].toString().toStdString()), inked(hostile()[i].substr(0, 200)));
        EXPECT_EQ(files[1]["name"].toString(), "b.pdf");
    }
}

TEST_F(MailText, names_files_in_every_alphabet)
{
    const std::vector<std::string> names{"lista.pdf",
                                         "lista de precios (2).pdf",
                                         "cotización ñandú.pdf",
                                         "日本語.txt",
                                         "a'b\"c;d.txt",
                                         "100%.txt",
                                         "%41.txt",
                                         "C:\\x.txt"};
    const auto mails = readEach(names, [](Message& mail, const std::string& name) {
        mail.attachments = {{name, "application/pdf", "x"}};
    });
    for (std::size_t i = 0; i < names.size(); ++i)
        EXPECT_EQ(mails.at(i)["attachments"][0]["name"].toString().toStdString(), names[i]);
}

TEST_F(MailText, takes_a_type_that_is_none_for_plain_bytes)
{
    const std::vector<std::string> types{
        "", "pdf", "a/b/c", "text/plain; x=y", "text/x\r\nBcc: x", "message/rfc822", "multipart/mixed"};
    const auto mails = readEach(types, [](Message& mail, const std::string& type) {
        mail.attachments = {{"x", type, "From: otro@x\r\n\r\nhola"}};
    });
    for (std::size_t i = 0; i < types.size(); ++i) {
        EXPECT_EQ(mails.at(i)["attachments"][0]["type"].toString(), "application/octet-stream") << types[i];
        EXPECT_EQ(headersOf(mails[i]).size(), 7U);
    }
}

TEST_F(MailText, carries_bytes_of_every_kind)
{
    std::string bytes;
    for (int i = 0; i < 70'000; ++i)
        bytes += static_cast<char>(i * 7 + i / 256);
    for (const std::size_t size : {std::size_t{0}, std::size_t{1}, std::size_t{2}, std::size_t{3}, std::size_t{56},
                                   std::size_t{57}, std::size_t{58}, bytes.size()}) {
        Message mail = message();
        mail.attachments = {{"x.bin", "application/octet-stream", bytes.substr(0, size)}};
        const QJsonObject file = read(mail)["attachments"][0].toObject();
        EXPECT_EQ(file["size"].toInt(), static_cast<int>(size));
        EXPECT_EQ(file["sha256"].toString().toStdString(),
                  QCryptographicHash::hash(QByteArray::fromStdString(mail.attachments[0].content),
                                           QCryptographicHash::Sha256)
                      .toHex()
                      .toStdString());
    }
}

TEST_F(MailText, never_has_the_same_identifier_twice)
{
    EXPECT_NE(message().id, message().id);
    EXPECT_THAT(message().id, testing::EndsWith("@example.com"));
}

// ---- Addresses

TEST(Addresses, are_divided_by_semicolon_or_comma_and_come_once)
{
    EXPECT_THAT(splitAddresses("a@x; b@x,c@x ;; A@X ; "), ElementsAre("a@x", "b@x", "c@x"));
    EXPECT_THAT(splitAddresses("María <m@x.mx>; <n@x.mx>"), ElementsAre("m@x.mx", "n@x.mx"));
    EXPECT_THAT(splitAddresses("a@x <n@x.mx>"), ElementsAre("a@x <n@x.mx>"));
    EXPECT_THAT(splitAddresses("x\r\ny <n@x.mx>"), ElementsAre("x\r\ny <n@x.mx>"));
    EXPECT_THAT(splitAddresses(" ;,; "), IsEmpty());
    EXPECT_THAT(splitAddresses(""), IsEmpty());
}

TEST(Addresses, that_mail_can_go_to_are_good)
{
    for (const char* good : {"a@b.mx", "ana.lopez+ventas@acme-sur.example.com", "a@localhost", "O'Higgins@x.mx",
                             "a@ñandú.mx", "1@2.mx"})
        EXPECT_EQ(complaintAbout(good), "") << good;
    EXPECT_EQ(wireAddress("a@ñandú.mx"), "a@xn--and-6ma2c.mx");
}

TEST(Addresses, that_could_leave_their_place_are_refused)
{
    std::vector<std::string> bad{"",
                                 "a",
                                 "@x.mx",
                                 "a@",
                                 "a@@x.mx",
                                 "a b@x.mx",
                                 "a@x mx",
                                 ".a@x.mx",
                                 "a.@x.mx",
                                 "a..b@x.mx",
                                 "a@.mx",
                                 "a@x..mx",
                                 "a@-x.mx",
                                 "a@x-.mx",
                                 "ñ@x.mx",
                                 "\"a b\"@x",
                                 "a@x.mx>",
                                 "<a@x.mx",
                                 "a@x.mx\r\nRCPT TO:<b@x>",
                                 "a@x.mx\n",
                                 "a@x.mx\r",
                                 "a\r\n@x.mx",
                                 "a@x.mx BODY=8BITMIME",
                                 "a>@x.mx",
                                 "a(c)@x.mx",
                                 "a@[1.2.3.4]",
                                 "a@x_y.mx",
                                 "a@x.mx.",
                                 "a\t@x.mx"};
    bad.push_back(std::string("a@x.mx\0b", 8));
    bad.push_back(std::string(65, 'a') + "@x.mx");
    bad.push_back("a@" + std::string(64, 'b') + ".mx");
    bad.push_back("a@" + std::string(300, 'b'));
    for (const std::string& address : bad) {
        const std::string complaint = complaintAbout(address);
        EXPECT_THAT(complaint, HasSubstr("no es una dirección")) << address;
        EXPECT_EQ(complaint.find_first_of("\r\n"), std::string::npos);
    }
}

} // namespace
} // namespace dn::host::tests
