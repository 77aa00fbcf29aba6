// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The panel of a telephone call: ringing, on the line, summary.

#include "desk/elements.h"

#include <array>
#include <string>

namespace dn::desk {
namespace {

constexpr std::array<const char*, 7> answers{
    "No se encuentra",      "Ocupado o \"en junta\"",         "Número equivocado",   "Me colgaron",
    "No quiere saber nada", "Otra razón para no comunicarme", "Contacto establecido"};

constexpr screen::Twips panelWidth = 7695;
constexpr screen::Twips panelHeight = 3945;

void layOut(Button& button, const char* caption, const char* picture, screen::Twips left, screen::Twips top,
            screen::Twips width)
{
    button.Caption(caption);
    button.Picture(picture);
    button.Move(left, top, width, 420);
}

} // namespace

CallElements::CallElements(Container& control)
    : picLlamada(&control, "picLlamada"),
      picResumen(&picLlamada, "picResumen"),
      lblresmen(&picResumen, "lblresmen"),
      txtResCall(&picResumen, "txtResCall"),
      cmdOkCall(&picResumen, "cmdOkCall"),
      picContacto(&picLlamada, "picContacto"),
      cmdCallCon(&picContacto, "cmdCallCon", 7),
      picLlamando(&picLlamada, "picLlamando"),
      LabelLlamando(&picLlamando, "LabelLlamando"),
      lbltel(&picLlamando, "lbltel"),
      PG(&picLlamando, "PG"),
      cmdContesta(&picLlamando, "cmdContesta"),
      cmdOcupado(&picLlamando, "cmdOcupado"),
      cmdNoContestan(&picLlamando, "cmdNoContestan"),
      cmdFueraServ(&picLlamando, "cmdFueraServ"),
      cmdCancelCall(&picLlamando, "cmdCancelCall"),
      Timer1(&picLlamada, "Timer1")
{
    picLlamada.Move(570, 4275, panelWidth, panelHeight);
    picLlamada.framed(true);
    picLlamada.Visible(false);
    for (PicturePanel* state : {&picResumen, &picContacto, &picLlamando}) {
        state->Move(150, 150, panelWidth - 300, panelHeight - 300);
        state->Visible(false);
    }
    constexpr screen::Twips inner = panelWidth - 300;

    LabelLlamando.Caption("Llamando...");
    LabelLlamando.FontBold(true);
    LabelLlamando.Move(0, 60, inner, 300);
    lbltel.FontBold(true);
    lbltel.UseMnemonic(false);
    lbltel.Move(0, 420, inner, 300);
    PG.Move(0, 900, inner, 240);
    layOut(cmdContesta, "Llamada establecida", "call", 0, 1530, 3630);
    layOut(cmdOcupado, "Ocupado", "call-busy", 3765, 1530, 3630);
    layOut(cmdNoContestan, "No contestan", "call-unanswered", 0, 2160, 3630);
    layOut(cmdFueraServ, "Fuera de servicio", "call-unavailable", 3765, 2160, 3630);
    layOut(cmdCancelCall, "Cancelar", "cancel", 0, 2790, inner);

    int index = 0;
    for (const char* answer : answers) {
        layOut(cmdCallCon(index), answer, index == 6 ? "accept" : "", 0, 30 + index * 510, inner);
        ++index;
    }

    lblresmen.Caption("Resumen de la llamada:");
    lblresmen.Move(0, 30, inner, 270);
    txtResCall.MultiLine(true);
    txtResCall.Move(0, 330, inner, 2670);
    layOut(cmdOkCall, "Fin de la llamada", "call-end", 0, 3150, inner);

    int number = 0;
    for (Button* command : {&cmdContesta, &cmdOcupado, &cmdNoContestan, &cmdFueraServ})
        command->Shortcut("Ctrl+" + std::to_string(++number));
    cmdCancelCall.Shortcut("Esc", picLlamada); // who writes a note meanwhile cancels no call
    for (int i = 0; i < cmdCallCon.Count(); ++i)
        cmdCallCon(i).Shortcut("Alt+" + std::to_string(i + 1)); // no key that has just answered the line
    cmdOkCall.Shortcut("F8");

    PG.Range(0, 100);
    PG.AccessibleName("Llamando");
    Timer1.Interval(25);
    Timer1.Moves(PG, 101); // from 0 to 100
}

} // namespace dn::desk
