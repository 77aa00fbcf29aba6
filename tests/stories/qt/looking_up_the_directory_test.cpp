// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The two directories at the real window, with the keyboard alone: each batch of keys names who has the focus.

#include "tests/stories/qt/window.h"

#include <QAbstractButton>
#include <QTableView>

#include <utility>

namespace dn::tests {
namespace {

using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::IsEmpty;

class DirectoryAtTheWindow : public AtTheWindow {
protected:
    void SetUp() override
    {
        database("INSERT INTO Persona (Sys_PK, Codigo, Nombre, Apellido1, Apellido2, EMail, IEjecutivo) VALUES "
                 "(1, 'P1', 'Ana', 'Ruiz', 'Gil', 'ana@acme.mx', 7), (2, 'P2', 'Bruno', 'Díaz', '', NULL, 7), "
                 "(3, 'P3', 'Celia', 'Paz', 'Luna', NULL, 7)");
        database("INSERT INTO Organizacion (Sys_PK, Codigo, Nombre, NomComercial, IEjecutivo) VALUES "
                 "(5, 'O5', 'Aceros SA', 'Aceros', 7), (6, 'O6', 'Barro SA', 'Barro', 7)");
        opens(ana, false);
        backTo(widget);
        host.log.calls.clear();
    }

    /// From the strip: the arrows go to the tab, Space opens it, Tab goes on to its list.
    void opensByKeys(const char* tab, const char* list)
    {
        widgetIn<QWidget>(widget, "lblItem(0)").setFocus(Qt::TabFocusReason);
        for (int i = 0; i < 5 && focus() != tab; ++i)
            key(Qt::Key_Right);
        ASSERT_EQ(focus(), tab);
        key(Qt::Key_Space);
        EXPECT_EQ(focus(), tab);
        goesTo(list);
        cnn->statements.clear();
    }
    /// Presses Tab until the focus is there.
    void goesTo(const std::string& name)
    {
        for (int i = 0; i < 50 && focus() != name; ++i)
            key(Qt::Key_Tab);
        EXPECT_EQ(focus(), name);
    }
    /// Presses the button with Space. @return what the host was asked since the last time.
    std::vector<std::string> presses(const char* button)
    {
        goesTo(button);
        key(Qt::Key_Space);
        return std::exchange(host.log.calls, {});
    }
    /// What Tab goes through from the list on: the strip, the row of the search, which stays there below the
    /// panel, and the panel.
    static std::vector<std::string> behindTheStrip(std::vector<std::string> list,
                                                   const std::vector<std::string>& panel)
    {
        for (const char* name :
             {"lblItem(0)", "lblItem(1)", "lblItem(2)", "lblItem(3)", "lblItem(4)", "txtBuscar", "cmdOkBuscar"})
            list.emplace_back(name);
        list.insert(list.end(), panel.begin(), panel.end());
        return list;
    }
    static std::string chosen(screen::ListView& list)
    {
        return list.SelectedItem() ? std::string(list.SelectedItem()->Key()) : "none";
    }
    static std::vector<std::string> keys(screen::ListView& list)
    {
        std::vector<std::string> result;
        for (int i = 1; i <= list.ListItems().Count(); ++i)
            result.emplace_back(list.ListItems()(i).Key());
        return result;
    }
    screen::ListView& persons() { return widget.control().elements().persons.lvwContactos; }
    screen::ListView& organisations() { return widget.control().elements().organisations.lvwOrganizaciones; }

