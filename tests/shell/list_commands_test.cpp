// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// Which buttons each list offers for its rows.

#include "shell/list_commands.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace dn::shell {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

std::vector<std::string> offeredBy(const char* list)
{
    desk::Elements elements;
    std::vector<std::string> names;
    for (const screen::Button* button : commandsOf(list, elements))
        names.push_back(button->name());
    return names;
}

TEST(ListCommands, are_those_that_work_on_a_row_of_the_list)
{
    EXPECT_THAT(offeredBy("lvw"),
                ElementsAre("cmdCall", "cmdNote", "cmdSend", "cmdEditC", "cmdProsNewProj", "cmdProsAsignPros",
                            "cmdProsDiscart", "bColor(0)", "bColor(1)", "bColor(2)", "bColor(3)", "bColor(4)"));
    EXPECT_THAT(offeredBy("lvwProy"),
                ElementsAre("cmdCall", "cmdNote", "cmdSend", "cmdNewProjEditProj", "bColor(0)", "bColor(1)",
                            "bColor(2)", "bColor(3)", "bColor(4)"));
    EXPECT_THAT(offeredBy("lvwHoy"),
                ElementsAre("cmdCall", "cmdNote", "cmdSend", "cmdEditHoy", "Command7", "geProyFromContacto"));
    EXPECT_THAT(offeredBy("lvwOrganizaciones"),
                ElementsAre("editOrganization", "deleteOrganization", "showOrganizationRelations",
                            "genProyectFromOrganization"));
    EXPECT_THAT(offeredBy("lvwContactos"),
                ElementsAre("editContact", "deleteContact", "showContactRelations", "genProyectFromContact"));
    EXPECT_THAT(offeredBy("dxGrid"), IsEmpty());
}

} // namespace
} // namespace dn::shell
