// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The host's objects as the control uses them: operations without a window, and a prospect that becomes an
// opportunity.

#include "desk/elements.h"
#include "desk/tab_strip.h"
#include "screen/qt/ctr_dn_contacts_widget.h"
#include "shell/ctr_dn_contacts.h"
#include "tests/host/screens/fixture.h"

namespace dn::host::tests {
namespace {

using dn::tests::pressButton;

class HostObjects : public Screens {
protected:
    std::int32_t makePerson(const std::string& name, std::int32_t by = 5)
    {
        std::int32_t result = -1;
        projects->CrearPersona(name, "Internal", "Internal2", 4, "961", "t3", "a@b", "t4", by, result);
        return result;
    }
};

TEST_F(HostObjects, a_person_is_made_without_a_window)
{
    const std::int32_t key = makePerson("Zoé O'Neil \\ 👍");
    EXPECT_GT(key, 22);
    EXPECT_EQ(rows("SELECT Sys_PK, Nombre, Domicilio, Colonia, ICiudad, Tel_Trabajo, Tel_Movil, EMail, EMail2, "
                   "IEjecutivo FROM Persona WHERE Sys_PK > 22"),
              (std::vector<Row>{{std::to_string(key), "Zoé O'Neil \\ 👍", "Internal", "Internal2", "4", "961", "t3",
                                 "a@b", "t4", "5"}}));
    EXPECT_THAT(value("SELECT Sys_GUID FROM Persona WHERE Sys_PK > 22"), testing::MatchesRegex("[0-9a-f]{32}"));
}

TEST_F(HostObjects, a_person_that_the_server_refuses_has_the_key_0)
{
    operatorAt.expect("Aviso", [](QWidget& box) { pressButton(box, "Aceptar"); });
    EXPECT_EQ(makePerson(std::string(300, 'x')), 0);
    EXPECT_EQ(value("SELECT COUNT(*) FROM Persona"), "2");
}

TEST_F(HostObjects, the_control_binds_them_and_a_prospect_becomes_an_opportunity)
{
    server().execute("INSERT INTO Agente (Sys_PK, Nombre) VALUES (7, 'Sofía')");
    server().execute("INSERT INTO ut_icontact (Sys_PK, uf_Nombre, uf_IEjecutivo, uf_Status) VALUES "
                     "(31, 'Pedro', 7, 0)");
    screen::qt::CtrDnContactsWidget widget;
    ctrDnContacts& control = widget.control();
    control.hostObjects(&factory);
    control.SetObjects(&server(), agent, false, "Sofía");
    HostObject lands;
    control.InitUICRM("/ajustes", lands);
    control.RefreshData();
    EXPECT_EQ(factory.context().agent, agent);
    EXPECT_EQ(factory.context().user, "Sofía");
    EXPECT_EQ(factory.context().pathXML, "/ajustes");
    EXPECT_EQ(factory.context().lent, &server());
    EXPECT_EQ(factory.context().motor, onSqlServer() ? 0 : 1);

    operatorAt.expect("CrearProyecto", [](QWidget& window) {
        fillsWhatIsRequired(window);
        pressButton(window, "Aceptar");
    });
    widget.show();
    control.elements().top.lblItem(desk::prospectos).click();

    control.elements().detail.Combo1.pick("Oportunidad");
    EXPECT_EQ(rows("SELECT uf_Status, uf_NotaStatus FROM ut_icontact"), (std::vector<Row>{{"3", ""}}));
    EXPECT_EQ(value("SELECT IEjecutivo FROM Proyecto"), "7");
}

} // namespace
} // namespace dn::host::tests
