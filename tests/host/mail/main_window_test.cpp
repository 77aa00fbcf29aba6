// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The program's window with its mail: which settings and which templates the control's mails get.

#include "desk/elements.h"
#include "desk/tab_strip.h"
#include "host/main_window.h"
#include "shell/ctr_dn_contacts.h"
#include "tests/host/mail/mails.h"
#include "tests/host/mail/variable.h"
#include "tests/support/maria_server.h"

#include <QPlainTextEdit>
#include <QTest>

namespace dn::host::tests {
namespace {

using dn::tests::pressButton;

class ProgramWindow : public Mails {
protected:
    void SetUp() override
    {
        Mails::SetUp();
        server().execute("TRUNCATE TABLE xt_biticontact");
        server().execute("INSERT INTO Agente (Sys_PK, Nombre) VALUES (7, 'Sofía')");
        server().execute("UPDATE ut_icontact SET uf_IEjecutivo = 7");
    }

    static Database open()
    {
        DatabaseOptions options;
        options.connect = "mariadb://" + std::string(dn::tests::MariaServer::user) + ":" +
                          std::string(dn::tests::MariaServer::password) +
                          "@localhost/pantallas?socket=" + dn::tests::sharedServer().socket();
        return openDatabase(options);
    }

    Variable config{"XDG_CONFIG_HOME", folder.path().string()}; // or the file of who runs the tests would count
    Database database = open();
    MainWindow window{database, Worker{agent, false, "Sofía"}};
};

TEST_F(ProgramWindow, hands_the_users_templates_on_behind_the_binding_which_sets_another_folder)
{
    const Variable set("DNCONTACTS_MAIL_TEMPLATES", folder.path().string());
    folder.holds("Bienvenida.txt", "Estimada {nombre}:");
    window.sendMails(folder.path(), keyring);
    window.start(desk::prospectos);
    EXPECT_EQ(window.control().TemplatePath(), folder.path().string());
    operatorAt.expect("Enviar", [](QWidget& mail) {
        auto* const box = mail.findChild<QComboBox*>("Plantilla");
        ASSERT_TRUE(box->isVisible());
        EXPECT_EQ(box->itemText(1), "Bienvenida");
        QTest::keyClick(box, Qt::Key_Down);
        EXPECT_EQ(textIn(mail, "Texto"), "Estimada María Ñúñez:");
        types(mail, "Asunto", "Hola");
        pressButton(mail, keeps);
    });
    window.control().elements().detail.cmdSend.press();
    settings.outbox = folder.path() / "bandeja-de-salida"; // below the data folder
    EXPECT_EQ(outbox().size(), 1U);
    EXPECT_EQ(history().size(), 1U);
}

TEST_F(ProgramWindow, without_a_folder_leaves_the_one_of_the_binding)
{
    window.sendMails(folder.path(), keyring);
    window.start(desk::prospectos);
    EXPECT_EQ(window.control().TemplatePath(), "R:");
}

TEST_F(ProgramWindow, takes_a_password_out_of_the_users_file_when_it_starts)
{
    std::filesystem::create_directory(folder.path() / "dncontacts");
    const auto file =
        folder.holds("dncontacts/mail.ini", "url = smtps://correo.example.com\nuser = ana\npassword = secreto\n");
    window.sendMails(folder.path(), keyring);
    window.start(desk::prospectos);
    EXPECT_EQ(contentOf(file), "url = smtps://correo.example.com\nuser = ana\n");
    EXPECT_THAT(keyring.kept, testing::ElementsAre(testing::Pair("smtp:ana@correo.example.com", "secreto")));
}

TEST_F(ProgramWindow, that_sends_no_mails_has_none_to_write)
{
    window.start(desk::prospectos);
    EXPECT_EQ(window.control().TemplatePath(), "R:");
    window.control().elements().detail.cmdSend.press(); // no window comes
    EXPECT_EQ(value("SELECT COUNT(*) FROM xt_biticontact"), "0");
}

} // namespace
} // namespace dn::host::tests
