// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The looks of the five tabs, of a call, and of the themes. Database and clock are fakes, so that nothing in a
// picture depends on the day.

#include "screen/qt/guard.h"
#include "screen/qt/list_view_view.h"
#include "screen/qt/panel_views.h"
#include "screen/qt/theme.h"
#include "shell/list_commands.h"
#include "tests/approved/approval.h"
#include "tests/directories/fixture.h"
#include "tests/screen/qt/accessible_tree.h"
#include "tests/support/project_fixture.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QTest>

#include <algorithm>
#include <array>
#include <memory>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

namespace dn::tests {
namespace {

/// The control's own view, over ports of a test.
class Looks : public ProjectTest {
protected:
    Looks()
    {
        prospects(
            {prospect(12, {{"uf_Nombre", text("Luz Ñúñez")},
                           {"uf_EMail", text("luz@example.com")},
                           {"uf_Telefono", text("961 111 2233")},
                           {"uf_Empresa", text("Silos del Sureste")},
                           {"uf_Puesto", text("Compras")},
                           {"uf_Fecha", date("2026-03-01")},
                           {"uf_proxcontac", date("2026-03-13 10:00:00")},
                           {"uf_correoverif", boolean(true)},
                           {"uf_color", whole(1)},
                           {"e_dias", whole(13)}}),
             prospect(13, {{"uf_Nombre", text("Mario Paz")},
                           {"uf_Fecha", date("2026-03-02")},
                           {"uf_proxcontac", date("2026-03-15 12:30:00")},
                           {"uf_contactado", boolean(true)},
                           {"uf_color", whole(2)}}),
             prospect(14, {{"uf_Nombre", text("Rosa Díaz")}, {"uf_color", whole(3)}}),
             prospect(15, {{"uf_Nombre", text("Toño Gil")}, {"uf_color", whole(4)}}),
             prospect(16, {{"uf_Nombre", text("Zoe Luna")}, {"uf_proxcontac", date("2026-03-20 09:00:00")}})});
        activities({activity(41, {{"FInicio", date("2026-03-14 16:00:00")},
                                  {"Actividad", text("Llamada")},
                                  {"Asunto", text("Presentar la propuesta")},
                                  {"Meta", text("Venta de licencias")},
                                  {"Organizacion", text("Silos del Sureste")},
                                  {"Descripcion", text("Ampliación de la planta")},
                                  {"UF_monto", number("125000.50")},
                                  {"UF_Status1", whole(3)},
                                  {"UF_Color", whole(3)},
                                  {"contacto", text("Luz Ñúñez ")}}),
                    activity(42, {{"FInicio", date("2026-03-16 10:00:00")},
                                  {"Asunto", text("Visita")},
                                  {"UF_Status1", whole(4)},
                                  {"Organizacion", text("Molinos Díaz")}})});
        projects({project(43, {{"Meta", text("Renovación")}, {"Organizacion", text("Granero")}})});
        contactData({{"Tel1", text("961 111 2233")}, {"PN_Nombre", text("Luz")}});
        const std::vector<std::string> queue{"ejecutivo", "Tipo",    "Sys_PK",   "cita",
                                             "Contacto",  "empresa", "telefono", "email"};
        cnn.onContaining("from qhoy")
            .gives(queue, {{whole(7), text("Contacto"), whole(12), null, text("Luz Ñúñez"),
                            text("Silos del Sureste"), text("961 111 2233"), text("luz@example.com")},
                           {whole(7), text("Proyecto"), whole(41), date("2026-03-13 16:00:00"), text("Luz Ñúñez"),
                            text("Silos del Sureste"), text("961 111 2233"), text("luz@example.com")},
                           {whole(7), text("Contacto"), whole(13), date("2026-03-14 12:30:00"), text("Mario Paz"),
                            text(""), text(""), text("")}});
    }
    void fillDirectories()
    {
        const Cell none = text("");
        cnn.onContaining("FROM Persona")
            .gives(DirectoryColumns::persons(),
                   {{whole(21), text("P-0021"), text("Luz"), text("Ñúñez"), text("Díaz"), text("luz@example.com"),
                     none, none, text("961 111 2233 ext. 204"), text("55 1234 5678"),
                     text("Av. Central Poniente 1240, local 3"), text("Centro"), text("29000")},
                    {whole(22), text("P-0022"), text("María de los Ángeles Guadalupe"), text("Paz"), none, none,
                     none, text("961 222 3344"), none, none, none, none, none}});
        cnn.onContaining("FROM Organizacion")
            .gives(DirectoryColumns::organisations(),
                   {{whole(11), text("O-0011"), text("Silos del Sureste"), text("Silos"), text("961 111 2233"),
                     text("961 111 2234"), none, none, text("ventas@silos.example"), text("www.silos.example"),
                     text("Av. Central Poniente 1240"), text("Centro"), text("29000"), text("México")},
                    {whole(12), text("O-0012"), text("Comercializadora de Molinos y Graneros"), none, none, none,
                     none, none, none, none, none, none, none, none}});
    }
    ~Looks() override { QApplication::setPalette(schemePalette(screen::qt::Scheme::light)); }

