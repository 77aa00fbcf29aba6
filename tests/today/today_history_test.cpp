// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The history of mails of a party of the queue: which one the control is asked for.

#include "tests/support/fake_connection.h"
#include "tests/support/fake_ports.h"
#include "tests/support/prospect_list.h"
#include "tests/support/public_operations.h"
#include "today/today_panel.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace dn::today {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class TodayHistory : public testing::Test {
protected:
    TodayHistory()
    {
        session.AdoCnn = &cnn;
        for (const char* key : {"K1", "K2"})
            tests::addRow(elements.prospects.lvw, key, {"Contacto"});
        for (const char* key : {"K1", "K5"})
            tests::addRow(elements.projects.lvwProy, key, {""});
        tests::addRow(elements.today.lvwHoy, "K2", {"Contacto"});
        tests::addRow(elements.today.lvwHoy, "P5", {"Proyecto"});
        tests::addRow(elements.today.lvwHoy, "K99", {"Contacto"});
    }

    void click(const char* key)
    {
        screen::ListItem row = elements.today.lvwHoy.ListItems()(std::string_view(key));
        row.Selected(true);
        panel.lvwHoy_ItemClick(row);
    }

    tests::FakeConnection cnn;
    tests::FakePorts ports;
    desk::Session session;
    desk::Elements elements;
    desk::TabStrip tabs{elements.top};
    desk::Timeline timeline{session, elements, ports.ports()};
    prospects::ProspectDetail prospectDetail{elements.detail, elements.top, tabs, timeline};
    projects::PhoneChoice phoneChoice{session};
    projects::ProjectDetail projectDetail{elements.detail, elements.top, tabs,
                                          timeline,        phoneChoice,  prospectDetail};
    tests::FakeOperations control;
    TodayPanel panel{elements, prospectDetail, projectDetail, control};
};

TEST_F(TodayHistory, is_that_of_the_record_that_the_click_selected)
{
    click("P5");
    panel.Command7_Click();
    click("K2");
    panel.Command7_Click();
    EXPECT_THAT(control.calls, ElementsAre("Historial 1 5", "Historial 0 2"));
}

TEST_F(TodayHistory, is_another_partys_where_the_click_found_no_record)
{
    elements.prospects.lvw.ListItems()("K1").Selected(true);
    click("K99");
    panel.Command7_Click();
    EXPECT_THAT(control.calls, ElementsAre("Historial 0 1"));
}

TEST_F(TodayHistory, needs_a_row_in_the_queue_and_one_in_the_records_list)
{
    elements.prospects.lvw.ListItems().Clear();
    click("K2");
    panel.Command7_Click();
    elements.projects.lvwProy.ListItems().Clear();
    click("P5");
    panel.Command7_Click();
    elements.today.lvwHoy.ListItems().Clear();
    panel.Command7_Click();
    EXPECT_THAT(control.calls, IsEmpty());
}

TEST_F(TodayHistory, is_of_the_list_that_the_rows_text_names)
{
    tests::addRow(elements.today.lvwHoy, "P1", {"contacto"}); // not exactly a prospect's
    click("P1");
    panel.Command7_Click();
    EXPECT_THAT(control.calls, ElementsAre("Historial 1 1"));
}

TEST_F(TodayHistory, of_a_key_that_is_no_number_is_not_asked_for)
{
    tests::addRow(elements.prospects.lvw, "Kx", {"Contacto"});
    tests::addRow(elements.today.lvwHoy, "Kx", {"Contacto"});
    click("Kx");
    panel.Command7_Click();
    EXPECT_THAT(control.calls, IsEmpty());
}

TEST_F(TodayHistory, that_fails_passes_in_silence)
{
    control.failing = true;
    click("K2");
    panel.Command7_Click();
    EXPECT_THAT(control.calls, ElementsAre("Historial 0 2"));
}

} // namespace
} // namespace dn::today
