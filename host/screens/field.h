// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// One value of a row as an operator meets it on a form. A field that was not touched gives back exactly the value
// that it was shown, even one that it could only show in part: looking at a row changes nothing in it.
#pragma once

#include "host/screens/choices.h"
#include "host/screens/party_field.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDateTimeEdit>
#include <QLineEdit>

#include <string>

namespace dn::host {

class Field {
public:
    Field() = default;
    Field(const Field&) = delete;
    Field& operator=(const Field&) = delete;
    virtual ~Field() = default;

    virtual QWidget* widget() = 0;
    virtual void show(const std::string& value) = 0;
    virtual std::string value() const = 0;
    /// What keeps the value from being stored, for the operator; empty when nothing does. A value that was not
    /// touched is not judged, or old rows with odd texts could not be corrected bit by bit.
    /// @throws data::Error where the server has to be asked.
    virtual QString complaint() { return {}; }
    /// A value as the operator would read it.
    virtual QString describe(const std::string& value) const = 0;
};

class LineField : public Field {
public:
    /// @param longest in characters, as the column holds them. @param missing what to say when the line is empty;
    /// empty where it may be.
    LineField(QLineEdit* edit, std::size_t longest, QString missing);

    QWidget* widget() override { return edit_; }
    void show(const std::string& value) override;
    std::string value() const override;
    QString complaint() override;
    QString describe(const std::string& value) const override { return QString::fromStdString(value); }

protected:
    /// Without the blanks at both ends; a control character counts as a blank.
    std::string typed() const;
    bool touched() const { return edit_->text() != shown_; }
    QLineEdit& edit() const { return *edit_; }

private:
    QLineEdit* edit_;
    std::size_t longest_;
    QString missing_;
    std::string value_;
    QString shown_;
};

/// One or several addresses, with ";" or "," between them.
class MailField : public LineField {
public:
    using LineField::LineField;
    QString complaint() override;
};

class AmountField : public LineField {
public:
    using LineField::LineField;
    void show(const std::string& value) override;
    std::string value() const override;
    QString complaint() override;
    QString describe(const std::string& value) const override;

private:
    std::string value_;
};

class ChoiceField : public Field {
public:
    /// @param none the first entry, for a null and for 0; empty where there must be a choice.
    /// @param missing what to say when there must be one and none was made.
    ChoiceField(QComboBox* box, const std::vector<Choice>& choices, const QString& none, QString missing = {});

    QWidget* widget() override { return box_; }
    void show(const std::string& value) override;
    std::string value() const override;
    QString complaint() override;
    QString describe(const std::string& value) const override;

private:
    int entryOf(const std::string& value) const;

    QComboBox* box_;
    bool hasNone_;
    QString missing_;
};

/// Whom the row belongs to: an organisation or a person.
class PartyValue : public Field {
public:
    PartyValue(PartyField* field, QString unknown) : field_(field), unknown_(std::move(unknown)) {}

    QWidget* widget() override { return field_; }
    void show(const std::string& value) override;
    std::string value() const override;
    QString complaint() override { return field_->resolve() ? QString() : unknown_; }
    QString describe(const std::string& value) const override;

private:
    PartyField* field_;
    QString unknown_;
    std::string value_;
    std::int32_t shown_ = 0;
};

class MomentField : public Field {
public:
    MomentField(QDateTimeEdit* edit, QString missing);

    QWidget* widget() override { return edit_; }
    void show(const std::string& value) override;
    std::string value() const override;
    QString complaint() override;
    QString describe(const std::string& value) const override;

private:
    bool isEmpty() const { return edit_->dateTime() == edit_->minimumDateTime(); }

    QDateTimeEdit* edit_;
    QString missing_;
    std::string value_;
    QDateTime shown_;
};

/// "1" or "0".
class CheckField : public Field {
public:
    explicit CheckField(QCheckBox* box) : box_(box) {}

    QWidget* widget() override { return box_; }
    void show(const std::string& value) override;
    std::string value() const override;
    QString describe(const std::string& value) const override { return value == "0" ? "no" : "sí"; }

private:
    QCheckBox* box_;
    std::string value_ = "0";
};

/// "dd/mm/yyyy hh:nn" of a moment as a row holds it; "Sin fecha" for none.
QString momentText(const std::string& value);
/// "1,234.50" of an amount as a row holds it.
QString amountText(const std::string& value);

} // namespace dn::host
