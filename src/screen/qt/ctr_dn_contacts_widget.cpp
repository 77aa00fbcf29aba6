// SPDX-FileCopyrightText: The ctrDnContacts authors
// SPDX-License-Identifier: Apache-2.0

#include "screen/qt/ctr_dn_contacts_widget.h"

#include "screen/qt/guard.h"
#include "screen/qt/list_view_view.h"
#include "screen/qt/panel_views.h"
#include "screen/qt/ports.h"
#include "screen/qt/text.h"
#include "screen/qt/theme.h"
#include "shell/ctr_dn_contacts.h"
#include "shell/list_commands.h"

#include <QHeaderView>
#include <QVBoxLayout>

namespace dn::screen::qt {

// In the order of their lives: the views go first, then the control, then what it stands on.
struct CtrDnContactsWidget::Parts {
    explicit Parts(CtrDnContactsWidget& widget)
        : ports(guard, &widget),
          control(ports.ports()),
          view(std::make_unique<ControlView>(control.root(), &widget, guard))
    {
    }

    Guard guard;
    QtPorts ports;
    ctrDnContacts control;
    std::unique_ptr<ControlView> view;
};

CtrDnContactsWidget::CtrDnContactsWidget(QWidget* parent) : QWidget(parent), parts_(std::make_unique<Parts>(*this))
{
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(parts_->view.get());
    for (auto* const list : findChildren<ListViewView*>())
        list->offer(shell::commandsOf(toUtf8(list->objectName()), control().elements()));
    dress(*this);
}

CtrDnContactsWidget::~CtrDnContactsWidget() = default;

ctrDnContacts& CtrDnContactsWidget::control() { return parts_->control; }

void CtrDnContactsWidget::onError(std::function<void(const std::exception&)> handler)
{
    parts_->guard.onError(std::move(handler));
}

ColumnLayouts CtrDnContactsWidget::columnLayouts() const
{
    ColumnLayouts layouts;
    for (const auto* const list : findChildren<ListViewView*>())
        layouts[toUtf8(list->objectName())] = columnLayoutOf(*list->horizontalHeader());
    return layouts;
}

void CtrDnContactsWidget::columnLayouts(const ColumnLayouts& layouts)
{
    for (const auto& [name, layout] : layouts)
        if (auto* const list = findChild<ListViewView*>(fromUtf8(name)); list != nullptr)
            arrangeColumns(*list->horizontalHeader(), layout);
}

QSize CtrDnContactsWidget::sizeHint() const { return {1048, 677}; } // the frame as designed

QSize CtrDnContactsWidget::minimumSizeHint() const { return {480, 320}; }

} // namespace dn::screen::qt
