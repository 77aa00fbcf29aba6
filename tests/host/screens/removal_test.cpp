// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// Deleting persons and organisations: the question, the refusal with its reasons, and what is left.

#include "tests/host/screens/projects_at_work.h"

#include <QPushButton>
#include <QTest>

namespace dn::host::tests {
namespace {

using dn::tests::pressButton;
using testing::HasSubstr;

class Removal : public ProjectsAtWork {
protected:
    static constexpr std::int32_t acero = 12; ///< an organisation on which nothing hangs

    std::int32_t removesPerson(std::int32_t key, bool confirm = true)
    {
        std::int32_t result = 5;
        crm->BorrarPersona(key, confirm, result);
        return result;
    }
    std::int32_t removesOrganisation(std::int32_t key, bool confirm = true)
    {
        std::int32_t result = 5;
        crm->BorrarOrganizacion(key, confirm, result);
        return result;
    }
    static std::string persons() { return keys("Persona"); }
    static std::string organisations() { return keys("Organizacion"); }
};

TEST_F(Removal, a_person_on_whom_nothing_hangs_goes_after_a_question)
{
    expectQuestion("¿Eliminar a la persona «Bruno Díaz»?", "Eliminar");
    EXPECT_NE(removesPerson(bruno), 0);
    EXPECT_EQ(persons(), "21");
    EXPECT_EQ(organisations(), "11,12");
}

TEST_F(Removal, an_organisation_on_which_nothing_hangs_goes_after_a_question)
{
    expectQuestion("¿Eliminar a la organización «Acero y Forja»?", "Eliminar");
    EXPECT_NE(removesOrganisation(acero), 0);
    EXPECT_EQ(organisations(), "11");
    EXPECT_EQ(persons(), "21,22");
}

TEST_F(Removal, a_no_leaves_it)
{
    expectQuestion("Bruno", "Conservar");
    EXPECT_EQ(removesPerson(bruno), 0);
    for (const Qt::Key key : {Qt::Key_Escape, Qt::Key_Return}) { // Enter in haste is a no as well
        operatorAt.expect("Pregunta", [key](QWidget& box) { QTest::keyClick(&box, key); });
        EXPECT_EQ(removesPerson(bruno), 0);
    }
    EXPECT_EQ(persons(), "21,22");
}

TEST_F(Removal, without_confirmation_it_asks_nothing)
{
    EXPECT_NE(removesPerson(bruno, false), 0);
    EXPECT_NE(removesOrganisation(acero, false), 0);
    EXPECT_EQ(persons(), "21");
    EXPECT_EQ(organisations(), "11");
}

TEST_F(Removal, who_has_projects_stays_and_the_reasons_are_told)
{
    operatorAt.expect("Aviso", [](QWidget& box) {
        EXPECT_EQ(boxText(box), "No se puede eliminar a la persona «Ana López»:\n\n• Tiene 1 proyecto con 2 "
                                "actividades:\n    – Licencias\n\nPonga antes a otra persona en esos proyectos.");
        pressButton(box, "Aceptar");
    });
    EXPECT_EQ(removesPerson(ana), 0);
    EXPECT_EQ(persons(), "21,22");
}

TEST_F(Removal, an_organisation_with_persons_and_many_projects_tells_some_of_them)
{
    server().execute("INSERT INTO Proyecto (IOrganizacion, Descripcion, FInicio) SELECT 11, CONCAT('Obra ', seq), "
                     "'2026-02-01' FROM seq_1_to_8");
    operatorAt.expect("Aviso", [](QWidget& box) {
        const std::string text = boxText(box);
        EXPECT_THAT(text, HasSubstr("Tiene 9 proyectos con 2 actividades:"));
        EXPECT_THAT(text, HasSubstr("– Obra 5\n    – y 4 más"));
        EXPECT_THAT(text, HasSubstr("En ella trabaja 1 persona del directorio"));
        pressButton(box, "Aceptar");
    });
    EXPECT_EQ(removesOrganisation(acme), 0);
    EXPECT_EQ(organisations(), "11,12");
}

TEST_F(Removal, one_that_is_gone_already_is_told_and_counts_as_gone)
{
    expectNotice("ya no existe");
    EXPECT_NE(removesPerson(nobody), 0);
}

TEST_F(Removal, a_project_that_came_while_the_operator_thought_about_it_holds_the_person)
{
    operatorAt.expect("Pregunta", [](QWidget& box) {
        server().execute("INSERT INTO Proyecto (IContacto, Descripcion) VALUES (22, 'Recién llegado')");
        pressButton(box, "Eliminar");
    });
    expectNotice("Recién llegado");
    EXPECT_EQ(removesPerson(bruno), 0);
    EXPECT_EQ(persons(), "21,22");
}

TEST_F(Removal, whichever_statement_fails_the_person_stays)
{
    expectNotice("ya no existe");
    removesPerson(nobody); // the connection stands from here on
    sent.clear();
    for (int n = 0; n < 8; ++n) { // name, projects, persons; START, projects, persons, DELETE, COMMIT
        failAfter(n);
        if (n > 2) expectQuestion("Bruno", "Eliminar");
        expectNotice("Lock wait timeout");
        EXPECT_EQ(removesPerson(bruno), 0) << n;
        EXPECT_EQ(persons(), "21,22") << n;
    }
    expectQuestion("Bruno", "Eliminar");
    EXPECT_NE(removesPerson(bruno), 0);
}

TEST_F(Removal, an_account_that_may_not_delete_is_told_so)
{
    server().execute("CREATE OR REPLACE USER 'lectora'@'%' IDENTIFIED BY 'x'");
    server().execute("GRANT SELECT ON pantallas.* TO 'lectora'@'%'");
    ScreensFactory readers([] { return openAs("lectora", "x"); });
    std::int32_t key = bruno;
    bool confirm = false;
    std::int32_t result = 5;
    expectNotice("denied");
    readers.newUI_CRM()->BorrarPersona(key, confirm, result);
    EXPECT_EQ(result, 0);
    EXPECT_EQ(persons(), "21,22");
    server().execute("DROP USER 'lectora'@'%'");
}

} // namespace
} // namespace dn::host::tests
