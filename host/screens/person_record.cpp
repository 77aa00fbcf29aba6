// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "host/screens/person_record.h"

#include "data/error.h"
#include "host/database/host_error.h"
#include "host/database/statement.h"

namespace dn::host {
namespace {

class Agent : public EjecutivoRegistro {
public:
    explicit Agent(std::int32_t key) : key_(key) {}
    std::int32_t Llave() override { return key_; }

private:
    std::int32_t key_;
};

} // namespace

void PersonRecord::Cargar(std::int32_t& key, std::string&, HostObject&, std::int16_t&, bool& result)
{
    key_ = 0;
    agent_ = 0;
    lastError_.clear();
    try {
        load(key);
    } catch (const data::Error& failure) {
        lastError_ = std::string("El servidor respondió: ") + failure.what();
    } catch (const std::exception& failure) {
        lastError_ = failure.what();
    }
    result = lastError_.empty();
}

void PersonRecord::load(std::int32_t key)
{
    if (key < 1) throw HostError("No hay ninguna persona elegida.");
    if (connection_ == nullptr) throw HostError("Falta la conexión a la base de datos.");
    // A number and no text: the statement is the same for every engine.
    const auto row =
        connection_->execute(Statement("SELECT Sys_PK, COALESCE(IEjecutivo, 0) FROM Persona WHERE Sys_PK = ?")
                                 .bind(key)
                                 .text(Engine::mariadb));
    if (row->Eof()) throw HostError("Esta persona ya no está en el directorio.");
    agent_ = row->value(1).toInt32();
    key_ = key;
}

std::shared_ptr<EjecutivoRegistro> PersonRecord::Ejecutivo() { return std::make_shared<Agent>(agent_); }

} // namespace dn::host
