// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "host/screens/activity_list.h"

#include "host/screens/activity_form.h"
#include "host/screens/report_list.h"
#include "screen/qt/colours.h"

#include <QKeyEvent>
#include <QLabel>
#include <QVBoxLayout>

#include <algorithm>

namespace dn::host {
namespace {

enum Column { doneColumn, whenColumn, kindColumn, subjectColumn };

} // namespace

ActivityList::ActivityList(OwnConnection& database, std::int32_t project, QWidget* parent)
    : QWidget(parent),
      database_(database),
      project_(project),
      kinds_(readActivityKinds(database)),
      activities_(readActivities(database, project)),
      list_(new QTreeWidget(this))
{
    setObjectName("Actividades");
    build();
    fill(0);
}

void ActivityList::build()
{
    dressAsReport(*list_, "lstActividades", "Actividades",
                  {{"Hecha", 8}, {"Fecha", 19}, {"Tipo", 22}, {"Asunto", 0}});
    list_->installEventFilter(this);
    auto* const caption = new QLabel("Acti&vidades:", this);
    caption->setObjectName("lblActividades");
    caption->setBuddy(list_);
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, fontMetrics().height() / 2, 0, 0);
    layout->addWidget(caption);
    layout->addWidget(list_, 1);
    buildButtons();
    connect(list_, &QTreeWidget::itemDoubleClicked, this, [this](QTreeWidgetItem*, int column) {
        if (column != doneColumn) edit();
    });
    connect(list_, &QTreeWidget::currentItemChanged, this, [this] { followSelection(); });
    connect(list_, &QTreeWidget::itemChanged, this, [this](QTreeWidgetItem* item, int) {
        mark(static_cast<std::size_t>(list_->indexOfTopLevelItem(item)),
             item->checkState(doneColumn) == Qt::Checked);
    });
}

void ActivityList::buildButtons()
{
    auto* const line = new QHBoxLayout;
    line->addWidget(button("cmdAgregar", "Agrega&r…", &ActivityList::add));
    needRow_ = {button("cmdEditar", "Ed&itar…", &ActivityList::edit),
                button("cmdReprogramar", "Cam&biar fecha…", &ActivityList::reschedule),
                button("cmdHecha", "Marcar &hecha", &ActivityList::toggle)};
    toggle_ = needRow_.back();
    for (QPushButton* one : needRow_)
        line->addWidget(one);
    line->addStretch(1);
    static_cast<QVBoxLayout&>(*layout()).addLayout(line);
}

QPushButton* ActivityList::button(const char* name, const QString& caption, void (ActivityList::*command)())
{
    auto* const made = new QPushButton(caption, this);
    made->setObjectName(name);
    made->setAutoDefault(false);
    connect(made, &QPushButton::clicked, this, command);
    return made;
}

bool ActivityList::changed() const
{
    return std::any_of(activities_.begin(), activities_.end(), [](const Activity& a) { return a.changed(); });
}

bool ActivityList::eventFilter(QObject* watched, QEvent* event)
{
    if (watched != list_ || event->type() != QEvent::KeyPress) return QWidget::eventFilter(watched, event);
    switch (static_cast<const QKeyEvent*>(event)->key()) {
    case Qt::Key_Insert:
        add();
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_F2:
        edit();
        return true;
    case Qt::Key_Space:
        toggle();
        return true;
    default:
        return false;
    }
}

// A desktop may change its theme while the window is open.
void ActivityList::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() != QEvent::PaletteChange) return;
    const QSignalBlocker quiet(list_);
    for (int row = 0; row < list_->topLevelItemCount(); ++row)
        ink(*list_->topLevelItem(row), activities_[static_cast<std::size_t>(row)].isDone());
}

void ActivityList::add()
{
    ActivityForm form({}, kinds_, window());
    if (form.exec() == QDialog::Accepted) {
        Activity made = form.activity();
        made.now.push_back(std::to_string(project_));
        made.base = made.now;
        activities_.push_back(std::move(made));
        fill(activities_.size() - 1);
    }
    list_->setFocus(Qt::OtherFocusReason);
}

void ActivityList::open(bool atDate)
{
    const std::size_t row = current();
    if (row >= activities_.size()) return;
    ActivityForm form(activities_[row], kinds_, window());
    if (atDate) form.startAtDate();
    if (form.exec() == QDialog::Accepted) {
        activities_[row] = form.activity();
        fill(row);
    }
    list_->setFocus(Qt::OtherFocusReason);
}

void ActivityList::toggle()
{
    const std::size_t row = current();
    if (row < activities_.size()) mark(row, !activities_[row].isDone());
}

void ActivityList::mark(std::size_t row, bool done)
{
    if (activities_.at(row).isDone() == done) return;
    activities_[row].now[activity_column::done].assign(1, done ? '1' : '0');
    showRow(*list_->topLevelItem(static_cast<int>(row)), activities_[row]);
    followSelection();
}

void ActivityList::fill(std::size_t select)
{
    const QSignalBlocker quiet(list_);
    list_->clear();
    for (const Activity& activity : activities_) {
        auto* const item = new QTreeWidgetItem(list_);
        showRow(*item, activity);
    }
    list_->setCurrentItem(list_->topLevelItem(static_cast<int>(select)));
    followSelection();
}

void ActivityList::showRow(QTreeWidgetItem& item, const Activity& activity)
{
    const QSignalBlocker quiet(list_);
    const bool done = activity.isDone();
    const std::string& kind = activity.now[activity_column::kind];
    item.setCheckState(doneColumn, done ? Qt::Checked : Qt::Unchecked);
    item.setData(doneColumn, Qt::AccessibleTextRole, done ? "Hecha" : "Pendiente");
    item.setText(whenColumn, momentText(activity.now[activity_column::when]));
    item.setText(kindColumn, textOf(kinds_, QString::fromStdString(kind).toInt()));
    item.setText(subjectColumn, QString::fromStdString(activity.now[activity_column::subject]));
    ink(item, done);
    list_->viewport()->update();
}

void ActivityList::ink(QTreeWidgetItem& item, bool done) const
{
    const QColor colour =
        done ? screen::qt::pastInk(palette()) : palette().color(QPalette::Active, QPalette::Text);
    for (int column = whenColumn; column <= subjectColumn; ++column)
        item.setForeground(column, colour);
}

void ActivityList::followSelection()
{
    const std::size_t row = current();
    for (QPushButton* one : needRow_)
        one->setEnabled(row < activities_.size());
    const bool done = row < activities_.size() && activities_[row].isDone();
    toggle_->setText(done ? "No está &hecha" : "Marcar &hecha");
}

std::size_t ActivityList::current() const
{
    const int row = list_->indexOfTopLevelItem(list_->currentItem());
    return row < 0 ? activities_.size() : static_cast<std::size_t>(row);
}

} // namespace dn::host
