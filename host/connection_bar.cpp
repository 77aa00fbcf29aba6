// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "host/connection_bar.h"

#include <QHBoxLayout>
#include <QTime>
#include <QVBoxLayout>

namespace dn::host {
namespace {

QLabel* wrapped(const char* name, QWidget* parent)
{
    auto* const label = new QLabel(parent);
    label->setObjectName(name);
    label->setTextFormat(Qt::PlainText);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    label->setWordWrap(true);
    return label;
}

QPushButton* button(const char* name, const char* caption, QWidget* parent)
{
    auto* const made = new QPushButton(caption, parent);
    made->setObjectName(name);
    made->setAutoDefault(false);
    made->setFocusPolicy(Qt::TabFocus); // a click leaves the keyboard with whoever is typing
    return made;
}

} // namespace

ConnectionBar::ConnectionBar(Reconnection& reconnection, QWidget* parent)
    : QFrame(parent),
      reconnection_(reconnection),
      text_(wrapped("lblConexion", this)),
      reason_(wrapped("lblMotivo", this)),
      notes_(new KeptNotes(this)),
      now_(button("cmdReconectar", "Reconectar ahora", this)),
      close_(button("cmdCerrarAviso", "Cerrar", this))
{
    setObjectName("BarraDeConexion");
    setAccessibleName("Conexión con la base de datos");
    setAutoFillBackground(true);
    auto* const texts = new QVBoxLayout;
    texts->addWidget(text_);
    texts->addWidget(reason_);
    texts->addWidget(notes_);
    auto* const all = new QHBoxLayout(this);
    all->addLayout(texts, 1);
    all->addWidget(now_);
    all->addWidget(close_);
    connect(now_, &QPushButton::clicked, this, [this] { reconnection_.tryNow(); });
    connect(close_, &QPushButton::clicked, this, [this] { close(); });
    changes_ = reconnection_.changed.connect([this] { tell(); });
    notes_->hide();
    hide();
}

void ConnectionBar::keepNote(const QString& note)
{
    const QString told = "La nota que no se guardó dice: «" + note + "»";
    const QString before = notes_->toPlainText();
    if (!before.contains(told)) notes_->setPlainText(before.isEmpty() ? told : before + "\n" + told);
    notes_->show();
    show(); // it may have been closed while a call went on
}

void ConnectionBar::close()
{
    notes_->clear();
    notes_->hide();
    hide();
}

void ConnectionBar::tell()
{
    switch (reconnection_.state()) {
    case Reconnection::State::connected:
        showBack();
        break;
    case Reconnection::State::waiting:
        showLost(QString("Nuevo intento en %1 s.").arg(reconnection_.untilNext().count()));
        break;
    case Reconnection::State::trying:
        showLost("Reconectando…");
        break;
    }
}

void ConnectionBar::showLost(const QString& next)
{
    lost_ = true;
    paint("#fff3cd", "#4d3900");
    text_->setText("Se perdió la conexión con la base de datos: lo que haga ahora no se guarda. " + next);
    reason_->setText(reconnection_.reason());
    reason_->setVisible(!reconnection_.reason().isEmpty());
    now_->setVisible(true);
    now_->setEnabled(reconnection_.state() == Reconnection::State::waiting);
    close_->hide();
    show();
}

void ConnectionBar::showBack()
{
    if (!lost_) return;
    lost_ = false;
    paint("#d1e7dd", "#0a3622");
    text_->setText("Conexión restablecida a las " + QTime::currentTime().toString("HH:mm") +
                   ". Compruebe si quedó guardado lo último que hizo.");
    reason_->hide();
    now_->hide();
    close_->show();
}

void ConnectionBar::paint(const char* background, const char* text)
{
    QPalette colours = palette();
    colours.setColor(QPalette::Window, QColor(background));
    for (const auto role : {QPalette::WindowText, QPalette::Text})
        colours.setColor(role, QColor(text));
    setPalette(colours);
}

} // namespace dn::host
