// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// A person read ahead of its screen.

#include "tests/host/screens/fixture.h"
#include "tests/support/fake_connection.h"

namespace dn::host::tests {
namespace {

using testing::ElementsAre;

class PersonRecords : public Screens {
protected:
    bool load(std::int32_t key)
    {
        std::string text;
        HostObject object;
        std::int16_t mode = 3;
        bool result = false;
        person->Cargar(key, text, object, mode, result);
        return result;
    }

    std::shared_ptr<PersonaRegistro> person = factory.newPersonaRegistro();
};

TEST_F(PersonRecords, a_person_comes_with_key_and_agent)
{
    server().execute("UPDATE Persona SET IEjecutivo = 8 WHERE Sys_PK = 21");
    person->Conexion(&server());
    EXPECT_TRUE(load(ana));
    EXPECT_EQ(person->Llave(), ana);
    EXPECT_EQ(person->Ejecutivo()->Llave(), 8);
    EXPECT_EQ(person->UltimoError(), "");
}

TEST_F(PersonRecords, one_whom_nobody_looks_after_has_the_agent_0)
{
    person->Conexion(&server());
    EXPECT_TRUE(load(bruno));
    EXPECT_EQ(person->Ejecutivo()->Llave(), 0);
}

TEST_F(PersonRecords, a_failure_is_told_in_spanish_and_leaves_nobody_loaded)
{
    EXPECT_EQ(person->Llave(), 0);
    EXPECT_EQ(person->Ejecutivo()->Llave(), 0);
    EXPECT_FALSE(load(ana));
    EXPECT_EQ(person->UltimoError(), "Falta la conexión a la base de datos.");
    person->Conexion(&server());
    EXPECT_TRUE(load(ana));
    EXPECT_FALSE(load(0));
    EXPECT_EQ(person->UltimoError(), "No hay ninguna persona elegida.");
    EXPECT_EQ(person->Llave(), 0);
    EXPECT_FALSE(load(nobody));
    EXPECT_EQ(person->UltimoError(), "Esta persona ya no está en el directorio.");
    EXPECT_TRUE(load(ana));
    EXPECT_EQ(person->UltimoError(), "");
}

TEST_F(PersonRecords, it_sends_one_statement_on_the_connection_that_was_lent)
{
    dn::tests::FakeConnection lent;
    person->Conexion(&lent);
    lent.failAt(1, "Server has gone away");
    EXPECT_FALSE(load(ana));
    EXPECT_EQ(person->UltimoError(), "El servidor respondió: Server has gone away");
    EXPECT_THAT(lent.statements(),
                ElementsAre("SELECT Sys_PK, COALESCE(IEjecutivo, 0) FROM Persona WHERE Sys_PK = 21"));
    EXPECT_THAT(sent, testing::IsEmpty());
}

} // namespace
} // namespace dn::host::tests
