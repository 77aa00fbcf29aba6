// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The password of the mail server: moved out of the user's file, kept by the keyring, asked for where it is not.

#include "host/mail/mail_password.h"
#include "tests/host/mail/mails.h"
#include "tests/host/mail/variable.h"

#include <QCheckBox>
#include <QPushButton>
#include <QTest>

namespace dn::host::tests {
namespace {

namespace fs = std::filesystem;
using dn::tests::pressButton;
using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::Pair;

constexpr const char* right = "secreto ;\"ñ"; // what the server takes

class OldFile : public testing::Test {
protected:
    OldFile() { fs::permissions(file, fs::perms::owner_read | fs::perms::owner_write); }

    MailSettings takenIn()
    {
        MailSettings settings = readMailSettings(file, "/datos");
        password.takeIn(settings);
        return settings;
    }

    const std::string before =
        "# correo\r\n[smtp]\n  url = smtps://correo.example.com:465\n"
        "password = la vieja\nuser = ana\n  password=a=b;\"c\\ #d  \r\npasswords = x\n\nfrom=a@x";
    const std::string after = "# correo\r\n[smtp]\n  url = smtps://correo.example.com:465\nuser = ana\n"
                              "passwords = x\n\nfrom=a@x";
    const std::string account = "smtp:ana@correo.example.com";
    Folder folder;
    fs::path file = folder.holds("mail.ini", before);
    FakeKeyring keyring;
    MailPassword password{keyring};
};

TEST_F(OldFile, loses_its_password_to_the_keyring_and_nothing_else)
{
    fs::permissions(file, fs::perms::owner_read | fs::perms::owner_write | fs::perms::group_read);
    const MailSettings settings = takenIn();
    EXPECT_EQ(settings.password, "a=b;\"c\\ #d");
    EXPECT_EQ(contentOf(file), after);
    EXPECT_EQ(fs::status(file).permissions(),
              fs::perms::owner_read | fs::perms::owner_write | fs::perms::group_read);
    EXPECT_THAT(keyring.kept, ElementsAre(Pair(account, "a=b;\"c\\ #d")));
    EXPECT_EQ(settings.warnings.size(), 1U) << "the line that is not understood";
}

TEST_F(OldFile, is_read_again_with_the_password_from_the_keyring)
{
    takenIn();
    MailSettings settings = takenIn();
    EXPECT_EQ(settings.password, "");
    EXPECT_TRUE(password.provide(settings, nullptr)) << "asks nothing";
    EXPECT_EQ(settings.password, "a=b;\"c\\ #d");
    EXPECT_EQ(contentOf(file), after);
}

TEST_F(OldFile, stays_as_it_is_where_no_keyring_takes_its_password)
{
    keyring.there = false;
    const MailSettings settings = takenIn();
    EXPECT_EQ(settings.password, "a=b;\"c\\ #d");
    EXPECT_EQ(contentOf(file), before);
    ASSERT_EQ(settings.warnings.size(), 2U);
    EXPECT_EQ(settings.warnings[1],
              "La clave del correo está escrita en «" + file.string() +
                  "», a la vista de quien abra ese archivo. Este escritorio no tiene un llavero que la guarde: "
                  "borre su renglón y el programa se la pedirá una vez en cada sesión.");
}

TEST_F(OldFile, stays_as_it_is_where_the_keyring_does_not_give_back_what_it_took)
{
    struct Locked : FakeKeyring {
        std::optional<std::string> find(const std::string& /*account*/) override { return std::nullopt; }
    };
    Locked locked;
    MailPassword other(locked);
    MailSettings settings = readMailSettings(file, "/datos");
    other.takeIn(settings);
    EXPECT_EQ(contentOf(file), before);
    EXPECT_EQ(settings.password, "a=b;\"c\\ #d");
}

TEST_F(OldFile, that_others_can_read_is_told_and_how_to_close_it)
{
    keyring.there = false;
    for (const fs::perms open : {fs::perms::group_read, fs::perms::others_read, fs::perms::others_write}) {
        fs::permissions(file, fs::perms::owner_read | fs::perms::owner_write | open);
        const auto warnings = takenIn().warnings;
        ASSERT_EQ(warnings.size(), 3U);
        EXPECT_THAT(warnings[2], HasSubstr("chmod 600 " + file.string()));
        EXPECT_THAT(warnings, testing::Each(Not(HasSubstr("a=b"))));
    }
}

TEST_F(OldFile, that_cannot_be_written_keeps_its_password_and_says_that_it_may_go)
{
    MailSettings settings = readMailSettings(file, "/datos");
    settings.file = "/proc/no/mail.ini";
    settings.warnings.clear();
    password.takeIn(settings);
    EXPECT_THAT(settings.warnings,
                ElementsAre(AllOf(HasSubstr("«/proc/no/mail.ini»"), HasSubstr("Ya está en el llavero"))));
    EXPECT_EQ(keyring.kept.at(account), "a=b;\"c\\ #d");
}

TEST_F(OldFile, with_a_password_that_no_server_wants_is_told)
{
    for (const char* content : {"password = x\nuser = ana\n", "password = x\nurl = smtps://y\nfrom=a@x\n"}) {
        folder.holds("mail.ini", content);
        EXPECT_THAT(takenIn().warnings, ElementsAre(HasSubstr("No hace falta: borre su renglón.")));
        EXPECT_EQ(contentOf(file), content);
    }
    EXPECT_THAT(keyring.kept, IsEmpty());
}

TEST_F(OldFile, without_a_password_is_left_alone)
{
    for (const char* content : {"", "url = smtps://y\nuser = ana\nfrom=a@x\n", "password =\nuser = ana\n"}) {
        folder.holds("mail.ini", content);
        EXPECT_THAT(takenIn().warnings, IsEmpty());
        EXPECT_EQ(contentOf(file), content);
    }
    EXPECT_THAT(keyring.kept, IsEmpty());
    EXPECT_FALSE(removePassword(folder.path() / "nada.ini"));
    EXPECT_FALSE(fs::exists(folder.path() / "nada.ini"));
}

TEST_F(OldFile, gives_up_its_password_though_the_environment_has_another)
{
    const Variable set("DNCONTACTS_SMTP_PASSWORD", "de la variable");
    EXPECT_EQ(takenIn().password, "de la variable");
    EXPECT_EQ(contentOf(file), after);
    EXPECT_EQ(keyring.kept.at(account), "a=b;\"c\\ #d");
}

/// A mail to a server that wants a login, by an operator whose password no file holds.
class AskingForThePassword : public Mails {
protected:
    void SetUp() override
    {
        Mails::SetUp();
        settings.url = to.url();
        settings.user = "ana";
    }
    /// Expects the question, and answers it.
    void answers(const char* text, bool keep = true)
    {
        operatorAt.expect("PedirClave", [=](QWidget& box) {
            EXPECT_EQ(box.windowTitle(), "Clave del correo");
            EXPECT_EQ(box.findChild<QLabel*>()->text(), "&Clave de ana en 127.0.0.1:");
            auto& kept = *box.findChild<QCheckBox*>("chkGuardar");
            if (kept.isVisible() && !keep) kept.click();
            dn::tests::presses(line(box, "txtClave"), text);
            pressButton(box, "Enviar");
        });
    }
    /// Sends a mail. @param first what the operator meets on its way.
    bool sends(const std::function<void()>& first = [] {})
    {
        return writes([first](QWidget& window) {
            types(window, "Asunto", "Hola");
            first();
            pressButton(window, "Enviar");
        });
    }
    /// Sends a mail that the server refuses first.
    bool sendsTwice(
        const std::function<void()>& first, const std::function<void()>& then = [] {})
    {
        return writes([=](QWidget& window) {
            types(window, "Asunto", "Hola");
            first();
            pressButton(window, "Enviar");
            waitUntilItCameBack(window);
            then();
            pressButton(window, "Enviar");
        });
    }
    void expectRefusal() { expectNotice("no aceptó el usuario o la clave"); }

