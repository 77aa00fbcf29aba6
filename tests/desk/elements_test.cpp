// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The screen of the control as designed: what lies in what, where it stands, and how it looks before anything
// happens.

#include "desk/elements.h"
#include "desk/tab_strip.h"
#include "tests/support/approved_text.h"
#include "tests/support/element_tree.h"
#include "tests/support/screen_design.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <array>
#include <ostream>
#include <string>
#include <vector>

namespace dn::desk {
namespace {

using testing::UnorderedElementsAreArray;
using tests::elementNamed;
using tests::namesIn;

// ---- What lies in what

struct Contents {
    std::string container;
    std::vector<std::string> elements;
};

void PrintTo(const Contents& contents, std::ostream* out) { *out << contents.container; }

class Containment : public testing::TestWithParam<Contents> {
protected:
    Elements elements;

    const Container& container()
    {
        const std::string& name = GetParam().container;
        return name == "ctrDnContacts" ? elements.control : elementNamed<Container>(elements.control, name);
    }
};

TEST_P(Containment, is_as_designed)
{
    EXPECT_THAT(namesIn(container()), UnorderedElementsAreArray(GetParam().elements));
}

INSTANTIATE_TEST_SUITE_P(
    All, Containment,
    testing::Values(
        Contents{"ctrDnContacts",
                 {"picContactos", "picOrganizacion", "picHoy", "picLlamada", "lvwProy", "picTop", "picRight",
                  "lvw", "lvwHoy", "lvwContactos", "lvwOrganizaciones"}},
        Contents{"picTop",
                 {"cmdOkBuscar", "cbAgente", "pictab", "txtBuscar", "picColors", "lblItem(0)", "lblItem(1)",
                  "lblItem(2)", "lblItem(3)", "lblItem(4)", "lblBuscar"}},
        Contents{"pictab", {"picItem(1)", "picItem(0)"}},
        Contents{"picItem(0)", {"picAdmin", "cmdProsNewProj", "cmdProsNewPros", "cmdProsAsignPros", "cbStatus"}},
        Contents{"picAdmin", {"cmdProsDiscart", "chkProsSelPros"}},
        Contents{"picItem(1)",
                 {"cmdNewProjTool", "cmdProjNewOrg", "cmdProjNewContact", "cmdProjSeekProj", "cmdNewProjEditProj",
                  "cmdProjNewProj", "cbProjStatusProj"}},
        Contents{"picColors", {"bColor(0)", "bColor(1)", "bColor(2)", "bColor(3)", "bColor(4)", "lblCuenta"}},
        Contents{"picRight", {"cmdEditC", "pic1", "Combo1", "txtBit", "cmdIntro", "txtText", "txtInfo"}},
        Contents{"pic1", {"cmdCall", "cmdNote", "cmdSend"}},
        Contents{"picHoy", {"geProyFromContacto", "cmdEditHoy", "Command7", "lblcuenta2"}},
        Contents{"picContactos",
                 {"genProyectFromContact", "showContactRelations", "deleteContact", "editContact", "addContact",
                  "lblInfoContacto"}},
        Contents{"picOrganizacion",
                 {"genProyectFromOrganization", "showOrganizationRelations", "deleteOrganization",
                  "editOrganization", "addOrganization", "lblinfoOrganizacion"}},
        Contents{"picLlamada", {"picResumen", "picContacto", "picLlamando", "Timer1"}},
        Contents{"picLlamando",
                 {"LabelLlamando", "lbltel", "PG", "cmdContesta", "cmdOcupado", "cmdNoContestan", "cmdFueraServ",
                  "cmdCancelCall"}},
        Contents{"picContacto",
                 {"cmdCallCon(0)", "cmdCallCon(1)", "cmdCallCon(2)", "cmdCallCon(3)", "cmdCallCon(4)",
                  "cmdCallCon(5)", "cmdCallCon(6)"}},
        Contents{"picResumen", {"lblresmen", "txtResCall", "cmdOkCall"}}));

// ---- Where it stands

struct Frame {
    std::string name;
    std::array<screen::Twips, 4> place; // left, top, width, height
};

void PrintTo(const Frame& frame, std::ostream* out) { *out << frame.name; }

class Frames : public testing::TestWithParam<Frame> {
protected:
    static std::array<screen::Twips, 4> place(const screen::Element& element)
    {
        return {element.Left(), element.Top(), element.Width(), element.Height()};
    }

