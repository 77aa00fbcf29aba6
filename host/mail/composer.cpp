// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "host/mail/composer.h"

#include "host/mail/addresses.h"
#include "host/mail/attachments.h"
#include "host/mail/delivery.h"
#include "host/mail/smtp.h"
#include "host/screens/boxes.h"

#include <QKeyEvent>
#include <QShortcut>
#include <QVBoxLayout>

namespace dn::host {
namespace {

constexpr int longestSubject = 250;
constexpr int lookInterval = 50; // milliseconds
constexpr int linesOfText = 6;   // that stay in sight in the smallest window
constexpr int widthInCharacters = 92;
constexpr int heightInLines = 34;
constexpr const char* nobody = "dncontacts@localhost"; // where no sender is set up, of a mail in the outbox

std::string senderOf(const MailSettings& settings)
{
    return wireAddress(settings.from.empty() ? nobody : settings.from);
}

QString titleOf(const Letter& letter)
{
    const auto name = letter.fields.find("nombre");
    const bool known = name != letter.fields.end() && !name->second.empty();
    return known ? "Correo: " + QString::fromStdString(name->second) : QString("Correo");
}

QString nameOf(const Letter& letter)
{
    return letter.settings.name.empty() ? letter.user : QString::fromStdString(letter.settings.name);
}

} // namespace

Composer::Composer(Letter letter, QWidget* over)
    : Form("Enviar", titleOf(letter), over),
      letter_(std::move(letter)),
      attachments_(new AttachmentsField(letter_.settings.limit, this))
{
    build();
    buildBelow();
    buildButtons();
    showNotices();
    write(QString::fromStdString(filled(letter_.subject.toStdString(), letter_.fields)),
          QString::fromStdString(filled(letter_.body.toStdString(), letter_.fields)));
    resize(fontMetrics().averageCharWidth() * widthInCharacters, fontMetrics().lineSpacing() * heightInLines);
    const bool known = !recipients_->text().trimmed().isEmpty();
    (known ? subject_ : recipients_)->setFocus();
    connect(&looks_, &QTimer::timeout, this, [this] { look(); });
}

void Composer::build()
{
    auto* const sender = new QLabel(this);
    sender->setObjectName("De");
    sender->setTextFormat(Qt::PlainText);
    const bool known = !letter_.settings.from.empty();
    sender->setText(nameOf(letter_) + (known ? " <" + QString::fromStdString(letter_.settings.from) + ">" : ""));
    addField("De:", sender);
    recipients_->setObjectName("Para");
    recipients_->setPlaceholderText("nombre@dominio; otro@dominio");
    recipients_->setText(letter_.recipients);
    addField("&Para:", recipients_);
    templates_->setObjectName("Plantilla");
    templates_->setVisible(!letter_.templates.empty());
    if (!letter_.templates.empty()) {
        templates_->addItem("(sin plantilla)");
        for (const Template& one : letter_.templates)
            templates_->addItem(one.name);
        addField("P&lantilla:", templates_);
        connect(templates_, &QComboBox::activated, this, [this](int index) { useTemplate(index); });
    }
    subject_->setObjectName("Asunto");
    subject_->setMaxLength(longestSubject);
    addField("&Asunto:", subject_);
}

void Composer::buildBelow()
{
    auto* const below = new QWidget(this);
    auto* const layout = new QVBoxLayout(below);
    layout->setContentsMargins(0, 0, 0, 0);
    auto* const label = new QLabel("&Texto:", below);
    label->setObjectName("lblTexto");
    label->setBuddy(body_);
    body_->setObjectName("Texto");
    body_->setAccessibleName("Texto");
    body_->setTabChangesFocus(true);
    body_->setMinimumHeight(fontMetrics().lineSpacing() * linesOfText);
    layout->addWidget(label);
    layout->addWidget(body_, 1);
    layout->addWidget(attachments_);
    addBelow(below);
}

void Composer::buildButtons()
{
    state_->setObjectName("lblEstado");
    progress_->setObjectName("Avance");
    progress_->setAccessibleName("Avance del envío");
    sends_->setObjectName("cmdEnviar");
    sends_->setText(letter_.settings.toOutbox() ? "&Guardar en la bandeja de salida" : "&Enviar");
    sends_->setToolTip("Ctrl+Enter");
    sends_->setAutoDefault(false); // Enter in a line must not send
    cancels_->setObjectName("cmdCancelar");
    cancels_->setAutoDefault(false);
    for (QPushButton* button : attachments_->findChildren<QPushButton*>())
        button->setAutoDefault(false);
    connect(sends_, &QPushButton::clicked, this, [this] { accept(); });
    connect(cancels_, &QPushButton::clicked, this, [this] { reject(); });
    for (const int key : {Qt::Key_Return, Qt::Key_Enter})
        connect(new QShortcut(QKeySequence(Qt::CTRL | static_cast<Qt::Key>(key)), this), &QShortcut::activated,
                this, [this] { accept(); });
    auto* const line = new QHBoxLayout;
    line->addWidget(state_);
    line->addWidget(progress_, 1);
    line->addStretch(1);
    line->addWidget(sends_);
    line->addWidget(cancels_);
    static_cast<QVBoxLayout&>(*layout()).addLayout(line); // NOLINT: the form's own
    showSending(false);
}

void Composer::showNotices()
{
    QStringList notices = letter_.notices;
    if (letter_.settings.toOutbox())
        notices.prepend("No hay servidor de correo configurado: el mensaje no sale, se guarda como archivo .eml "
                        "en la bandeja de salida, la carpeta " +
                        QString::fromStdString(letter_.settings.outbox.string()) +
                        ", para enviarlo con su programa de correo.");
    if (!letter_.settings.problem.empty())
        notices.prepend("El correo no está bien configurado. " + QString::fromStdString(letter_.settings.problem));
    for (const std::string& warning : letter_.settings.warnings)
        notices.append(QString::fromStdString(warning));
    auto* const notice = new QLabel(notices.join('\n'), this);
    notice->setObjectName("lblAviso");
    notice->setTextFormat(Qt::PlainText);
    notice->setWordWrap(true);
    notice->setFrameShape(QFrame::StyledPanel);
    notice->setMargin(fontMetrics().height() / 3);
    notice->setVisible(!notices.isEmpty());
    static_cast<QVBoxLayout&>(*layout()).insertWidget(0, notice); // NOLINT: the form's own
}

void Composer::accept()
{
    if (!sending_) Form::accept();
}

void Composer::reject()
{
    if (sending_) {
        sending_->cancel();
        state_->setText("Cancelando…");
        return;
    }
    if (touched() &&
        !ask(this, "El correo no se ha enviado. ¿Desea descartarlo?", "&Descartar", "&Seguir escribiendo"))
        return;
    QDialog::reject();
}

void Composer::keyPressEvent(QKeyEvent* event)
{
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (!enter) {
        Form::keyPressEvent(event);
    } else if (auto* const button = qobject_cast<QPushButton*>(focusWidget()); button != nullptr) {
        button->click();
    } else {
        focusNextChild();
    }
}

bool Composer::validate()
{
    if (!letter_.settings.problem.empty()) {
        tell(this, "No se puede enviar: " + QString::fromStdString(letter_.settings.problem));
        return false;
    }
    return validateFields() && validateSubject() && letter_.password->provide(letter_.settings, this);
}

bool Composer::validateSubject()
{
    if (!subject_->text().trimmed().isEmpty()) return true;
    const bool agreed =
        ask(this, "El correo no lleva asunto. ¿Desea enviarlo así?", "&Enviar sin asunto", "&Escribir el asunto");
    if (!agreed) subject_->setFocus();
    return agreed;
}

bool Composer::validateFields()
{
    const std::vector<std::string> addresses = splitAddresses(recipients_->text().toStdString());
    if (addresses.empty()) {
        complain(recipients_, "Escriba al menos una dirección de correo.");
        return false;
    }
    for (const std::string& address : addresses) {
        const std::string wrong = complaintAbout(address);
        if (wrong.empty()) continue;
        complain(recipients_, QString::fromStdString(wrong));
        return false;
    }
    const QString text = "Falta llenar %1: escriba el dato o quite el campo.";
    if (const std::string left = fieldLeft(subject_->text().toStdString(), letter_.fields); !left.empty()) {
        complain(subject_, text.arg(QString::fromStdString(left)));
        return false;
    }
    if (const std::string left = fieldLeft(body_->toPlainText().toStdString(), letter_.fields); !left.empty()) {
        tell(this, text.arg(QString::fromStdString(left)));
        body_->setFocus();
        return false;
    }
    return true;
}

Message Composer::compose() const
{
    Message message;
    message.senderName = nameOf(letter_).toStdString();
    message.sender = senderOf(letter_.settings);
    for (const std::string& address : splitAddresses(recipients_->text().toStdString()))
        message.recipients.push_back(wireAddress(address));
    message.subject = subject_->text().trimmed().toStdString();
    message.body = body_->toPlainText().toStdString();
    stamp(message);
    return message;
}

// The files are read and encoded on the thread that sends: the window goes on meanwhile.
void Composer::store()
{
    message_ = std::make_shared<Message>(compose());
    const auto sends = [message = message_, settings = letter_.settings,
                        files = attachments_->files()](SendProgress& progress) {
        message->attachments = readAttachments(files, settings.limit, progress);
        delivery(settings, *message)(progress);
    };
    sending_ = std::make_unique<Sending>(sends);
    showSending(true);
    looks_.start(lookInterval);
}

void Composer::look()
{
    const int percent = sending_->percent();
    const bool waits = percent < 0 || percent >= 100; // for the server
    progress_->setRange(0, waits ? 0 : 100);
    if (!waits) progress_->setValue(percent);
    if (!sending_->finished()) return;
    looks_.stop();
    const std::unique_ptr<Sending> ended = std::move(sending_);
    showSending(false);
    try {
        ended->result();
    } catch (const LoginRefused& failure) {
        letter_.password->refused(letter_.settings);
        report(this, failure);
        return;
    } catch (const std::exception& failure) {
        report(this, failure);
        return;
    }
    letter_.password->accepted(letter_.settings);
    done(Accepted);
}

void Composer::showSending(bool sends)
{
    for (QWidget* widget : std::initializer_list<QWidget*>{recipients_, templates_, subject_, body_, attachments_})
        widget->setEnabled(!sends);
    sends_->setEnabled(!sends);
    state_->setText(letter_.settings.toOutbox() ? "Guardando…" : "Enviando…");
    state_->setVisible(sends);
    progress_->setVisible(sends);
    cancels_->setText(sends ? "&Cancelar el envío" : "&Cancelar");
    if (sends) cancels_->setFocus();
}

void Composer::useTemplate(int index)
{
    const bool typed = subject_->text() != shownSubject_ || body_->toPlainText() != shownBody_;
    if (typed &&
        !ask(this, "La plantilla reemplaza lo que ya escribió. ¿Desea continuar?", "&Reemplazar", "&Dejar"))
        return;
    reporting(this, [&] {
        const TemplateText text =
            index == 0 ? TemplateText()
                       : readTemplate(letter_.templates.at(static_cast<std::size_t>(index - 1)).file);
        write(QString::fromStdString(filled(text.subject.toStdString(), letter_.fields)),
              QString::fromStdString(filled(text.body.toStdString(), letter_.fields)));
    });
}

void Composer::write(const QString& subject, const QString& body)
{
    subject_->setText(subject);
    body_->setPlainText(body);
    shownSubject_ = subject_->text();
    shownBody_ = body_->toPlainText();
}

bool Composer::touched() const
{
    return recipients_->text() != letter_.recipients || subject_->text() != shownSubject_ ||
           body_->toPlainText() != shownBody_ || !attachments_->isEmpty();
}

} // namespace dn::host
