// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/faults/at_work.h"

#include "tests/support/element_tree.h"

#include <array>
#include <set>

namespace dn::tests {

void EasyWindows::ShowModal(screen::Form& form)
{
    ++open;
    form.Visible(true);
    const auto act = acts.find(form.name());
    try {
        if (act != acts.end() && seen_[form.name()]++ == 0) act->second(form);
    } catch (const std::exception& failure) { // the layer of the screen hands it to the host, and the window stays
        left = failure.what();
    }
    if (form.Visible()) form.closeWindow();
    --open;
}

AtWork::AtWork(std::unique_ptr<data::Connection> connection)
    : cnn(std::make_unique<WatchedConnection>(std::move(connection)))
{
}

void AtWork::begins(std::int32_t agent, bool admin)
{
    control.hostObjects(&host);
    control.SetObjects(cnn.get(), agent, admin, "ana");
    control.InitUICRM("pantallas", lands);
    control.RefreshData();
}

void AtWork::clicksRow(screen::ListView& list, const char* key)
{
    list.clickRow(static_cast<std::size_t>(list.ListItems()(key).Index()) - 1);
}

void AtWork::checks(const char* key)
{
    screen::ListView& lvw = elements().prospects.lvw;
    lvw.toggleCheck(static_cast<std::size_t>(lvw.ListItems()(key).Index()) - 1);
}

void AtWork::presses(const char* button) { elementNamed<screen::Button>(control.root(), button).press(); }

void AtWork::types(const char* textBox, const char* text)
{
    elementNamed<screen::TextBox>(control.root(), textBox).type(text);
}

void AtWork::picks(const char* combo, const char* entry)
{
    elementNamed<screen::ComboBox>(control.root(), combo).pick(std::string_view(entry));
}

namespace {

bool keysDiffer(screen::ListView& list)
{
    std::set<std::string> keys;
    screen::ListItems rows = list.ListItems();
    for (int i = 1; i <= rows.Count(); ++i)
        if (!keys.emplace(rows(i).Key()).second) return false;
    return true;
}

} // namespace

std::string AtWork::whatIsWrong(bool hourglassMayStay)
{
    std::string wrong;
    const auto check = [&](bool holds, const char* what) {
        if (!holds) wrong += std::string(wrong.empty() ? "" : "; ") + what;
    };
    desk::Elements& all = elements();
    const std::array<screen::ListView*, desk::TabStrip::count> lists{
        &all.prospects.lvw, &all.projects.lvwProy, &all.today.lvwHoy, &all.organisations.lvwOrganizaciones,
        &all.persons.lvwContactos};
    int active = 0;
    int shown = desk::hoy; // on the first screen
    for (int tab = 0; tab < desk::TabStrip::count; ++tab)
        if (all.top.lblItem(tab).BackColor() == desk::TabStrip::activeColour) {
            ++active;
            shown = tab;
        }
    check(active <= 1, "several tabs are active");
    for (int tab = 0; tab < desk::TabStrip::count; ++tab)
        if (active == 1)
            check(lists[static_cast<std::size_t>(tab)]->Visible() == (tab == shown),
                  "not the list of the tab in view");
    check(hourglassMayStay || pointer.MousePointer() == screen::Pointer::standard, "the hourglass stayed");
    const bool calling = control.Call_Progress();
    for (int tab = 0; tab <= desk::hoy; ++tab)
        check(lists[static_cast<std::size_t>(tab)]->Enabled() != calling,
              "a list is locked, or open during a call");
    check(all.call.picLlamada.Visible() == calling, "the panel of the call does not fit");
    check(all.detail.cmdCall.Enabled() != calling, "the button of the call does not fit");
    check(windows.open == 0, "a window stayed open");
    if (active == 1) {
        const bool directory = shown > desk::hoy;
        check(all.detail.picRight.Visible() != directory, "the detail shows beside a directory, or nowhere else");
        check(all.today.picHoy.Visible() == (shown == desk::hoy), "the commands of the queue");
        check(all.organisations.picOrganizacion.Visible() == (shown == desk::organizaciones),
              "the commands of the organisations");
        check(all.persons.picContactos.Visible() == (shown == desk::contactos), "the commands of the persons");
        check(all.top.picColors.Visible() == (shown < desk::hoy), "the colours");
        check(all.detail.Combo1.Visible() == (shown == desk::prospectos), "the status");
    }
    // What he types goes to a row that he sees selected.
    const auto selected = lists[static_cast<std::size_t>(shown)]->SelectedItem();
    const bool prospects =
        active == 1 && shown == desk::prospectos; // the projects leave the detail of the last one
    check(!prospects || !all.detail.txtText.Enabled() || selected, "a note for nobody can be typed");
    check(all.detail.txtText.Enabled() == all.detail.cmdIntro.Enabled(), "the note and its button differ");
    check(!prospects || selected || all.detail.txtInfo.Text().empty(), "the detail of nobody");
    for (screen::ListView* list : lists)
        check(keysDiffer(*list), "a row twice");
    return wrong;
}

} // namespace dn::tests