    const MailServer to{{"auth"}};
    const std::string account = "smtp:ana@127.0.0.1";
};

TEST_F(AskingForThePassword, happens_once_and_the_keyring_has_it)
{
    EXPECT_TRUE(sends([this] { answers(right); }));
    EXPECT_THAT(keyring.kept, ElementsAre(Pair(account, right)));
    EXPECT_TRUE(sends()) << "asks nothing more";
    EXPECT_EQ(to.count(), 2);
    MailPassword nextDay(keyring);
    EXPECT_TRUE(nextDay.provide(settings, nullptr));
    EXPECT_EQ(settings.password, right);
}

TEST_F(AskingForThePassword, happens_once_in_a_session_without_a_keyring)
{
    keyring.there = false;
    EXPECT_TRUE(sends([this] { answers(right); }));
    EXPECT_TRUE(sends());
    EXPECT_EQ(to.count(), 2);
    EXPECT_THAT(keyring.kept, IsEmpty());
}

TEST_F(AskingForThePassword, of_whoever_does_not_want_it_kept_forgets_the_one_of_old)
{
    keyring.kept[account] = "de otro año";
    EXPECT_TRUE(sendsTwice([this] { expectRefusal(); }, [this] { answers(right, false); }));
    EXPECT_THAT(keyring.kept, IsEmpty());
    EXPECT_TRUE(sends()) << "known for the session";
    EXPECT_EQ(to.count(), 2);
}

TEST_F(AskingForThePassword, goes_on_until_it_is_right_and_keeps_no_wrong_one)
{
    EXPECT_TRUE(sendsTwice(
        [this] {
            answers("equivocada");
            expectRefusal();
        },
        [this] {
            EXPECT_THAT(keyring.kept, IsEmpty());
            answers(right);
        }));
    EXPECT_THAT(keyring.kept, ElementsAre(Pair(account, right)));
}

TEST_F(AskingForThePassword, comes_behind_what_the_settings_have_and_tries_nothing_refused_again)
{
    keyring.kept[account] = "de otro año";
    settings.password = right;
    EXPECT_TRUE(sends());
    settings.password = "equivocada";
    EXPECT_TRUE(sendsTwice([this] { expectRefusal(); })) << "then with the one that the server took before";
    EXPECT_TRUE(sends()) << "the refused one still stands in the settings";
    EXPECT_EQ(to.count(), 3);
    EXPECT_EQ(keyring.kept.at(account), "de otro año") << "nobody typed another";
}

TEST_F(AskingForThePassword, of_one_that_was_refused_keeps_no_other_in_its_place)
{
    answers("equivocada");
    EXPECT_TRUE(password.provide(settings, nullptr));
    EXPECT_EQ(settings.password, "equivocada");
    password.refused(settings);
    settings.password = right; // of the environment, whose matter it is
    password.accepted(settings);
    EXPECT_THAT(keyring.kept, IsEmpty());
}

TEST_F(AskingForThePassword, can_be_given_up_and_everything_typed_stays)
{
    EXPECT_FALSE(writes([this](QWidget& window) {
        types(window, "Asunto", "Hola");
        operatorAt.expect("PedirClave", [](QWidget& box) { QTest::keyClick(&box, Qt::Key_Escape); });
        pressButton(window, "Enviar");
        EXPECT_TRUE(line(window, "Para").isEnabled()) << "nothing is on its way";
        EXPECT_EQ(textIn(window, "Asunto"), "Hola");
        expectQuestion("El correo no se ha enviado", "Descartar");
        QTest::keyClick(&window, Qt::Key_Escape);
    }));
    EXPECT_EQ(to.count(), 0);
    EXPECT_THAT(keyring.kept, IsEmpty());
}

TEST_F(AskingForThePassword, does_not_happen_for_the_outbox_nor_without_a_user)
{
    settings.user.clear();
    EXPECT_TRUE(password.provide(settings, nullptr));
    settings.user = "ana";
    settings.url.clear();
    EXPECT_TRUE(password.provide(settings, nullptr));
    EXPECT_EQ(settings.password, "");
}

} // namespace
} // namespace dn::host::tests
