// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The operator calls about a project; each end of the call is stored in the project, and the host's window of it
// comes.

#include "tests/stories/project_operator.h"

namespace dn::tests {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

class CallingAProject : public ProjectOperator {
protected:
    CallingAProject()
    {
        due("Otro", 19);
        key_ = due("Silo", 20);
        enters(ana);
        opensProjects();
        clicksProject("Silo");
    }

    std::string stored(const std::string& column, const std::string& project = "Silo")
    {
        return inTheDatabase("SELECT " + column + " FROM Proyecto WHERE Descripcion = '" + project + "'").at(0);
    }

    std::vector<std::string> log()
    {
        return inTheDatabase("SELECT uf_Mensaje FROM xt_biticontact WHERE uf_IProy = " + std::to_string(key_) +
                             " ORDER BY Sys_PK");
    }

    void expectProjectOpened()
    {
        EXPECT_THAT(host.log.calls, ElementsAre("EditarProyecto " + std::to_string(key_)));
        host.log.calls.clear();
    }

private:
    std::int64_t key_;
};

TEST_F(CallingAProject, with_contact)
{
    host.log.calls.clear();
    presses("cmdCall");
    presses("cmdContesta");
    presses("cmdCallCon(6)");
    types("txtResCall", "Firman el lunes");
    presses("cmdOkCall");
    EXPECT_THAT(log(), ElementsAre(HasSubstr("Con éxito. Resumen: Firman el lunes")));
    EXPECT_EQ(stored("uf_res_ultimointento"), "50");
    EXPECT_NE(stored("uf_ultimocontac"), "NULL");
    // The form of the statement that stores the first contact is one that SQL Server refuses.
    EXPECT_EQ(stored("uf_contactado"), onSqlServer() ? "NULL" : "1");
    EXPECT_EQ(stored("uf_primercontac") == "NULL", onSqlServer());
    EXPECT_EQ(stored("uf_res_ultimointento", "Otro"), "NULL");
    expectProjectOpened();
}

TEST_F(CallingAProject, that_is_answered_without_contact)
{
    for (int reason = 0; reason <= 5; ++reason) {
        host.log.calls.clear();
        if (reason == 5) answers("Motivo para no comunicarme:", "de viaje");
        presses("cmdCall");
        presses("cmdContesta");
        presses("cmdCallCon(" + std::to_string(reason) + ")");
        EXPECT_EQ(stored("uf_res_ultimointento"), std::to_string(reason + 11));
        EXPECT_NE(stored("uf_ultimointento"), "NULL");
        EXPECT_EQ(stored("uf_ultimocontac"), "NULL");
        expectProjectOpened();
    }
    EXPECT_THAT(log().at(2), HasSubstr("<Número equivocado>"));
    EXPECT_THAT(log().at(5), HasSubstr("<de viaje>"));
}

TEST_F(CallingAProject, that_reaches_nobody)
{
    const std::vector<std::string> buttons{"cmdOcupado", "cmdNoContestan", "cmdFueraServ"};
    for (std::size_t i = 0; i < buttons.size(); ++i) {
        host.log.calls.clear();
        presses("cmdCall");
        presses(buttons[i]);
        EXPECT_EQ(stored("uf_res_ultimointento"), std::to_string(i + 1));
        EXPECT_EQ(log().size(), i + 1);
        expectProjectOpened();
    }
    EXPECT_EQ(stored("uf_contactado"), "NULL");
    EXPECT_EQ(stored("uf_res_ultimointento", "Otro"), "NULL");
}

} // namespace
} // namespace dn::tests
