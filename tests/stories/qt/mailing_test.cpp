// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The addresses of a project at the real window: with the mouse, and with the keyboard alone.

#include "tests/stories/qt/window.h"

#include <QListView>

namespace dn::tests {
namespace {

using testing::ElementsAre;

class MailingAtTheWindow : public AtTheWindow {
protected:
    void SetUp() override
    {
        database("INSERT INTO Organizacion (Sys_PK, Nombre, EMail) VALUES (1, 'Acme', 'ventas@acme.mx')");
        database("INSERT INTO Persona (Sys_PK, Nombre, IOrganizacion, EMail, EMail2) VALUES (1, 'Ana', 1, "
                 "'ana.lopez@acme.mx', 'ana@casa.mx')");
        database(
            "INSERT INTO Proyecto (Sys_PK, Sys_GUID, Descripcion, IEjecutivo, IMeta, IOrganizacion, IContacto, "
            "UF_Status1) VALUES (1, 'AAAA', 'Silo', 7, 1, 1, 1, 1)");
        opens(ana, false);
        backTo(widget);
        widget.control().elements().top.lblItem(desk::proyectos).click();
    }
    std::string mail() const { return host.log.calls.empty() ? "" : host.log.calls.back(); }
};

TEST_F(MailingAtTheWindow, marks_lines_with_the_mouse)
{
    hands.expect("dlgDirMail", [&](QWidget& window) {
        isLegible(window);
        auto& list = widgetIn<QListView>(window, "lstDir");
        const QRect line = list.visualRect(list.model()->index(1, 0));
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, QPoint(line.left() + 10, line.center().y()));
        picture(window, "dlgDirMail");
        EXPECT_EQ(list.model()->index(0, 0).data(Qt::CheckStateRole).toInt(), static_cast<int>(Qt::Checked));
        EXPECT_EQ(list.model()->index(1, 0).data(Qt::CheckStateRole).toInt(), static_cast<int>(Qt::Checked));
        EXPECT_EQ(list.model()->index(2, 0).data(Qt::CheckStateRole).toInt(), static_cast<int>(Qt::Unchecked));
        pressButton(window, "Aceptar");
    });
    clicks("cmdSend");
    EXPECT_EQ(mail(), "Enviar PY.AAAA <ana.lopez@acme.mx;ventas@acme.mx>");
}

TEST_F(MailingAtTheWindow, marks_lines_with_the_keyboard_alone)
{
    hands.expect("dlgDirMail", [&](QWidget& window) {
        EXPECT_EQ(focus(), "lstDir");
        EXPECT_THAT(tabOrder(window), ElementsAre("lstDir", "cmdOk", "cmdCancel"));
        key(Qt::Key_Space); // the first line loses its mark
        key(Qt::Key_Down);
        key(Qt::Key_Down);
        key(Qt::Key_Space);
        key(Qt::Key_Return);
    });
    key(Qt::Key_F7);
    EXPECT_EQ(mail(), "Enviar PY.AAAA <ana@casa.mx>");
    hands.expect("dlgDirMail", [&](QWidget&) { key(Qt::Key_Escape); });
    host.log.calls.clear();
    backTo(widget);
    key(Qt::Key_F7);
    EXPECT_EQ(mail(), "");
}

} // namespace
} // namespace dn::tests
