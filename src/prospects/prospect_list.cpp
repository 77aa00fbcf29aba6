// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "prospects/prospect_list.h"

#include "data/failure_modes.h"
#include "prospects/prospect_row.h"
#include "prospects/prospect_statement.h"

#include <memory>
#include <optional>

namespace dn::prospects {

using data::resumeNext;

ProspectList::ProspectList(desk::Session& session, desk::ProspectElements& prospects, desk::TopElements& top,
                           desk::TabStrip& tabs, ProspectDetail& detail, desk::Counters& counters,
                           screen::Ports ports)
    : session_(session),
      prospects_(prospects),
      top_(top),
      tabs_(tabs),
      detail_(detail),
      counters_(counters),
      ports_(ports)
{
}

void ProspectList::LoadProspectos() // continue-on-error
{
    const std::uint64_t thisLoad = ++loads_;
    screen::ListView& lvw = prospects_.lvw;
    std::string selectedKey;
    resumeNext([&] {
        if (const auto selected = lvw.SelectedItem()) selectedKey = selected->Key();
    });
    resumeNext([&] { lvw.ListItems().Clear(); });
    resumeNext([&] { detail_.LimpiaDetalle(); });
    if (top_.cbAgente.ListIndex() < 0) return;

    const std::int16_t tab = tabs_.GetActiveTab();
    resumeNext([&] { ports_.pointer.MousePointer(screen::Pointer::hourglass); });
    resumeNext([&] { ports_.events.DoEvents(); });
    // During the yield the operator may have started a load of his own, which is done by now.
    if (thisLoad == loads_ && top_.cbAgente.ListIndex() >= 0) {
        resumeNext([&] { readRows(); });
        if (!selectedKey.empty()) resumeNext([&] { lvw.ListItems()(selectedKey).Selected(true); });
        // Or he went to another tab, whose detail is not this list's to fill.
        if (tab == tabs_.GetActiveTab())
            resumeNext([&] {
                if (const auto selected = lvw.SelectedItem()) detail_.lvw_ItemClick(selected);
            });
    }
    resumeNext([&] { ports_.pointer.MousePointer(screen::Pointer::standard); });
    resumeNext([&] { counters_.UpdateCounters(); });
}

void ProspectList::readRows() // continue-on-error
{
    std::int32_t agente = 0;
    resumeNext([&] { agente = top_.cbAgente.selectedData(); });
    const std::string statement = prospectStatement(session_.isMySql(), agente, prospects_.cbStatus.ListIndex());
    resumeNext([&] { fitTabs(agente); });
    std::unique_ptr<data::Recordset> records;
    resumeNext([&] { records = session_.cnn().execute(statement); });
    if (records) resumeNext([&] { addRows(*records); });
}

void ProspectList::fitTabs(std::int32_t agente)
{
    tabs_.showWorkTabs(agente != 0);
    if (agente == 0 && !tabs_.TabsContraidos()) tabs_.narrow(resumeNext<const std::function<void()>&>);
    if (agente != 0 && tabs_.TabsContraidos()) tabs_.restore(resumeNext<const std::function<void()>&>);
}

void ProspectList::addRows(data::Recordset& records)
{
    ProspectRowBuilder builder(prospects_.lvw, records, ports_.clock.Now());
    while (!records.Eof()) {
        builder.build();
        resumeNext([&] { records.MoveNext(); });
    }
}

} // namespace dn::prospects