    void opensTab(int tab)
    {
        start(7, true);
        if (tab == desk::hoy) elements().top.lblItem(desk::prospectos).click();
        elements().top.lblItem(tab).click();
    }

    /// The window with the control, made at its first use.
    screen::qt::ControlView& view()
    {
        if (view_) return *view_;
        view_ = std::make_unique<screen::qt::ControlView>(control.root(), nullptr, guard);
        screen::qt::dress(*view_);
        view_->resize(usual);
        view_->show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(view_.get()));
        view_->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(view_.get()));
        return *view_;
    }

    void looks(const char* name, Scales scales = Scales::one)
    {
        view().resize(usual);
        QApplication::processEvents();
        QApplication::processEvents(); // the lists publish their rows once a turn
        looksAsApproved(view(), name, scales);
        for (const int width : {1280, 1048, 800}) {
            view().resize(width, usual.height());
            QApplication::processEvents();
            std::vector<std::string> cut = cutOff(view());
            if (width == 800) std::erase(cut, "lblCuenta"); // no room beside the marks, whose strip tells it
            EXPECT_THAT(cut, testing::IsEmpty()) << name << " at " << width;
        }
        EXPECT_THAT(unnamed(view()), testing::IsEmpty()) << name;
        EXPECT_THAT(unreached(view()), testing::IsEmpty()) << name;
    }

    screen::qt::Guard guard;

private:
    static constexpr QSize usual{1100, 560};

    std::unique_ptr<screen::qt::ControlView> view_; // ends before what it shows
};

TEST_F(Looks, of_the_prospects)
{
    opensTab(desk::prospectos);
    looks("prospectos", Scales::oneAndThree);
}

TEST_F(Looks, of_the_projects)
{
    opensTab(desk::proyectos);
    looks("proyectos");
}

TEST_F(Looks, of_the_day)
{
    opensTab(desk::hoy);
    looks("hoy");
}

TEST_F(Looks, of_the_organisations)
{
    fillDirectories();
    opensTab(desk::organizaciones);
    looks("organizaciones");
}

TEST_F(Looks, of_the_persons)
{
    fillDirectories();
    opensTab(desk::contactos);
    looks("contactos");
}

TEST_F(Looks, of_a_call)
{
    opensTab(desk::prospectos);
    lvw().clickRow(0);
    elements().detail.cmdCall.press();
    elements().call.Timer1.Enabled(false); // the bar stands still
    looks("llamada");
    elements().call.cmdContesta.press();
    looks("llamada-contestada");
    elements().call.cmdCallCon(6).press();
    looks("llamada-resumen");
}

