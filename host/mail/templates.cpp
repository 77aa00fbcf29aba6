// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "host/mail/templates.h"

#include "host/database/host_error.h"

#include <QDir>
#include <QFile>

namespace dn::host {
namespace {

constexpr qint64 mostBytes = 1 << 20; // bytes; more is no template

QString withoutMark(const QString& text)
{
    return text.startsWith(QChar(QChar::ByteOrderMark)) ? text.mid(1) : text;
}

} // namespace

std::vector<Template> templatesIn(const std::filesystem::path& folder)
{
    std::vector<Template> templates;
    if (folder.empty()) return templates;
    const QDir directory(QString::fromStdString(folder.string()));
    const auto files = directory.entryInfoList({"*.txt"}, QDir::Files | QDir::Readable,
                                               QDir::Name | QDir::IgnoreCase | QDir::LocaleAware);
    for (const QFileInfo& file : files)
        templates.push_back({file.completeBaseName(), file.filePath().toStdString()});
    return templates;
}

TemplateText readTemplate(const std::filesystem::path& path)
{
    QFile file(QString::fromStdString(path.string()));
    if (!file.open(QIODevice::ReadOnly) || file.size() > mostBytes)
        throw HostError("No se pudo leer la plantilla «" + path.string() + "».");
    QString text = withoutMark(QString::fromUtf8(file.readAll()));
    text.replace("\r\n", "\n");
    TemplateText result;
    const QString mark = "Asunto:";
    if (text.startsWith(mark, Qt::CaseInsensitive)) {
        result.subject = text.section('\n', 0, 0).mid(mark.size()).trimmed();
        text = text.section('\n', 1);
        if (text.startsWith('\n')) text.remove(0, 1);
    }
    result.body = text;
    return result;
}

} // namespace dn::host
