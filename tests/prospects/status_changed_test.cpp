// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The flag by which a room that moves the status combo by code learns whether a change was stored.

#include "prospects/prospect_status.h"
#include "tests/support/fake_connection.h"
#include "tests/support/fake_host.h"
#include "tests/support/fake_ports.h"

#include <gtest/gtest.h>

namespace dn::prospects {
namespace {

using namespace dn::tests;

class StatusChanged : public testing::Test {
protected:
    StatusChanged()
    {
        session.AdoCnn = &cnn;
        elements.control.Visible(true);
        elements.prospects.lvw.ListItems().Add("K12", "Contacto");
        for (const char* entry : {"< Cambiar estado >", "Descartado"})
            elements.detail.Combo1.AddItem(entry);
        elements.detail.Combo1.ItemData(1, ProspectStatus::descartado);
        elements.detail.Combo1.ListIndex(1);
    }

    bool afterA(const std::string& reason)
    {
        ports.dialogs.expectInput("Motivo del cambio de estado:", reason);
        status.Combo1_Click();
        return session.StatusCambiado;
    }

    desk::Elements elements;
    desk::Session session;
    FakeConnection cnn;
    FakePorts ports;
    desk::TabStrip tabs{elements.top};
    desk::Counters counters{elements};
    desk::Timeline timeline{session, elements, ports.ports()};
    desk::HostScreens screens{session};
    ProspectDetail detail{elements.detail, elements.top, tabs, timeline};
    ProspectList list{session, elements.prospects, elements.top, tabs, detail, counters, ports.ports()};
    ProspectStatus status{session, elements.prospects, elements.detail, list, screens, ports.dialogs};
};

TEST_F(StatusChanged, is_set_by_a_change_that_was_stored) { EXPECT_TRUE(afterA("motivo")); }

TEST_F(StatusChanged, stays_as_it_was_without_a_reason) { EXPECT_FALSE(afterA("")); }

TEST_F(StatusChanged, stays_as_it_was_after_a_failure_of_either_statement)
{
    for (const std::size_t failing : {1U, 2U}) {
        cnn.failAt(failing, "fallo");
        ports.dialogs.expectInput("Motivo del cambio de estado:", "motivo");
        ports.dialogs.expectBox("fallo");
        status.Combo1_Click();
        EXPECT_FALSE(session.StatusCambiado);
    }
}

} // namespace
} // namespace dn::prospects
