// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "host/screens/relations_window.h"

#include "host/screens/boxes.h"
#include "host/screens/entry_form.h"
#include "host/screens/project_form.h"
#include "screen/qt/hourglass.h"

#include <QGuiApplication>
#include <QKeyEvent>
#include <QPushButton>

#include <algorithm>
#include <memory>

namespace dn::host {
namespace {

using screen::qt::waiting;

constexpr int relationKeyRole = Qt::UserRole;
constexpr int amountColumn = 4;

QString text(const std::string& cell) { return QString::fromStdString(cell); }

/// The cells as an operator reads them.
std::vector<Relation> readable(std::vector<Relation> projects)
{
    const std::vector<Choice> all = temperatures(true);
    for (Relation& project : projects) {
        project.cells.at(0) = momentText(project.cells.at(0)).section(' ', 0, 0).toStdString();
        project.cells.at(3) = textOf(all, text(project.cells.at(3)).toInt()).toStdString();
        project.cells.at(4) = amountText(project.cells.at(4)).toStdString();
    }
    return projects;
}

/// One row looks chosen at a time, that of the list with the focus; the others only keep their place.
void tone(QTreeWidget& list, bool focused)
{
    QPalette palette = QGuiApplication::palette();
    if (!focused) {
        palette.setColor(QPalette::Highlight, palette.color(QPalette::Button).darker(110));
        palette.setColor(QPalette::HighlightedText, palette.color(QPalette::Text));
    }
    list.setPalette(palette);
}

std::vector<Relation> readableActivities(std::vector<Relation> activities)
{
    for (Relation& activity : activities) {
        activity.cells.at(0) = momentText(activity.cells.at(0)).toStdString();
        activity.cells.at(3) = activity.cells.at(3) == "0" ? "" : "Sí";
    }
    return activities;
}

} // namespace

RelationsWindow::RelationsWindow(ScreenContext& context, PartyField::Kind kind, std::int32_t key,
                                 const QString& caption, QWidget* over)
    : QDialog(over), context_(context), kind_(kind), key_(key), layout_(new QVBoxLayout(this))
{
    setObjectName("MostrarRelaciones");
    setWindowTitle(caption);
    projects_ = addList(projectsCaption_, "lstProyectos", "Proyectos",
                        {{"Inicio", 13}, {"Proyecto", 0}, {"Meta", 28}, {"Temperatura", 14}, {"Monto", 16}}, 3);
    activities_ = addList(activitiesCaption_, "lstActividades", "Actividades",
                          {{"Fecha", 19}, {"Tipo", 20}, {"Asunto", 0}, {"Hecha", 8}, {"Proyecto", 34}}, 3);
    parties_ = addList(partiesCaption_, "lstPartes", ofOrganisation() ? "Personas" : "Organizaciones",
                       {{"Nombre", 0}, {"Teléfono", 24}, {"Correo", 36}}, 2);
    projects_->headerItem()->setTextAlignment(amountColumn, Qt::AlignRight | Qt::AlignVCenter);
    addClose();
    resize(fontMetrics().averageCharWidth() * 126, fontMetrics().height() * 43);
    load();
    projects_->setFocus();
}

QTreeWidget* RelationsWindow::addList(QLabel*& caption, const char* name, const char* accessible,
                                      const std::vector<ReportColumn>& columns, int stretch)
{
    auto* const list = new QTreeWidget(this);
    dressAsReport(*list, name, accessible, columns);
    tone(*list, false);
    list->installEventFilter(this);
    connect(list, &QTreeWidget::itemDoubleClicked, this, [this, list] { openChosen(*list); });
    caption = new QLabel(this);
    caption->setObjectName(QString("lbl") + list->objectName());
    caption->setBuddy(list);
    layout_->addWidget(caption);
    layout_->addWidget(list, stretch);
    return list;
}

void RelationsWindow::addClose()
{
    auto* const line = new QHBoxLayout;
    auto* const hint = new QLabel("Con Enter o doble clic se abre el renglón.", this);
    hint->setObjectName("lblAyuda");
    line->addWidget(hint, 1);
    auto* const close = new QPushButton("&Cerrar", this);
    close->setObjectName("cmdCerrar");
    close->setAutoDefault(false);
    connect(close, &QPushButton::clicked, this, &QDialog::reject);
    line->addWidget(close);
    layout_->addLayout(line);
}

bool RelationsWindow::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut)
        tone(static_cast<QTreeWidget&>(*watched), event->type() == QEvent::FocusIn);
    if (event->type() != QEvent::KeyPress) return QDialog::eventFilter(watched, event);
    const int key = static_cast<const QKeyEvent*>(event)->key();
    if (key != Qt::Key_Return && key != Qt::Key_Enter) return false;
    openChosen(static_cast<const QTreeWidget&>(*watched));
    return true;
}

void RelationsWindow::load()
{
    OwnConnection& database = context_.database;
    fill(*projects_, *projectsCaption_, "&Proyectos", readable(relatedProjects(database, ofOrganisation(), key_)));
    fill(*activities_, *activitiesCaption_, "&Actividades",
         readableActivities(relatedActivities(database, ofOrganisation(), key_)));
    fill(*parties_, *partiesCaption_, ofOrganisation() ? "P&ersonas" : "&Organizaciones",
         relatedParties(database, ofOrganisation(), key_));
}

void RelationsWindow::fill(QTreeWidget& list, QLabel& caption, const QString& title,
                           const std::vector<Relation>& relations)
{
    const int row = list.indexOfTopLevelItem(list.currentItem());
    list.clear();
    QList<QTreeWidgetItem*> items;
    for (const Relation& relation : relations) {
        auto* const item = new QTreeWidgetItem;
        for (std::size_t column = 0; column < relation.cells.size(); ++column)
            item->setText(static_cast<int>(column), text(relation.cells[column]));
        if (&list == projects_) item->setTextAlignment(amountColumn, Qt::AlignRight | Qt::AlignVCenter);
        item->setData(0, relationKeyRole, relation.key);
        items.append(item);
    }
    list.addTopLevelItems(items);
    list.setCurrentItem(list.topLevelItem(std::max(0, std::min(row, list.topLevelItemCount() - 1))));
    const bool all = static_cast<std::int32_t>(relations.size()) < relationLimit;
    caption.setText(QString(all ? "%1 (%2)" : "%1 (los primeros %2)").arg(title).arg(relations.size()));
}

void RelationsWindow::openChosen(const QTreeWidget& list)
{
    const QTreeWidgetItem* const item = list.currentItem();
    if (item == nullptr) return;
    const std::int32_t key = item->data(0, relationKeyRole).toInt();
    const PartyField::Kind other = ofOrganisation() ? PartyField::Kind::person : PartyField::Kind::organisation;
    reporting(this, [&] {
        if (&list == parties_)
            waiting([&] { return std::make_unique<EntryForm>(context_, other, key, 0, this); })->exec();
        else
            editProject(context_, key, this);
    });
    reporting(this, [this] { waiting([this] { load(); }); });
}

} // namespace dn::host
