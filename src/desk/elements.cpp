// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The frame of the control as designed for 15720 by 10155 twips: the outer container, the strip at the top and the
// detail panel on the right. The panels of the single tabs lie in elements_of_tabs.cpp.

#include "desk/elements.h"

#include "desk/tab_strip.h"

#include <array>
#include <string>

namespace dn::desk {
namespace {

constexpr int tabCount = 5;
constexpr screen::Twips tabWidth = 1500;
constexpr screen::Twips tabHeight = 315;

struct Tab {
    const char* caption;
    screen::Twips left;
};

constexpr std::array<Tab, tabCount> tabs{
    {{"Prospectos", 2805}, {"Proyectos", 4305}, {"Hoy", 5790}, {"Organizaciones", 7290}, {"Contactos", 8790}}};

struct Mark {
    const char* name;
    screen::Colour colour;
};

constexpr std::array<Mark, 5> marks{{{"Predeterminado", 0x000000},
                                     {"Rojo", 0x0000FF},
                                     {"Verde", 0x004000},
                                     {"Azul", 0xFF0000},
                                     {"Morado", 0x800080}}};

void layOutTabs(ControlArray<Label>& lblItem)
{
    int index = 0;
    for (const Tab& design : tabs) {
        Label& tab = lblItem(index++);
        tab.Caption(design.caption);
        tab.Move(design.left, 0, tabWidth, tabHeight);
        tab.BackColor(TabStrip::inactiveColour);
        tab.FontBold(true);
        tab.Alignment(screen::TextAlignment::centre);
        tab.handPointer(true);
    }
}

void layOutMarks(ControlArray<Button>& bColor)
{
    int index = 0;
    for (const Mark& mark : marks) {
        Button& button = bColor(index);
        button.Move(30 + index * 340, 30, 310, 255); // all five within the strip of a window of 800 pixels
        button.BackColor(mark.colour);
        button.Picture("mark-" + std::to_string(index)); // a shape for whoever does not tell the colours apart
        button.ToolTipText(mark.name);
        ++index;
    }
}

} // namespace

TopElements::TopElements(Container& control)
    : picTop(&control, "picTop"),
      cmdOkBuscar(&picTop, "cmdOkBuscar"),
      cbAgente(&picTop, "cbAgente"),
      pictab(&picTop, "pictab"),
      picItem(&pictab, "picItem", 2),
      txtBuscar(&picTop, "txtBuscar"),
      picColors(&picTop, "picColors"),
      bColor(&picColors, "bColor", 5),
      lblCuenta(&picColors, "lblCuenta"),
      lblItem(&picTop, "lblItem", tabCount),
      lblBuscar(&picTop, "lblBuscar")
{
    picTop.Align(screen::Align::top);
    picTop.Move(0, 0, 15720, 1230);
    cbAgente.Move(30, 0, 2790, 315);
    cbAgente.ToolTipText("Agente");
    cbAgente.readsAnew(true);
    layOutTabs(lblItem);
    picColors.Move(10260, -15, 3645, 315);
    picColors.BackColor(0xFFFFFF);
    layOutMarks(bColor);
    lblCuenta.Move(2025, 15, 45, 195);
    lblCuenta.AutoSize(true);
    lblCuenta.BackColor(0xFFFFFF); // the strip takes the colour of a mark, on which not every ink can be read
    pictab.Move(0, 345, 14865, 450);
    for (int i = 0; i < picItem.Count(); ++i) {
        picItem(i).Move(-75, -30, 13305, 390);
        picItem(i).Visible(false);
    }
    lblBuscar.Move(30, 810, 1080, 285);
    lblBuscar.Caption("&Buscar:");
    txtBuscar.Move(645, 810, 8715, 285);
    cmdOkBuscar.Move(9420, 810, 1275, 285);
    cmdOkBuscar.Caption("(OK) Buscar");
}

DetailElements::DetailElements(Container& control)
    : picRight(&control, "picRight"),
      cmdEditC(&picRight, "cmdEditC"),
      txtText(&picRight, "txtText"),
      cmdIntro(&picRight, "cmdIntro"),
      pic1(&picRight, "pic1"),
      cmdCall(&pic1, "cmdCall"),
      cmdNote(&pic1, "cmdNote"),
      cmdSend(&pic1, "cmdSend"),
      Combo1(&picRight, "Combo1"),
      txtBit(&picRight, "txtBit"),
      txtInfo(&picRight, "txtInfo")
{
    picRight.Align(screen::Align::right);
    picRight.Move(12090, 1230, 3630, 8925);
    Combo1.Move(30, 75, 2295, 330);
    Combo1.Enabled(false);
    Combo1.AccessibleName("Cambiar estado");
    txtInfo.AccessibleName("Datos");
    txtBit.AccessibleName("Bitácora");
    txtText.AccessibleName("Nota nueva");
    cmdEditC.Move(2370, 75, 1170, 330);
    cmdEditC.Caption("Corregir");
    cmdEditC.Picture("edit");
    cmdEditC.Shortcut("F2");
    txtInfo.Move(30, 465, 3510, 2190);
    txtInfo.MultiLine(true);
    txtInfo.Locked(true);

    pic1.Move(30, 2715, 3525, 705);
    cmdCall.Move(0, 0, 1155, 345);
    cmdCall.Caption("Llamar");
    cmdCall.Picture("call");
    cmdCall.Shortcut("F8");
    cmdNote.Move(1185, 0, 1155, 345);
    cmdNote.Caption("Nota");
    cmdNote.Picture("note");
    cmdNote.Shortcut("F6");
    cmdSend.Move(2370, 0, 1155, 345);
    cmdSend.Caption("Correo");
    cmdSend.Picture("mail");
    cmdSend.Shortcut("F7");
    txtText.Move(30, 3090, 2340, 315);
    txtText.MultiLine(true);   // one line high, yet a text that is pasted or set by code keeps its line ends
    txtText.ScrollBars(false); // the arrows of a bar would fill it
    txtText.Enabled(false);
    cmdIntro.Move(2400, 3090, 1155, 315);
    cmdIntro.Caption("Registrar");
    cmdIntro.Shortcut("F9");
    cmdIntro.Enabled(false);

    txtBit.Move(30, 3450, 3510, 4740);
    txtBit.MultiLine(true);
    txtBit.Locked(true);
}

Elements::Elements()
    : control("ctrDnContacts"),
      call(control),
      persons(control),
      organisations(control),
      today(control),
      top(control),
      detail(control),
      prospects(control, top),
      projects(control, top)
{
    control.frontToBack({&persons.picContactos, &organisations.picOrganizacion, &today.picHoy, &call.picLlamada,
                         &projects.lvwProy, &top.picTop, &detail.picRight, &prospects.lvw, &today.lvwHoy,
                         &persons.lvwContactos, &organisations.lvwOrganizaciones});
    control.Width(15720);
    control.Height(10155);
}

} // namespace dn::desk
