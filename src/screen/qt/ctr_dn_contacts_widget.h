// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

// The control as a widget that a host places on one of its screens.
//
//     auto* widget = new dn::screen::qt::CtrDnContactsWidget(window);
//     widget->onError([](const std::exception& failure) { ... });
//     widget->control().SetObjects(&connection, agent, admin, user);
//     widget->control().RefreshData();
#pragma once

#include "base/export.h"
#include "screen/qt/column_layout.h"

#include <QWidget>

#include <exception>
#include <functional>
#include <memory>

namespace dn {
class ctrDnContacts;
}

namespace dn::screen::qt {

/// Shows the control and owns it.
class DN_EXPORT CtrDnContactsWidget : public QWidget {
    Q_OBJECT

public:
    /// Makes the control, in its first state. Asks for nothing beyond the process: no connection, no file.
    explicit CtrDnContactsWidget(QWidget* parent = nullptr);
    ~CtrDnContactsWidget() override;

    /// The control. It lives as long as the widget.
    ctrDnContacts& control();

    /// @param handler takes the exceptions that the operator's own clicks and keys start and that the control does
    /// not treat. Without one, their text is shown in a box. Exceptions of methods that the host calls reach the
    /// host as exceptions.
    void onError(std::function<void(const std::exception&)> handler);

    /// How the operator has arranged the columns of each list. The control itself has no settings: a host that
    /// keeps this hands it back at its next start.
    ColumnLayouts columnLayouts() const;
    /// Arranges the columns of the lists that are named. What does not fit a list leaves it as it is.
    void columnLayouts(const ColumnLayouts& layouts);

    /// The frame as it was designed.
    QSize sizeHint() const override;
    /// Below it parts of the frame lie on each other.
    QSize minimumSizeHint() const override;

private:
    struct Parts;

    std::unique_ptr<Parts> parts_;
};

} // namespace dn::screen::qt
