// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "host/mail/mailer.h"

#include "host/mail/composer.h"
#include "host/mail/history_window.h"
#include "host/screens/boxes.h"
#include "screen/qt/hourglass.h"

#include <QDate>

namespace dn::host {
namespace {

constexpr const char* noHistory = "Esta base de datos no tiene la tabla correo_historial: los correos se envían, "
                                  "pero no se guarda su historial.";

// What is known of the party. A mail can be written without it.
PartyFields fieldsOf(OwnConnection& database, const std::string& record, QStringList& notices)
{
    try {
        return partyFields(database, record);
    } catch (const std::exception& failure) {
        notices.append("No se pudieron leer los datos del destinatario: " + QString::fromUtf8(failure.what()));
        return emptyFields();
    }
}

// A server that does not answer now may do so when the mail is out.
bool keepsHistory(OwnConnection& database)
{
    try {
        return keepsMailHistory(database);
    } catch (const std::exception&) {
        return true;
    }
}

QString today() { return QLocale(QLocale::Spanish).toString(QDate::currentDate(), "d 'de' MMMM 'de' yyyy"); }

} // namespace

void Mailer::Inicia(data::Connection* /*connection*/, const std::string& templatePath, const std::string& usuario)
{
    templates_ = templatePath;
    user_ = usuario;
}

void Mailer::Enviar(const std::string& record, const std::string& addresses, const std::string& text1,
                    const std::string& text2, const std::string& /*text3*/, const std::string& /*text4*/,
                    bool& result)
{
    result = false;
    QWidget* const over = windowBelow(context_->window);
    reporting(over, [&] {
        Letter letter;
        letter.settings = settings_();
        letter.password = &password_;
        letter.fields = fieldsOf(context_->database, record, letter.notices);
        letter.fields["usuario"] = user_;
        letter.fields["fecha"] = today().toStdString();
        letter.templates = templatesIn(templates_);
        letter.user = QString::fromStdString(user_);
        letter.recipients = QString::fromStdString(addresses);
        letter.subject = QString::fromStdString(text1);
        letter.body = QString::fromStdString(text2);
        const bool stores = keepsHistory(context_->database);
        if (!stores) letter.notices.append(noHistory);
        Composer composer(std::move(letter), over);
        if (composer.exec() != QDialog::Accepted) return;
        result = true;
        if (!stores) return;
        try {
            storeMail(context_->database, record, composer.message(), user_);
        } catch (const std::exception& failure) {
            tell(over, "El correo se envió, pero no se pudo anotar en su historial: " +
                           QString::fromUtf8(failure.what()));
        }
    });
}

void Mailer::VerHistorial(const std::string& record)
{
    QWidget* const over = windowBelow(context_->window);
    reporting(over, [&] {
        if (!keepsMailHistory(context_->database)) {
            tell(over, noHistory);
            return;
        }
        HistoryWindow window = screen::qt::waiting([&] {
            QStringList notices;
            const PartyFields fields = fieldsOf(context_->database, record, notices);
            const auto name = fields.find("nombre");
            return HistoryWindow(context_->database, record,
                                 name == fields.end() ? QString() : QString::fromStdString(name->second), over);
        });
        window.exec();
    });
}

} // namespace dn::host
