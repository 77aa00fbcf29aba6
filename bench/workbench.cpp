// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "bench/workbench.h"

#include <QCoreApplication>

#include <stdexcept>

namespace dn::bench {
namespace {

screen::ListView& listOf(desk::Elements& elements, desk::Tab tab)
{
    switch (tab) {
    case desk::proyectos:
        return elements.projects.lvwProy;
    case desk::hoy:
        return elements.today.lvwHoy;
    case desk::organizaciones:
        return elements.organisations.lvwOrganizaciones;
    case desk::contactos:
        return elements.persons.lvwContactos;
    default:
        return elements.prospects.lvw;
    }
}

} // namespace

Workbench::Workbench(desk::Tab tab)
{
    look(tab);
    widget_.resize(1280, 760);
    widget_.show();
}

void Workbench::look(desk::Tab tab)
{
    delete counter_; // of the list before
    tab_ = tab;
    list_ = &listOf(control().elements(), tab);
    view_ = widget_.findChild<QAbstractItemView*>(QString::fromStdString(list_->name()));
    if (view_ == nullptr) throw std::runtime_error("the control has no view of " + list_->name());
    counter_ = new PaintCounter(*view_); // owned by the view
}

void Workbench::open(BenchDatabase& database, std::int32_t agent)
{
    control().SetObjects(&database.connection(), agent, false, "bench");
    control().RefreshData();
    goTo(tab_);
}

void Workbench::goTo(desk::Tab tab)
{
    look(tab);
    control().elements().top.lblItem(tab_).click();
    view_->viewport()->update(); // the rows may have been painted in the yield of their own load
    counter_->awaitPaint();
}

Load Workbench::load()
{
    counter_->awaitRows();
    std::chrono::steady_clock::time_point start;
    double cpu = 0;
    Load load;
    load.whole = measure([&] {
        start = std::chrono::steady_clock::now();
        cpu = processCpuNow();
        desk::Elements& elements = control().elements();
        if (tab_ == desk::proyectos)
            elements.projects.cbProjStatusProj.pick(0);
        else
            elements.top.lblItem(tab_).click();
        view_->viewport()->update(); // the rows may have been painted in a yield of the control already
        awaitRows();
    });
    const PaintCounter::Frame& first = counter_->paintedRows().value();
    const std::chrono::duration<double, std::milli> passed = first.time - start;
    load.firstRow = passed.count();
    const bool all = static_cast<std::size_t>(first.rows) == rows();
    load.cost = all ? Cost{first.cpu - cpu, passed.count()} : load.whole;
    return load;
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
        view_->viewport()->update(); // it may be the selected row already
        counter_->awaitPaint();
    });
}

Cost Workbench::sort(int column)
{
    return measure([&] {
        list().clickHeader(column);
        view_->viewport()->update();
        counter_->awaitPaint();
    });
}

Cost Workbench::search(const std::string& text)
{
    desk::TopElements& top = control().elements().top;
    top.txtBuscar.Text(text);
    return measure([&] {
        top.cmdOkBuscar.press();
        view_->viewport()->update();
        counter_->awaitPaint();
    });
}

std::size_t Workbench::rows() { return static_cast<std::size_t>(list().ListItems().Count()); }

std::size_t Workbench::shownRows() const { return static_cast<std::size_t>(view_->model()->rowCount()); }

bool Workbench::showsSelection() const
{
    const QRect row = view_->visualRect(view_->currentIndex());
    return row.isValid() && view_->viewport()->rect().intersects(row);
}

// The frame that counts is the first one painted after the view took the rows.
void Workbench::awaitRows()
{
    do
        counter_->awaitPaint();
    while (shownRows() != rows());
}

Texts textsOf(screen::ListView& list)
{
    const screen::ListRows& rows = list.rows();
    Texts texts(rows.count());
    for (std::size_t position = 0; position < rows.count(); ++position)
        for (std::size_t cell = 0; cell < rows.cellCount(rows.rowAt(position)); ++cell)
            texts[position].emplace_back(rows.cell(rows.rowAt(position), cell));
    return texts;
}

} // namespace dn::bench
