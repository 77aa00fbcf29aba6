// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The templates of mails: text files of a folder. A file's name is the template's; its first line may be
// "Asunto: ..." with the subject, the rest is the text. Both may name fields of the party, such as {nombre}.
#pragma once

#include <QString>

#include <filesystem>
#include <vector>

namespace dn::host {

struct Template {
    QString name;
    std::filesystem::path file;
};

struct TemplateText {
    QString subject;
    QString body;
};

/// The templates of a folder, the files that end in ".txt", by name. None for a folder that is not there.
std::vector<Template> templatesIn(const std::filesystem::path& folder);

/// @throws HostError when the file cannot be read.
TemplateText readTemplate(const std::filesystem::path& path);

} // namespace dn::host
