// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// Notes for a party of the queue. Finding the party yields to the event loop, and what the operator does meanwhile
// must not take the note to somebody else.

#include "tests/support/log_rows.h"
#include "tests/today/fixture.h"

#include <functional>
#include <utility>

namespace dn::tests {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class NotesOfTheDay : public TodayTest {
protected:
    void SetUp() override
    {
        start(7, false);
        prospects({prospect(1), prospect(2)});
        activities({activity(5), activity(6)});
        openProspects();
        openProjects();
        due({queuedProspect(1), queuedProspect(2), queuedProject(5), queuedProject(6)});
        openToday();
    }

    desk::DetailElements& detail() { return elements().detail; }

    /// Registers a note at a row.
    /// @param meanwhile what the operator does at the yield, once.
    void registers(const std::string& key, const std::string& note, std::function<void()> meanwhile = nullptr)
    {
        click(key);
        detail().txtText.Text(note);
        cnn.forgetStatements();
        ports.events.onYield = [&, first = true]() mutable {
            if (std::exchange(first, false) && meanwhile) meanwhile();
        };
        detail().cmdIntro.press();
        ports.events.onYield = nullptr;
    }
    /// The notes that were written, in order.
    std::vector<std::string> written() const
    {
        std::vector<std::string> notes;
        for (const std::string& statement : cnn.statements())
            if (statement.rfind("INSERT", 0) == 0) notes.push_back(statement);
        return notes;
    }
};

TEST_F(NotesOfTheDay, click_their_row_and_go_to_its_record)
{
    registers("K2", "  d'Arc ");
    EXPECT_THAT(cnn.statements(), ElementsAre(HasSubstr("uf_Iicontact = 2"), prospectNote("dArc", "2")));
    EXPECT_EQ(detail().txtBit.Text(), "ana [14/03/2026 09:30:00]\r\ndArc\r\n\r\n");
    EXPECT_EQ(detail().txtText.Text(), "");
    registers("P6", "planos");
    EXPECT_THAT(written(), ElementsAre(projectNote("planos", "6")));
}

TEST_F(NotesOfTheDay, go_to_the_party_in_sight_where_the_list_lacks_the_record)
{
    due({queuedProspect(99), queuedProspect(1)});
    openToday();
    lvw().ListItems()("K2").Selected(true);
    registers("K99", "para quien se ve");
    EXPECT_THAT(written(), ElementsAre(prospectNote("para quien se ve", "2")));
    registers("K99", "y otra", [this] { click("K1"); });
    EXPECT_THAT(written(), ElementsAre(prospectNote("y otra", "2")));
}

TEST_F(NotesOfTheDay, stay_with_their_party_when_another_one_is_clicked_meanwhile)
{
    for (const std::string other : {"K1", "P5"}) {
        registers("K2", " para 'la' dos ", [&] { click(other); });
        EXPECT_THAT(written(), ElementsAre(prospectNote("para la dos", "2"))) << other;
        EXPECT_EQ(selectedKeyOf(lvwHoy()), other) << "he has the other one before him";
        EXPECT_EQ(detail().txtBit.Text(), "") << "whose timeline does not show it";
        EXPECT_EQ(detail().txtText.Text(), "");
    }
    for (const std::string other : {"P6", "K2"}) {
        registers("P5", "para el cinco", [&] { click(other); });
        EXPECT_THAT(written(), ElementsAre(projectNote("para el cinco", "5"))) << other;
        EXPECT_EQ(selectedKeyOf(lvwHoy()), other);
    }
}

TEST_F(NotesOfTheDay, are_not_lost_when_the_operator_goes_to_another_tab_meanwhile)
{
    for (const int tab : {0, 1, 3, 4}) {
        openToday();
        registers("K2", "me voy", [&] { elements().top.lblItem(tab).click(); }); // which empties the box
        EXPECT_THAT(written(), ElementsAre(prospectNote("me voy", "2"))) << tab;
        EXPECT_THAT(detail().txtBit.Text(), testing::Not(HasSubstr("me voy")));
    }
}

TEST_F(NotesOfTheDay, survive_a_reload_of_the_queue_meanwhile)
{
    registers("K2", "sigue aquí", [this] { control.RefreshRobot(); });
    EXPECT_THAT(written(), ElementsAre(prospectNote("sigue aquí", "2")));
    EXPECT_THAT(detail().txtBit.Text(), HasSubstr("sigue aquí")) << "the same party is in sight";
    registers("K2", "salió de la cola", [this] {
        due({queuedProspect(1)});
        control.RefreshRobot();
    });
    EXPECT_THAT(written(), ElementsAre(prospectNote("salió de la cola", "2")));
}

TEST_F(NotesOfTheDay, leave_alone_what_is_typed_for_the_next_party)
{
    registers("K2", "para la dos", [this] {
        click("K1");
        detail().txtText.edit("para la uno");
    });
    EXPECT_THAT(written(), ElementsAre(prospectNote("para la dos", "2")));
    EXPECT_EQ(detail().txtText.Text(), "para la uno");
    detail().cmdIntro.press();
    EXPECT_THAT(written(), ElementsAre(prospectNote("para la dos", "2"), prospectNote("para la uno", "1")));
}

TEST_F(NotesOfTheDay, registered_for_two_parties_go_to_both)
{
    registers("K2", "a los dos", [this] {
        click("K1");
        detail().cmdIntro.press();
    });
    EXPECT_THAT(written(), ElementsAre(prospectNote("a los dos", "1"), prospectNote("a los dos", "2")));
    EXPECT_EQ(detail().txtText.Text(), "");
}

TEST_F(NotesOfTheDay, registered_twice_for_one_party_are_written_once)
{
    ports.dialogs.expectBox("Debe escribir un mensaje"); // the second time there is nothing in the box
    registers("K2", "una vez", [this] { detail().cmdIntro.press(); });
    EXPECT_THAT(written(), ElementsAre(prospectNote("una vez", "2")));
    registers("K2", "y me 'voy'", [this] {
        detail().cmdIntro.press();
        click("K1");
    });
    EXPECT_THAT(written(), ElementsAre(prospectNote("y me voy", "2")));
    EXPECT_EQ(detail().txtText.Text(), "");
}

TEST_F(NotesOfTheDay, without_text_are_refused_wherever_the_operator_is_by_then)
{
    for (const char* nothing : {"", " ' "}) {
        ports.dialogs.expectBox("Debe escribir un mensaje");
        registers("K2", nothing, [this] { click("K1"); });
        EXPECT_THAT(written(), IsEmpty());
    }
}

TEST_F(NotesOfTheDay, that_fail_are_told_and_keep_the_text_for_another_try)
{
    cnn.onContaining("INSERT").fails("se perdió la conexión");
    ports.dialogs.expectBox("se perdió la conexión");
    registers("K2", " d'Arc ");
    EXPECT_EQ(detail().txtText.Text(), "dArc");
    EXPECT_EQ(detail().txtBit.Text(), "");
    ports.dialogs.expectBox("se perdió la conexión");
    registers("K2", " d'Arc ", [this] { click("K1"); });
    EXPECT_EQ(detail().txtText.Text(), " d'Arc ");
}

TEST_F(NotesOfTheDay, whose_timeline_cannot_be_read_are_written)
{
    click("K2");
    detail().txtText.Text("sin historia");
    failAt(1);
    detail().cmdIntro.press();
    EXPECT_THAT(written(), ElementsAre(prospectNote("sin historia", "2")));
}

TEST_F(NotesOfTheDay, before_any_tab_was_opened_go_to_the_prospects)
{
    ctrDnContacts fresh(ports.ports());
    fresh.SetObjects(&cnn, 7, false, "ana");
    fresh.RefreshData();
    fresh.elements().today.lvwHoy.clickRow(2); // a project, which its list holds by now
    EXPECT_TRUE(fresh.elements().detail.cmdIntro.usable());
    fresh.elements().detail.txtText.Text("x");
    ports.dialogs.expectBox("No hay ningún elemento seleccionado en la lista.");
    fresh.elements().detail.cmdIntro.press();
}

} // namespace
} // namespace dn::tests
