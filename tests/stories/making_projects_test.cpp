// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The operator turns a prospect into a project, and marks prospects and projects with colours.

#include "tests/stories/project_operator.h"

namespace dn::tests {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

class MakingProjects : public ProjectOperator {
protected:
    MakingProjects()
    {
        database("INSERT INTO Ciudad (Sys_PK, Nombre) VALUES (3, 'Tuxtla Gutiérrez'), (4, 'San Cristóbal'), "
                 "(5, 'San Juan')");
        host.projects->newPerson = 501;
        host.projects->newProject = 601;
    }

    std::int64_t typedIn(const std::string& name, Columns columns = {})
    {
        columns.emplace("uf_Tipo", "1");
        return prospect(name, std::move(columns));
    }

    std::vector<std::string> asked()
    {
        std::vector<std::string> calls;
        for (const std::string& call : host.log.calls)
            if (call.rfind("Crear", 0) == 0) calls.push_back(call);
        host.log.calls.clear();
        return calls;
    }
};

TEST_F(MakingProjects, a_prospect_that_became_a_project_leaves_the_list_with_a_note)
{
    const auto key =
        typedIn("María", {{"uf_Ciudad", "'San'"}, {"uf_Telefono", "'55 1'"}, {"uf_EMail", "'m@x.mx'"}});
    enters(ana);
    presses("cmdProsNewProj");
    EXPECT_THAT(asked(),
                ElementsAre("CrearPersona María|Internal|Internal|4|55 1||m@x.mx||7", "CrearProyecto 0 501"));
    EXPECT_THAT(seesProspects(), IsEmpty());
    EXPECT_THAT(inTheDatabase("SELECT uf_Status, uf_NotaStatus FROM ut_icontact"),
                ElementsAre("1|Actualizado por creación de proyecto"));
    EXPECT_THAT(inTheDatabase("SELECT uf_Mensaje, uf_Usuario, uf_Iicontact FROM xt_biticontact"),
                ElementsAre(">> Descartado: |ana|" + std::to_string(key)));
}

TEST_F(MakingProjects, what_is_missing_is_filled_in_for_the_operator_to_correct)
{
    typedIn("sin nombre");
    database("UPDATE ut_icontact SET uf_Nombre = NULL, uf_IEjecutivo = NULL");
    entersAsAdministrator();
    presses("cmdProsNewProj");
    EXPECT_THAT(asked(), ElementsAre(StartsWith("CrearPersona Nombre|Internal|Internal|3|Teléfono||EMail||1"),
                                     "CrearProyecto 0 501"));
}

TEST_F(MakingProjects, a_city_that_nobody_knows_is_the_first)
{
    typedIn("María", {{"uf_Ciudad", "'Zitácuaro'"}});
    enters(ana);
    presses("cmdProsNewProj");
    EXPECT_THAT(asked()[0], HasSubstr("|Internal|1|"));
}

TEST_F(MakingProjects, a_city_with_an_apostrophe_fails_openly_and_changes_nothing)
{
    typedIn("María", {{"uf_Ciudad", "'Sant''Ana'"}});
    enters(ana);
    EXPECT_THROW(presses("cmdProsNewProj"), data::Error);
    EXPECT_THAT(asked(), IsEmpty());
    EXPECT_THAT(changesSent(), IsEmpty());
}

TEST_F(MakingProjects, giving_up_leaves_the_prospect_as_it_was)
{
    typedIn("María");
    enters(ana);
    host.projects->newProject = 0;
    presses("cmdProsNewProj");
    EXPECT_THAT(asked(), testing::SizeIs(2));
    EXPECT_THAT(seesProspects(), ElementsAre("María"));
    EXPECT_THAT(changesSent(), IsEmpty());
}

TEST_F(MakingProjects, a_prospect_that_was_deleted_meanwhile_fails_openly)
{
    typedIn("María");
    enters(ana);
    database("DELETE FROM ut_icontact");
    EXPECT_THROW(presses("cmdProsNewProj"), data::Error);
    EXPECT_THAT(asked(), IsEmpty());
}

TEST_F(MakingProjects, a_prospect_that_cannot_be_closed_leaves_person_and_project)
{
    typedIn("María");
    enters(ana);
    cnn->refuses = [](std::string_view statement) { return statement.starts_with("UPDATE"); };
    EXPECT_THROW(presses("cmdProsNewProj"), data::Error);
    EXPECT_THAT(asked(), testing::SizeIs(2));
    EXPECT_THAT(inTheDatabase("SELECT uf_Status FROM ut_icontact"), ElementsAre("0"));
    EXPECT_THAT(inTheDatabase("SELECT uf_Mensaje FROM xt_biticontact"), IsEmpty());
}

TEST_F(MakingProjects, colours_stay_in_the_database)
{
    prospect("María");
    project("Veinte puestos");
    enters(ana);
    presses("bColor(4)");
    EXPECT_THAT(inTheDatabase("SELECT uf_color FROM ut_icontact"), ElementsAre("4"));
    opensTab(desk::proyectos);
    presses("bColor(2)");
    presses("bColor(1)");
    EXPECT_THAT(inTheDatabase("SELECT UF_Color FROM Proyecto"), ElementsAre("1"));
    EXPECT_EQ(projectRow("Veinte puestos").ForeColor(), 0x0000FFU);
    opensTab(desk::proyectos);
    EXPECT_EQ(projectRow("Veinte puestos").ForeColor(), 0x0000FFU);
    presses("bColor(0)");
    EXPECT_THAT(inTheDatabase("SELECT UF_Color FROM Proyecto"), ElementsAre("0"));
    EXPECT_FALSE(projectRow("Veinte puestos").Bold());
}

} // namespace
} // namespace dn::tests
