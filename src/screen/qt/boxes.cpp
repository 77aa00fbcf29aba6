// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The message box, the input box and the save-file dialog.

#include "base/runtime_error.h"
#include "screen/qt/file_filter.h"
#include "screen/qt/held_keys.h"
#include "screen/qt/ports.h"
#include "screen/qt/text.h"
#include "screen/qt/theme.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QFileInfo>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QVBoxLayout>

#include <vector>

namespace dn::screen::qt {
namespace {

QWidget* windowBelow(QWidget* owner)
{
    QWidget* const active = QApplication::activeWindow();
    return active != nullptr ? active : owner;
}

/// The plain pointer while the operator has something to answer, whatever it was before.
class PointerAtRest {
public:
    PointerAtRest()
    {
        for (; QGuiApplication::overrideCursor() != nullptr; QGuiApplication::restoreOverrideCursor())
            before_.push_back(*QGuiApplication::overrideCursor());
    }
    PointerAtRest(const PointerAtRest&) = delete;
    PointerAtRest& operator=(const PointerAtRest&) = delete;
    ~PointerAtRest()
    {
        for (; !before_.empty(); before_.pop_back())
            QGuiApplication::setOverrideCursor(before_.back());
    }

private:
    std::vector<QCursor> before_;
};

/// Adds a button; Enter presses the one whose number is the default's.
QPushButton* addButton(QMessageBox& box, const QString& text, QMessageBox::ButtonRole role, bool isDefault)
{
    QPushButton* const button = box.addButton(text, role);
    if (isDefault) box.setDefaultButton(button);
    return button;
}

/// Room for a sentence in a line; the box by itself would break it after a few words.
void widen(QMessageBox& box)
{
    constexpr int width = 340;
    if (auto* const grid = qobject_cast<QGridLayout*>(box.layout()); grid != nullptr)
        grid->addItem(new QSpacerItem(width, 0), grid->rowCount(), 0, 1, grid->columnCount());
}

QString labelled(const char* utf8) { return QString::fromUtf8(utf8); }

class InputDialog : public QDialog {
public:
    InputDialog(const QString& prompt, QWidget* parent) : QDialog(parent)
    {
        setObjectName(QStringLiteral("InputBox"));
        setWindowTitle(QGuiApplication::applicationDisplayName());
        setMinimumWidth(380);
        auto* const layout = new QVBoxLayout(this);
        auto* const label = new QLabel(prompt, this);
        label->setTextFormat(Qt::PlainText);
        label->setWordWrap(true);
        label->setBuddy(&edit_);
        edit_.setAccessibleName(prompt);
        auto* const buttons = new QDialogButtonBox(this);
        buttons->addButton(labelled("Aceptar"), QDialogButtonBox::AcceptRole);
        buttons->addButton(labelled("Cancelar"), QDialogButtonBox::RejectRole);
        layout->addWidget(label);
        layout->addWidget(&edit_);
        layout->addWidget(buttons);
        connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
        connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
        dress(*this);
        ignoreHeldKeys(*this);
        edit_.setFocus();
    }

    QString text() const { return edit_.text(); }

private:
    QLineEdit edit_{this};
};

void speakSpanish(QFileDialog& dialog)
{
    dialog.setLabelText(QFileDialog::LookIn, labelled("Buscar en:"));
    dialog.setLabelText(QFileDialog::FileName, labelled("Nombre:"));
    dialog.setLabelText(QFileDialog::FileType, labelled("Tipo:"));
    dialog.setLabelText(QFileDialog::Accept, labelled("Guardar"));
    dialog.setLabelText(QFileDialog::Reject, labelled("Cancelar"));
}

/// The file dialog's own question would come in the language of the toolkit's translations.
bool mayWrite(Dialogs& dialogs, const QString& path)
{
    if (!QFileInfo::exists(path)) return true;
    const QString question = labelled("«%1» ya existe. ¿Desea reemplazarlo?").arg(QFileInfo(path).fileName());
    return dialogs.MsgBox(
               {.prompt = toUtf8(question), .buttons = MessageBox::Buttons::yesNo, .defaultButton = 2}) ==
           Answer::yes;
}

} // namespace

Answer QtDialogs::MsgBox(const MessageBox& box)
{
    const PointerAtRest rest;
    const bool critical = box.icon == MessageBox::Icon::critical;
    QMessageBox window(critical ? QMessageBox::Critical : QMessageBox::NoIcon, {}, fromUtf8(box.prompt),
                       QMessageBox::NoButton, windowBelow(owner_));
    window.setObjectName(QStringLiteral("MsgBox"));
    window.setWindowTitle(box.title.empty() ? QGuiApplication::applicationDisplayName() : fromUtf8(box.title));
    window.setTextFormat(Qt::PlainText);
    widen(window);
    dress(window);
    if (box.buttons == MessageBox::Buttons::ok) {
        addButton(window, labelled("Aceptar"), QMessageBox::AcceptRole, true);
        ignoreHeldKeys(window);
        window.exec();
        return Answer::ok;
    }
    const QPushButton* const yes =
        addButton(window, labelled("&Sí"), QMessageBox::YesRole, box.defaultButton == 1);
    QPushButton* const no = addButton(window, labelled("&No"), QMessageBox::NoRole, box.defaultButton == 2);
    window.setEscapeButton(no);
    ignoreHeldKeys(window);
    window.exec();
    return window.clickedButton() == yes ? Answer::yes : Answer::no;
}

std::string QtDialogs::InputBox(const std::string& prompt)
{
    InputDialog dialog(fromUtf8(prompt), windowBelow(owner_));
    bool ended = false;
    QObject::connect(&dialog, &QDialog::finished, &dialog, [&] { ended = true; });
    const bool accepted = dialog.exec() == QDialog::Accepted;
    // The event loop was ended around the box. An empty answer would make a question that must be answered come
    // back for ever, in a program that cannot show it any more.
    if (!ended) throw RuntimeError("La aplicación se está cerrando.");
    return accepted ? toUtf8(dialog.text()) : std::string();
}

std::optional<SaveChoice> QtDialogs::ShowSave(const std::string& filter)
{
    const FileFilter pairs(filter);
    QFileDialog dialog(windowBelow(owner_), labelled("Guardar como"));
    dialog.setObjectName(QStringLiteral("ShowSave"));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setOption(QFileDialog::DontConfirmOverwrite);
    dialog.setNameFilters(pairs.nameFilters());
    speakSpanish(dialog);
    while (dialog.exec() == QDialog::Accepted && !dialog.selectedFiles().isEmpty()) {
        const QString path = dialog.selectedFiles().constFirst();
        if (mayWrite(*this, path)) return SaveChoice{toUtf8(path), pairs.number(dialog.selectedNameFilter())};
    }
    return std::nullopt;
}

} // namespace dn::screen::qt
