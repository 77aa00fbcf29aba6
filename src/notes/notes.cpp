// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "notes/notes.h"

#include "base/format.h"
#include "base/text.h"
#include "data/activity_log.h"
#include "data/failure_modes.h"
#include "desk/row_key.h"
#include "desk/timeline.h"

#include <array>
#include <tuple>

namespace dn::notes {
namespace {

// The only protection of the statement: apostrophes are lost, not doubled. Blanks that the removal brings to an
// end of the text stay.
constexpr std::array<std::string (*)(const std::string&), 3> cleaning{
    [](const std::string& text) { return std::string(trimmed(text)); },
    [](const std::string& text) { return without(text, crlf); },
    [](const std::string& text) { return without(text, "'"); }};

constexpr const char* nothingWritten = "Debe escribir un mensaje";

std::string selectedKey(screen::ListView& list)
{
    const auto row = list.SelectedItem();
    return row ? std::string(row->Key()) : std::string();
}

std::string cleaned(std::string text)
{
    for (const auto step : cleaning)
        text = step(text);
    return text;
}

} // namespace

void Notes::cmdIntro_Click() // trap
{
    const auto body = [&] {
        screen::ListView* const target = targetList();
        if (target == nullptr) return;
        cleanText();
        if (elements_.detail.txtText.Text().empty()) {
            ports_.dialogs.say(nothingWritten);
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
        return row ? listOfTheDay(*row) : nullptr;
    }
    default:
        return &lvw;
    }
}

// The click on the row yields, and by its end the operator may have another party before him. What he registered
// is for the one at which he did so: it is stored here then, unless he registered it again meanwhile, and nothing
// is left to do.
screen::ListView* Notes::listOfTheDay(const screen::ListItem& row)
{
    const std::string typed = elements_.detail.txtText.Text();
    screen::ListView& list = todayPanel_.selectRecord(row);
    const auto inHand = [&] {
        return std::tuple(tabs_.GetActiveTab(), selectedKey(elements_.today.lvwHoy), selectedKey(list));
    };
    const auto before = inHand();
    const unsigned written = written_;
    todayPanel_.lvwHoy_ItemClick(row);
    if (inHand() == before) return &list;
    const std::string& rowKey = std::get<2>(before);
    const bool twice = written_ != written && last_ == Note{&list, rowKey.substr(1), cleaned(typed)};
    if (!twice) storeForThePartyLeft(list, rowKey, typed);
    return nullptr;
}

// The timeline in sight is another party's by now, and so may be the text in the box.
void Notes::storeForThePartyLeft(screen::ListView& list, const std::string& rowKey, const std::string& typed)
{
    const std::string text = cleaned(typed);
    if (text.empty()) {
        ports_.dialogs.say(nothingWritten);
        return;
    }
    insert(list, rowKey.substr(1), text); // there is one: without a selected record nothing yields
    if (elements_.detail.txtText.Text() == typed) elements_.detail.txtText.Text("");
}

void Notes::cleanText()
{
    screen::TextBox& txtText = elements_.detail.txtText;
    for (const auto step : cleaning)
        txtText.Text(step(txtText.Text()));
}

void Notes::insert(const screen::ListView& list, const std::string& key, const std::string& text)
{
    const bool ofProspect = &list == &elements_.prospects.lvw;
    session_.cnn().execute(ofProspect ? data::bitacora::prospectRow(text, session_.Usuario, key)
                                      : data::bitacora::projectRow(text, session_.Usuario, key));
    ++written_;
    last_ = {&list, key, text};
}

void Notes::store(screen::ListView& target)
{
    screen::TextBox& txtText = elements_.detail.txtText;
    screen::TextBox& txtBit = elements_.detail.txtBit;
    insert(target, desk::keyDigits(desk::selectedRow(target)), txtText.Text());
    txtBit.Text(desk::timelineEntry(session_.Usuario, defaultText(ports_.clock.Now()), txtText.Text()) +
                txtBit.Text());
    txtText.Text("");
}

} // namespace dn::notes
