// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// What the host's forms have in common: labelled fields in a grid with room for a message below each, the two
// buttons, and how they end.
#pragma once

#include <QDialog>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>

#include <map>

namespace dn::host {

/// A form stays open, with everything typed, until what it was opened for is done or the operator gives up.
class Form : public QDialog {
public:
    void accept() override;

protected:
    /// @param name the window's object name.
    Form(const QString& name, const QString& title, QWidget* over);

    /// Adds a row. The field needs its object name; the label gives it its accessible name and its mnemonic.
    void addField(const QString& label, QWidget* field);
    /// Adds a row with a line of text. @param longest in characters, as the column holds them.
    QLineEdit* addLine(const char* name, const QString& label, int longest);
    /// Adds the buttons below the last field.
    void addButtons();

    /// Shows what is wrong with a field below it, and takes the operator there.
    void complain(QWidget* field, const QString& text);
    /// Shows something worth knowing about a field below it; an empty text takes it away.
    void remark(QWidget* field, const QString& text);

private:
    /// Complains about what is wrong first. @return whether all is well.
    virtual bool validate() = 0;
    /// @throws what the server said.
    virtual void store() = 0;

    void clearComplaints();
    void writeBelow(QWidget* field, const QString& text, const QColor& colour);

    QGridLayout* grid_;
    std::map<QWidget*, QLabel*> messages_;
    std::map<QWidget*, QString> remarks_;
};

/// Without the blanks at both ends.
std::string typed(const QLineEdit& line);

} // namespace dn::host
