// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The tab "Proyectos" under real clicks: a row, a double click, a colour, the filter.

#include "desk/elements.h"
#include "desk/tab_strip.h"
#include "screen/qt/ctr_dn_contacts_widget.h"
#include "shell/ctr_dn_contacts.h"
#include "tests/support/fake_connection.h"
#include "tests/support/fake_host.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QPlainTextEdit>
#include <QTableView>
#include <QTest>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace dn::tests {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

class ProjectBoard : public testing::Test {
protected:
    ProjectBoard()
    {
        cnn.on("SELECT NOW()").gives({"NOW()"}, {{date("2026-03-14")}});
        cnn.onContaining("From Agente").gives({"Sys_PK", "Nombre"}, {{whole(7), text("Ana")}});
        cnn.onContaining("FROM ((((mdtpactividad")
            .gives(
                {"Sys_PK", "UF_Status1", "UF_Color", "FInicio", "Actividad", "Asunto"},
                {{whole(1), whole(4), whole(1), date("2026-03-15 09:00:00"), text("Visita"), text("la primera")},
                 {whole(2), whole(6), null, date("2026-03-16 09:00:00"), text("Llamada"), text("la segunda")}});
        widget.control().hostObjects(&host);
        widget.control().SetObjects(&cnn, 7, true, "ana");
        widget.control().InitUICRM("", lands);
        widget.control().RefreshData();
        widget.resize(widget.sizeHint());
        widget.show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&widget));
        QTest::mouseClick(part<QWidget>("lblItem(1)"), Qt::LeftButton);
        EXPECT_TRUE(QTest::qWaitFor([this] { return table()->model()->rowCount() == 2; }));
        cnn.forgetStatements();
        host.log.calls.clear();
    }

    template <class Kind>
    Kind* part(const char* name)
    {
        Kind* const found = widget.findChild<Kind*>(QString::fromUtf8(name));
        if (found == nullptr) throw std::logic_error(std::string("no such widget: ") + name);
        return found;
    }

    QTableView* table() { return part<QTableView>("lvwProy"); }
    QPoint row(int index) { return table()->visualRect(table()->model()->index(index, 2)).center(); }
    std::string info() { return part<QPlainTextEdit>("txtInfo")->toPlainText().toStdString(); }

    FakeConnection cnn;
    FakeHost host;
    HostObject lands = std::make_shared<int>(1);
    screen::qt::CtrDnContactsWidget widget;
};

TEST_F(ProjectBoard, a_click_on_a_row_shows_the_project)
{
    EXPECT_THAT(info(), HasSubstr("la primera"));
    QTest::mouseClick(table()->viewport(), Qt::LeftButton, Qt::NoModifier, row(1));
    EXPECT_THAT(info(), HasSubstr("la segunda"));
    EXPECT_THAT(cnn.statements(), ElementsAre(HasSubstr("Proyecto.Sys_PK=2"), HasSubstr("uf_IProy = 2")));
}

TEST_F(ProjectBoard, a_double_click_opens_the_project_in_the_hosts_screen)
{
    QTest::mouseClick(table()->viewport(), Qt::LeftButton, Qt::NoModifier, row(1));
    QTest::mouseDClick(table()->viewport(), Qt::LeftButton, Qt::NoModifier, row(1));
    EXPECT_THAT(host.log.calls, ElementsAre("EditarProyecto 2"));
}

TEST_F(ProjectBoard, a_colour_is_stored_and_shown_in_the_row_and_in_the_strip)
{
    QTest::mouseClick(table()->viewport(), Qt::LeftButton, Qt::NoModifier, row(1));
    cnn.forgetStatements();
    QTest::mouseClick(part<QAbstractButton>("bColor(4)"), Qt::LeftButton);
    EXPECT_THAT(cnn.statements(), ElementsAre("UPDATE Proyecto SET UF_Color = 4 WHERE Sys_PK = 2"));
    EXPECT_TRUE(QTest::qWaitFor(
        [this] { return table()->model()->index(1, 2).data(Qt::FontRole).value<QFont>().bold(); }));
    const QPixmap strip = part<QWidget>("picColors")->grab();
    const QColor corner = strip.toImage().pixelColor(strip.width() - 2, strip.height() - 2);
    EXPECT_EQ(corner, QColor(0x80, 0x00, 0x80));
}

TEST_F(ProjectBoard, the_filter_loads_one_status)
{
    QComboBox* const filter = part<QComboBox>("cbProjStatusProj");
    filter->setFocus();
    QTest::keyClick(filter, Qt::Key_End);
    EXPECT_THAT(cnn.statements(), testing::Contains(HasSubstr("AND Proyecto.UF_Status1=6 ORDER BY actividad")));
}

} // namespace
} // namespace dn::tests
