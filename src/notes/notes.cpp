// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "notes/notes.h"

#include "base/format.h"
#include "base/text.h"
#include "data/activity_log.h"
#include "data/failure_modes.h"
#include "desk/row_key.h"
#include "desk/timeline.h"

namespace dn::notes {

void Notes::cmdIntro_Click() // trap
{
    const auto body = [&] {
        screen::ListView* const target = targetList();
        if (target == nullptr) return;
        cleanText();
        if (elements_.detail.txtText.Text().empty()) {
            ports_.dialogs.say("Debe escribir un mensaje");
            elements_.detail.txtText.SetFocus();
            return;
        }
        store(*target);
    };
    data::trap(body, [&](const std::string& failure) { ports_.dialogs.say(failure); });
}

void Notes::cmdNote_Click() // continue-on-error
{
    std::string answer;
    data::resumeNext([&] { answer = ports_.dialogs.InputBox("Nota:"); });
    if (trimmed(answer).empty()) return;
    data::resumeNext([&] { elements_.detail.txtText.Text(answer); });
    data::resumeNext([&] { cmdIntro_Click(); });
}

void Notes::txtText_KeyPress(int& KeyAscii)
{
    if (KeyAscii != screen::TextBox::keyEnter) return;
    KeyAscii = 0;
    cmdIntro_Click();
}

// The list whose selected row the note is for; nothing where there is no row to write to. On the tabs without
// prospects or projects it is the prospects', whether a row is selected there or not.
screen::ListView* Notes::targetList()
{
    screen::ListView& lvw = elements_.prospects.lvw;
    screen::ListView& lvwProy = elements_.projects.lvwProy;
    std::int16_t tab = desk::none;
    tabs_.GetActiveTab(tab);
    switch (tab) {
    case desk::prospectos:
        return lvw.SelectedItem() ? &lvw : nullptr;
    case desk::proyectos:
        return lvwProy.SelectedItem() ? &lvwProy : nullptr;
    case desk::hoy: {
        const auto row = elements_.today.lvwHoy.SelectedItem();
        if (!row) return nullptr;
        todayPanel_.lvwHoy_ItemClick(row); // selects the record that the row points to
        return row->Text() == today::prospectType ? &lvw : &lvwProy;
    }
    default:
        return &lvw;
    }
}

// The only protection of the statement: apostrophes are lost, not doubled. Blanks that the removal brings to an
// end of the text stay.
void Notes::cleanText()
{
    screen::TextBox& txtText = elements_.detail.txtText;
    txtText.Text(std::string(trimmed(txtText.Text())));
    txtText.Text(without(txtText.Text(), crlf));
    txtText.Text(without(txtText.Text(), "'"));
}

void Notes::store(screen::ListView& target)
{
    screen::TextBox& txtText = elements_.detail.txtText;
    screen::TextBox& txtBit = elements_.detail.txtBit;
    const std::string key = desk::keyDigits(desk::selectedRow(target));
    const bool ofProspect = &target == &elements_.prospects.lvw;
    session_.cnn().execute(ofProspect ? data::bitacora::prospectRow(txtText.Text(), session_.Usuario, key)
                                      : data::bitacora::projectRow(txtText.Text(), session_.Usuario, key));
    txtBit.Text(desk::timelineEntry(session_.Usuario, defaultText(ports_.clock.Now()), txtText.Text()) +
                txtBit.Text());
    txtText.Text("");
}

} // namespace dn::notes
