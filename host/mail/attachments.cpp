// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "host/mail/attachments.h"

#include "host/database/host_error.h"

#include <QFileInfo>
#include <QMimeDatabase>

namespace dn::host {
namespace {

[[noreturn]] void refuse(const QFile& file)
{
    throw HostError(
        ("No se pudo leer el archivo «" + file.fileName() + "»: " + file.errorString() + ".").toStdString());
}

/// @param most bytes; a file with more is not read any further.
Attachment readAttachment(const QString& path, qint64 most)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) refuse(file);
    const QByteArray content = file.read(most + 1);
    if (file.error() != QFileDevice::NoError) refuse(file);
    return {QFileInfo(path).fileName().toStdString(), QMimeDatabase().mimeTypeForFile(path).name().toStdString(),
            content.toStdString()};
}

} // namespace

std::vector<Attachment> readAttachments(const std::vector<std::filesystem::path>& files, int limit)
{
    std::vector<Attachment> attachments;
    qint64 left = qint64{limit} * 1024 * 1024;
    for (const std::filesystem::path& path : files) {
        Attachment attachment = readAttachment(QString::fromStdString(path.string()), left);
        left -= static_cast<qint64>(attachment.content.size());
        if (left < 0)
            throw HostError("El archivo «" + path.string() + "» creció: ahora los archivos pasan de " +
                            std::to_string(limit) + " MB, el máximo que lleva un correo.");
        attachments.push_back(std::move(attachment));
    }
    return attachments;
}

} // namespace dn::host
