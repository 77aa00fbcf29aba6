// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The operator before the tab "Proyectos": what stands in the host's tables, and what he sees in the list.
#pragma once

#include "tests/stories/operator.h"

#include <map>
#include <string>
#include <vector>

namespace dn::tests {

class ProjectOperator : public Operator {
protected:
    using Columns = std::map<std::string, std::string>; ///< SQL literals, by column

    /// Empties the host's tables and fills goals, types of activities, an organisation and a contact.
    ProjectOperator();

    /// A project of Ana in status 1, with Acme as organisation and María as contact; its key.
    std::int64_t project(const std::string& description, Columns columns = {});
    /// A pending activity, a visit; `columns` as literals.
    void activity(std::int64_t project, const std::string& subject, Columns columns = {});

    /// A project with a visit at nine on a day of March 2026; its key.
    std::int64_t due(const std::string& description, int day, const Columns& columns = {});

    void opensProjects() { opensTab(desk::proyectos); }
    void clicksProject(const std::string& description);
    /// The descriptions in the list of the projects, in the order shown.
    std::vector<std::string> seesProjects();
    /// The cells of a project by their headers; a cell that the row does not have is "-".
    std::string seesProjectCell(const std::string& description, const std::string& header);
    screen::ListItem projectRow(const std::string& description);

private:
    void insert(const std::string& table, const Columns& columns);
};

} // namespace dn::tests
