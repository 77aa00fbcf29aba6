// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The window of a dialog. A view is built each time that the form is shown, and lives as long as it shows.
#pragma once

#include "screen/panels.h"
#include "screen/qt/guard.h"

#include <QDialog>

#include <memory>

namespace dn::screen::qt {

class FocusKeeper;
class Shortcuts;

class FormView : public QDialog {
public:
    FormView(screen::Form& form, QWidget* parent, Guard& guard);
    ~FormView() override;

    /// Shows the form and returns when it has hidden itself or ended.
    void run();

    void reject() override;

protected:
    void closeEvent(QCloseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void mirror();
    void mirrorSize();
    void finish();
    void close(bool byKey);

    screen::Form* element_;
    Guard& guard_;
    bool following_ = false; ///< the element takes the window's size: what it tells meanwhile is half of it
    std::unique_ptr<FocusKeeper> focus_;
    std::unique_ptr<Shortcuts> shortcuts_;
    Subscriptions wires_;
};

} // namespace dn::screen::qt
