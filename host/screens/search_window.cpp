// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "host/screens/search_window.h"

#include "host/screens/boxes.h"
#include "host/screens/report_list.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QKeyEvent>
#include <QVBoxLayout>

#include <algorithm>
#include <array>

namespace dn::host {
namespace {

constexpr int searchPause = 40; // milliseconds
constexpr std::array listKeys{Qt::Key_Up, Qt::Key_Down, Qt::Key_PageUp, Qt::Key_PageDown};

} // namespace

SearchWindow::SearchWindow(ScreenContext& context, const QString& text, SearchScope scope, QWidget* over)
    : QDialog(over), search_(context.database, scope)
{
    setObjectName("BuscarEntidad");
    setWindowTitle("Buscar en el directorio");
    build();
    text_->setText(text);
    text_->setFocus();
    pause_.setSingleShot(true);
    pause_.setInterval(searchPause);
    connect(text_, &QLineEdit::textChanged, &pause_, qOverload<>(&QTimer::start));
    connect(&pause_, &QTimer::timeout, this, [this] { search(); });
    connect(&next_, &QTimer::timeout, this, [this] { goOn(); });
    search_.begin(text.toStdString());
    fill();
    next_.start(0);
}

void SearchWindow::build()
{
    text_->setObjectName("txtBuscar");
    text_->setAccessibleName("Texto que se busca");
    text_->setPlaceholderText("Nombre, teléfono o correo");
    offerToClear(*text_);
    text_->installEventFilter(this);
    auto* const caption = new QLabel("&Buscar:", this);
    caption->setObjectName("lblBuscar");
    caption->setBuddy(text_);
    buildList();
    count_->setObjectName("lblResultados");

    auto* const buttons = new QDialogButtonBox(this);
    buttons->setObjectName("botones");
    accepts_ = buttons->addButton("&Aceptar", QDialogButtonBox::AcceptRole);
    accepts_->setObjectName("cmdAceptar");
    accepts_->setDefault(true);
    QPushButton* const cancels = buttons->addButton("&Cancelar", QDialogButtonBox::RejectRole);
    cancels->setObjectName("cmdCancelar");
    cancels->setAutoDefault(false);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    auto* const top = new QHBoxLayout;
    top->addWidget(caption);
    top->addWidget(text_, 1);
    auto* const bottom = new QHBoxLayout;
    bottom->addWidget(count_, 1);
    bottom->addWidget(buttons);
    auto* const layout = new QVBoxLayout(this);
    layout->addLayout(top);
    layout->addWidget(list_, 1);
    layout->addLayout(bottom);
    resize(fontMetrics().averageCharWidth() * 110, fontMetrics().height() * 28);
}

void SearchWindow::buildList()
{
    dressAsReport(*list_, "lstEntidades", "Resultados",
                  {{"Nombre", 0}, {"Tipo", 14}, {"Teléfono", 20}, {"Correo", 34}});
    connect(list_, &QTreeWidget::itemDoubleClicked, this, [this] { accept(); });
}

std::optional<Entity> SearchWindow::picked() const
{
    const int row = list_->indexOfTopLevelItem(list_->currentItem());
    if (result() != Accepted || row < 0) return std::nullopt;
    return found_[static_cast<std::size_t>(row)];
}

// Enter on letters that were not searched yet shows what they find, so that nobody takes a row unseen.
void SearchWindow::accept()
{
    if (pause_.isActive())
        search();
    else if (list_->currentItem() != nullptr)
        QDialog::accept();
}

bool SearchWindow::eventFilter(QObject* watched, QEvent* event)
{
    if (watched != text_ || event->type() != QEvent::KeyPress) return QDialog::eventFilter(watched, event);
    const int key = static_cast<const QKeyEvent*>(event)->key();
    if (std::find(listKeys.begin(), listKeys.end(), key) == listKeys.end()) return false;
    QApplication::sendEvent(list_, event);
    return true;
}

void SearchWindow::search()
{
    pause_.stop();
    next_.stop();
    reporting(this, [this] {
        search_.begin(text_->text().toStdString());
        fill();
        next_.start(0);
    });
}

void SearchWindow::goOn()
{
    bool more = false;
    reporting(this, [&] {
        more = search_.goOn();
        if (!more) fill();
    });
    if (!more) next_.stop();
}

// The row that the operator has gone to stays the current one while more are found below it.
void SearchWindow::fill()
{
    const bool same =
        found_.size() <= search_.found().size() &&
        std::equal(found_.begin(), found_.end(), search_.found().begin(), [](const Entity& l, const Entity& r) {
            return l.key == r.key && l.organisation == r.organisation;
        });
    const int row = same ? std::max(0, list_->indexOfTopLevelItem(list_->currentItem())) : 0;
    found_ = search_.found();
    list_->clear();
    QList<QTreeWidgetItem*> rows;
    for (const Entity& entity : found_)
        rows.append(new QTreeWidgetItem(
            {QString::fromStdString(entity.name), entity.organisation ? "Organización" : "Persona",
             QString::fromStdString(entity.telephone), QString::fromStdString(entity.email)}));
    list_->addTopLevelItems(rows);
    if (!rows.isEmpty()) list_->setCurrentItem(rows.at(row));
    count_->setText(countText());
    accepts_->setEnabled(!rows.isEmpty());
}

QString SearchWindow::countText() const
{
    const std::size_t count = found_.size();
    if (!search_.isDone()) return "Buscando…";
    if (count == 0) return "Nada coincide. Pruebe con otras letras.";
    if (count == 1) return "1 resultado";
    if (count >= static_cast<std::size_t>(searchLimit))
        return QString("Los primeros %1. Escriba más letras para acotar.").arg(count);
    return QString("%1 resultados").arg(count);
}

} // namespace dn::host
