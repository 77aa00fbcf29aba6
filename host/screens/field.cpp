// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "host/screens/field.h"

#include "base/text.h"
#include "host/screens/amount.h"

#include <QRegularExpression>

#include <algorithm>

namespace dn::host {
namespace {

constexpr const char* isoFormat = "yyyy-MM-dd HH:mm:00"; // what was typed has no seconds
constexpr const char* shownFormat = "dd/MM/yyyy HH:mm";

QDateTime momentOf(const std::string& value)
{
    const auto moment = parseIso(value);
    if (!moment || !moment->hasDate()) return {};
    return {QDate(moment->year, moment->month, moment->day), QTime(moment->hour, moment->minute, moment->second),
            Qt::UTC}; // no hour is skipped in spring
}

bool isAddress(const QString& text)
{
    static const QRegularExpression form(R"(^[^@\s]+@[^@\s]+$)");
    return form.match(text).hasMatch();
}

bool areAddresses(const QString& text)
{
    static const QRegularExpression between("[;,]");
    const QStringList parts = text.split(between);
    return std::all_of(parts.begin(), parts.end(), [](const QString& one) { return isAddress(one.trimmed()); });
}

QVariant entryData(const std::string& value) { return QString::fromStdString(value); }

} // namespace

LineField::LineField(QLineEdit* edit, std::size_t longest, QString missing)
    : edit_(edit), longest_(longest), missing_(std::move(missing))
{
}

void LineField::show(const std::string& value)
{
    value_ = value;
    shown_ = describe(value);
    edit_->setText(shown_);
    edit_->setCursorPosition(0); // a long text shows its beginning
}

std::string LineField::value() const { return touched() ? typed() : value_; }

std::string LineField::typed() const
{
    QString text = edit_->text();
    for (QChar& c : text)
        if (c < u' ' || c == QChar(0x7F)) c = u' ';
    return text.trimmed().toStdString();
}

QString LineField::complaint()
{
    const std::string text = value();
    if (text.empty() && !missing_.isEmpty()) return missing_;
    if (!touched() || length(text) <= longest_) return {};
    return QString("Son %1 caracteres y caben %2. Acorte el texto.").arg(length(text)).arg(longest_);
}

QString MailField::complaint()
{
    if (QString text = LineField::complaint(); !text.isEmpty()) return text;
    const QString address = QString::fromStdString(value());
    if (!touched() || address.isEmpty() || areAddresses(address)) return {};
    return "Escriba el correo en la forma nombre@dominio.";
}

void AmountField::show(const std::string& value)
{
    value_ = value;
    LineField::show(value);
}

std::string AmountField::value() const
{
    if (!touched()) return value_;
    const std::string text = readAmount(typed()).value_or("");
    const bool same = !text.empty() && amountText(text) == amountText(value_); // "1234.5" for 1234.50
    return same ? value_ : text;
}

QString AmountField::complaint()
{
    if (!touched() || typed().empty() || readAmount(typed())) return {};
    edit().selectAll();
    return "Escriba el monto con números y hasta dos decimales, por ejemplo 1234.50 o 1,234.50.";
}

QString AmountField::describe(const std::string& value) const { return amountText(value); }

ChoiceField::ChoiceField(QComboBox* box, const std::vector<Choice>& choices, const QString& none, QString missing)
    : box_(box), hasNone_(!none.isEmpty()), missing_(std::move(missing))
{
    box_->setMaxVisibleItems(14);
    if (hasNone_) box_->addItem(none, QString());
    for (const Choice& choice : choices)
        box_->addItem(choice.icon, choice.text, QString::number(choice.key));
    box_->setCurrentIndex(hasNone_ ? 0 : -1);
}

void ChoiceField::show(const std::string& value)
{
    const bool nothing = value.empty() || value == "0";
    int entry = entryOf(value);
    if (entry < 0 && nothing && hasNone_) {
        box_->setItemData(0, entryData(value)); // a 0 stays a 0
        entry = 0;
    }
    if (entry < 0 && !nothing) { // the list lacks it: keep it, or the form would change it
        box_->addItem(QString("(clave %1)").arg(QString::fromStdString(value)), entryData(value));
        entry = box_->count() - 1;
    }
    box_->setCurrentIndex(entry);
}

std::string ChoiceField::value() const { return box_->currentData().toString().toStdString(); }

QString ChoiceField::complaint() { return box_->currentIndex() < 0 ? missing_ : QString(); }

QString ChoiceField::describe(const std::string& value) const
{
    const int entry = entryOf(value);
    if (entry >= 0) return box_->itemText(entry);
    return hasNone_ && (value.empty() || value == "0") ? box_->itemText(0) : QString::fromStdString(value);
}

int ChoiceField::entryOf(const std::string& value) const { return box_->findData(entryData(value)); }

void PartyValue::show(const std::string& value)
{
    value_ = value;
    field_->choose(QString::fromStdString(value).toInt());
    shown_ = field_->key();
}

// A key whose row is gone shows an empty field, and stays until the operator chooses another.
std::string PartyValue::value() const
{
    if (field_->key() == shown_) return value_;
    return field_->key() == 0 ? std::string() : std::to_string(field_->key());
}

QString PartyValue::describe(const std::string& value) const
{
    return value.empty() ? QString("(vacío)") : field_->nameOf(QString::fromStdString(value).toInt());
}

MomentField::MomentField(QDateTimeEdit* edit, QString missing) : edit_(edit), missing_(std::move(missing))
{
    edit_->setTimeSpec(Qt::UTC);
    edit_->setDisplayFormat(shownFormat);
    edit_->setCalendarPopup(true);
    edit_->setMinimumDateTime(QDateTime(QDate(1900, 1, 1), QTime(0, 0), Qt::UTC));
    edit_->setSpecialValueText("Sin fecha");
}

void MomentField::show(const std::string& value)
{
    value_ = value;
    const QDateTime moment = momentOf(value);
    edit_->setDateTime(moment.isValid() ? moment : edit_->minimumDateTime());
    shown_ = edit_->dateTime();
}

std::string MomentField::value() const
{
    if (edit_->dateTime() == shown_) return value_;
    return isEmpty() ? std::string() : edit_->dateTime().toString(isoFormat).toStdString();
}

QString MomentField::complaint() { return isEmpty() && edit_->dateTime() != shown_ ? missing_ : QString(); }

QString MomentField::describe(const std::string& value) const { return momentText(value); }

void CheckField::show(const std::string& value)
{
    value_ = value;
    box_->setChecked(!value.empty() && value != "0");
}

std::string CheckField::value() const
{
    const bool was = !value_.empty() && value_ != "0";
    if (box_->isChecked() == was) return value_;
    return box_->isChecked() ? "1" : "0";
}

QString momentText(const std::string& value)
{
    const QDateTime moment = momentOf(value);
    return moment.isValid() ? moment.toString(shownFormat) : QString("Sin fecha");
}

QString amountText(const std::string& value)
{
    if (value.empty()) return {};
    QString digits = QString::fromStdString(value);
    if (!digits.contains(u'.')) digits += ".00";
    while (digits.size() - digits.indexOf(u'.') < 3)
        digits += u'0';
    const qsizetype first = digits.startsWith(u'-') ? 1 : 0;
    for (qsizetype at = digits.indexOf(u'.') - 3; at > first; at -= 3)
        digits.insert(at, u',');
    return digits;
}

} // namespace dn::host
