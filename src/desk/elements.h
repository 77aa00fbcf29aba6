// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// Every element of the control, panel by panel, with its place, caption and first state. What happens on them is
// the business of the rooms, each of which takes the panels that it touches.
//
// From front to back the call panel stands before the lists, and the panels of the directories and of the day
// before the top panel, whose lower rows they cover.
#pragma once

#include "screen/button.h"
#include "screen/combo_box.h"
#include "screen/control_array.h"
#include "screen/image_list.h"
#include "screen/label.h"
#include "screen/list_view.h"
#include "screen/panels.h"
#include "screen/progress_bar.h"
#include "screen/text_box.h"
#include "screen/timer.h"

namespace dn::desk {

using screen::Button;
using screen::CheckBox;
using screen::ComboBox;
using screen::Container;
using screen::ControlArray;
using screen::ImageList;
using screen::Label;
using screen::ListView;
using screen::PicturePanel;
using screen::ProgressBar;
using screen::TextBox;
using screen::Timer;

/// The guided call: one outer panel and three inside it, of which one shows at a time.
struct CallElements {
    explicit CallElements(Container& control);

    PicturePanel picLlamada;
    PicturePanel picResumen;
    Label lblresmen;
    TextBox txtResCall;
    Button cmdOkCall;
    PicturePanel picContacto;
    ControlArray<Button> cmdCallCon;
    PicturePanel picLlamando;
    Label LabelLlamando;
    Label lbltel;
    ProgressBar PG;
    Button cmdContesta;
    Button cmdOcupado;
    Button cmdNoContestan;
    Button cmdFueraServ;
    Button cmdCancelCall;
    Timer Timer1;
};

/// The directory of persons.
struct PersonElements {
    explicit PersonElements(Container& control);

    PicturePanel picContactos;
    Button addContact;
    Button editContact;
    Button deleteContact;
    Button showContactRelations;
    Button genProyectFromContact;
    Label lblInfoContacto;
    ListView lvwContactos;
};

/// The directory of organisations.
struct OrganisationElements {
    explicit OrganisationElements(Container& control);

    PicturePanel picOrganizacion;
    Button addOrganization;
    Button editOrganization;
    Button deleteOrganization;
    Button showOrganizationRelations;
    Button genProyectFromOrganization;
    Label lblinfoOrganizacion;
    ListView lvwOrganizaciones;
};

/// The queue of the day.
struct TodayElements {
    explicit TodayElements(Container& control);

    PicturePanel picHoy;
    Button cmdEditHoy;
    Button Command7;
    Button geProyFromContacto;
    Label lblcuenta2;
    ListView lvwHoy;
};

/// The strip of tabs, the search row and the colour strip.
struct TopElements {
    explicit TopElements(Container& control);

    PicturePanel picTop;
    Button cmdOkBuscar;
    ComboBox cbAgente;
    PicturePanel pictab;
    ControlArray<PicturePanel> picItem; ///< the commands of the tabs 0 and 1
    TextBox txtBuscar;
    PicturePanel picColors;
    ControlArray<Button> bColor;
    Label lblCuenta;
    ControlArray<Label> lblItem; ///< the tabs
    Label lblBuscar;
};

/// The detail of the party in hand, on the right.
struct DetailElements {
    explicit DetailElements(Container& control);

    PicturePanel picRight;
    Button cmdEditC;
    // The row of the note lies over the lower half of pic1, so it comes ahead of it.
    TextBox txtText;
    Button cmdIntro;
    PicturePanel pic1;
    Button cmdCall;
    Button cmdNote;
    Button cmdSend;
    ComboBox Combo1;
    TextBox txtBit;
    TextBox txtInfo;
};

/// The prospects and their commands.
struct ProspectElements {
    ProspectElements(Container& control, TopElements& top);

    PicturePanel picAdmin;
    Button cmdProsDiscart;
    CheckBox chkProsSelPros;
    Button cmdProsNewProj;
    Button cmdProsNewPros;
    Button cmdProsAsignPros;
    ComboBox cbStatus;
    ImageList imgContactos;
    ListView lvw;
};

/// The projects and their commands.
struct ProjectElements {
    ProjectElements(Container& control, TopElements& top);

    Button cmdNewProjTool;
    Button cmdProjNewOrg;
    Button cmdProjNewContact;
    Button cmdProjSeekProj;
    Button cmdNewProjEditProj;
    Button cmdProjNewProj;
    ComboBox cbProjStatusProj;
    ImageList ImageList1;
    ListView lvwProy;
};

struct Elements {
    Elements();

    screen::UserControl control;
    CallElements call;
    PersonElements persons;
    OrganisationElements organisations;
    TodayElements today;
    TopElements top;
    DetailElements detail;
    ProspectElements prospects;
    ProjectElements projects;
};

} // namespace dn::desk
