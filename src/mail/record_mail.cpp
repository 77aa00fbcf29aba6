// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "mail/record_mail.h"

#include "base/runtime_error.h"
#include "data/failure_modes.h"
#include "desk/shared.h"

namespace dn::mail {

using data::resumeNext;

namespace {

// @param where ends in the equals sign, with or without its blanks. @return an empty text for an unknown kind.
std::string statement(std::int16_t kind, const char* where, std::int32_t key)
{
    if (kind != ofProspect && kind != ofProject) return {};
    const std::string table = kind == ofProspect ? "ut_icontact" : "Proyecto";
    return "SELECT Sys_GUID FROM " + table + where + std::to_string(key);
}

const char* prefix(std::int16_t kind) { return kind == ofProspect ? "CT." : "PY."; }

CorreoHost& present(const std::shared_ptr<CorreoHost>& mail)
{
    if (!mail) throw RuntimeError::objectNotSet();
    return *mail;
}

} // namespace

void RecordMail::EnviaCorreo(std::int16_t& kind, std::int32_t& key, std::string& addresses,
                             bool& result) // continue-on-error
{
    result = false;
    std::string record;
    if (!find(statement(kind, " Where Sys_PK = ", key), prefix(kind), record)) return;
    const std::shared_ptr<CorreoHost> mail = begin();
    resumeNext([&] {
        bool sent = false; // a host that wrote a result and then failed has sent nothing
        present(mail).Enviar(record, addresses, "", "", "", "", sent);
        result = sent;
    });
}

void RecordMail::Historial(std::int16_t& t, std::int32_t& Sys_PK) // continue-on-error
{
    std::string record;
    if (!find(statement(t, " Where Sys_PK=", Sys_PK), prefix(t), record)) return;
    const std::shared_ptr<CorreoHost> mail = begin();
    resumeNext([&] { present(mail).VerHistorial(record); });
}

// The identifier of the record that a statement finds; it is left empty when it cannot be read.
// @return whether there is such a record. Without one the operator is told.
bool RecordMail::find(const std::string& statement, const char* prefix, std::string& record)
{
    std::unique_ptr<data::Recordset> found;
    if (!statement.empty()) resumeNext([&] { found = session_.cnn().execute(statement); });
    if (!found || (found->Eof() && found->Bof())) {
        resumeNext([&] { dialogs_.say("No se puede ubicar información del destinatario"); });
        return false;
    }
    resumeNext([&] {
        std::string identifier;
        desk::NullATexto(found->Fields()("Sys_GUID").Value(), identifier);
        record = prefix + identifier;
    });
    return true;
}

// A new object of the host's, bound to the connection; nothing when the host gives none.
std::shared_ptr<CorreoHost> RecordMail::begin()
{
    std::shared_ptr<CorreoHost> mail;
    resumeNext([&] { mail = host_.newCorreoHost(); });
    resumeNext([&] { present(mail).Inicia(session_.AdoCnn, session_.TemplatePath, session_.Usuario); });
    return mail;
}

} // namespace dn::mail
