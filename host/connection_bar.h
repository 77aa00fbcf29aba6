// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The bar above the control that tells of a lost connection, and of the one that came back. It stands in nobody's
// way: a note can be typed on meanwhile.
#pragma once

#include "host/kept_notes.h"
#include "host/reconnection.h"

#include <QFrame>
#include <QLabel>
#include <QPushButton>

namespace dn::host {

class ConnectionBar : public QFrame {
public:
    /// @param reconnection outlives the bar.
    ConnectionBar(Reconnection& reconnection, QWidget* parent);

    /// From now until it is closed: this could not be put back into its place. Another loss of the connection
    /// takes it away no more than another note does.
    void keepNote(const QString& note);

private:
    void tell();
    void showLost(const QString& next);
    void showBack();
    void close();
    void paint(const char* background, const char* text);

    Reconnection& reconnection_;
    bool lost_ = false;
    QLabel* text_;
    QLabel* reason_;
    KeptNotes* notes_;
    QPushButton* now_;
    QPushButton* close_;
    screen::Subscription changes_;
};

} // namespace dn::host
