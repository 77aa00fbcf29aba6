// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "bench/workbench.h"

#include <QCoreApplication>

#include <stdexcept>

namespace dn::bench {

Workbench::Workbench(desk::Tab tab) : tab_(tab)
{
    desk::Elements& elements = widget_.control().elements();
    list_ = tab == desk::contactos   ? &elements.persons.lvwContactos
            : tab == desk::proyectos ? &elements.projects.lvwProy
                                     : &elements.prospects.lvw;
    widget_.resize(1280, 760);
    widget_.show();
    view_ = widget_.findChild<QAbstractItemView*>(QString::fromStdString(list_->name()));
    if (view_ == nullptr) throw std::runtime_error("the control has no view of " + list_->name());
    counter_ = new PaintCounter(*view_); // owned by the view
}

void Workbench::open(BenchDatabase& database)
{
    ctrDnContacts& control = widget_.control();
    control.SetObjects(&database.connection(), database.agent(), false, "bench");
    control.RefreshData();
    control.elements().top.lblItem(tab_).click();
    view_->viewport()->update(); // the rows may have been painted in the yield of their own load
    counter_->awaitPaint();
}

Cost Workbench::load()
{
    return measure([&] {
        desk::Elements& elements = widget_.control().elements();
        if (tab_ == desk::proyectos)
            elements.projects.cbProjStatusProj.pick(0);
        else
            elements.top.lblItem(tab_).click();
        view_->viewport()->update(); // as above
        awaitRows();
    });
}

Cost Workbench::fill(const Texts& texts)
{
    std::vector<std::string> keys(texts.size()); // rows in memory have their keys
    for (std::size_t row = 0; row < keys.size(); ++row)
        keys[row] = "K" + std::to_string(row + 1);
    return measure([&] {
        for (std::size_t row = 0; row < texts.size(); ++row) {
            const std::vector<std::string>& cells = texts[row];
            screen::ListSubItems subItems = list().ListItems().Add(keys[row], cells.front()).ListSubItems();
            for (std::size_t column = 1; column < cells.size(); ++column)
                subItems.Add(cells[column]);
        }
        awaitRows();
    });
}

void Workbench::clear()
{
    list().ListItems().Clear();
    QCoreApplication::processEvents();
}

Cost Workbench::repaint()
{
    return measure([&] {
        view_->viewport()->update();
        counter_->awaitPaint();
    });
}

Cost Workbench::select(const std::string& key)
{
    return measure([&] {
        screen::ListItem item = list().ListItems()(key);
        item.Selected(true);
        item.EnsureVisible();
        counter_->awaitPaint();
    });
}

std::size_t Workbench::rows() { return static_cast<std::size_t>(list().ListItems().Count()); }

std::size_t Workbench::shownRows() const { return static_cast<std::size_t>(view_->model()->rowCount()); }

// The frame that counts is the first one painted after the view took the rows.
void Workbench::awaitRows()
{
    do
        counter_->awaitPaint();
    while (shownRows() != rows());
}

} // namespace dn::bench
