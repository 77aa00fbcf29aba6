// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The user's mail settings, the templates, and the fields that they name.

#include "host/database/host_error.h"
#include "host/mail/mail_settings.h"
#include "host/mail/party_fields.h"
#include "host/mail/templates.h"
#include "tests/host/mail/mail_server.h"
#include "tests/host/mail/variable.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace dn::host::tests {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

class Settings : public testing::Test {
protected:
    MailSettings read(const std::string& content)
    {
        return readMailSettings(folder.holds("mail.ini", content), "/datos");
    }

    Folder folder;
};

TEST_F(Settings, without_a_file_mean_the_outbox)
{
    const MailSettings settings = readMailSettings(folder.path() / "nada.ini", "/datos");
    EXPECT_TRUE(settings.toOutbox());
    EXPECT_EQ(settings.outbox, "/datos/bandeja-de-salida");
    EXPECT_EQ(settings.problem, "");
    EXPECT_THAT(settings.warnings, IsEmpty());
    EXPECT_TRUE(settings.tls);
    EXPECT_EQ(settings.timeout, 60);
    EXPECT_EQ(settings.limit, 25);
    EXPECT_TRUE(settings.templates.empty());
}

TEST_F(Settings, are_read_as_they_stand_in_the_file)
{
    const MailSettings settings =
        read("# correo\n[smtp]\r\n  url=smtp://correo.example.com:587\nuser = ana \n"
             "password = a=b;\"c\\ #d\nfrom=ana@example.com\nname = Ana López\ntls = no\n"
             "ca = /ca.pem\ntimeout = 7\nlimit=3\ntemplates = /mis plantillas\noutbox = /o\n");
    EXPECT_EQ(settings.url, "smtp://correo.example.com:587");
    EXPECT_EQ(settings.host(), "correo.example.com");
    EXPECT_EQ(settings.user, "ana");
    EXPECT_EQ(settings.password, "a=b;\"c\\ #d");
    EXPECT_EQ(settings.from, "ana@example.com");
    EXPECT_EQ(settings.name, "Ana López");
    EXPECT_FALSE(settings.tls);
    EXPECT_EQ(settings.ca, "/ca.pem");
    EXPECT_EQ(settings.timeout, 7);
    EXPECT_EQ(settings.limit, 3);
    EXPECT_EQ(settings.templates, "/mis plantillas");
    EXPECT_EQ(settings.outbox, "/o");
}

TEST_F(Settings, of_the_environment_win)
{
    const Variable url("DNCONTACTS_SMTP_URL", "smtps://otro.example.com");
    const Variable password("DNCONTACTS_SMTP_PASSWORD", "de la variable");
    const Variable outbox("DNCONTACTS_MAIL_OUTBOX", "/otra");
    const MailSettings settings = read("url=smtp://x\nuser=ana@example.com\npassword=del archivo\n");
    EXPECT_EQ(settings.url, "smtps://otro.example.com");
    EXPECT_EQ(settings.password, "de la variable");
    EXPECT_EQ(settings.outbox, "/otra");
    EXPECT_EQ(settings.from, "ana@example.com") << "a user that is an address is the sender";
    EXPECT_EQ(settings.problem, "");
}

TEST_F(Settings, that_make_no_sense_are_told_without_repeating_them)
{
    const auto warnings = read("pasword = secreto\nnada\ntimeout = mucho\nlimit = 0\n").warnings;
    EXPECT_EQ(warnings.size(), 4U);
    for (const std::string& warning : warnings)
        EXPECT_THAT(warning, Not(HasSubstr("secreto")));
}

TEST_F(Settings, under_which_no_mail_can_go_out_say_why)
{
    struct Bad {
        const char* content;
        const char* why;
    };
    for (const Bad& bad :
         {Bad{"url=http://x\nfrom=a@x", "smtp://"}, Bad{"url=correo.example.com\nfrom=a@x", "smtp://"},
          Bad{"url=smtp://ana:clave@x\nfrom=a@x", "no lleva usuario"}, Bad{"url=smtp://x y\nfrom=a@x", "espacios"},
          Bad{"url=smtp://x", "remitente"}, Bad{"url=smtp://x\nfrom=ana", "«ana» no es una dirección"},
          Bad{"url=smtp://x\nfrom=a@x\ntls=no\nuser=a", "sin cifrar"},
          Bad{"url=smtp://127.0.0.1.example.com\nfrom=a@x\ntls=no\nuser=a", "sin cifrar"}}) {
        EXPECT_THAT(read(bad.content).problem, HasSubstr(bad.why)) << bad.content;
        EXPECT_THAT(read(bad.content).problem, Not(HasSubstr("clave@"))) << bad.content;
    }
    for (const char* good :
         {"url=smtp://127.0.0.1:25\nfrom=a@x\ntls=no\nuser=a\npassword=b",
          "url=smtp://[::1]:25/x\nfrom=a@x\ntls=no\nuser=a\npassword=b",
          "url=smtps://x\nfrom=a@x\ntls=no\nuser=a\npassword=b", "url=smtp://x\nfrom=a@x\ntls=no"})
        EXPECT_EQ(read(good).problem, "") << good;
}

