// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "host/mail/history_window.h"

#include "host/screens/boxes.h"
#include "host/screens/field.h"
#include "host/screens/report_list.h"

#include <QPushButton>
#include <QVBoxLayout>

namespace dn::host {

HistoryWindow::HistoryWindow(OwnConnection& database, const std::string& record, const QString& party,
                             QWidget* over)
    : QDialog(over), database_(database)
{
    setObjectName("VerHistorial");
    setWindowTitle(party.isEmpty() ? QString("Historial de correos") : "Historial de correos: " + party);
    build();
    fill(record);
    list_->setFocus();
}

void HistoryWindow::build()
{
    dressAsReport(*list_, "lstCorreos", "Correos enviados",
                  {{"Fecha", 19}, {"Para", 36}, {"Asunto", 0}, {"Usuario", 18}});
    caption_->setObjectName("lblCorreos");
    caption_->setBuddy(list_);
    head_->setObjectName("lblCorreo");
    head_->setTextFormat(Qt::PlainText);
    head_->setWordWrap(true);
    head_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    text_->setObjectName("Texto");
    text_->setAccessibleName("Texto del correo");
    text_->setReadOnly(true);
    text_->setTabChangesFocus(true);
    auto* const close = new QPushButton("&Cerrar", this);
    close->setObjectName("cmdCerrar");
    connect(close, &QPushButton::clicked, this, &QDialog::reject);
    connect(list_, &QTreeWidget::currentItemChanged, this, [this] { showText(); });
    auto* const layout = new QVBoxLayout(this);
    layout->addWidget(caption_);
    layout->addWidget(list_, 2);
    layout->addWidget(head_);
    layout->addWidget(text_, 3);
    layout->addWidget(close, 0, Qt::AlignRight);
    resize(fontMetrics().averageCharWidth() * 116, fontMetrics().height() * 38);
}

void HistoryWindow::fill(const std::string& record)
{
    mails_ = mailsOf(database_, record);
    QList<QTreeWidgetItem*> items;
    for (const StoredMail& mail : mails_) {
        auto* const item =
            new QTreeWidgetItem({momentText(mail.moment), QString::fromStdString(mail.recipients),
                                 QString::fromStdString(mail.subject), QString::fromStdString(mail.user)});
        item->setToolTip(1, QString::fromStdString(mail.recipients));
        items.append(item);
    }
    list_->addTopLevelItems(items);
    const bool all = mails_.size() < static_cast<std::size_t>(historyLimit);
    caption_->setText(
        mails_.empty()
            ? QString("No se ha enviado ningún correo.")
            : QString(all ? "Correos &enviados (%1)" : "Correos &enviados (los últimos %1)").arg(mails_.size()));
    list_->setCurrentItem(list_->topLevelItem(0));
    showText();
}

void HistoryWindow::showText()
{
    const int row = list_->indexOfTopLevelItem(list_->currentItem());
    const bool chosen = row >= 0;
    head_->setVisible(chosen);
    text_->clear();
    if (!chosen) return;
    const StoredMail& mail = mails_.at(static_cast<std::size_t>(row));
    head_->setText("De: " + QString::fromStdString(mail.sender) + "\nPara: " +
                   QString::fromStdString(mail.recipients) + "\nAsunto: " + QString::fromStdString(mail.subject));
    reporting(this, [&] { text_->setPlainText(QString::fromStdString(mailBody(database_, mail.key))); });
}

} // namespace dn::host
