// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/calling/call_fixture.h"

#include <ostream>

namespace dn::tests {

std::ostream& operator<<(std::ostream& out, CallState state)
{
    constexpr std::array names{"idle", "ringing", "on the line", "summary", "torn"};
    return out << names.at(static_cast<std::size_t>(state));
}

CallTest::CallTest()
{
    cnn.beforeExecute([this](std::string_view statement) {
        if (statement.find("FROM ut_icontact WHERE") != std::string_view::npos)
            steps.emplace_back(load);
        else if (statement.find("FROM xt_biticontact WHERE") != std::string_view::npos)
            steps.emplace_back(timeline);
        else
            steps.emplace_back(statement);
    });
}

void CallTest::SetUp()
{
    start(7, true);
    prospects({prospect(12, {{"uf_Telefono", text("5512345678")}}), prospect(13)});
    openProspects();
    steps.clear();
}

bool CallTest::locked(bool yes)
{
    for (const screen::ListView* list :
         {&elements().prospects.lvw, &elements().projects.lvwProy, &elements().today.lvwHoy})
        if (list->Enabled() == yes) return false;
    return detail().cmdCall.Enabled() != yes && control.Call_Progress() == yes;
}

CallState CallTest::state()
{
    const bool ringing = call().picLlamando.shown();
    const bool answered = call().picContacto.shown();
    const bool summary = call().picResumen.shown();
    if (!call().picLlamada.Visible())
        return locked(false) && call().lbltel.Caption().empty() && !call().picLlamando.Visible() ? CallState::idle
                                                                                                 : CallState::torn;
    if (!locked(true) || call().lbltel.Caption().empty() || ringing + answered + summary != 1)
        return CallState::torn;
    if (ringing) return CallState::ringing;
    return answered ? CallState::onTheLine : CallState::summary;
}

void CallTest::rings()
{
    detail().cmdCall.press();
    EXPECT_EQ(state(), CallState::ringing);
    steps.clear();
}

void CallTest::isOnTheLine()
{
    rings();
    call().cmdContesta.press();
    EXPECT_EQ(state(), CallState::onTheLine);
}

void CallTest::isInSummary()
{
    isOnTheLine();
    call().cmdCallCon(6).press();
    EXPECT_EQ(state(), CallState::summary);
}

void CallTest::decides(int option)
{
    ports.events.expectModal("dlgQueH", [this, option](screen::Form& form) {
        steps.emplace_back(question);
        elementNamed<screen::OptionButton>(form, "Option" + std::to_string(option)).choose();
        elementNamed<screen::Button>(form, "cmdOk").press();
    });
}

void CallTest::closesTheQuestion()
{
    ports.events.expectModal("dlgQueH", [this](screen::Form& form) {
        steps.emplace_back(question);
        form.closeWindow();
    });
}

std::string CallTest::noteOf(const std::string& text)
{
    return "INSERT INTO xt_biticontact (uf_Tiempo, uf_Mensaje, uf_Usuario, uf_Iicontact) VALUES "
           "(CURRENT_TIMESTAMP, '" +
           text + "','ana',12)";
}

} // namespace dn::tests
