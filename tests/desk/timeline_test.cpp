// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The timeline of the selected row.

#include "desk/session.h"
#include "desk/timeline.h"
#include "tests/support/control_fixture.h"

namespace dn::tests {
namespace {

using testing::ElementsAre;

const std::vector<std::string> logColumns{"uf_Tiempo", "uf_Mensaje", "uf_Usuario", "uf_Iicontact", "uf_IProy"};

std::vector<Cell> line(const char* time, const char* message, const char* user)
{
    return {date(time), text(message), text(user), whole(1), null};
}

class Timeline : public ControlTest {
protected:
    void SetUp() override
    {
        start(7, false);
        prospects({prospect(1), prospect(2)});
        openProspects();
    }

    void lines(std::vector<std::vector<Cell>> rows)
    {
        cnn.onContaining("FROM xt_biticontact").gives(logColumns, std::move(rows));
    }

    const std::string& txtBit() { return elements().detail.txtBit.Text(); }
};

TEST_F(Timeline, reads_the_log_of_the_row_clicked)
{
    lvw().clickRow(1);
    EXPECT_THAT(cnn.statements(),
                ElementsAre("SELECT * FROM xt_biticontact WHERE uf_Iicontact = 2 ORDER BY uf_Tiempo"));
}

TEST_F(Timeline, of_a_project_is_read_by_the_projects_key_and_never_mixed_with_a_prospect_of_the_same_number)
{
    desk::Session session;
    session.AdoCnn = &cnn;
    desk::Timeline timeline(session, elements(), ports.ports());
    cnn.onContaining("uf_IProy = 1 ").gives(logColumns, {line("2026-03-01", "del proyecto", "ana")});
    cnn.onContaining("uf_Iicontact = 1 ").gives(logColumns, {line("2026-03-02", "del prospecto", "ana")});
    elements().projects.lvwProy.ListItems().Add("K1", "");
    cnn.forgetStatements();
    timeline.LoadBitacora(true);
    EXPECT_THAT(cnn.statements(),
                ElementsAre("SELECT * FROM xt_biticontact WHERE uf_IProy = 1 ORDER BY uf_Tiempo"));
    EXPECT_EQ(txtBit(), "ana [01/03/2026]\r\ndel proyecto\r\n\r\n");
    timeline.LoadBitacora(false);
    EXPECT_EQ(txtBit(), "ana [02/03/2026]\r\ndel prospecto\r\n\r\n");
}

TEST_F(Timeline, of_nothing_selected_is_empty_and_asks_nothing)
{
    desk::Session session;
    session.AdoCnn = &cnn;
    desk::Timeline timeline(session, elements(), ports.ports());
    elements().detail.txtBit.Text("de otro");
    cnn.forgetStatements();
    timeline.LoadBitacora(true);
    EXPECT_EQ(txtBit(), "");
    EXPECT_THAT(cnn.statements(), testing::IsEmpty());
}

TEST_F(Timeline, reads_newest_first)
{
    lines({line("2026-03-01 08:00:00", "primera", "ana"), line("2026-03-02", "segunda", "beto"),
           line("2026-03-02", "tercera, del mismo momento", "ana")});
    lvw().clickRow(0);
    EXPECT_EQ(txtBit(), "ana [02/03/2026]\r\ntercera, del mismo momento\r\n\r\n"
                        "beto [02/03/2026]\r\nsegunda\r\n\r\n"
                        "ana [01/03/2026 08:00:00]\r\nprimera\r\n\r\n");
}

TEST_F(Timeline, is_empty_for_a_party_without_lines)
{
    elements().detail.txtBit.Text("de otro");
    lines({});
    lvw().clickRow(0);
    EXPECT_EQ(txtBit(), "");
}

TEST_F(Timeline, is_empty_when_its_statement_fails_and_the_pointer_is_back)
{
    elements().detail.txtBit.Text("de otro");
    failAt(1);
    lvw().clickRow(0);
    EXPECT_EQ(txtBit(), "");
    EXPECT_EQ(ports.pointer.MousePointer(), screen::Pointer::standard);
}

TEST_F(Timeline, leaves_out_a_line_that_cannot_be_read_and_goes_on)
{
    auto broken = line("2026-03-02", "x", "ana");
    broken[1] = failing("fallo al leer");
    lines({line("2026-03-01", "primera", "ana"), broken, line("2026-03-03", "tercera", "ana")});
    lvw().clickRow(0);
    EXPECT_EQ(txtBit(), "ana [03/03/2026]\r\ntercera\r\n\r\nana [01/03/2026]\r\nprimera\r\n\r\n");
}

TEST_F(Timeline, keeps_the_lines_read_before_the_server_failed)
{
    cnn.onContaining("FROM xt_biticontact")
        .gives(Rows{logColumns, {line("2026-03-01", "primera", "ana"), line("2026-03-02", "segunda", "ana")}, 1});
    lvw().clickRow(0);
    EXPECT_EQ(txtBit(), "ana [01/03/2026]\r\nprimera\r\n\r\n");
}

TEST_F(Timeline, shows_a_null_as_nothing)
{
    lines({{date("2026-03-01"), text("de la web"), null, whole(1), null}});
    lvw().clickRow(0);
    EXPECT_EQ(txtBit(), " [01/03/2026]\r\nde la web\r\n\r\n");
}

TEST_F(Timeline, yields_once_after_its_statement_under_the_hourglass)
{
    ports.pointer.shapes.clear();
    ports.events.yields = 0;
    std::size_t sentThen = 0;
    int pointerThen = -1;
    ports.events.onYield = [&] {
        sentThen = cnn.statements().size();
        pointerThen = ports.pointer.MousePointer();
    };
    lvw().clickRow(0);
    EXPECT_EQ(ports.events.yields, 1);
    EXPECT_EQ(sentThen, 1U);
    EXPECT_EQ(pointerThen, screen::Pointer::hourglass);
    EXPECT_EQ(ports.pointer.MousePointer(), screen::Pointer::standard);
}

TEST_F(Timeline, shows_one_party_alone_when_another_row_is_clicked_during_its_yield)
{
    cnn.onContaining("uf_Iicontact = 1 ").gives(logColumns, {line("2026-03-01", "del primero", "ana")});
    cnn.onContaining("uf_Iicontact = 2 ").gives(logColumns, {line("2026-03-02", "del segundo", "ana")});
    ports.events.onYield = [this, nested = false]() mutable {
        if (nested) return;
        nested = true;
        lvw().clickRow(1);
    };
    lvw().clickRow(0);
    EXPECT_EQ(txtBit(), "ana [02/03/2026]\r\ndel segundo\r\n\r\n");
}

} // namespace
} // namespace dn::tests