    Elements elements;
};

TEST_P(Frames, are_as_designed)
{
    EXPECT_EQ(place(elementNamed(elements.control, GetParam().name)), GetParam().place);
}

INSTANTIATE_TEST_SUITE_P(
    All, Frames,
    testing::Values(Frame{"picTop", {0, 0, 15720, 1230}}, Frame{"picRight", {12090, 1230, 3630, 8925}},
                    Frame{"cbAgente", {30, 0, 2790, 315}}, Frame{"pictab", {0, 345, 14865, 450}},
                    Frame{"picItem(0)", {-75, -30, 13305, 390}}, Frame{"picItem(1)", {-75, -30, 13305, 390}},
                    Frame{"lblBuscar", {30, 810, 1080, 285}}, Frame{"txtBuscar", {645, 810, 8715, 285}},
                    Frame{"picColors", {10260, -15, 3645, 315}}, Frame{"picContactos", {30, 330, 13125, 840}},
                    Frame{"picOrganizacion", {30, 330, 13125, 810}}, Frame{"picHoy", {30, 330, 13125, 810}},
                    Frame{"picLlamada", {570, 4275, 7695, 3945}}, Frame{"txtInfo", {30, 465, 3510, 2190}},
                    Frame{"pic1", {30, 2715, 3525, 705}}, Frame{"txtBit", {30, 3450, 3510, 4740}},
                    Frame{"lblItem(0)", {2805, 0, 1500, 315}}, Frame{"lblItem(1)", {4305, 0, 1500, 315}},
                    Frame{"lblItem(2)", {5790, 0, 1500, 315}}, Frame{"lblItem(3)", {7290, 0, 1500, 315}},
                    Frame{"lblItem(4)", {8790, 0, 1500, 315}}, Frame{"lblCuenta", {2025, 15, 45, 195}}));

TEST(ElementFrames, the_control_has_its_designed_size)
{
    const Elements elements;

    EXPECT_EQ(elements.control.Width(), 15720);
    EXPECT_EQ(elements.control.Height(), 10155);
    EXPECT_EQ(elements.top.cmdOkBuscar.Width(), 1275);
    EXPECT_EQ(elements.top.cmdOkBuscar.Height(), 285);
}

TEST(ElementFrames, the_two_strips_dock_and_nothing_else_does)
{
    Elements elements;

    for (const screen::Element* child : elements.control.children()) {
        const auto expected = child->name() == "picTop"     ? screen::Align::top
                              : child->name() == "picRight" ? screen::Align::right
                                                            : screen::Align::none;
        EXPECT_EQ(child->Align(), expected) << child->name();
    }
}

TEST(ElementFrames, the_panels_stand_in_front_of_what_they_cover)
{
    Elements elements;
    const std::vector<std::string> order = namesIn(elements.control);
    const auto place = [&](const char* name) {
        return std::find(order.begin(), order.end(), name) - order.begin();
    };

    for (const char* panel : {"picContactos", "picOrganizacion", "picHoy"})
        EXPECT_LT(place(panel), place("picTop")) << panel;
    for (const char* list : {"lvw", "lvwProy", "lvwHoy", "lvwContactos", "lvwOrganizaciones"})
        EXPECT_LT(place("picLlamada"), place(list)) << list;
}

// ---- How it looks at first

TEST(FirstState, the_tabs_are_five_bold_centred_labels_of_the_inactive_colour)
{
    Elements elements;
    const std::array<const char*, 5> captions{"Prospectos", "Proyectos", "Hoy", "Organizaciones", "Contactos"};

    ASSERT_EQ(elements.top.lblItem.Count(), 5);
    for (int i = 0; i < 5; ++i) {
        const Label& tab = elements.top.lblItem(i);
        EXPECT_EQ(tab.Caption(), captions[static_cast<std::size_t>(i)]);
        EXPECT_EQ(tab.BackColor(), screen::Colour(0xC0FFFF));
        EXPECT_EQ(tab.BorderStyle(), 0);
        EXPECT_TRUE(tab.FontBold());
        EXPECT_EQ(tab.Alignment(), screen::TextAlignment::centre);
        EXPECT_TRUE(tab.handPointer());
    }
}

TEST(FirstState, no_list_no_strip_of_commands_and_no_panel_of_a_tab_shows)
{
    Elements elements;

    for (const char* name : {"lvw", "lvwProy", "lvwHoy", "lvwContactos", "lvwOrganizaciones", "picHoy",
                             "picContactos", "picOrganizacion", "picItem(0)", "picItem(1)", "picLlamada"})
        EXPECT_FALSE(elementNamed(elements.control, name).Visible()) << name;
    EXPECT_TRUE(elements.top.picTop.Visible());
    EXPECT_TRUE(elements.detail.picRight.Visible());
}

TEST(FirstState, nothing_can_be_noted_while_no_party_is_in_hand)
{
    const Elements elements;

    EXPECT_FALSE(elements.detail.Combo1.Enabled());
    EXPECT_FALSE(elements.detail.txtText.Enabled());
    EXPECT_FALSE(elements.detail.cmdIntro.Enabled());
}

TEST(FirstState, the_boxes_of_several_lines_are_those_of_notes_and_texts)
{
    const Elements elements;

    EXPECT_TRUE(elements.detail.txtText.MultiLine());
    EXPECT_TRUE(elements.detail.txtBit.MultiLine());
    EXPECT_TRUE(elements.detail.txtInfo.MultiLine());
    EXPECT_TRUE(elements.call.txtResCall.MultiLine());
    EXPECT_FALSE(elements.top.txtBuscar.MultiLine());
    EXPECT_TRUE(elements.detail.txtInfo.Locked());
    EXPECT_FALSE(elements.detail.txtText.Locked());
    EXPECT_FALSE(elements.call.txtResCall.Locked());
}

TEST(FirstState, the_marks_are_five_buttons_in_their_colours_on_a_white_strip)
{
    Elements elements;
    const std::vector<std::pair<std::string, screen::Colour>> marks{{"Predeterminado", 0x000000},
                                                                    {"Rojo", 0x0000FF},
                                                                    {"Verde", 0x004000},
                                                                    {"Azul", 0xFF0000},
                                                                    {"Morado", 0x800080}};

    ASSERT_EQ(elements.top.bColor.Count(), 5);
    for (int i = 0; i < 5; ++i) {
        const auto& [name, colour] = marks[static_cast<std::size_t>(i)];
        EXPECT_EQ(elements.top.bColor(i).ToolTipText(), name);
        EXPECT_EQ(elements.top.bColor(i).BackColor(), colour);
    }
    EXPECT_EQ(elements.top.picColors.BackColor(), screen::Colour(0xFFFFFF));
}

TEST(FirstState, the_counters_show_their_placeholders)
{
    const Elements elements;

    EXPECT_EQ(elements.top.lblCuenta.Caption(), "");
    EXPECT_EQ(elements.today.lblcuenta2.Caption(), "info");
    EXPECT_EQ(elements.organisations.lblinfoOrganizacion.Caption(), "infoOrganizacion");
    EXPECT_EQ(elements.persons.lblInfoContacto.Caption(), "infoContacto");
}

TEST(FirstState, the_combos_are_empty_and_take_no_typing)
{
    Elements elements;

    for (const char* name : {"cbAgente", "cbStatus", "cbProjStatusProj", "Combo1"}) {
        const auto& combo = elementNamed<ComboBox>(elements.control, name);
        EXPECT_EQ(combo.ListCount(), 0) << name;
        EXPECT_EQ(combo.ListIndex(), -1) << name;
        EXPECT_FALSE(combo.editable()) << name;
    }
}

struct CaptionOf {
    std::string name;
    std::string caption;
};

void PrintTo(const CaptionOf& caption, std::ostream* out) { *out << caption.name; }

class ButtonCaptions : public testing::TestWithParam<CaptionOf> {
protected:
    Elements elements;
};

TEST_P(ButtonCaptions, are_as_designed)
{
    EXPECT_EQ(elementNamed<Button>(elements.control, GetParam().name).Caption(), GetParam().caption);
}

INSTANTIATE_TEST_SUITE_P(
    All, ButtonCaptions,
    testing::Values(
        CaptionOf{"cmdOkBuscar", "(OK) Buscar"}, CaptionOf{"cmdEditC", "Corregir"},
        CaptionOf{"cmdIntro", "Registrar"}, CaptionOf{"cmdCall", "Llamar"}, CaptionOf{"cmdNote", "Nota"},
        CaptionOf{"cmdSend", "Correo"}, CaptionOf{"cmdProsDiscart", "Descartar"},
        CaptionOf{"cmdProsAsignPros", "Asignar"}, CaptionOf{"cmdProsNewPros", "Nuevo"},
        CaptionOf{"cmdProsNewProj", "Crear proyecto"}, CaptionOf{"cmdProjNewProj", "Nuevo proyecto"},
        CaptionOf{"cmdNewProjEditProj", "Editar"}, CaptionOf{"cmdProjSeekProj", "Buscar"},
        CaptionOf{"cmdProjNewContact", "Nuevo contacto"}, CaptionOf{"cmdProjNewOrg", "Nueva organización"},
        CaptionOf{"cmdNewProjTool", "Herramientas"}, CaptionOf{"cmdEditHoy", "Editar"},
        CaptionOf{"Command7", "Historial de correos"}, CaptionOf{"geProyFromContacto", "Crear proyecto"},
        CaptionOf{"addContact", "Nuevo"}, CaptionOf{"editContact", "Editar"},
        CaptionOf{"deleteContact", "Eliminar"}, CaptionOf{"showContactRelations", "Ver relaciones"},
        CaptionOf{"genProyectFromContact", "Crear proyecto"}, CaptionOf{"addOrganization", "Nuevo"},
        CaptionOf{"editOrganization", "Editar"}, CaptionOf{"deleteOrganization", "Eliminar"},
        CaptionOf{"showOrganizationRelations", "Ver relaciones"},
        CaptionOf{"genProyectFromOrganization", "Crear proyecto"}, CaptionOf{"cmdContesta", "Llamada establecida"},
        CaptionOf{"cmdOcupado", "Ocupado"}, CaptionOf{"cmdNoContestan", "No contestan"},
        CaptionOf{"cmdFueraServ", "Fuera de servicio"}, CaptionOf{"cmdCancelCall", "Cancelar"},
        CaptionOf{"cmdCallCon(0)", "No se encuentra"}, CaptionOf{"cmdCallCon(1)", "Ocupado o \"en junta\""},
        CaptionOf{"cmdCallCon(2)", "Número equivocado"}, CaptionOf{"cmdCallCon(3)", "Me colgaron"},
        CaptionOf{"cmdCallCon(4)", "No quiere saber nada"},
        CaptionOf{"cmdCallCon(5)", "Otra razón para no comunicarme"},
        CaptionOf{"cmdCallCon(6)", "Contacto establecido"}, CaptionOf{"cmdOkCall", "Fin de la llamada"}));

TEST(ElementOrder, puts_the_call_and_the_panels_of_the_tabs_before_what_they_cover)
{
    const Elements elements;
    EXPECT_THAT(tests::namesIn(elements.control),
                testing::ElementsAre("picContactos", "picOrganizacion", "picHoy", "picLlamada", "lvwProy",
                                     "picTop", "picRight", "lvw", "lvwHoy", "lvwContactos", "lvwOrganizaciones"));
}

TEST(ScreenDesign, is_the_approved_one)
{
    Elements elements;
    tests::expectApproved(tests::designOf(elements.control), "desk/design/ctrDnContacts.txt");
}

TEST(OtherCaptions, are_as_designed)
{
    const Elements elements;

    EXPECT_EQ(elements.top.lblBuscar.Caption(), "&Buscar:");
    EXPECT_EQ(elements.prospects.chkProsSelPros.Caption(), "Seleccionar todos");
    EXPECT_EQ(elements.prospects.chkProsSelPros.Value(), 0);
}

} // namespace
} // namespace dn::desk
