// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// A control whose fake database has projects: some with pending activities, which the first statement of the list
// gives, and some without, which only the second one gives.
#pragma once

#include "tests/support/control_fixture.h"

#include <cstdint>
#include <map>
#include <string>
#include <vector>

namespace dn::tests {

/// What the statements of the project list hold, and no other.
inline constexpr const char* readsActivities = "FROM ((((mdtpactividad";
inline constexpr const char* readsProjects = "FROM ((Proyecto INNER JOIN meta";
inline constexpr const char* readsContactData = "FROM (Proyecto INNER JOIN Organizacion";

class ProjectTest : public ControlTest {
protected:
    using Columns = std::map<std::string, Cell>;

    /// The rows that the statement of the pending activities gives from now on.
    void activities(std::vector<std::vector<Cell>> rows);
    /// The rows that the statement of all projects gives from now on.
    void projects(std::vector<std::vector<Cell>> rows);

    /// A pending activity of a project in status 1: the project's key and what else a test cares for, by column.
    std::vector<Cell> activity(std::int64_t project, Columns columns = {}) const;
    /// A project in status 1, as the second statement gives it.
    std::vector<Cell> project(std::int64_t key, Columns columns = {}) const;
    /// The contact data that every project has from now on, by column; the columns not named are null.
    void contactData(Columns columns);

    /// Shows the tab "Proyectos" and forgets the statements.
    void openProjects();
    void reload() { elements().projects.cbProjStatusProj.pick(elements().projects.cbProjStatusProj.ListIndex()); }

    screen::ListView& lvwProy() { return elements().projects.lvwProy; }
    /// All cells of a row, its text first.
    static std::vector<std::string> cells(const screen::ListItem& row);
    /// The key of the selected row, "none" without one.
    std::string selectedKey();
};

/// The columns that the statement of the pending activities gives.
const std::vector<std::string>& activityColumns();
/// The columns that the statement of all projects gives.
const std::vector<std::string>& projectColumns();
/// The columns that the statement of a project's contact data gives; the persons' e-mail as "Persona.EMail".
const std::vector<std::string>& contactDataColumns();

} // namespace dn::tests
