// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The holder through which the control hands its connection to the host's screens. They keep it in mind and leave
// it alone: what they write stands in transactions, on a connection of their own, and the control's statements
// must never fall into one.
#pragma once

#include "host/screens/context.h"

#include <memory>

namespace dn::host {

class CrmConnection : public ConexionCRM {
public:
    explicit CrmConnection(std::shared_ptr<ScreenContext> context) : context_(std::move(context)) {}

    void AdoCnn(data::Connection* connection) override { context_->lent = connection; }

private:
    std::shared_ptr<ScreenContext> context_;
};

} // namespace dn::host
