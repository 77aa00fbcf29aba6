// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// Acts for the operator in the windows and boxes that a call opens and waits for.
//
//     ModalDriver driver;
//     driver.expect("MsgBox", [](QWidget& box) { pressButton(box, "No"); });
//     EXPECT_EQ(dialogs.MsgBox(...), screen::Answer::no);
//
// It polls for the window, with a deadline. A window that nobody expected is refused: it fails the test and is
// closed. So does an expected one that never came.
#pragma once

#include <QObject>
#include <QPointer>
#include <QWidget>

#include <deque>
#include <functional>
#include <vector>

namespace dn::tests {

class ModalDriver : public QObject {
public:
    using Action = std::function<void(QWidget&)>;

    ModalDriver();
    ~ModalDriver() override;

    /// The next thing that happens is this, in the window of that object name.
    void expect(const char* name, Action action);

private:
    struct Step {
        QString name;
        Action action;
    };

    void poll();
    void refuse(QWidget& modal, const char* reason);
    bool known(const QWidget* modal) const;
    /// The operator is still at it, which may take long: a server starts again meanwhile.
    bool isActedIn(const QWidget* modal) const;

    std::deque<Step> steps_;
    std::vector<QPointer<QWidget>> met_;
    std::vector<const QWidget*> actedIn_; // the innermost one last
    qint64 deadline_ = 0;
};

/// Clicks the button of that caption in a window.
void pressButton(QWidget& window, const char* caption);

/// The captions of a window's buttons, in the order in which they were added, accelerators left out.
std::vector<std::string> buttons(const QWidget& window);

} // namespace dn::tests
