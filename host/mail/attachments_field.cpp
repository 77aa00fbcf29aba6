// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "host/mail/attachments_field.h"

#include "host/mail/mail_history.h"
#include "host/screens/boxes.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QItemSelectionModel>
#include <QKeyEvent>
#include <QVBoxLayout>

namespace dn::host {
namespace {

constexpr int pathRole = Qt::UserRole;
constexpr int sizeRole = Qt::UserRole + 1;
constexpr int rowsInSight = 3;

QString sizeOf(qint64 bytes) { return QString::fromStdString(sizeText(static_cast<std::size_t>(bytes))); }

} // namespace

AttachmentsField::AttachmentsField(int limit, QWidget* parent) : QWidget(parent), limit_(limit)
{
    list_->setObjectName("lstAdjuntos");
    list_->setAccessibleName("Archivos adjuntos");
    list_->setSelectionMode(QAbstractItemView::ExtendedSelection);
    list_->setMaximumHeight(list_->fontMetrics().height() * (rowsInSight + 2));
    list_->installEventFilter(this);
    adds_->setObjectName("cmdAdjuntar");
    removes_->setObjectName("cmdQuitar");
    total_->setObjectName("lblTotal");
    connect(adds_, &QPushButton::clicked, this, [this] { choose(); });
    connect(removes_, &QPushButton::clicked, this, [this] { removeChosen(); });

    auto* const line = new QHBoxLayout;
    line->addWidget(total_, 1);
    line->addWidget(adds_);
    line->addWidget(removes_);
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addLayout(line);
    layout->addWidget(list_);
    setTabOrder(adds_, removes_);
    setTabOrder(removes_, list_);
    showTotal();
}

void AttachmentsField::add(const QString& path)
{
    const QFileInfo file(path);
    for (int i = 0; i < list_->count(); ++i)
        if (list_->item(i)->data(pathRole).toString() == file.absoluteFilePath()) return;
    if (!file.isFile() || !file.isReadable()) {
        tell(window(), "No se puede leer el archivo «" + path + "».");
        return;
    }
    if (total() + file.size() > qint64{limit_} * 1024 * 1024) {
        tell(window(), QString("Con «%1» (%2) los archivos pasan de %3 MB, el máximo que lleva un correo.")
                           .arg(file.fileName(), sizeOf(file.size()))
                           .arg(limit_));
        return;
    }
    auto* const item = new QListWidgetItem(file.fileName() + "  (" + sizeOf(file.size()) + ")", list_);
    item->setData(pathRole, file.absoluteFilePath());
    item->setData(sizeRole, file.size());
    list_->setCurrentItem(item, QItemSelectionModel::ClearAndSelect);
    showTotal();
}

std::vector<std::filesystem::path> AttachmentsField::files() const
{
    std::vector<std::filesystem::path> files;
    files.reserve(static_cast<std::size_t>(list_->count()));
    for (int i = 0; i < list_->count(); ++i)
        files.emplace_back(list_->item(i)->data(pathRole).toString().toStdString());
    return files;
}

bool AttachmentsField::eventFilter(QObject* watched, QEvent* event)
{
    const bool deletes = event->type() == QEvent::KeyPress &&
                         static_cast<const QKeyEvent*>(event)->key() == Qt::Key_Delete; // NOLINT: the type says so
    if (!deletes) return QWidget::eventFilter(watched, event);
    removeChosen();
    return true;
}

void AttachmentsField::choose()
{
    QFileDialog dialog(this, "Adjuntar archivos");
    dialog.setObjectName("Adjuntar");
    dialog.setFileMode(QFileDialog::ExistingFiles);
    if (dialog.exec() != QDialog::Accepted) return;
    for (const QString& path : dialog.selectedFiles())
        add(path);
}

void AttachmentsField::removeChosen()
{
    qDeleteAll(list_->selectedItems());
    if (isEmpty()) adds_->setFocus(); // the list goes, and the focus with it
    showTotal();
}

void AttachmentsField::showTotal()
{
    const int count = list_->count();
    list_->setVisible(count > 0);
    removes_->setVisible(count > 0);
    if (count == 0)
        total_->setText("Sin archivos adjuntos");
    else
        total_->setText(QString(count == 1 ? "%1 archivo adjunto, %2" : "%1 archivos adjuntos, %2")
                            .arg(count)
                            .arg(sizeOf(total())));
}

qint64 AttachmentsField::total() const
{
    qint64 sum = 0;
    for (int i = 0; i < list_->count(); ++i)
        sum += list_->item(i)->data(sizeRole).toLongLong();
    return sum;
}

} // namespace dn::host
