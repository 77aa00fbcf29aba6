// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The operator before his projects at the real windows, those of the reference host included: what a screen of the
// host stores is in the tables afterwards.
#pragma once

#include "host/screens/screens_factory.h"
#include "tests/stories/qt/window.h"
#include "tests/stories/with_projects.h"

#include <QTableView>

#include <functional>

namespace dn::tests {

/// Counts what a mouse does, so that a test of the keyboard alone proves to be one.
class MouseWatch : public QObject {
public:
    MouseWatch();
    bool eventFilter(QObject* watched, QEvent* event) override;
    int seen = 0;
};

class AtTheBoard : public WithProjects<AtTheWindow> {
protected:
    /// Two projects of Ana's with an activity each, "Silo" ahead of "Molino", and one without, "Granero".
    AtTheBoard();

    static constexpr int subject = 2; ///< columns of the list of projects
    static constexpr int description = 5;
    static constexpr int daysSinceContact = 12;

    /// Opens a tab with the mouse.
    void clicksTab(int tab);
    void clicksRow(const char* list, int row);
    std::string shown(const char* list, int row, int column);
    int selectedRow(const char* list);
    std::string text(const char* box);

    /// Fills what a new project of the host's needs with the keyboard, from its first field on, and accepts.
    void fillsProject(QWidget& window, const char* organisation, const char* what);

    /// "table|key|column|..." of every row that a call, a mark or a conversion may change.
    std::vector<std::string> everything();
    /// The log: "prospect|project|message".
    std::vector<std::string> log();

    /// Tells which statements of the host's screens fail ahead of the server.
    std::function<bool(std::string_view)> hostRefuses;
    host::ScreensFactory hostScreens;
};

} // namespace dn::tests
