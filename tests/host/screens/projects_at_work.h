// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// A project with two activities, for the tests of the windows that show them.
#pragma once

#include "tests/host/screens/fixture.h"

#include <QTreeWidget>

namespace dn::host::tests {

class ProjectsAtWork : public Screens {
protected:
    void SetUp() override;
    void opens(std::int32_t key = sale) { projects->EditarProyecto(key); }

    static QTreeWidget& list(QWidget& window, const char* name = "lstActividades");
    /// The rows of a list, a check box as "sí" or "no".
    static std::vector<Row> listed(QWidget& window, const char* name = "lstActividades");
    static void fillsActivity(QWidget& form, const char* moment, const char* kind, const char* subject);
    static std::string combo(QWidget& window, const char* name);
};

} // namespace dn::host::tests
