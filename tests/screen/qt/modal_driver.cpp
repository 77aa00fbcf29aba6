// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/screen/qt/modal_driver.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDateTime>
#include <QDialog>
#include <QRadioButton>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

namespace dn::tests {
namespace {

constexpr qint64 patience = 5000; // milliseconds

QString plain(const QAbstractButton& button) { return button.text().remove(u'&'); }

} // namespace

ModalDriver::ModalDriver()
{
    QTimer::singleShot(0, this, [this] { poll(); });
}

ModalDriver::~ModalDriver()
{
    for (const Step& step : steps_)
        ADD_FAILURE() << "never came: " << step.name.toStdString();
}

void ModalDriver::expect(const char* name, Action action)
{
    deadline_ = QDateTime::currentMSecsSinceEpoch() + patience;
    steps_.push_back({QString::fromUtf8(name), std::move(action)});
}

void ModalDriver::poll()
{
    QTimer::singleShot(5, this, [this] { poll(); }); // another timer: it fires while an action opens a window
    QWidget* const modal = QApplication::activeModalWidget();
    if (modal == nullptr || !modal->isVisible()) return;
    if (!modal->isActiveWindow()) { // without a window manager nobody gives it back what a box took
        modal->activateWindow();
        return;
    }
    if (!steps_.empty() && modal->objectName() == steps_.front().name) {
        const Step step = std::move(steps_.front());
        steps_.pop_front();
        std::erase_if(met_, [](const QPointer<QWidget>& one) { return one.isNull(); });
        met_.emplace_back(modal);
        actedIn_.push_back(modal);
        step.action(*modal);
        actedIn_.pop_back();
        deadline_ = QDateTime::currentMSecsSinceEpoch() + patience;
    } else if (!known(modal)) {
        refuse(*modal, "a window that nobody expected");
    } else if (!isActedIn(modal) && QDateTime::currentMSecsSinceEpoch() > deadline_) {
        refuse(*modal, "a window that stayed open");
    }
}

void ModalDriver::refuse(QWidget& modal, const char* reason)
{
    ADD_FAILURE() << reason << ": " << modal.objectName().toStdString();
    if (auto* const dialog = qobject_cast<QDialog*>(&modal); dialog != nullptr)
        dialog->done(QDialog::Rejected);
    else
        modal.close();
}

bool ModalDriver::known(const QWidget* modal) const
{
    return std::any_of(met_.begin(), met_.end(), [&](const QPointer<QWidget>& one) { return one == modal; });
}

bool ModalDriver::isActedIn(const QWidget* modal) const { return !actedIn_.empty() && actedIn_.back() == modal; }

void pressButton(QWidget& window, const char* caption)
{
    for (QAbstractButton* button : window.findChildren<QAbstractButton*>()) {
        if (plain(*button) != QString::fromUtf8(caption) || !button->isVisible()) continue;
        // An option takes the click on its mark or its words alone, which do not fill its width.
        const QPoint mark(8, button->height() / 2);
        const bool option = qobject_cast<QRadioButton*>(button) != nullptr;
        QTest::mouseClick(button, Qt::LeftButton, {}, option ? mark : button->rect().center());
        return;
    }
    ADD_FAILURE() << "no button " << caption;
}

std::vector<std::string> buttons(const QWidget& window)
{
    std::vector<std::string> captions;
    for (const QAbstractButton* button : window.findChildren<QAbstractButton*>())
        if (button->isVisible() && !button->text().isEmpty()) captions.push_back(plain(*button).toStdString());
    return captions;
}

} // namespace dn::tests