    /// While an operation of the host runs, this happens in the database.
    void whileTheHost(const std::string& call, const std::string& statement)
    {
        host.log.during = [this, call, statement](const std::string& called) {
            if (called == call) database(statement);
        };
    }
    void buttonsAreLegible(const char* panel)
    {
        for (const QAbstractButton* button : widgetIn<QWidget>(widget, panel).findChildren<QAbstractButton*>())
            EXPECT_LE(button->minimumSizeHint().width(), button->width()) << button->objectName().toStdString();
    }
};

TEST_F(DirectoryAtTheWindow, persons_with_the_keyboard_alone)
{
    opensByKeys("lblItem(4)", "lvwContactos");
    EXPECT_THAT(tabOrder(widget), ElementsAreArray(behindTheStrip(
                                      {"lvwContactos"}, {"addContact", "editContact", "deleteContact",
                                                         "showContactRelations", "genProyectFromContact"})));
    buttonsAreLegible("picContactos");
    picture(widget, "directory-persons");
    EXPECT_EQ(chosen(persons()), "PK1");
    key(Qt::Key_Down);
    EXPECT_EQ(chosen(persons()), "PK2");
    EXPECT_THAT(cnn->statements, IsEmpty()) << "a row that is chosen asks nothing";
    host.person->agent = beto;
    whileTheHost("EditarPersona 2 9", "UPDATE Persona SET Nombre = 'Bruna' WHERE Sys_PK = 2");
    key(Qt::Key_Return);
    EXPECT_EQ(focus(), "lvwContactos");
    EXPECT_EQ(persons().ListItems()("PK2").ListSubItems()(1).Text(), "Bruna");
    EXPECT_EQ(chosen(persons()), "PK1") << "a list that was loaded anew begins at its first row";
    host.log.calls.clear();

    key(Qt::Key_End);
    EXPECT_EQ(chosen(persons()), "PK3");
    EXPECT_THAT(presses("showContactRelations"),
                ElementsAre("MostrarRelaciones 0 3 Relaciones del contacto: Celia Paz Luna."));
    EXPECT_THAT(presses("genProyectFromContact"), ElementsAre("CrearProyecto 0 3"));
    EXPECT_EQ(chosen(persons()), "PK3");
    host.screens->deleted = 0;
    EXPECT_THAT(presses("deleteContact"), ElementsAre("BorrarPersona 3 confirm"));
    EXPECT_EQ(chosen(persons()), "PK3") << "given up";
    host.screens->deleted = 1;
    whileTheHost("BorrarPersona 3 confirm", "DELETE FROM Persona WHERE Sys_PK = 3");
    EXPECT_THAT(presses("deleteContact"), ElementsAre("BorrarPersona 3 confirm"));
    EXPECT_EQ(focus(), "deleteContact");
    EXPECT_THAT(keys(persons()), ElementsAre("PK1", "PK2"));
    whileTheHost("EditarPersona 0 7", "INSERT INTO Persona (Sys_PK, Nombre, IEjecutivo) VALUES (8, 'Zoe', 7)");
    EXPECT_THAT(presses("addContact"), ElementsAre("EditarPersona 0 7"));
    EXPECT_EQ(focus(), "addContact");
    EXPECT_THAT(keys(persons()), ElementsAre("PK1", "PK2", "PK8"));
    EXPECT_THAT(presses("editContact"), testing::Contains("EditarPersona 1 9"));
}

TEST_F(DirectoryAtTheWindow, organisations_with_the_keyboard_alone)
{
    opensByKeys("lblItem(3)", "lvwOrganizaciones");
    EXPECT_THAT(tabOrder(widget),
                ElementsAreArray(behindTheStrip({"lvwOrganizaciones"},
                                                {"addOrganization", "editOrganization", "deleteOrganization",
                                                 "showOrganizationRelations", "genProyectFromOrganization"})));
    buttonsAreLegible("picOrganizacion");
    picture(widget, "directory-organisations");
    key(Qt::Key_Down);
    EXPECT_EQ(chosen(organisations()), "PK6");
    key(Qt::Key_Return);
    EXPECT_THAT(host.log.calls, IsEmpty()) << "a double click does nothing here, and Enter neither";
    EXPECT_THAT(presses("showOrganizationRelations"),
                ElementsAre("MostrarRelaciones 1 6 Relaciones de la organización: Barro SA"));
    EXPECT_THAT(presses("genProyectFromOrganization"), ElementsAre("CrearProyecto 1 6"));
    whileTheHost("EditarOrganizacion 6 7", "UPDATE Organizacion SET Nombre = 'Zinc' WHERE Sys_PK = 6");
    EXPECT_THAT(presses("editOrganization"), ElementsAre("EditarOrganizacion 6 7"));
    EXPECT_EQ(focus(), "editOrganization");
    EXPECT_EQ(organisations().ListItems()("PK6").ListSubItems()(1).Text(), "Zinc");
    EXPECT_THAT(presses("addOrganization"), ElementsAre("EditarOrganizacion 0 0"));
    for (const char* left : {"BorrarOrganizacion 5 confirm", "BorrarOrganizacion 6 confirm"}) {
        whileTheHost(left, std::string("DELETE FROM Organizacion WHERE Sys_PK = ") + left[19]);
        EXPECT_THAT(presses("deleteOrganization"), ElementsAre(left));
    }
    EXPECT_THAT(keys(organisations()), IsEmpty());
    EXPECT_EQ(focus(), "deleteOrganization") << "it can be pressed without a row";
    hands.expect("MsgBox", [](QWidget& box) {
        EXPECT_EQ(boxText(box), "Seleccione un elemento de la lista.");
        key(Qt::Key_Return);
    });
    EXPECT_THAT(presses("deleteOrganization"), IsEmpty());
    backTo(widget);
    EXPECT_EQ(focus(), "deleteOrganization");
}

TEST_F(DirectoryAtTheWindow, a_list_that_becomes_empty_leaves_the_keyboard_somewhere)
{
    database("DELETE FROM Persona WHERE Sys_PK > 1");
    opensByKeys("lblItem(4)", "lvwContactos");
    whileTheHost("BorrarPersona 1 confirm", "DELETE FROM Persona");
    EXPECT_THAT(presses("deleteContact"), ElementsAre("BorrarPersona 1 confirm"));
    EXPECT_FALSE(widgetIn<QAbstractButton>(widget, "deleteContact").isEnabled());
    EXPECT_NE(focus(), "");
    EXPECT_NE(focus(), "deleteContact");
    EXPECT_THAT(presses("addContact"), ElementsAre("EditarPersona 0 7"));
}

TEST_F(DirectoryAtTheWindow, a_server_that_refuses_is_told_once_and_the_rows_stay)
{
    for (const auto& [tab, table] :
         {std::pair{"lblItem(4)", "FROM Persona"}, std::pair{"lblItem(3)", "FROM Organizacion"}}) {
        widgetIn<QWidget>(widget, tab).setFocus();
        key(Qt::Key_Space);
        cnn->refuses = [table = table](std::string_view statement) {
            return statement.find(table) != std::string_view::npos;
        };
        int boxes = 0;
        hands.expect("MsgBox", [&](QWidget& box) {
            ++boxes;
            EXPECT_EQ(boxText(box), "Lock wait timeout exceeded");
            key(Qt::Key_Return);
        });
        key(Qt::Key_Space);
        EXPECT_EQ(boxes, 1);
        cnn->refuses = nullptr;
        backTo(widget);
        EXPECT_EQ(focus(), tab);
    }
    EXPECT_THAT(keys(persons()), ElementsAre("PK1", "PK2", "PK3"));
    EXPECT_THAT(keys(organisations()), ElementsAre("PK5", "PK6"));
}

} // namespace
} // namespace dn::tests