TEST_F(Settings, lie_where_the_desktop_keeps_them)
{
    const Variable config("XDG_CONFIG_HOME", "/ajustes");
    EXPECT_EQ(mailSettingsFile(), "/ajustes/dncontacts/mail.ini");
    const Variable none("XDG_CONFIG_HOME", "");
    const Variable home("HOME", "/casa/ana");
    EXPECT_EQ(mailSettingsFile(), "/casa/ana/.config/dncontacts/mail.ini");
}

// ---- Templates

class Templates : public testing::Test {
protected:
    std::vector<std::string> names() const
    {
        std::vector<std::string> result;
        for (const Template& one : templatesIn(folder.path()))
            result.push_back(one.name.toStdString());
        return result;
    }
    TemplateText read(const std::string& content) const { return readTemplate(folder.holds("x.txt", content)); }

    Folder folder;
};

TEST_F(Templates, are_the_text_files_of_the_folder)
{
    for (const char* file : {"Seguimiento.txt", "bienvenida.txt", "v1.2.txt", "nota.md", ".oculta.txt"})
        folder.holds(file, "x");
    fs::create_directory(folder.path() / "carpeta.txt");
    EXPECT_THAT(names(), ElementsAre("bienvenida", "Seguimiento", "v1.2"));
}

TEST_F(Templates, of_a_folder_that_is_not_there_are_none)
{
    EXPECT_THAT(templatesIn("R:"), IsEmpty());
    EXPECT_THAT(templatesIn(""), IsEmpty());
    EXPECT_THAT(templatesIn("/no/hay"), IsEmpty());
    EXPECT_THAT(templatesIn(folder.holds("archivo", "x")), IsEmpty());
}

TEST_F(Templates, may_begin_with_a_subject)
{
    const TemplateText with = read("\xEF\xBB\xBF"
                                   "asunto:  Hola {nombre} \r\n\r\nEstimado:\r\n\r\nSaludos\r\n");
    EXPECT_EQ(with.subject, "Hola {nombre}");
    EXPECT_EQ(with.body, "Estimado:\n\nSaludos\n");
    const TemplateText without = read("Estimado:\nAsunto: no es\n");
    EXPECT_EQ(without.subject, "");
    EXPECT_EQ(without.body, "Estimado:\nAsunto: no es\n");
    EXPECT_EQ(read("Asunto: solo").subject, "solo");
    EXPECT_EQ(read("Asunto: solo").body, "");
    EXPECT_EQ(read("").body, "");
}

TEST_F(Templates, that_cannot_be_read_are_told)
{
    EXPECT_THROW(readTemplate(folder.path() / "nada.txt"), HostError);
    EXPECT_THROW(read(std::string(2'000'000, 'x')), HostError);
}

// ---- Fields

PartyFields ana()
{
    PartyFields fields = emptyFields();
    fields["nombre"] = "Ana {empresa}";
    fields["empresa"] = "Acme";
    return fields;
}

TEST(Fields, are_filled_in_whatever_their_letter_case)
{
    EXPECT_EQ(filled("Hola {nombre} y {EMPRESA}{empresa}.", ana()), "Hola Ana {empresa} y AcmeAcme.");
    EXPECT_EQ(filled("", ana()), "");
    EXPECT_EQ(filled("sin campos", ana()), "sin campos");
}

TEST(Fields, that_are_unknown_or_empty_stay_to_be_seen)
{
    EXPECT_EQ(filled("{puesto} {otra} { {empresa} } {nombre", ana()), "{puesto} {otra} { Acme } {nombre");
    EXPECT_EQ(fieldLeft("{otra} {Puesto} x", ana()), "{Puesto}");
    EXPECT_EQ(fieldLeft("{otra} {x", ana()), "");
}

} // namespace
} // namespace dn::host::tests
