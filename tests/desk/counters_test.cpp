// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "desk/counters.h"

#include <gtest/gtest.h>

namespace dn::desk {
namespace {

struct CounterLabels : testing::Test {
    Elements elements;
    Counters counters{elements};

    static void addRows(ListView& list, int count)
    {
        for (int i = 0; i < count; ++i)
            list.ListItems().Add("", "row");
    }
};

TEST_F(CounterLabels, count_nothing_before_the_first_load)
{
    counters.UpdateCounters();

    EXPECT_EQ(elements.top.lblCuenta.Caption(), "Hoy: 0 actividades | Proyectos: 0 Contactos: 0");
    EXPECT_EQ(elements.today.lblcuenta2.Caption(), "Hoy: 0 actividades | Proyectos: 0 Contactos: 0");
    EXPECT_EQ(elements.organisations.lblinfoOrganizacion.Caption(), "Organizaciones: 0.");
    EXPECT_EQ(elements.persons.lblInfoContacto.Caption(), "Contactos: 0.");
}

TEST_F(CounterLabels, count_the_rows_of_each_list)
{
    addRows(elements.today.lvwHoy, 1);
    addRows(elements.projects.lvwProy, 2);
    addRows(elements.prospects.lvw, 3);
    addRows(elements.organisations.lvwOrganizaciones, 4);
    addRows(elements.persons.lvwContactos, 5);

    counters.UpdateCounters();

    EXPECT_EQ(elements.top.lblCuenta.Caption(), "Hoy: 1 actividades | Proyectos: 2 Contactos: 3");
    EXPECT_EQ(elements.today.lblcuenta2.Caption(), "Hoy: 1 actividades | Proyectos: 2 Contactos: 3");
    EXPECT_EQ(elements.organisations.lblinfoOrganizacion.Caption(), "Organizaciones: 4.");
    EXPECT_EQ(elements.persons.lblInfoContacto.Caption(), "Contactos: 5.");
}

TEST_F(CounterLabels, write_large_numbers_without_separators)
{
    addRows(elements.prospects.lvw, 12'345);

    counters.UpdateCounters();

    EXPECT_EQ(elements.top.lblCuenta.Caption(), "Hoy: 0 actividades | Proyectos: 0 Contactos: 12345");
}

TEST_F(CounterLabels, keep_their_numbers_until_they_are_asked_again)
{
    addRows(elements.prospects.lvw, 1);
    counters.UpdateCounters();

    elements.prospects.lvw.ListItems().Clear();
    EXPECT_EQ(elements.top.lblCuenta.Caption(), "Hoy: 0 actividades | Proyectos: 0 Contactos: 1");

    counters.UpdateCounters();
    EXPECT_EQ(elements.top.lblCuenta.Caption(), "Hoy: 0 actividades | Proyectos: 0 Contactos: 0");
}

} // namespace
} // namespace dn::desk
