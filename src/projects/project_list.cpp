// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "projects/project_list.h"

#include "data/failure_modes.h"
#include "projects/project_row.h"
#include "projects/project_statement.h"

#include <memory>
#include <string>

namespace dn::projects {

using data::resumeNext;

void ProjectList::cbProjStatusProj_Click() { RefreshProyectos(); }

void ProjectList::RefreshProyectos() // continue-on-error
{
    if (projects_.cbProjStatusProj.ListIndex() < 0) {
        resumeNext([&] { projects_.cbProjStatusProj.ListIndex(0); }); // the click that this raises loads the list
        return;
    }
    screen::ListView& lvwProy = projects_.lvwProy;
    std::unique_ptr<data::Recordset> records;
    resumeNext([&] {
        records = session_.cnn().execute(
            pendingActivitiesStatement(session_.isMySql(), top_.cbAgente.selectedData(), filterStatus()));
    });
    std::string selectedKey;
    resumeNext([&] {
        if (const auto selected = lvwProy.SelectedItem()) selectedKey = selected->Key();
    });
    resumeNext([&] { lvwProy.ListItems().Clear(); });
    if (records) resumeNext([&] { addProjectsByActivity(*records); });
    records.reset();
    resumeNext([&] {
        records = session_.cnn().execute(projectsStatement(top_.cbAgente.selectedData(), filterStatus()));
    });
    if (records) resumeNext([&] { addProjectsWithoutActivity(*records); });
    records.reset(); // ahead of the timeline, whose statement need not read the rest of this one first
    if (!selectedKey.empty()) resumeNext([&] { lvwProy.ListItems()(selectedKey).Selected(true); });
    resumeNext([&] { detail_.lvwProy_ItemClick(lvwProy.SelectedItem()); });
    resumeNext([&] { counters_.UpdateCounters(); });
}

// The last entry, "Perdidos", stands for the status 6: no entry shows the projects of status 5.
int ProjectList::filterStatus() const
{
    constexpr int lastPosition = 5;
    constexpr int perdido = 6;
    const int position = projects_.cbProjStatusProj.ListIndex();
    return position == lastPosition ? perdido : position;
}

void ProjectList::addProjectsByActivity(data::Recordset& records)
{
    ProjectRowBuilder builder(projects_.lvwProy, records);
    while (!records.Eof()) {
        builder.addByActivity();
        resumeNext([&] { records.MoveNext(); });
    }
}

void ProjectList::addProjectsWithoutActivity(data::Recordset& records)
{
    ProjectRowBuilder builder(projects_.lvwProy, records);
    while (!records.Eof()) {
        builder.addWithoutActivity();
        resumeNext([&] { records.MoveNext(); });
    }
}

} // namespace dn::projects
