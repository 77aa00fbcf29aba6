// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The filter by status, moving a prospect to another status, and discarding the checked ones.

#include "tests/support/control_fixture.h"

namespace dn::tests {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

constexpr const char* log =
    "INSERT INTO xt_biticontact (uf_Tiempo, uf_Mensaje, uf_Usuario, uf_Iicontact) VALUES (CURRENT_TIMESTAMP, '";

class ProspectStatus : public ControlTest {
protected:
    void SetUp() override
    {
        start(7, true);
        prospects({prospect(12), prospect(13), prospect(14)});
        openProspects();
        host.log.calls.clear();
    }

    screen::ComboBox& Combo1() { return elements().detail.Combo1; }
    screen::Button& discard() { return elements().prospects.cmdProsDiscart; }

    /// The statements that change something.
    std::vector<std::string> changes() const
    {
        std::vector<std::string> result;
        for (const std::string& statement : cnn.statements())
            if (statement.rfind("SELECT", 0) != 0) result.push_back(statement);
        return result;
    }
};

struct Offer {
    int status;
    std::vector<std::string> texts;
    std::vector<std::int32_t> codes;
};

TEST_F(ProspectStatus, in_view_is_the_one_not_offered)
{
    const Offer offers[]{{0, {"< Cambiar estado >", "Descartado", "Sin interés", "Oportunidad"}, {0, 1, 2, 3}},
                         {1, {"< Cambiar estado >", "Recibido", "Sin interés", "Oportunidad"}, {0, 0, 2, 3}},
                         {2, {"< Cambiar estado >", "Recibido", "Descartado", "Oportunidad"}, {0, 0, 1, 3}},
                         {3, {"< Cambiar estado >", "Recibido", "Descartado", "Sin interés"}, {0, 0, 1, 2}}};
    for (const Offer& offer : offers) {
        elements().prospects.cbStatus.pick(offer.status);
        std::vector<std::string> texts;
        std::vector<std::int32_t> codes;
        for (int i = 0; i < Combo1().ListCount(); ++i) {
            texts.push_back(Combo1().List(i));
            codes.push_back(Combo1().ItemData(i));
        }
        EXPECT_EQ(texts, offer.texts);
        EXPECT_EQ(codes, offer.codes);
        EXPECT_EQ(Combo1().ListIndex(), 0);
    }
}

TEST_F(ProspectStatus, picking_the_one_in_view_reloads_its_list)
{
    cnn.forgetStatements();
    elements().prospects.cbStatus.pick(0);
    EXPECT_THAT(cnn.statements(), testing::Contains(HasSubstr("uf_Status = 0")));
}

TEST_F(ProspectStatus, changes_with_a_reason)
{
    lvw().clickRow(1);
    ports.dialogs.expectInput("Motivo del cambio de estado:", " ya compró ");
    cnn.forgetStatements();
    prospects({prospect(12), prospect(14)});
    Combo1().pick(2);
    ASSERT_GE(cnn.statements().size(), 3U);
    EXPECT_EQ(cnn.statements()[0], "UPDATE ut_icontact SET uf_Status = 2, uf_NotaStatus = ' ya compró ', "
                                   "uf_FechaStatus = CURRENT_TIMESTAMP WHERE Sys_PK = 13");
    EXPECT_EQ(cnn.statements()[1], log + std::string(">> Sin interés:  ya compró ','ana',13)"));
    EXPECT_THAT(cnn.statements()[2], HasSubstr("FROM ut_icontact WHERE"));
    EXPECT_THAT(keys(lvw()), ElementsAre("K12", "K14"));
    EXPECT_EQ(Combo1().ListIndex(), 2) << "only the filter brings the prompt back";
}

TEST_F(ProspectStatus, does_not_change_without_a_reason)
{
    ports.dialogs.expectInput("Motivo del cambio de estado:", "");
    cnn.forgetStatements();
    Combo1().pick(1);
    EXPECT_THAT(cnn.statements(), IsEmpty());
    EXPECT_EQ(Combo1().ListIndex(), 1);
}

TEST_F(ProspectStatus, changes_for_a_reason_of_blanks)
{
    ports.dialogs.expectInput("Motivo del cambio de estado:", "  ");
    Combo1().pick(1);
    EXPECT_THAT(changes(), ElementsAre(HasSubstr("uf_NotaStatus = '  ',"), HasSubstr(">> Descartado:   '")));
}

TEST_F(ProspectStatus, becomes_an_opportunity_with_a_project)
{
    host.projects->newProject = 44;
    Combo1().pick(3);
    EXPECT_THAT(host.log.calls, ElementsAre("CrearProyecto 2 0"));
    EXPECT_THAT(changes(),
                ElementsAre("UPDATE ut_icontact SET uf_Status = 3, uf_NotaStatus = '', uf_FechaStatus = "
                            "CURRENT_TIMESTAMP WHERE Sys_PK = 12",
                            log + std::string(">> Oportunidad: ','ana',12)")));
}

TEST_F(ProspectStatus, does_not_become_an_opportunity_without_a_project)
{
    for (const std::int32_t none : {0, -1}) {
        host.projects->newProject = none;
        ports.dialogs.expectBox("No se puede cambiar el status del contacto sin crear un proyecto de negocio");
        Combo1().pick(3);
        EXPECT_THAT(changes(), IsEmpty());
        EXPECT_EQ(Combo1().ListIndex(), 3);
    }
}

TEST_F(ProspectStatus, does_not_become_an_opportunity_when_the_hosts_screen_fails)
{
    host.log.failing = {"CrearProyecto"};
    ports.dialogs.expectBox("No se puede cambiar el status del contacto sin crear un proyecto de negocio");
    Combo1().pick(3);
    EXPECT_THAT(changes(), IsEmpty());
}

TEST_F(ProspectStatus, change_needs_a_selected_row)
{
    prospects({});
    openProspects();
    Combo1().Enabled(true);
    ports.dialogs.expectBox("Seleccione un contacto");
    Combo1().pick(1);
    EXPECT_THAT(cnn.statements(), IsEmpty());
}

TEST_F(ProspectStatus, prompt_does_nothing)
{
    cnn.forgetStatements();
    Combo1().pick(0);
    EXPECT_THAT(cnn.statements(), IsEmpty());
}

TEST_F(ProspectStatus, a_failure_at_each_statement_of_a_change_is_told)
{
    // the update, then the log row; the load that follows passes over its own failures
    for (const std::size_t failing : {1U, 2U}) {
        ports.dialogs.expectInput("Motivo del cambio de estado:", "x");
        ports.dialogs.expectBox("se perdió la conexión");
        failAt(failing);
        Combo1().pick(1);
        EXPECT_EQ(cnn.statements().size(), failing);
        EXPECT_THAT(keys(lvw()), ElementsAre("K12", "K13", "K14")) << "the list is not reloaded";
    }
    ports.dialogs.expectInput("Motivo del cambio de estado:", "x");
    failAt(3);
    Combo1().pick(1);
    EXPECT_EQ(changes().size(), 2U);
    EXPECT_EQ(lvw().ListItems().Count(), 0);
}

TEST_F(ProspectStatus, an_apostrophe_in_the_reason_goes_in_as_it_is)
{
    ports.dialogs.expectInput("Motivo del cambio de estado:", "d'Arc");
    Combo1().pick(1);
    EXPECT_THAT(changes(), ElementsAre(HasSubstr("uf_NotaStatus = 'd'Arc',"), HasSubstr(": d'Arc','ana'")));
}

TEST_F(ProspectStatus, of_the_row_that_is_selected_when_the_question_is_answered)
{
    host.projects->whileOpen = [&] { lvw().ListItems()("K14").Selected(true); };
    Combo1().pick(3);
    EXPECT_THAT(changes(), ElementsAre(HasSubstr("WHERE Sys_PK = 14"), HasSubstr(",14)")));
}

// ---- Discarding the checked rows

TEST_F(ProspectStatus, discards_the_checked_rows_in_the_order_shown)
{
    prospects(
        {prospect(12, {{"uf_Nombre", text("Zoé")}}), prospect(13), prospect(14, {{"uf_Nombre", text("Ana")}})});
    openProspects();
    lvw().toggleCheck(0);
    lvw().toggleCheck(2);
    lvw().clickHeader(3); // by name: K13, K14, K12
    ports.dialogs.expectInput("Motivo:", " fuera de zona ");
    ports.dialogs.expectBox("¿Seguro desea descartar estos contactos?", screen::Answer::yes);
    cnn.forgetStatements();
    prospects({prospect(13)});
    discard().press();
    EXPECT_THAT(
        changes(),
        ElementsAre("UPDATE ut_icontact SET uf_Status=1, uf_NotaStatus=' fuera de zona ', uf_FechaStatus = "
                    "CURRENT_TIMESTAMP WHERE Sys_PK=14",
                    log + std::string(">> Descartado:  fuera de zona ','ana',14)"),
                    "UPDATE ut_icontact SET uf_Status=1, uf_NotaStatus=' fuera de zona ', uf_FechaStatus = "
                    "CURRENT_TIMESTAMP WHERE Sys_PK=12",
                    log + std::string(">> Descartado:  fuera de zona ','ana',12)")));
    EXPECT_THAT(keys(lvw()), ElementsAre("K13"));
}

TEST_F(ProspectStatus, asks_before_it_discards_with_no_as_the_answer_of_enter)
{
    lvw().toggleCheck(0);
    ports.dialogs.expectInput("Motivo:", "x");
    ports.dialogs.expectBox("¿Seguro desea descartar estos contactos?", screen::Answer::no);
    cnn.forgetStatements();
    discard().press();
    EXPECT_EQ(ports.dialogs.boxes().back().buttons, screen::MessageBox::Buttons::yesNo);
    EXPECT_EQ(ports.dialogs.boxes().back().defaultButton, 2);
    EXPECT_EQ(ports.dialogs.boxes().back().title, "");
    EXPECT_THAT(cnn.statements(), IsEmpty());
}

TEST_F(ProspectStatus, discards_nothing_without_a_reason)
{
    lvw().toggleCheck(0);
    cnn.forgetStatements();
    for (const char* nothing : {"", "   "}) {
        ports.dialogs.expectInput("Motivo:", nothing);
        discard().press();
    }
    EXPECT_THAT(cnn.statements(), IsEmpty());
}

TEST_F(ProspectStatus, asks_and_reloads_even_when_no_row_is_checked)
{
    ports.dialogs.expectInput("Motivo:", "x");
    ports.dialogs.expectBox("¿Seguro desea descartar estos contactos?", screen::Answer::yes);
    cnn.forgetStatements();
    discard().press();
    EXPECT_THAT(changes(), IsEmpty());
    EXPECT_THAT(cnn.statements(), testing::Contains(HasSubstr("FROM ut_icontact WHERE")));
}

TEST_F(ProspectStatus, discarding_passes_over_a_failure_at_each_statement)
{
    for (std::size_t failing = 1; failing <= 5; ++failing) {
        prospects({prospect(12), prospect(13)});
        openProspects();
        lvw().toggleCheck(0);
        lvw().toggleCheck(1);
        ports.dialogs.expectInput("Motivo:", "x");
        ports.dialogs.expectBox("¿Seguro desea descartar estos contactos?", screen::Answer::yes);
        failAt(failing);
        discard().press();
        EXPECT_EQ(changes().size(), 4U) << "each statement is sent whatever became of the others";
        EXPECT_EQ(lvw().ListItems().Count(), failing == 5 ? 0 : 2);
        EXPECT_EQ(ports.pointer.MousePointer(), screen::Pointer::standard);
    }
}

TEST_F(ProspectStatus, discarding_is_for_administrators)
{
    start(7, false);
    openProspects();
    discard().press();
    EXPECT_THAT(cnn.statements(), IsEmpty()) << "no question was asked";
}

} // namespace
} // namespace dn::tests
