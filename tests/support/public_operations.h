// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The control's public operations as a dialog sees them: they write down that they were called.
#pragma once

#include "desk/public_operations.h"

#include <stdexcept>
#include <string>
#include <vector>

namespace dn::tests {

class FakeOperations final : public desk::PublicOperations {
public:
    void cmdSend_Click() override { called("cmdSend_Click"); }
    void Historial(std::int16_t& t, std::int32_t& Sys_PK) override
    {
        called("Historial " + std::to_string(t) + " " + std::to_string(Sys_PK));
    }
    std::int32_t ShSelAgente() override
    {
        called("ShSelAgente");
        return 0;
    }

    std::vector<std::string> calls;
    bool failing = false; ///< every call fails after it was written down

private:
    void called(std::string call)
    {
        calls.push_back(std::move(call));
        if (failing) throw std::runtime_error("fallo provocado");
    }
};

} // namespace dn::tests
