// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The five lists: their columns and images, and the commands above them.

#include "desk/elements.h"
#include "tests/support/element_tree.h"
#include "tests/support/list_columns.h"

#include <gmock/gmock.h>

#include <set>
#include <utility>

namespace dn::desk {
namespace {

using tests::Columns;
using tests::columnsOf;

TEST(ListColumns, of_the_prospects)
{
    const Elements elements;

    EXPECT_EQ(columnsOf(elements.prospects.lvw), (Columns{{"Tipo", 1440},
                                                          {"Interés", 1440},
                                                          {"Prox. Contacto", 2440},
                                                          {"Nombre", 1440},
                                                          {"E-Mail", 1440},
                                                          {"Teléfonos", 1440},
                                                          {"Empresa", 1440},
                                                          {"Puesto", 1440},
                                                          {"Ciudad", 1440},
                                                          {"Estado", 1440},
                                                          {"País", 1440},
                                                          {"Recibido", 1440},
                                                          {"Días", 800},
                                                          {"Últ.Contacto", 1440},
                                                          {"D.U.C.", 800},
                                                          {"Último intento", 1440},
                                                          {"D.U.I.", 800}}));
}

TEST(ListColumns, of_the_projects)
{
    const Elements elements;

    EXPECT_EQ(columnsOf(elements.projects.lvwProy), (Columns{{"Fecha y hora", 2000},
                                                             {"Actividad", 1440},
                                                             {"Asunto", 2500},
                                                             {"Meta", 1440},
                                                             {"Organización", 2500},
                                                             {"Descripción", 3000},
                                                             {"Monto", 1440},
                                                             {"Persona", 2500},
                                                             {"E-Mail", 1440},
                                                             {"Tel", 1440},
                                                             {"Días", 800},
                                                             {"Últ. Contacto", 1440},
                                                             {"D.U.C.", 800},
                                                             {"Últ. intento", 1440},
                                                             {"D.U.I.", 800}}));
}

TEST(ListColumns, of_the_day)
{
    const Elements elements;

    EXPECT_EQ(columnsOf(elements.today.lvwHoy), (Columns{{"Tipo", 2000},
                                                         {"Hora", 3000},
                                                         {"Contacto", 5000},
                                                         {"Empresa", 4000},
                                                         {"Teléfono", 2000},
                                                         {"Correo electrónico", 3000}}));
}

TEST(ListColumns, of_the_directories_come_later)
{
    const Elements elements;

    EXPECT_TRUE(elements.persons.lvwContactos.ColumnHeaders().empty());
    EXPECT_TRUE(elements.organisations.lvwOrganizaciones.ColumnHeaders().empty());
}

TEST(ListImages, six_for_the_prospects_five_for_the_projects_and_none_elsewhere)
{
    const Elements elements;

    EXPECT_EQ(elements.prospects.lvw.SmallIcons(), &elements.prospects.imgContactos);
    EXPECT_EQ(elements.prospects.imgContactos.name(), "imgContactos");
    EXPECT_EQ(elements.prospects.imgContactos.Count(), 6);
    EXPECT_EQ(elements.projects.lvwProy.SmallIcons(), &elements.projects.ImageList1);
    EXPECT_EQ(elements.projects.ImageList1.name(), "ImageList1");
    EXPECT_EQ(elements.projects.ImageList1.Count(), 5);
    for (const ListView* list :
         {&elements.today.lvwHoy, &elements.persons.lvwContactos, &elements.organisations.lvwOrganizaciones})
        EXPECT_EQ(list->SmallIcons(), nullptr) << list->name();
}

TEST(ListImages, are_all_different)
{
    const Elements elements;

    for (const ImageList* images : {&elements.prospects.imgContactos, &elements.projects.ImageList1}) {
        std::set<std::string> names;
        for (int number = 1; number <= images->Count(); ++number)
            names.insert(images->image(number));
        EXPECT_EQ(names.size(), static_cast<std::size_t>(images->Count())) << images->name();
        EXPECT_FALSE(names.contains("")) << images->name();
    }
}

TEST(Lists, start_unsorted_by_their_first_column_and_without_check_boxes)
{
    Elements elements;

    for (const char* name : {"lvw", "lvwProy", "lvwHoy", "lvwContactos", "lvwOrganizaciones"}) {
        auto& list = tests::elementNamed<ListView>(elements.control, name);
        EXPECT_EQ(list.SortKey(), 0) << name;
        EXPECT_EQ(list.SortOrder(), ListView::ascending) << name;
        EXPECT_FALSE(list.Sorted()) << name;
        EXPECT_FALSE(list.CheckBoxes()) << name;
        EXPECT_EQ(list.ListItems().Count(), 0) << name;
        EXPECT_EQ(list.SelectedItem(), std::nullopt) << name;
    }
}

// Two neighbours of one row of commands: neither lies on the other.
void expectBesideEachOther(const Container& strip)
{
    for (const screen::Element* left : strip.children())
        for (const screen::Element* right : strip.children()) {
            if (left == right || left->Left() > right->Left()) continue;
            EXPECT_LE(left->Left() + left->Width(), right->Left()) << left->name() << " on " << right->name();
        }
}

TEST(Commands, of_a_strip_stand_beside_each_other_and_inside_it)
{
    Elements elements;

    for (const char* name : {"picItem(0)", "picItem(1)", "picAdmin", "pic1"}) {
        const auto& strip = tests::elementNamed<Container>(elements.control, name);
        expectBesideEachOther(strip);
        for (const screen::Element* child : strip.children()) {
            EXPECT_LE(child->Left() + child->Width(), strip.Width()) << child->name();
            // The strip of the administrators is part of the one that it lies in, which is a pixel lower than it.
            EXPECT_LE(child->Top() + child->Height(), strip.Height() + 15) << child->name();
        }
    }
}

TEST(Commands, of_all_tabs_stand_in_one_place)
{
    const Elements elements;
    const auto place = [](const screen::Element& element) {
        std::pair<screen::Twips, screen::Twips> found;
        for (const screen::Element* step = &element; step->parent() != nullptr; step = step->parent()) {
            found.first += step->Left();
            found.second += step->Top();
        }
        return found;
    };
    const auto first = place(elements.prospects.cbStatus);
    EXPECT_EQ(place(elements.projects.cbProjStatusProj), first);
    EXPECT_EQ(place(elements.today.cmdEditHoy), first);
    EXPECT_EQ(place(elements.organisations.addOrganization), first);
    EXPECT_EQ(place(elements.persons.addContact), first);
}

} // namespace
} // namespace dn::desk
