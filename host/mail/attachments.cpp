// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "host/mail/attachments.h"

#include "host/database/host_error.h"

#include <QFileInfo>
#include <QMimeDatabase>

#include <algorithm>

namespace dn::host {
namespace {

[[noreturn]] void refuse(const QFile& file)
{
    throw HostError(
        ("No se pudo leer el archivo «" + file.fileName() + "»: " + file.errorString() + ".").toStdString());
}

/// @param most bytes; a file with more is not read any further.
Attachment readAttachment(const QString& path, qint64 most, const SendProgress& progress)
{
    constexpr qint64 piece = 262'144; // bytes; from a folder on the network each may take its time
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) refuse(file);
    QByteArray content;
    QByteArray more;
    do {
        progress.heedCancel();
        more = file.read(std::min(piece, most + 1 - content.size()));
        if (file.error() != QFileDevice::NoError) refuse(file);
        content += more;
    } while (!more.isEmpty() && content.size() <= most);
    return {QFileInfo(path).fileName().toStdString(), QMimeDatabase().mimeTypeForFile(path).name().toStdString(),
            content.toStdString()};
}

} // namespace

std::vector<Attachment> readAttachments(const std::vector<std::filesystem::path>& files, int limit,
                                        const SendProgress& progress)
{
    std::vector<Attachment> attachments;
    qint64 left = qint64{limit} * 1024 * 1024;
    for (const std::filesystem::path& path : files) {
        Attachment attachment = readAttachment(QString::fromStdString(path.string()), left, progress);
        left -= static_cast<qint64>(attachment.content.size());
        if (left < 0)
            throw HostError("El archivo «" + path.string() + "» creció: ahora los archivos pasan de " +
                            std::to_string(limit) + " MB, el máximo que lleva un correo.");
        attachments.push_back(std::move(attachment));
    }
    return attachments;
}

} // namespace dn::host
