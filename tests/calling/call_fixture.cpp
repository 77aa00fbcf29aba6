// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/calling/call_fixture.h"

#include "tests/support/log_rows.h"

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

std::string CallTest::noteOf(const std::string& text) { return prospectNote(text, "12"); }

void CallAnyoneTest::SetUp()
{
    start(7, false);
    prospects({prospect(12, {{"uf_Telefono", text("111")}}), prospect(13, {{"uf_Telefono", text("222")}})});
    activities({activity(12), activity(88)});
    contactData({{"Tel1", text("961")}});
    openProspects();
    openProjects();
    due({queuedProspect(13), queuedProject(88), queuedProject(12)});
}

void CallAnyoneTest::closesTheQuestion()
{
    ports.events.expectModal("dlgQueH", [](screen::Form& form) { form.closeWindow(); });
}

std::vector<std::string> CallAnyoneTest::changes() const
{
    std::vector<std::string> result;
    for (const std::string& statement : cnn.statements())
        if (statement.rfind("UPDATE", 0) == 0 || statement.rfind("INSERT", 0) == 0) result.push_back(statement);
    return result;
}

void CallAnyoneTest::expectIdle()
{
    EXPECT_FALSE(control.Call_Progress());
    EXPECT_FALSE(call().picLlamada.Visible());
    EXPECT_TRUE(lvwProy().Enabled() && lvwHoy().Enabled() && lvw().Enabled());
    EXPECT_TRUE(cmdCall().Enabled());
}

} // namespace dn::tests
