// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "host/mail/outbox.h"

#include "host/database/host_error.h"

#include <QDir>
#include <QSaveFile>

#include <sys/stat.h>

#include <cerrno>

namespace dn::host {
namespace {

[[noreturn]] void refuse(const std::filesystem::path& place, const std::string& why)
{
    throw HostError("No se pudo guardar el correo en «" + place.string() + "»: " + why + ".");
}

void makeFolder(const std::filesystem::path& folder)
{
    std::error_code error;
    std::filesystem::create_directories(folder.parent_path(), error);
    if (error) refuse(folder, systemReason(error.value()));
    if (::mkdir(folder.c_str(), 0700) != 0 && errno != EEXIST) refuse(folder, systemReason(errno));
}

} // namespace

std::filesystem::path putIntoOutbox(const std::filesystem::path& folder, const std::string& name,
                                    const std::string& text)
{
    makeFolder(folder);
    std::filesystem::path path = folder / (name + ".eml");
    QSaveFile file(QString::fromStdString(path.string()));
    const bool written =
        file.open(QIODevice::WriteOnly) && file.setPermissions(QFile::ReadOwner | QFile::WriteOwner) &&
        file.write(text.data(), static_cast<qint64>(text.size())) == static_cast<qint64>(text.size()) &&
        file.commit();
    if (!written) refuse(path, file.errorString().toStdString());
    return path;
}

} // namespace dn::host
