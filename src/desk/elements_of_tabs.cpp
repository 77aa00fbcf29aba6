// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The lists and commands of the five tabs.

#include "desk/elements.h"

#include <initializer_list>

namespace dn::desk {
namespace {

struct Command {
    Button* button;
    const char* caption;
    const char* picture;
    screen::Twips width;
};

constexpr screen::Twips commandHeight = 345;
constexpr screen::Twips commandGap = 45;

// Lays buttons beside each other and gives the place behind the last one.
screen::Twips layOutCommands(std::initializer_list<Command> commands, screen::Twips left, screen::Twips top)
{
    for (const Command& command : commands) {
        command.button->Caption(command.caption);
        command.button->Picture(command.picture);
        command.button->Move(left, top, command.width, commandHeight);
        left += command.width + commandGap;
    }
    return left;
}

// The strips lie 75 to the left of and 30 above what shows of them.
constexpr screen::Twips stripLeft = 105;
constexpr screen::Twips stripTop = 45;
// The panels of the other tabs lie elsewhere: with these the commands of all tabs stand in one place.
constexpr screen::Twips panelLeft = 0;
constexpr screen::Twips panelTop = 30;

/// @param spoken what a screen reader calls it.
void layOutList(ListView& list, const char* spoken)
{
    list.AccessibleName(spoken);
    list.Move(0, 1230, 12090, 8925);
    list.Visible(false);
}

void layOutPanel(PicturePanel& panel, screen::Twips height)
{
    panel.Move(30, 330, 13125, height);
    panel.Visible(false);
}

void layOutCounter(Label& label, const char* caption)
{
    label.Caption(caption);
    label.Move(panelLeft, 510, 45, 195);
    label.AutoSize(true);
}

} // namespace

PersonElements::PersonElements(Container& control)
    : picContactos(&control, "picContactos"),
      addContact(&picContactos, "addContact"),
      editContact(&picContactos, "editContact"),
      deleteContact(&picContactos, "deleteContact"),
      showContactRelations(&picContactos, "showContactRelations"),
      genProyectFromContact(&picContactos, "genProyectFromContact"),
      lblInfoContacto(&picContactos, "lblInfoContacto"),
      lvwContactos(&control, "lvwContactos")
{
    layOutPanel(picContactos, 840);
    layOutCommands({{&addContact, "Nuevo", "new", 1200},
                    {&editContact, "Editar", "edit", 1200},
                    {&deleteContact, "Eliminar", "delete", 1350},
                    {&showContactRelations, "Ver relaciones", "relations", 1800},
                    {&genProyectFromContact, "Crear proyecto", "project", 1800}},
                   panelLeft, panelTop);
    layOutCounter(lblInfoContacto, "infoContacto");
    layOutList(lvwContactos, "Contactos");
}

OrganisationElements::OrganisationElements(Container& control)
    : picOrganizacion(&control, "picOrganizacion"),
      addOrganization(&picOrganizacion, "addOrganization"),
      editOrganization(&picOrganizacion, "editOrganization"),
      deleteOrganization(&picOrganizacion, "deleteOrganization"),
      showOrganizationRelations(&picOrganizacion, "showOrganizationRelations"),
      genProyectFromOrganization(&picOrganizacion, "genProyectFromOrganization"),
      lblinfoOrganizacion(&picOrganizacion, "lblinfoOrganizacion"),
      lvwOrganizaciones(&control, "lvwOrganizaciones")
{
    layOutPanel(picOrganizacion, 810);
    layOutCommands({{&addOrganization, "Nuevo", "new", 1200},
                    {&editOrganization, "Editar", "edit", 1200},
                    {&deleteOrganization, "Eliminar", "delete", 1350},
                    {&showOrganizationRelations, "Ver relaciones", "relations", 1800},
                    {&genProyectFromOrganization, "Crear proyecto", "project", 1800}},
                   panelLeft, panelTop);
    layOutCounter(lblinfoOrganizacion, "infoOrganizacion");
    layOutList(lvwOrganizaciones, "Organizaciones");
}

TodayElements::TodayElements(Container& control)
    : picHoy(&control, "picHoy"),
      cmdEditHoy(&picHoy, "cmdEditHoy"),
      Command7(&picHoy, "Command7"),
      geProyFromContacto(&picHoy, "geProyFromContacto"),
      lblcuenta2(&picHoy, "lblcuenta2"),
      lvwHoy(&control, "lvwHoy")
{
    layOutPanel(picHoy, 810);
    layOutCommands({{&cmdEditHoy, "Editar", "edit", 1200},
                    {&Command7, "Historial de correos", "history", 2250},
                    {&geProyFromContacto, "Crear proyecto", "project", 1800}},
                   panelLeft, panelTop);
    cmdEditHoy.Shortcut("F2"); // as the command has that it stands in for
    layOutCounter(lblcuenta2, "info");
    layOutList(lvwHoy, "Trabajo del día");
    lvwHoy.AddColumn("Tipo", 2000);
    lvwHoy.AddColumn("Hora", 3000);
    lvwHoy.AddColumn("Contacto", 5000);
    lvwHoy.AddColumn("Empresa", 4000);
    lvwHoy.AddColumn("Teléfono", 2000);
    lvwHoy.AddColumn("Correo electrónico", 3000);
}

ProspectElements::ProspectElements(Container& control, TopElements& top)
    : picAdmin(&top.picItem(0), "picAdmin"),
      cmdProsDiscart(&picAdmin, "cmdProsDiscart"),
      chkProsSelPros(&picAdmin, "chkProsSelPros"),
      cmdProsNewProj(&top.picItem(0), "cmdProsNewProj"),
      cmdProsNewPros(&top.picItem(0), "cmdProsNewPros"),
      cmdProsAsignPros(&top.picItem(0), "cmdProsAsignPros"),
      cbStatus(&top.picItem(0), "cbStatus"),
      imgContactos("imgContactos", {"contact-new", "contact-verified", "contact-reached",
                                    "contact-verified-reached", "due-past", "due-ahead"}),
      lvw(&control, "lvw")
{
    cbStatus.AccessibleName("Estado de los prospectos");
    cbStatus.readsAnew(true);
    cbStatus.Move(stripLeft, stripTop, 1800, commandHeight);
    const screen::Twips behind = layOutCommands({{&cmdProsNewPros, "Nuevo", "new", 1200},
                                                 {&cmdProsNewProj, "Crear proyecto", "project", 1800},
                                                 {&cmdProsAsignPros, "Asignar", "assign", 1275}},
                                                1965, stripTop);
    picAdmin.Move(behind + 90, 30, 3900, 375);
    chkProsSelPros.Caption("Seleccionar todos");
    chkProsSelPros.Move(60, 15, 2100, commandHeight);
    layOutCommands({{&cmdProsDiscart, "Descartar", "discard", 1440}}, 2220, 15);

    layOutList(lvw, "Prospectos");
    lvw.SmallIcons(&imgContactos);
    constexpr screen::Twips wide = 1440;
    constexpr screen::Twips narrow = 800;
    for (const char* header : {"Tipo", "Interés"})
        lvw.AddColumn(header, wide);
    lvw.AddColumn("Prox. Contacto", 2440);
    for (const char* header :
         {"Nombre", "E-Mail", "Teléfonos", "Empresa", "Puesto", "Ciudad", "Estado", "País", "Recibido"})
        lvw.AddColumn(header, wide);
    lvw.AddColumn("Días", narrow);
    lvw.AddColumn("Últ.Contacto", wide);
    lvw.AddColumn("D.U.C.", narrow);
    lvw.AddColumn("Último intento", wide);
    lvw.AddColumn("D.U.I.", narrow);
}

ProjectElements::ProjectElements(Container& control, TopElements& top)
    : cmdNewProjTool(&top.picItem(1), "cmdNewProjTool"),
      cmdProjNewOrg(&top.picItem(1), "cmdProjNewOrg"),
      cmdProjNewContact(&top.picItem(1), "cmdProjNewContact"),
      cmdProjSeekProj(&top.picItem(1), "cmdProjSeekProj"),
      cmdNewProjEditProj(&top.picItem(1), "cmdNewProjEditProj"),
      cmdProjNewProj(&top.picItem(1), "cmdProjNewProj"),
      cbProjStatusProj(&top.picItem(1), "cbProjStatusProj"),
      ImageList1("ImageList1", {"project-frozen", "project-cold", "project-warm", "project-hot", "project-lost"}),
      lvwProy(&control, "lvwProy")
{
    cbProjStatusProj.AccessibleName("Estado de los proyectos");
    cbProjStatusProj.readsAnew(true);
    cbProjStatusProj.Move(stripLeft, stripTop, 2190, commandHeight);
    layOutCommands({{&cmdProjNewProj, "Nuevo proyecto", "project", 1740}, // all within 800 pixels
                    {&cmdNewProjEditProj, "Editar", "edit", 1110},
                    {&cmdProjSeekProj, "Buscar", "search", 1140},
                    {&cmdProjNewContact, "Nuevo contacto", "person", 1740},
                    {&cmdProjNewOrg, "Nueva organización", "organisation", 2100},
                    {&cmdNewProjTool, "Herramientas", "tools", 1560}},
                   2355, stripTop);

    layOutList(lvwProy, "Proyectos");
    lvwProy.SmallIcons(&ImageList1);
    lvwProy.AddColumn("Fecha y hora", 2000);
    lvwProy.AddColumn("Actividad", 1440);
    lvwProy.AddColumn("Asunto", 2500);
    lvwProy.AddColumn("Meta", 1440);
    lvwProy.AddColumn("Organización", 2500);
    lvwProy.AddColumn("Descripción", 3000);
    lvwProy.AddColumn("Monto", 1440);
    lvwProy.AddColumn("Persona", 2500);
    lvwProy.AddColumn("E-Mail", 1440);
    lvwProy.AddColumn("Tel", 1440);
    lvwProy.AddColumn("Días", 800);
    lvwProy.AddColumn("Últ. Contacto", 1440);
    lvwProy.AddColumn("D.U.C.", 800);
    lvwProy.AddColumn("Últ. intento", 1440);
    lvwProy.AddColumn("D.U.I.", 800);
}

} // namespace dn::desk