TEST_F(Looks, of_the_menu_of_a_row)
{
    opensTab(desk::prospectos);
    auto* const list = view().findChild<screen::qt::ListViewView*>("lvw");
    list->offer(shell::commandsOf("lvw", elements()));
    QContextMenuEvent asked(QContextMenuEvent::Mouse, {120, 30}, list->viewport()->mapToGlobal(QPoint(120, 30)));
    QApplication::sendEvent(list->viewport(), &asked);
    QWidget* const menu = QApplication::activePopupWidget();
    ASSERT_NE(menu, nullptr);
    looksAsApproved(*menu, "menu-de-un-prospecto");
    menu->close();
}

/// Each tab in the schemes that are not the usual one.
class LooksInSchemes : public Looks, public testing::WithParamInterface<std::tuple<screen::qt::Scheme, int>> {};

TEST_P(LooksInSchemes, of_a_tab)
{
    const auto [scheme, tab] = GetParam();
    constexpr std::array tabs{"prospectos", "proyectos", "hoy", "organizaciones", "contactos"};
    constexpr std::array schemes{"claro", "oscuro", "contraste", "contraste-claro"};
    QApplication::setPalette(schemePalette(scheme));
    fillDirectories();
    opensTab(tab);
    const std::string name =
        std::string(tabs.at(static_cast<std::size_t>(tab))) + "-" + schemes.at(static_cast<std::size_t>(scheme));
    looks(name.c_str());
}

INSTANTIATE_TEST_SUITE_P(All, LooksInSchemes,
                         testing::Combine(testing::Values(screen::qt::Scheme::dark,
                                                          screen::qt::Scheme::whiteOnBlack,
                                                          screen::qt::Scheme::blackOnWhite),
                                          testing::Range(0, 5)));

TEST(Approval, is_held_in_the_fonts_of_the_pictures) { EXPECT_TRUE(hasApprovedFonts()) << "run it by ctest"; }

TEST(Approval, sees_a_letter_and_no_soft_edge)
{
    QImage approved(100, 40, QImage::Format_RGB32);
    approved.fill(Qt::white);
    QImage taken = approved;
    for (int x = 0; x < 100; ++x)
        taken.setPixel(x, 3, qRgb(210, 210, 210));
    EXPECT_EQ(differing(taken, approved), 0);
    for (int y = 5; y < 14; ++y)
        taken.setPixel(20, y, qRgb(0, 0, 0));
    EXPECT_EQ(differing(taken, approved), 9);
    EXPECT_EQ(differing(taken.copy(0, 0, 99, 40), approved), 99 * 40);
}

TEST(Approval, sees_the_stripes_of_a_list_and_no_reduced_colours)
{
    for (const auto& [name, scheme] : {std::pair("prospectos.png", screen::qt::Scheme::light),
                                       std::pair("hoy-oscuro.png", screen::qt::Scheme::dark)}) {
        const QImage approved =
            QImage(QStringLiteral(DN_APPROVED "/pictures/") + name).convertToFormat(QImage::Format_RGB32);
        ASSERT_FALSE(approved.isNull()) << name;
        const QPalette palette = schemePalette(scheme);
        const QRgb stripe = palette.color(QPalette::AlternateBase).rgb();
        QImage plain = approved;
        QImage softer = approved;
        for (int y = 0; y < approved.height(); ++y)
            for (int x = 0; x < approved.width(); ++x) {
                const QRgb seen = approved.pixel(x, y);
                if (seen == stripe) plain.setPixel(x, y, palette.color(QPalette::Base).rgb());
                const int nudge = (x + y) % 2 == 0 ? 1 : -1;
                softer.setPixel(x, y, qRgb(std::clamp(qRed(seen) + nudge, 0, 255), qGreen(seen), qBlue(seen)));
            }
        EXPECT_EQ(differing(plain, approved), 0) << name << " is alike, pixel by pixel";
        EXPECT_GT(shaded(plain, approved).size(), 50U) << name;
        EXPECT_TRUE(shaded(softer, approved).empty()) << name;
    }
}

} // namespace
} // namespace dn::tests
