// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// What the host's screens share: their way to the database, who works, and the window that they stand over.
#pragma once

#include "desk/host_objects.h"
#include "host/database/own_connection.h"

#include <QPointer>
#include <QWidget>

#include <cstdint>
#include <string>

namespace dn::host {

/// Held together by every object that the factory gave out, so that the connection lives as long as any of them.
struct ScreenContext {
    OwnConnection database;
    QPointer<QWidget> window;         ///< the program's main window
    std::int32_t agent = 0;           ///< whose work the control shows, 0 for nobody's
    std::string user = {};            ///< what the activity log shows
    std::string pathXML = {};         ///< where the screens may keep their settings
    HostObject lands = {};            ///< passed on by the control; of no meaning here
    data::Connection* lent = nullptr; ///< the control's connection; these screens leave it alone
    std::int16_t motor = 0;           ///< the engine that the control found
};

} // namespace dn::host
