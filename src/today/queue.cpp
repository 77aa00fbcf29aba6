// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "today/queue.h"

#include "data/failure_modes.h"
#include "today/queue_row.h"

#include <memory>

namespace dn::today {

using data::resumeNext;

void Queue::RefreshRobot() // continue-on-error
{
    const std::int16_t tab = tabs_.GetActiveTab();
    widenLists();
    if (elements_.top.cbAgente.ListIndex() < 1) return;
    screen::ListView& lvwHoy = elements_.today.lvwHoy;
    std::string selectedKey;
    resumeNext([&] {
        if (const auto selected = lvwHoy.SelectedItem()) selectedKey = selected->Key();
    });
    resumeNext([&] { lvwHoy.ListItems().Clear(); });
    std::int32_t agente = 0;
    resumeNext([&] { agente = elements_.top.cbAgente.selectedData(); });
    readView("qhoy", agente);
    readView("qatascados", agente); // a party of both views keeps its row of the first
    if (!selectedKey.empty()) selectAgain(selectedKey, tab);
    resumeNext([&] { counters_.UpdateCounters(); });
    enableCommands();
}

// A click on the queue finds its record in the two other lists, so they must hold it.
void Queue::widenLists()
{
    for (desk::ComboBox* filter : {&elements_.prospects.cbStatus, &elements_.projects.cbProjStatusProj})
        if (filter->ListIndex() != 0) resumeNext([&] { filter->ListIndex(0); });
}

void Queue::readView(const char* view, std::int32_t agente)
{
    std::unique_ptr<data::Recordset> records;
    resumeNext([&] {
        records = session_.cnn().execute(std::string("select * from ") + view + " where ejecutivo=" +
                                         std::to_string(agente) + " order by cita, tipo, sys_pk");
    });
    if (!records) return;
    resumeNext([&] {
        QueueRowBuilder builder(elements_.today.lvwHoy, *records, clock_.Now());
        while (!records->Eof()) {
            builder.build();
            resumeNext([&] { records->MoveNext(); });
        }
    });
}

void Queue::selectAgain(const std::string& key, std::int16_t tab)
{
    screen::ListView& lvwHoy = elements_.today.lvwHoy;
    resumeNext([&] { lvwHoy.ListItems()(key).Selected(true); });
    // While a list was loaded the operator may have gone to another tab, whose detail is not the queue's to fill.
    if (tab == tabs_.GetActiveTab()) resumeNext([&] { panel_.lvwHoy_ItemClick(lvwHoy.SelectedItem()); });
}

void Queue::enableCommands()
{
    const bool any = elements_.today.lvwHoy.ListItems().Count() >= 1;
    resumeNext([&] { elements_.today.cmdEditHoy.Enabled(any); });
    resumeNext([&] { elements_.today.geProyFromContacto.Enabled(any); });
}

} // namespace dn::today
