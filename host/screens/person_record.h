// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// A person that the control reads ahead of its screen. It is read on the connection that the control hands over:
// one statement that only looks, outside any transaction, which therefore stands in nobody's way.
#pragma once

#include "desk/host_objects.h"

#include <memory>

namespace dn::host {

class PersonRecord : public PersonaRegistro {
public:
    void Conexion(data::Connection* connection) override { connection_ = connection; }
    /// The text, the object and the mode select nothing here. A failure leaves no person loaded.
    void Cargar(std::int32_t& key, std::string& text, HostObject& object, std::int16_t& mode,
                bool& result) override;
    /// Empty while there was none.
    std::string UltimoError() override { return lastError_; }
    /// 0 before a person is loaded.
    std::int32_t Llave() override { return key_; }
    /// Its key is 0 for a person whom nobody looks after, and before one is loaded.
    std::shared_ptr<EjecutivoRegistro> Ejecutivo() override;

private:
    void load(std::int32_t key);

    data::Connection* connection_ = nullptr;
    std::int32_t key_ = 0;
    std::int32_t agent_ = 0;
    std::string lastError_;
};

} // namespace dn::host
