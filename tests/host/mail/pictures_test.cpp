// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// A picture of each mail window with something in it, held against the approved one. That each one shows every
// text in full, has a name for everything, and is reached by the keyboard, is asserted too.

#include "host/mail/attachments_field.h"
#include "tests/approved/approval.h"
#include "tests/approved/in_scheme.h"
#include "tests/host/mail/mails.h"
#include "tests/screen/qt/accessible_tree.h"
#include "tests/screen/qt/documented_keys.h"

#include <QLabel>
#include <QLayout>
#include <QListWidget>
#include <QProgressBar>
#include <QTest>

namespace dn::host::tests {
namespace {

class MailPictures : public Mails {
protected:
    void writesALetter(const char* suffix);
    static void takes(QWidget& window, const char* suffix = "")
    {
        dn::tests::looksAsApproved(window, window.objectName() + suffix);
        EXPECT_THAT(dn::tests::cutOff(window), testing::IsEmpty()) << suffix;
        EXPECT_THAT(dn::tests::unnamed(window), testing::IsEmpty()) << suffix;
        EXPECT_THAT(dn::tests::unreached(window), testing::IsEmpty()) << suffix;
        const auto* const kinds = window.findChild<QComboBox*>("Plantilla");
        if (kinds != nullptr && !kinds->isVisible()) return; // without templates there is no letter for them
        EXPECT_THAT(dn::tests::lettersAgainstPage(window), testing::IsEmpty()) << suffix;
    }
    /// The bar of a sending moves and tells how far it is: what stands there now stays until it is looked at
    /// again, which takes a turn of the event loop.
    static void holdsTheBar(QWidget& window)
    {
        auto* const bar = window.findChild<QProgressBar*>("Avance");
        bar->setRange(0, 100);
        bar->setValue(40);
        window.findChild<QLabel*>("lblEstado")->setText("Enviando…");
        window.layout()->activate();
    }
};

/// A mail with a template and two files.
void MailPictures::writesALetter(const char* suffix)
{
    folder.holds("Seguimiento.txt",
                 "Asunto: Su cotización, {nombre}\n\nEstimada {nombre}:\n\nGracias por su interés. "
                 "Adjunto la cotización que me pidió para {empresa}.\n\nQuedo a sus órdenes.\n\n"
                 "{usuario}\n");
    templates = folder.path().string();
    settings.url = "smtp://correo.example.com";
    const auto write = [this](QWidget& window) {
        auto* const box = window.findChild<QComboBox*>("Plantilla");
        QTest::keyClick(box, Qt::Key_Down);
        auto& files =
            static_cast<AttachmentsField&>(*window.findChild<QListWidget*>("lstAdjuntos")->parentWidget());
        files.add(
            QString::fromStdString(folder.holds("Cotización 2026-031.pdf", std::string(184'320, 'x')).string()));
        files.add(
            QString::fromStdString(folder.holds("Catálogo de silos.pdf", std::string(2'400'000, 'x')).string()));
    };
    EXPECT_FALSE(writes([&](QWidget& window) {
        write(window);
        takes(window, suffix);
        expectQuestion("", "Descartar");
        QTest::keyClick(&window, Qt::Key_Escape);
    }));
}

TEST_F(MailPictures, of_each_window)
{
    writesALetter("");
    settings.url.clear();
    settings.outbox = "/home/ana/.local/share/dncontacts/bandeja-de-salida";
    settings.warnings = {"La clave del correo está escrita en «/home/ana/.config/dncontacts/mail.ini», a la vista "
                         "de quien abra ese "
                         "archivo. No hace falta: borre su renglón."};
    EXPECT_FALSE(writes([&](QWidget& window) {
        types(window, "Para", "maria");
        expectQuestion("no lleva asunto", "Escribir el asunto");
        types(window, "Para", "maria@acme.example");
        dn::tests::pressButton(window, "Guardar en la bandeja de salida");
        types(window, "Para", "maria");
        dn::tests::pressButton(window, "Guardar en la bandeja de salida");
        takes(window, "-bandeja");
        expectQuestion("", "Descartar");
        QTest::keyClick(&window, Qt::Key_Escape);
    }));
}

class MailPicturesInSchemes : public MailPictures, public testing::WithParamInterface<dn::tests::OtherScheme> {
    dn::tests::InScheme worn_{GetParam().first};
};

TEST_P(MailPicturesInSchemes, of_a_mail) { writesALetter(GetParam().second); }

INSTANTIATE_TEST_SUITE_P(All, MailPicturesInSchemes, dn::tests::otherSchemes());

TEST_F(MailPictures, of_a_mail_on_its_way)
{
    const MailServer silent({"mute"});
    settings.url = silent.url();
    EXPECT_FALSE(writes([&](QWidget& window) {
        types(window, "Asunto", "Su cotización");
        types(window, "Estimada María:");
        dn::tests::pressButton(window, "Enviar");
        holdsTheBar(window);
        takes(window, "-enviando");
        expectNotice("Se canceló");
        dn::tests::pressButton(window, "Cancelar el envío");
        waitUntilItCameBack(window);
        expectQuestion("", "Descartar");
        QTest::keyClick(&window, Qt::Key_Escape);
    }));
}

TEST_F(MailPictures, of_the_history)
{
    server().execute(
        "INSERT INTO correo_historial (identificador, tiempo, remitente, destinatarios, asunto, cuerpo, "
        "usuario) SELECT 'CT.AAAA', '2026-03-01 09:30' + INTERVAL seq * 31 HOUR, 'ana@example.com', "
        "IF(seq % 3, 'maria@acme.example', 'maria@acme.example; compras@acme.example'), "
        "CONCAT('Seguimiento a su cotización, punto ', seq), 'Estimada María:\n\nGracias por su "
        "llamada de hoy. Adjunto la lista de precios.\n\nSaludos,\nAna López\n\n[Archivo adjunto: "
        "lista de precios.pdf, 180 KB]', 'Ana López' FROM seq_1_to_9");
    operatorAt.expect("VerHistorial", [](QWidget& window) {
        takes(window);
        QTest::keyClick(&window, Qt::Key_Escape);
    });
    mail()->VerHistorial(maria);
}

} // namespace
} // namespace dn::host::tests
