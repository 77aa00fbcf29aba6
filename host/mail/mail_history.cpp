// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "host/mail/mail_history.h"

namespace dn::host {
namespace {

// MySQL's and SQL Server's numbers of a table that is not there, and the standard's state for it.
bool isMissingTable(const data::Error& error)
{
    return error.nativeCode() == 1146 || error.nativeCode() == 208 || error.sqlState() == "42S02";
}

std::string storedBody(const Message& message)
{
    std::string body = message.body;
    for (const Attachment& attachment : message.attachments) {
        body += &attachment == &message.attachments.front() ? "\n\n" : "\n";
        body += "[Archivo adjunto: " + attachment.name + ", " + sizeText(attachment.content.size()) + "]";
    }
    return body;
}

} // namespace

bool keepsMailHistory(OwnConnection& database)
{
    try {
        database.run(Statement("SELECT Sys_PK FROM correo_historial WHERE Sys_PK = ?").bind(0));
        return true;
    } catch (const data::Error& error) {
        if (isMissingTable(error)) return false;
        throw;
    }
}

void storeMail(OwnConnection& database, const std::string& record, const Message& message, const std::string& user)
{
    Statement statement("INSERT INTO correo_historial (identificador, remitente, destinatarios, asunto, cuerpo, "
                        "id_mensaje, usuario) VALUES (?, ?, ?, ?, ?, ?, ?)");
    statement.bind(record).bind(message.sender).bind(message.recipientList()).bind(message.subject);
    statement.bind(storedBody(message)).bind(message.id).bind(user);
    database.run(statement);
}

std::vector<StoredMail> mailsOf(OwnConnection& database, const std::string& record)
{
    Statement statement("SELECT Sys_PK, tiempo, remitente, destinatarios, asunto, usuario FROM correo_historial "
                        "WHERE identificador = ? ORDER BY tiempo DESC, Sys_PK DESC");
    const auto rows = database.run(statement.bind(record).limit(historyLimit));
    std::vector<StoredMail> mails;
    for (; !rows->Eof(); rows->MoveNext())
        mails.push_back({rows->value(0).toInt32(), textOf(*rows, 1), textOf(*rows, 2), textOf(*rows, 3),
                         textOf(*rows, 4), textOf(*rows, 5)});
    return mails;
}

std::string mailBody(OwnConnection& database, std::int32_t key)
{
    const auto row = database.run(Statement("SELECT cuerpo FROM correo_historial WHERE Sys_PK = ?").bind(key));
    return row->Eof() ? std::string() : textOf(*row, 0);
}

std::string sizeText(std::size_t bytes)
{
    constexpr std::size_t kilo = 1024;
    if (bytes < kilo * kilo) return std::to_string((bytes + kilo - 1) / kilo) + " KB";
    const std::size_t tenths = (bytes * 10 + kilo * kilo / 2) / (kilo * kilo);
    return std::to_string(tenths / 10) + "." + std::to_string(tenths % 10) + " MB";
}

} // namespace dn::host
