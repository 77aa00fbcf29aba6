// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// What the host's forms have in common: labelled fields in a grid with room for a message below each, the two
// buttons, and how they end.
#pragma once

#include <QDialog>
#include <QGridLayout>
#include <QLabel>

#include <map>

namespace dn::host {

/// How much of a form's width a field takes. Two halves that follow each other share a line.
enum class Width : bool { whole, half };

/// A form stays open, with everything typed, until what it was opened for is done or the operator gives up.
class Form : public QDialog {
public:
    void accept() override;

protected:
    /// @param name the window's object name.
    Form(const QString& name, const QString& title, QWidget* over);

    /// Adds a field behind the last one. It needs its object name; the label gives it its accessible name and its
    /// mnemonic. The tab key goes in the order in which the fields' widgets were made.
    void addField(const QString& label, QWidget* field, Width width = Width::whole);
    /// Adds something that takes what room is left, below the last field.
    void addBelow(QWidget* widget);
    /// Adds the buttons, last of all.
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
    /// False while what `store` began goes on; the form stays open then, and ends itself.
    virtual bool stored() const { return true; }

    void showHalves();
    void clearComplaints();
    void writeBelow(QWidget* field, const QString& text, const QColor& colour);

    QGridLayout* grid_;
    std::map<QWidget*, QLabel*> messages_;
    std::map<QWidget*, QString> remarks_;
    int row_ = 0;       // of the last field
    bool half_ = false; // the right half of its line is free
};

} // namespace dn::host
