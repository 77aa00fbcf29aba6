// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The operator moves prospects from one status to another; the supervisor discards many at once.

#include "tests/stories/operator.h"

#include <cstdlib>

namespace dn::tests {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* question = "¿Seguro desea descartar estos contactos?";

class ChangingStatus : public Operator {
protected:
    std::vector<std::string> log()
    {
        return inTheDatabase("SELECT uf_Mensaje FROM xt_biticontact ORDER BY Sys_PK");
    }

    std::vector<std::string> statusOf(const std::string& name)
    {
        const std::string from = " FROM ut_icontact WHERE uf_Nombre = '" + name + "'";
        const std::string seconds =
            inTheDatabase("SELECT " + storyServer().secondsSince("uf_FechaStatus") + from).at(0);
        const bool now = seconds != "NULL" && std::abs(std::stoi(seconds)) < 60;
        return {inTheDatabase("SELECT uf_Status, uf_NotaStatus" + from).at(0) + (now ? "|ahora" : "|nunca")};
    }
};

TEST_F(ChangingStatus, a_prospect_without_interest_leaves_the_list)
{
    prospect("María");
    prospect("Luz");
    enters(ana);
    clicksRow("María");
    answers("Motivo del cambio de estado:", "ya tiene proveedor");
    picks("Combo1", "Sin interés");
    EXPECT_THAT(seesProspects(), ElementsAre("Luz"));
    EXPECT_THAT(statusOf("María"), ElementsAre("2|ya tiene proveedor|ahora"));
    EXPECT_THAT(log(), ElementsAre(">> Sin interés: ya tiene proveedor"));
    picks("cbStatus", "Sin interés");
    EXPECT_THAT(seesProspects(), ElementsAre("María"));
    answers("Motivo del cambio de estado:", "volvió a llamar");
    picks("Combo1", "Recibido");
    EXPECT_THAT(statusOf("María"), ElementsAre("0|volvió a llamar|ahora"));
}

TEST_F(ChangingStatus, an_opportunity_needs_a_project)
{
    prospect("María");
    enters(ana);
    host.projects->newProject = 0;
    isTold("No se puede cambiar el status del contacto sin crear un proyecto de negocio");
    picks("Combo1", "Oportunidad");
    EXPECT_THAT(statusOf("María"), ElementsAre("0|NULL|nunca"));
    host.projects->newProject = 12;
    picks("Combo1", "Oportunidad");
    EXPECT_THAT(statusOf("María"), ElementsAre("3||ahora"));
    EXPECT_THAT(log(), ElementsAre(">> Oportunidad: "));
}

TEST_F(ChangingStatus, an_apostrophe_in_the_reason_is_the_servers_matter_and_is_told)
{
    prospect("María");
    enters(ana);
    answers("Motivo del cambio de estado:", "d'Arc");
    ports.dialogs.expectAnyBox();
    picks("Combo1", "Descartado");
    EXPECT_THAT(ports.dialogs.boxes().back().prompt, storyServer().syntaxRefusal());
    EXPECT_THAT(statusOf("María"), ElementsAre("0|NULL|nunca"));
    EXPECT_THAT(log(), IsEmpty());
    EXPECT_THAT(seesProspects(), ElementsAre("María"));
}

TEST_F(ChangingStatus, a_supervisor_discards_the_checked_ones)
{
    for (const char* name : {"Ana A", "Eva", "Luz", "Sol"})
        prospect(name);
    entersAsAdministrator(ana);
    checksRow("Eva");
    checksRow("Sol");
    answers("Motivo:", "fuera de zona");
    agreesTo(question);
    presses("cmdProsDiscart");
    EXPECT_THAT(seesProspects(), ElementsAre("Ana A", "Luz"));
    EXPECT_THAT(statusOf("Eva"), ElementsAre("1|fuera de zona|ahora"));
    EXPECT_THAT(statusOf("Luz"), ElementsAre("0|NULL|nunca"));
    EXPECT_THAT(log(), ElementsAre(">> Descartado: fuera de zona", ">> Descartado: fuera de zona"));
}

TEST_F(ChangingStatus, discarding_without_a_reason_changes_nothing)
{
    prospect("Eva");
    entersAsAdministrator(ana);
    checksRow("Eva");
    answers("Motivo:", "   ");
    presses("cmdProsDiscart");
    EXPECT_THAT(changesSent(), IsEmpty());
    EXPECT_THAT(seesProspects(), ElementsAre("Eva"));
}

TEST_F(ChangingStatus, discarding_can_be_refused_at_the_last_question)
{
    prospect("Eva");
    entersAsAdministrator(ana);
    checksRow("Eva");
    answers("Motivo:", "x");
    refuses(question);
    presses("cmdProsDiscart");
    EXPECT_THAT(changesSent(), IsEmpty());
}

TEST_F(ChangingStatus, an_apostrophe_in_the_reason_of_a_discard_fails_in_silence)
{
    prospect("Eva");
    entersAsAdministrator(ana);
    checksRow("Eva");
    answers("Motivo:", "d'Arc");
    agreesTo(question);
    presses("cmdProsDiscart");
    EXPECT_THAT(statusOf("Eva"), ElementsAre("0|NULL|nunca"));
    EXPECT_THAT(log(), IsEmpty());
    EXPECT_THAT(seesProspects(), ElementsAre("Eva"));
}

TEST_F(ChangingStatus, a_thousand_are_discarded_at_once)
{
    manyRows("INSERT INTO ut_icontact (uf_Nombre, uf_IEjecutivo)", 1000,
             [](int row) { return "'P" + std::to_string(row) + "', 7"; });
    entersAsAdministrator(ana);
    clicksBox("chkProsSelPros");
    answers("Motivo:", "limpieza");
    agreesTo(question);
    presses("cmdProsDiscart");
    EXPECT_THAT(
        inTheDatabase("SELECT COUNT(*) FROM ut_icontact WHERE uf_Status = 1 AND uf_NotaStatus = 'limpieza'"),
        ElementsAre("1000"));
    EXPECT_THAT(inTheDatabase("SELECT COUNT(*) FROM xt_biticontact"), ElementsAre("1000"));
    EXPECT_THAT(seesProspects(), IsEmpty());
}

TEST_F(ChangingStatus, one_row_that_is_locked_stays_and_the_others_go)
{
    const auto eva = std::to_string(prospect("Eva"));
    prospect("Luz");
    entersAsAdministrator(ana);
    clicksBox("chkProsSelPros");
    cnn->refuses = [&](std::string_view statement) {
        return statement.rfind("UPDATE", 0) == 0 && statement.find("Sys_PK=" + eva) != std::string_view::npos;
    };
    answers("Motivo:", "x");
    agreesTo(question);
    presses("cmdProsDiscart");
    EXPECT_THAT(seesProspects(), ElementsAre("Eva"));
    EXPECT_THAT(log(), ElementsAre(">> Descartado: x", ">> Descartado: x"))
        << "the log row is attempted all the same";
}

} // namespace
} // namespace dn::tests
