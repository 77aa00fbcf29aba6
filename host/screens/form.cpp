// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "host/screens/form.h"

#include "host/screens/boxes.h"

#include <QDialogButtonBox>
#include <QPushButton>
#include <QVBoxLayout>

namespace dn::host {
namespace {

constexpr int widthInCharacters = 72;
constexpr int doubleWidthInCharacters = 116;

QString withoutMnemonic(QString label) { return label.remove(u'&').remove(u':'); }

bool isDark(const QWidget& widget) { return widget.palette().color(QPalette::Window).lightness() < 128; }

QColor complaintColour(const QWidget& widget)
{
    return isDark(widget) ? QColor(0xFF, 0xA0, 0x96) : QColor(0xB3, 0x26, 0x1E);
}

QColor remarkColour(const QWidget& widget)
{
    return isDark(widget) ? QColor(0xB4, 0xBC, 0xC8) : QColor(0x52, 0x5F, 0x6E);
}

} // namespace

Form::Form(const QString& name, const QString& title, QWidget* over) : QDialog(over), grid_(new QGridLayout)
{
    setObjectName(name);
    setWindowTitle(title);
    setMinimumWidth(fontMetrics().averageCharWidth() * widthInCharacters);
    auto* const layout = new QVBoxLayout(this);
    layout->addLayout(grid_);
    layout->addStretch(1);
    grid_->setColumnStretch(1, 1);
    grid_->setVerticalSpacing(fontMetrics().height() / 4);
    grid_->setHorizontalSpacing(fontMetrics().height());
}

void Form::addField(const QString& label, QWidget* field, Width width)
{
    const bool right = width == Width::half && half_;
    if (!right) row_ = grid_->rowCount();
    half_ = width == Width::half && !right;
    const int column = right ? 2 : 0;
    auto* const caption = new QLabel(label, this);
    caption->setObjectName("lbl" + field->objectName());
    caption->setBuddy(field);
    field->setAccessibleName(withoutMnemonic(label));
    auto* const message = new QLabel(this);
    message->setObjectName("msg" + field->objectName());
    message->setTextFormat(Qt::PlainText);
    message->setWordWrap(true);
    message->hide();
    const int columns = width == Width::whole ? 3 : 1;
    grid_->addWidget(caption, row_, column);
    grid_->addWidget(field, row_, column + 1, 1, columns);
    grid_->addWidget(message, row_ + 1, column + 1, 1, columns);
    messages_[field] = message;
    if (width == Width::half) showHalves();
}

void Form::showHalves()
{
    grid_->setColumnStretch(3, 1);
    setMinimumWidth(fontMetrics().averageCharWidth() * doubleWidthInCharacters);
}

void Form::addBelow(QWidget* widget)
{
    auto& whole = static_cast<QVBoxLayout&>(*layout());
    delete whole.takeAt(1); // what kept the fields at the top
    whole.addWidget(widget, 1);
}

void Form::addButtons()
{
    auto* const buttons = new QDialogButtonBox(this);
    buttons->setObjectName("botones");
    QPushButton* const accepts = buttons->addButton("&Aceptar", QDialogButtonBox::AcceptRole);
    accepts->setObjectName("cmdAceptar");
    accepts->setDefault(true);
    QPushButton* const cancels = buttons->addButton("&Cancelar", QDialogButtonBox::RejectRole);
    cancels->setObjectName("cmdCancelar");
    cancels->setAutoDefault(false);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    layout()->addItem(new QSpacerItem(0, fontMetrics().height() / 2));
    layout()->addWidget(buttons);
}

void Form::accept()
{
    clearComplaints();
    try {
        if (!validate()) return;
        store();
    } catch (const std::exception& failure) {
        report(this, failure);
        return;
    }
    if (stored()) QDialog::accept();
}

void Form::complain(QWidget* field, const QString& text)
{
    writeBelow(field, text, complaintColour(*this));
    field->setFocus(Qt::OtherFocusReason);
}

void Form::remark(QWidget* field, const QString& text)
{
    remarks_[field] = text;
    writeBelow(field, text, remarkColour(*this));
}

void Form::clearComplaints()
{
    for (const auto& [field, message] : messages_)
        writeBelow(field, remarks_[field], remarkColour(*this));
}

void Form::writeBelow(QWidget* field, const QString& text, const QColor& colour)
{
    QLabel& message = *messages_.at(field);
    QPalette palette = message.palette();
    palette.setColor(QPalette::WindowText, colour);
    message.setPalette(palette);
    message.setText(text);
    message.setVisible(!text.isEmpty());
    field->setAccessibleDescription(text);
}

} // namespace dn::host
