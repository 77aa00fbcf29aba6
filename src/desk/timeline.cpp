// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "desk/timeline.h"

#include "base/text.h"
#include "data/activity_log.h"
#include "data/failure_modes.h"
#include "desk/row_key.h"
#include "desk/shared.h"

#include <algorithm>
#include <memory>
#include <vector>

namespace dn::desk {

using data::resumeNext;

void Timeline::LoadBitacora(const bool& deProyecto)
{
    screen::TextBox& txtBit = elements_.detail.txtBit;
    txtBit.Text(""); // ahead of the continue-on-error mode
    screen::ListView& list = deProyecto ? elements_.projects.lvwProy : elements_.prospects.lvw;
    const auto selected = list.SelectedItem();
    if (!selected) return;
    const std::uint64_t thisLoad = ++load_;

    std::unique_ptr<data::Recordset> lines;
    resumeNext([&] {
        const std::string key = keyDigits(*selected);
        lines = session_.cnn().execute(deProyecto ? data::bitacora::projectRows(key)
                                                  : data::bitacora::prospectRows(key));
    });
    resumeNext([&] { ports_.pointer.MousePointer(screen::Pointer::hourglass); });
    resumeNext([&] { ports_.events.DoEvents(); });
    // Whoever clicked another row during the yield has that row's timeline in the box by now, and whoever went
    // elsewhere an empty box.
    if (lines && thisLoad == load_) resumeNext([&] { txtBit.Text(entriesOf(*lines) + txtBit.Text()); });
    resumeNext([&] { ports_.pointer.MousePointer(screen::Pointer::standard); });
}

// Each line goes ahead of those before it. They are put together from the end once, so that a long history costs
// no more than its length.
std::string Timeline::entriesOf(data::Recordset& lines)
{
    std::vector<std::string> entries;
    std::size_t size = 0;
    while (!lines.Eof()) {
        resumeNext([&] {
            std::string usuario;
            std::string moment;
            std::string message;
            NullATexto(lines.Fields()("uf_Usuario").Value(), usuario);
            NullATexto(lines.Fields()("uf_Tiempo").Value(), moment);
            NullATexto(lines.Fields()("uf_Mensaje").Value(), message);
            entries.push_back(timelineEntry(usuario, moment, message));
            size += entries.back().size();
        });
        resumeNext([&] { lines.MoveNext(); });
    }
    std::string text;
    text.reserve(size);
    std::reverse(entries.begin(), entries.end());
    for (const std::string& entry : entries)
        text += entry;
    return text;
}

std::string timelineEntry(std::string_view usuario, std::string_view moment, std::string_view message)
{
    std::string entry;
    entry.append(usuario).append(" [").append(moment).append("]").append(crlf);
    entry.append(message).append(crlf).append(crlf);
    return entry;
}

} // namespace dn::desk
