// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// Text boxes: of one line, and of several with line ends that survive the toolkit.
#pragma once

#include "screen/qt/bond.h"
#include "screen/text_box.h"

#include <QLineEdit>
#include <QPlainTextEdit>

namespace dn::screen::qt {

class LineBoxView : public QLineEdit {
public:
    LineBoxView(screen::TextBox& box, QWidget* parent, Guard& guard);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;

private:
    void mirror(const screen::TextBox& box);

    Bond<screen::TextBox> bond_;
};

class MultiLineBoxView : public QPlainTextEdit {
public:
    MultiLineBoxView(screen::TextBox& box, QWidget* parent, Guard& guard);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    QMimeData* createMimeDataFromSelection() const override;

private:
    void mirror(const screen::TextBox& box);
    void edited();

    std::string shown_; ///< what the document holds: comparing megabytes there would take a copy each time
    bool mirroring_ = false;
    Bond<screen::TextBox> bond_;
};

} // namespace dn::screen::qt
