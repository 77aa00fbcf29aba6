// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// A mail on its way: to a real mail server with its moods, and into the outbox.

#include "host/mail/attachments.h"
#include "host/mail/delivery.h"
#include "host/mail/smtp.h"
#include "tests/host/mail/mail_server.h"
#include "tests/support/maria_server.h"

#include <QCryptographicHash>
#include <QJsonArray>
#include <QTest>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace dn::host::tests {
namespace {

namespace fs = std::filesystem;
using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

class Delivery : public testing::Test {
protected:
    Delivery()
    {
        settings.from = "ana@example.com";
        settings.tls = false;
        message.senderName = "Ana López";
        message.sender = settings.from;
        message.recipients = {"maria@acme.example", "compras@acme.example", "luz@acme.example"};
        message.subject = "Cotización nº 5";
        message.body = "Señora:\n\n.\n..punto\nÁrbol 😀\n";
        stamp(message);
    }

    /// Sends on a thread of its own, as the window does. @return why it failed; empty when it was sent.
    std::string sends()
    {
        Sending sending(delivery(settings, message));
        EXPECT_TRUE(QTest::qWaitFor([&] { return sending.finished(); }, 60'000));
        try {
            sending.result();
            return {};
        } catch (const std::exception& failure) {
            return failure.what();
        }
    }
    std::string sendsTo(const MailServer& server)
    {
        settings.url = server.url();
        return sends();
    }
    void logsIn()
    {
        settings.user = "ana";
        settings.password = "secreto ;\"ñ";
    }

    MailSettings settings;
    Message message;
};

TEST_F(Delivery, hands_the_mail_over_as_it_was_written)
{
    const MailServer server;
    EXPECT_EQ(sendsTo(server), "");
    ASSERT_EQ(server.count(), 1);
    EXPECT_EQ(contentOf(server.file()), messageText(message, Purpose::sending));
    const QJsonObject envelope = server.envelope();
    EXPECT_EQ(envelope["from"].toString(), "ana@example.com");
    EXPECT_EQ(texts(envelope["to"]), message.recipients);
    const QJsonObject mail = server.mail();
    EXPECT_EQ(texts(mail["to"]), message.recipients);
    EXPECT_EQ(mail["subject"].toString().toStdString(), message.subject);
    EXPECT_EQ(mail["body"].toString().toStdString(), message.body);
    EXPECT_THAT(texts(mail["defects"]), testing::IsEmpty());
}

TEST_F(Delivery, carries_10_megabytes_and_tells_a_slow_server_how_far_it_is)
{
    const MailServer slow({"slow"});
    settings.url = slow.url();
    std::string content(10 * 1024 * 1024, '\0');
    for (std::size_t i = 0; i < content.size(); ++i)
        content[i] = static_cast<char>(i * 31 + i / 997);
    message.attachments = {{"catálogo 2026.pdf", "application/pdf", content}};
    Sending sending(delivery(settings, message));
    EXPECT_TRUE(QTest::qWaitFor([&] { return sending.percent() > 0; }, 60'000));
    EXPECT_LT(sending.percent(), 100);
    EXPECT_FALSE(sending.finished());
    EXPECT_EQ(slow.count(), 0);
    slow.letGoOn();
    EXPECT_TRUE(QTest::qWaitFor([&] { return sending.finished(); }, 60'000));
    EXPECT_NO_THROW(sending.result());
    const QJsonObject file = slow.mail()["attachments"][0].toObject();
    EXPECT_EQ(file["name"].toString().toStdString(), "catálogo 2026.pdf");
    EXPECT_EQ(file["size"].toInt(), 10 * 1024 * 1024);
    EXPECT_EQ(file["sha256"].toString().toStdString(),
              QCryptographicHash::hash(QByteArray::fromStdString(content), QCryptographicHash::Sha256)
                  .toHex()
                  .toStdString());
}

TEST_F(Delivery, of_a_mail_that_is_too_large_for_the_server_fails_ahead_of_it)
{
    const MailServer server({"small"});
    message.attachments = {{"x", "application/pdf", std::string(2'000'000, 'x')}};
    EXPECT_THAT(sendsTo(server), AllOf(HasSubstr("demasiado grande"), HasSubstr("552")));
    EXPECT_EQ(server.count(), 0);
}

TEST_F(Delivery, goes_encrypted_to_a_server_with_a_certificate_that_is_trusted)
{
    const MailServer server({"tls", "auth"});
    settings.tls = true;
    settings.ca = server.certificate().string();
    logsIn();
    EXPECT_EQ(sendsTo(server), "");
    EXPECT_TRUE(server.envelope()["tls"].toBool());
    EXPECT_EQ(server.envelope()["login"].toString(), "ana");
}

TEST_F(Delivery, goes_to_a_server_that_is_encrypted_from_the_first_byte_on)
{
    const MailServer server({"smtps", "auth"});
    ASSERT_THAT(server.url(), testing::StartsWith("smtps://"));
    settings.ca = server.certificate().string();
    logsIn();
    for (const bool tls : {true, false}) { // which is about the others
        settings.tls = tls;
        EXPECT_EQ(sendsTo(server), "");
    }
    ASSERT_EQ(server.count(), 2);
    EXPECT_TRUE(server.envelope(2)["tls"].toBool());
    EXPECT_EQ(server.envelope(2)["login"].toString(), "ana");
    EXPECT_EQ(server.mail(2)["body"].toString().toStdString(), message.body);
    settings.ca.clear();
    EXPECT_THAT(sends(), HasSubstr("certificado"));
    settings.url.replace(0, 5, "smtp"); // it waits for a greeting that comes encrypted only
    settings.timeout = 1;
    EXPECT_THAT(sends(), HasSubstr("no respondió en 1 segundos"));
    EXPECT_EQ(server.count(), 2);
}

TEST_F(Delivery, does_not_trust_an_unknown_certificate)
{
    const MailServer server({"tls"});
    settings.tls = true;
    EXPECT_THAT(sendsTo(server), HasSubstr("certificado"));
    const MailServer other({"tls"});
    settings.ca = other.certificate().string();
    EXPECT_THAT(sendsTo(server), HasSubstr("certificado"));
    settings.ca = "/no/hay.pem";
    EXPECT_THAT(sendsTo(server), AllOf(HasSubstr("certificados"), HasSubstr("/no/hay.pem")));
    EXPECT_EQ(server.count(), 0);
}

TEST_F(Delivery, does_not_go_in_the_clear_unless_told_to)
{
    const MailServer server;
    settings.tls = true;
    EXPECT_THAT(sendsTo(server), HasSubstr("conexión cifrada"));
    EXPECT_EQ(server.count(), 0);
}

TEST_F(Delivery, with_a_wrong_password_is_refused_and_the_password_is_not_shown)
{
    const MailServer server({"auth"});
    logsIn();
    EXPECT_EQ(sendsTo(server), "");
    EXPECT_EQ(server.envelope()["login"].toString(), "ana");
    settings.password = "equivocada";
    EXPECT_THAT(sends(), AllOf(HasSubstr("usuario o la clave"), HasSubstr("535"), Not(HasSubstr("equivocada"))));
    settings.user.clear();
    EXPECT_THAT(sends(), HasSubstr("530"));
    EXPECT_EQ(server.count(), 1);
}

TEST_F(Delivery, to_one_recipient_that_is_refused_goes_to_nobody_and_names_him)
{
    const MailServer server({"refuse"});
    message.recipients = {"maria@acme.example", "nadie@acme.example", "luz@acme.example"};
    EXPECT_THAT(sendsTo(server),
                AllOf(HasSubstr("«nadie@acme.example»"), HasSubstr("550 5.1.1 No such user here")));
    EXPECT_EQ(server.count(), 0);
}

TEST_F(Delivery, of_a_sender_or_a_text_that_is_refused_repeats_the_servers_words)
{
    const MailServer sender({"sender"});
    EXPECT_THAT(sendsTo(sender), AllOf(HasSubstr("remitente"), HasSubstr("550 5.7.1 Sender not welcome")));
    const MailServer text({"reject"});
    EXPECT_THAT(sendsTo(text), AllOf(HasSubstr("rechazó el mensaje"), HasSubstr("554 5.6.0")));
}

TEST_F(Delivery, that_is_cut_off_fails)
{
    const MailServer middle({"drop"});
    message.attachments = {{"x", "application/pdf", std::string(3'000'000, 'x')}};
    EXPECT_THAT(sendsTo(middle), HasSubstr("Se cortó la conexión"));
    EXPECT_EQ(middle.count(), 0);
    const MailServer encrypted({"drop", "smtps"});
    settings.ca = encrypted.certificate().string();
    EXPECT_THAT(sendsTo(encrypted), HasSubstr("Se cortó la conexión"));
    EXPECT_EQ(encrypted.count(), 0);
}

TEST_F(Delivery, that_is_cut_off_behind_the_text_is_in_doubt)
{
    const MailServer after({"drop-after"});
    EXPECT_THAT(sendsTo(after), AllOf(HasSubstr("Se cortó la conexión"), HasSubstr("pudo haberlo aceptado")));
}

TEST_F(Delivery, can_be_cancelled_in_the_middle_of_the_text)
{
    const MailServer slow({"slow"});
    settings.url = slow.url();
    message.attachments = {{"x.pdf", "application/pdf", std::string(3'000'000, 'x')}};
    Sending sending(delivery(settings, message));
    EXPECT_TRUE(QTest::qWaitFor([&] { return sending.percent() > 0; }, 20'000));
    sending.cancel();
    EXPECT_TRUE(QTest::qWaitFor([&] { return sending.finished(); }, 20'000));
    try {
        sending.result();
        ADD_FAILURE() << "was sent";
    } catch (const SendCancelled& end) {
        EXPECT_STREQ(end.what(), "Se canceló el envío.") << "the server cannot have taken it";
    }
    slow.letGoOn();
    EXPECT_EQ(slow.count(), 0);
}

TEST_F(Delivery, that_arrived_is_sent_though_the_server_says_no_farewell)
{
    const MailServer rude({"rude"});
    settings.timeout = 1;
    EXPECT_EQ(sendsTo(rude), "");
    EXPECT_EQ(rude.count(), 1);
}

TEST_F(Delivery, gives_up_on_a_server_that_does_not_answer)
{
    settings.timeout = 1;
    const MailServer mute({"mute"});
    EXPECT_THAT(sendsTo(mute), AllOf(HasSubstr("no respondió en 1 segundos"), Not(HasSubstr("pudo haberlo"))));
    const MailServer silent({"silent"});
    EXPECT_THAT(sendsTo(silent), AllOf(HasSubstr("no respondió"), HasSubstr("pudo haberlo aceptado")));
    EXPECT_EQ(silent.count(), 0);
}

TEST_F(Delivery, can_be_cancelled_while_the_server_does_not_answer)
{
    const MailServer server({"mute"});
    settings.url = server.url();
    Sending sending(delivery(settings, message));
    EXPECT_EQ(sending.percent(), -1);
    sending.cancel();
    EXPECT_TRUE(QTest::qWaitFor([&] { return sending.finished(); }, 20'000));
    EXPECT_THROW(sending.result(), SendCancelled);
}

TEST_F(Delivery, that_is_left_alone_ends_by_itself)
{
    const MailServer server({"silent"});
    settings.url = server.url();
    {
        const Sending sending(delivery(settings, message));
        server.waitUntilSilent();
    }
    EXPECT_EQ(server.count(), 0);
}

TEST_F(Delivery, without_a_server_fails_in_clear_words)
{
    settings.url = "smtp://127.0.0.1:" + std::to_string(dn::tests::freePort());
    EXPECT_THAT(sends(), HasSubstr("no acepta la conexión"));
    settings.url = "smtp://servidor.invalid";
    EXPECT_THAT(sends(), HasSubstr("No se encuentra el servidor de correo «servidor.invalid»"));
}

// ---- The outbox

class Outbox : public Delivery {
protected:
    Outbox() { settings.outbox = folder.path() / "datos" / "bandeja"; }

    std::vector<fs::path> files() const
    {
        return {fs::directory_iterator(settings.outbox), fs::directory_iterator()};
    }

    Folder folder;
};

TEST_F(Outbox, gets_a_file_for_each_mail_for_the_users_eyes_alone)
{
    EXPECT_EQ(sends(), "");
    const auto first = files();
    ASSERT_EQ(first.size(), 1U);
    EXPECT_EQ(first[0].extension(), ".eml");
    EXPECT_EQ(fs::status(first[0]).permissions(), fs::perms::owner_read | fs::perms::owner_write);
    EXPECT_EQ(fs::status(settings.outbox).permissions(), fs::perms::owner_all);
    const QJsonObject mail = parsed(first[0]);
    EXPECT_EQ(mail["body"].toString().toStdString(), message.body);
    EXPECT_EQ(mail["unsent"].toString(), "1");
    stamp(message);
    EXPECT_EQ(sends(), "");
    EXPECT_EQ(files().size(), 2U);
}

TEST_F(Outbox, gets_nothing_of_a_mail_that_was_cancelled_ahead_of_it)
{
    SendProgress progress;
    progress.cancelled = true;
    EXPECT_THROW(delivery(settings, message)(progress), SendCancelled);
    EXPECT_FALSE(fs::exists(settings.outbox));
}

TEST(Attachments, are_read_no_further_when_the_mail_is_cancelled)
{
    SendProgress progress;
    const Folder folder;
    const std::vector<fs::path> files{folder.holds("lista.pdf", std::string(700'000, 'x'))};
    EXPECT_EQ(readAttachments(files, 1, progress).at(0).content, std::string(700'000, 'x'));
    progress.cancelled = true;
    EXPECT_THROW(readAttachments(files, 1, progress), SendCancelled);
}

TEST_F(Outbox, that_cannot_be_written_is_told)
{
    settings.outbox = folder.holds("archivo", "x") / "bandeja";
    EXPECT_THAT(sends(), HasSubstr("No se pudo guardar el correo en"));
    settings.outbox = folder.path() / "archivo";
    EXPECT_THAT(sends(), HasSubstr("No se pudo guardar el correo en"));
}

} // namespace
} // namespace dn::host::tests
